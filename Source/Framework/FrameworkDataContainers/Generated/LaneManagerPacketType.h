// Generated from LaneManager.xsd; do not edit. Regenerate with the target "generate".
#pragma once

#include "Framework/TypedDataContainer.h"
#include "FrameworkDataContainers/FrameworkDataContainersEnums.h"

namespace Framework {
struct FieldTableIndex;
}

/// An order to the lane manager.
///
/// Element `LaneManagerPacket`, the root of its document.
class FRAMEWORK_API LaneManagerPacketType : public TypedDataContainer {
public:
    explicit LaneManagerPacketType(bool bBuildFromScratch);
    ~LaneManagerPacketType() override;

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
    virtual LaneManagerActionsEnums GetAction();
    virtual void SetAction(LaneManagerActionsEnums szNew);
    virtual zelString GetExtraData();
    virtual void SetExtraData(LPCTSTR szNew);
    virtual bool AutoFillTypeInfo();

    bool GetAutoFillTypeInfo() const { return m_bAutoFillTypeInfo; }
    void SetAutoFillTypeInfo(bool bNew) { m_bAutoFillTypeInfo = bNew; }

protected:
    bool m_bAutoFillTypeInfo = false;
    LaneManagerActionsEnums m_Action{0};
    zelString m_ExtraData;

    static const Framework::FieldTable s_Table;
    friend struct Framework::FieldTableIndex;

private:
    static const Framework::FieldRow s_Rows[];
};
