// Generated from StructureTransformDef.xsd; do not edit. Regenerate with the target "generate".
#pragma once

#include "Framework/TypedDataContainer.h"

namespace Framework {
struct FieldTableIndex;
}

class StructDefaultType;

/// Values that fields are filled with first.
///
/// Element `PresetDefaults` unless its parent names it otherwise.
class FRAMEWORK_API PresetDefaultListType : public TypedDataContainer {
public:
    explicit PresetDefaultListType(bool bBuildFromScratch);
    ~PresetDefaultListType() override;

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
    virtual int GetDefaultValueLength();
    virtual StructDefaultType* GetDefaultValue(int Index);
    virtual StructDefaultType* GetDefaultValue(const zelString& sName);
    virtual void AddNewDefaultValue(StructDefaultType* szNew, const zelString& sName);
    virtual void RemoveDefaultValue(const zelString& sName, const zelString& sFeatureId);
    virtual bool AutoFillTypeInfo();
    virtual void AddDefaultValue(XMLDataWrapper* pData, XalanNode* spNode, const zelString& sName);
    virtual void ClearDefaultValue();

    bool GetAutoFillTypeInfo() const { return m_bAutoFillTypeInfo; }
    void SetAutoFillTypeInfo(bool bNew) { m_bAutoFillTypeInfo = bNew; }

protected:
    bool m_bAutoFillTypeInfo = false;
    Zelvon::SyncMap<zelString, TypedDataContainer*> m_MapDefaultValueList;
    std::vector<TypedDataContainer*> m_DefaultValueList;

    static const Framework::FieldTable s_Table;
    friend struct Framework::FieldTableIndex;

private:
    static const Framework::FieldRow s_Rows[];
};
