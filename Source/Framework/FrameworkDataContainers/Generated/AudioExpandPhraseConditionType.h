// Generated from AudioLookupConfig.xsd; do not edit. Regenerate with the target "generate".
#pragma once

#include "Framework/TypedDataContainer.h"

namespace Framework {
struct FieldTableIndex;
}

/// One condition on a parameter.
///
/// Element `AudioExpandPhraseCondition` unless its parent names it otherwise.
class FRAMEWORK_API AudioExpandPhraseConditionType : public TypedDataContainer {
public:
    explicit AudioExpandPhraseConditionType(bool bBuildFromScratch);
    ~AudioExpandPhraseConditionType() override;

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
    virtual zelString GetUnused();
    virtual void SetUnused(LPCTSTR szNew);
    virtual zelString Getdescription();
    virtual void Setdescription(LPCTSTR szNew);
    virtual zelString GetparmRef();
    virtual void SetparmRef(LPCTSTR szNew);
    virtual zelString Gettype();
    virtual void Settype(LPCTSTR szNew);
    virtual zelString GetcompareTo();
    virtual void SetcompareTo(LPCTSTR szNew);
    virtual bool AutoFillTypeInfo();

    bool GetAutoFillTypeInfo() const { return m_bAutoFillTypeInfo; }
    void SetAutoFillTypeInfo(bool bNew) { m_bAutoFillTypeInfo = bNew; }

protected:
    bool m_bAutoFillTypeInfo = false;
    zelString m_Unused;
    zelString m_description;
    zelString m_parmRef;
    zelString m_type;
    zelString m_compareTo;

    static const Framework::FieldTable s_Table;
    friend struct Framework::FieldTableIndex;

private:
    static const Framework::FieldRow s_Rows[];
};
