// Generated from StructureTransformDef.xsd; do not edit. Regenerate with the target "generate".
#pragma once

#include "Framework/TypedDataContainer.h"

namespace Framework {
struct FieldTableIndex;
}

class StructureRefMapType;

/// The maps between packets and XML.
///
/// Element `StructureReferenceMap` unless its parent names it otherwise.
class FRAMEWORK_API StructureReferenceMapType : public TypedDataContainer {
public:
    explicit StructureReferenceMapType(bool bBuildFromScratch);
    ~StructureReferenceMapType() override;

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
    virtual int GetReferenceMapLength();
    virtual StructureRefMapType* GetReferenceMap(int Index);
    virtual StructureRefMapType* GetReferenceMap(const zelString& sName);
    virtual void AddNewReferenceMap(StructureRefMapType* szNew, const zelString& sName);
    virtual void RemoveReferenceMap(const zelString& sName, const zelString& sFeatureId);
    virtual bool AutoFillTypeInfo();
    virtual void AddReferenceMap(XMLDataWrapper* pData, XalanNode* spNode, const zelString& sName);
    virtual void ClearReferenceMap();

    bool GetAutoFillTypeInfo() const { return m_bAutoFillTypeInfo; }
    void SetAutoFillTypeInfo(bool bNew) { m_bAutoFillTypeInfo = bNew; }

protected:
    bool m_bAutoFillTypeInfo = false;
    Zelvon::SyncMap<zelString, TypedDataContainer*> m_MapReferenceMapList;
    std::vector<TypedDataContainer*> m_ReferenceMapList;

    static const Framework::FieldTable s_Table;
    friend struct Framework::FieldTableIndex;

private:
    static const Framework::FieldRow s_Rows[];
};
