// Generated from CaptureConfig.xsd; do not edit. Regenerate with the target "generate".
#pragma once

#include "Framework/TypedDataContainer.h"

namespace Framework {
struct FieldTableIndex;
}

class CaptureConfigSubRuleType;

/// A rule: parts that each choose some of the output.
///
/// Element `CaptureConfigRule` unless its parent names it otherwise.
class FRAMEWORK_API CaptureConfigRuleType : public TypedDataContainer {
public:
    explicit CaptureConfigRuleType(bool bBuildFromScratch);
    ~CaptureConfigRuleType() override;

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
    virtual int GetSubRuleLength();
    virtual CaptureConfigSubRuleType* GetSubRule(int Index);
    virtual void AddNewSubRule(CaptureConfigSubRuleType* szNew);
    virtual bool AutoFillTypeInfo();
    virtual void AddSubRule(XMLDataWrapper* pData, XalanNode* spNode);
    virtual void ClearSubRule();

    bool GetAutoFillTypeInfo() const { return m_bAutoFillTypeInfo; }
    void SetAutoFillTypeInfo(bool bNew) { m_bAutoFillTypeInfo = bNew; }

protected:
    bool m_bAutoFillTypeInfo = false;
    std::vector<TypedDataContainer*> m_SubRuleList;

    static const Framework::FieldTable s_Table;
    friend struct Framework::FieldTableIndex;

private:
    static const Framework::FieldRow s_Rows[];
};
