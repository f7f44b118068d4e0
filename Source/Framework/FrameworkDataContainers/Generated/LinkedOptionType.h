// Generated from ConfigDefRoot.xsd; do not edit. Regenerate with the target "generate".
#pragma once

#include "Framework/TypedDataContainer.h"

namespace Framework {
struct FieldTableIndex;
}

/// A link to another option, and the queries that carry the value across.
///
/// Element `LinkedOption` unless its parent names it otherwise.
class FRAMEWORK_API LinkedOptionType : public TypedDataContainer {
public:
    explicit LinkedOptionType(bool bBuildFromScratch);
    ~LinkedOptionType() override;

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
    virtual zelString GetOptionName();
    virtual void SetOptionName(LPCTSTR szNew);
    virtual zelString GetCrossReferenceList();
    virtual void SetCrossReferenceList(LPCTSTR szNew);
    virtual zelString GetSourceValueQuery();
    virtual void SetSourceValueQuery(LPCTSTR szNew);
    virtual zelString GetTargetValueQuery();
    virtual void SetTargetValueQuery(LPCTSTR szNew);
    virtual zelString GetIndex();
    virtual void SetIndex(LPCTSTR szNew);
    virtual bool AutoFillTypeInfo();

    bool GetAutoFillTypeInfo() const { return m_bAutoFillTypeInfo; }
    void SetAutoFillTypeInfo(bool bNew) { m_bAutoFillTypeInfo = bNew; }

protected:
    bool m_bAutoFillTypeInfo = false;
    zelString m_OptionName;
    zelString m_CrossReferenceList;
    zelString m_SourceValueQuery;
    zelString m_TargetValueQuery;
    zelString m_Index;

    static const Framework::FieldTable s_Table;
    friend struct Framework::FieldTableIndex;

private:
    static const Framework::FieldRow s_Rows[];
};
