// Generated from StateProcessingRoot.xsd; do not edit. Regenerate with the target "generate".
#pragma once

#include "FrameworkDataContainers/StateActionBasicType.h"

namespace Framework {
struct FieldTableIndex;
}

class ActionRespType;

/// An action, and the follow-up actions that its result selects.
///
/// Element `ActionItem` unless its parent names it otherwise.
class FRAMEWORK_API ActionItemType : public StateActionBasicType {
public:
    explicit ActionItemType(bool bBuildFromScratch);
    ~ActionItemType() override;

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
    bool AutoFillTypeInfo() override;

    // The order is that of the virtual table.
    virtual ActionRespType* GetActionResp();
    virtual void SetActionResp(ActionRespType* szNew);
    virtual zelString GetIndex();
    virtual void SetIndex(LPCTSTR szNew);

    bool GetAutoFillTypeInfo() const { return m_bAutoFillTypeInfo; }
    void SetAutoFillTypeInfo(bool bNew) { m_bAutoFillTypeInfo = bNew; }

protected:
    bool m_bAutoFillTypeInfo = false;
    ActionRespType* m_ActionResp = nullptr;
    zelString m_Index;

    static const Framework::FieldTable s_Table;
    friend struct Framework::FieldTableIndex;

private:
    static const Framework::FieldRow s_Rows[];
};
