// Generated from SystemsManagement.xsd; do not edit. Regenerate with the target "generate".
#pragma once

#include "Framework/TypedDataContainer.h"
#include "FrameworkDataContainers/FrameworkDataContainersEnums.h"

namespace Framework {
struct FieldTableIndex;
}

/// An event of the lane for systems management.
///
/// Element `SystemEventPacket` unless its parent names it otherwise.
class FRAMEWORK_API SystemEventPacketType : public TypedDataContainer {
public:
    explicit SystemEventPacketType(bool bBuildFromScratch);
    ~SystemEventPacketType() override;

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
    virtual SystemEventIdEnum GetEventId();
    virtual void SetEventId(SystemEventIdEnum szNew);
    virtual LaneTypeEnum GetLaneType();
    virtual void SetLaneType(LaneTypeEnum szNew);
    virtual zelString GetVendraTransactionID();
    virtual void SetVendraTransactionID(LPCTSTR szNew);
    virtual zelString GetSaActivity();
    virtual void SetSaActivity(LPCTSTR szNew);
    virtual zelString GetSaReferenceID();
    virtual void SetSaReferenceID(LPCTSTR szNew);
    virtual zelString GetSystemHalted();
    virtual void SetSystemHalted(LPCTSTR szNew);
    virtual zelString GetDBItemID();
    virtual void SetDBItemID(LPCTSTR szNew);
    virtual zelString GetWeight();
    virtual void SetWeight(LPCTSTR szNew);
    virtual zelString GetAgeEntered();
    virtual void SetAgeEntered(LPCTSTR szNew);
    virtual zelString GetEventSpecificData();
    virtual void SetEventSpecificData(LPCTSTR szNew);
    virtual zelString GetAdditionalInformation();
    virtual void SetAdditionalInformation(LPCTSTR szNew);
    virtual zelString GetDebugContextData();
    virtual void SetDebugContextData(LPCTSTR szNew);
    virtual bool AutoFillTypeInfo();

    bool GetAutoFillTypeInfo() const { return m_bAutoFillTypeInfo; }
    void SetAutoFillTypeInfo(bool bNew) { m_bAutoFillTypeInfo = bNew; }

protected:
    bool m_bAutoFillTypeInfo = false;
    SystemEventIdEnum m_EventId{0};
    LaneTypeEnum m_LaneType{0};
    zelString m_VendraTransactionID;
    zelString m_SaActivity;
    zelString m_SaReferenceID;
    zelString m_SystemHalted;
    zelString m_DBItemID;
    zelString m_Weight;
    zelString m_AgeEntered;
    zelString m_EventSpecificData;
    zelString m_AdditionalInformation;
    zelString m_DebugContextData;

    static const Framework::FieldTable s_Table;
    friend struct Framework::FieldTableIndex;

private:
    static const Framework::FieldRow s_Rows[];
};
