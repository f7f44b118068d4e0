// Generated from TranslationConfig.xsd; do not edit. Regenerate with the target "generate".
#pragma once

#include "Framework/TypedDataContainer.h"

namespace Framework {
struct FieldTableIndex;
}

/// One text and its translation.
///
/// Element `Translation` unless its parent names it otherwise.
class FRAMEWORK_API TranslationType : public TypedDataContainer {
public:
    explicit TranslationType(bool bBuildFromScratch);
    ~TranslationType() override;

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
    virtual zelString GetResultValue();
    virtual void SetResultValue(LPCTSTR szNew);
    virtual int GetDocLength();
    virtual zelString GetDoc(int Index);
    virtual void AddNewDoc(LPCTSTR szNew);
    virtual zelString GetLookupData();
    virtual void SetLookupData(LPCTSTR szNew);
    virtual bool AutoFillTypeInfo();
    virtual void AddDoc(zelString pData);
    virtual void ClearDoc();

    bool GetAutoFillTypeInfo() const { return m_bAutoFillTypeInfo; }
    void SetAutoFillTypeInfo(bool bNew) { m_bAutoFillTypeInfo = bNew; }

protected:
    bool m_bAutoFillTypeInfo = false;
    zelString m_ResultValue;
    std::vector<zelString> m_DocList;
    zelString m_LookupData;

    static const Framework::FieldTable s_Table;
    friend struct Framework::FieldTableIndex;

private:
    static const Framework::FieldRow s_Rows[];
};
