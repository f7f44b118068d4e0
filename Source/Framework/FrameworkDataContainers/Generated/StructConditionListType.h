// Generated from StructureTransformDef.xsd; do not edit. Regenerate with the target "generate".
#pragma once

#include "Framework/TypedDataContainer.h"

namespace Framework {
struct FieldTableIndex;
}

class StructConditionType;

/// A default and the conditions under which it is taken.
///
/// Element `ConditionalValue` unless its parent names it otherwise.
class FRAMEWORK_API StructConditionListType : public TypedDataContainer {
public:
    explicit StructConditionListType(bool bBuildFromScratch);
    ~StructConditionListType() override;

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
    virtual zelString GetReturnValue();
    virtual void SetReturnValue(LPCTSTR szNew);
    virtual zelString GetReturnQuery();
    virtual void SetReturnQuery(LPCTSTR szNew);
    virtual int GetConditionLength();
    virtual StructConditionType* GetCondition(int Index);
    virtual void AddNewCondition(StructConditionType* szNew);
    virtual zelString Getindex();
    virtual void Setindex(LPCTSTR szNew);
    virtual bool AutoFillTypeInfo();
    virtual void AddCondition(XMLDataWrapper* pData, XalanNode* spNode);
    virtual void ClearCondition();

    bool GetAutoFillTypeInfo() const { return m_bAutoFillTypeInfo; }
    void SetAutoFillTypeInfo(bool bNew) { m_bAutoFillTypeInfo = bNew; }

protected:
    bool m_bAutoFillTypeInfo = false;
    zelString m_ReturnValue;
    zelString m_ReturnQuery;
    std::vector<TypedDataContainer*> m_ConditionList;
    zelString m_index;

    static const Framework::FieldTable s_Table;
    friend struct Framework::FieldTableIndex;

private:
    static const Framework::FieldRow s_Rows[];
};
