// Generated from StructureTransformDef.xsd; do not edit. Regenerate with the target "generate".
#pragma once

#include "Framework/TypedDataContainer.h"

namespace Framework {
struct FieldTableIndex;
}

class StructureDataMappingType;

/// The fields of a packet and the XML they stand for.
///
/// Element `StructureDataMappingList` unless its parent names it otherwise.
class FRAMEWORK_API StructureDataMappingListType : public TypedDataContainer {
public:
    explicit StructureDataMappingListType(bool bBuildFromScratch);
    ~StructureDataMappingListType() override;

    zelString GetBaseType() override;
    void GetProperties(ParameterList& pList) override;
    bool MergeDataMembers(XMLDataWrapper* pMergeData, zelString sFeatureID) override;
    zelString GetAttributeList() override;
    ParameterList* GetPLAttributeList() override;
    TypedDataContainer* Clone() override;
    bool DumpMergeContents(const zelString& sParentQuery, FullFunctionXMLDataWrapper* pOutput, int QueryPos,
                           bool bIncludeMergeAttributes) override;
    bool DumpMergeContentsII(DOMNode* pParentNode, FullFunctionXMLDataWrapper* pOutput, DOMNode*& pPassedCurrent,
                             bool bIncludeMergeAttributes) override;
    bool UpdateContainedData() override;
    bool PopulateDataMembers(XalanNode* pNode) override;
    void ResetDataMembers() override;

    // The order is that of the virtual table.
    virtual int GetDataMapLength();
    virtual StructureDataMappingType* GetDataMap(int Index);
    virtual StructureDataMappingType* GetDataMap(const zelString& sName);
    virtual void AddNewDataMap(StructureDataMappingType* szNew, const zelString& sName);
    virtual void RemoveDataMap(const zelString& sName, const zelString& sFeatureId);
    virtual bool AutoFillTypeInfo();
    virtual void AddDataMap(XMLDataWrapper* pData, XalanNode* spNode, const zelString& sName);
    virtual void ClearDataMap();

    bool GetAutoFillTypeInfo() const { return m_bAutoFillTypeInfo; }
    void SetAutoFillTypeInfo(bool bNew) { m_bAutoFillTypeInfo = bNew; }

protected:
    bool m_bAutoFillTypeInfo = false;
    Zelvon::SyncMap<zelString, TypedDataContainer*> m_MapDataMapList;
    std::vector<TypedDataContainer*> m_DataMapList;

    static const Framework::FieldTable s_Table;
    friend struct Framework::FieldTableIndex;

private:
    static const Framework::FieldRow s_Rows[];
};
