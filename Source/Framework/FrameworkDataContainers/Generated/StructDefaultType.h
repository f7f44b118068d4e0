// Generated from StructureTransformDef.xsd; do not edit. Regenerate with the target "generate".
#pragma once

#include "Framework/TypedDataContainer.h"

namespace Framework {
struct FieldTableIndex;
}

class StructConditionListType;

/// The conditional defaults of one field.
///
/// Element `DefaultValue` unless its parent names it otherwise.
class FRAMEWORK_API StructDefaultType : public TypedDataContainer {
public:
    explicit StructDefaultType(bool bBuildFromScratch);
    ~StructDefaultType() override;

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
    virtual zelString GetStructureElement();
    virtual void SetStructureElement(LPCTSTR szNew);
    virtual int GetConditionalValueLength();
    virtual StructConditionListType* GetConditionalValue(int Index);
    virtual StructConditionListType* GetConditionalValue(const zelString& sName);
    virtual void AddNewConditionalValue(StructConditionListType* szNew, const zelString& sName);
    virtual void RemoveConditionalValue(const zelString& sName, const zelString& sFeatureId);
    virtual zelString Getindex();
    virtual void Setindex(LPCTSTR szNew);
    virtual bool AutoFillTypeInfo();
    virtual void AddConditionalValue(XMLDataWrapper* pData, XalanNode* spNode, const zelString& sName);
    virtual void ClearConditionalValue();

    bool GetAutoFillTypeInfo() const { return m_bAutoFillTypeInfo; }
    void SetAutoFillTypeInfo(bool bNew) { m_bAutoFillTypeInfo = bNew; }

protected:
    bool m_bAutoFillTypeInfo = false;
    zelString m_StructureElement;
    Zelvon::SyncMap<zelString, TypedDataContainer*> m_MapConditionalValueList;
    std::vector<TypedDataContainer*> m_ConditionalValueList;
    zelString m_index;

    static const Framework::FieldTable s_Table;
    friend struct Framework::FieldTableIndex;

private:
    static const Framework::FieldRow s_Rows[];
};
