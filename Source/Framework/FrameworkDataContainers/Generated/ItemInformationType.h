// Generated from LoggingInformation.xsd; do not edit. Regenerate with the target "generate".
#pragma once

#include "Framework/TypedDataContainer.h"
#include "FrameworkDataContainers/FrameworkDataContainersEnums.h"

namespace Framework {
struct FieldTableIndex;
}

/// An item for the log: how it was sold, weighed and checked.
///
/// Element `ItemInformation` unless its parent names it otherwise.
class FRAMEWORK_API ItemInformationType : public TypedDataContainer {
public:
    explicit ItemInformationType(bool bBuildFromScratch);
    ~ItemInformationType() override;

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
    virtual LaneTypeEnum GetLaneType();
    virtual void SetLaneType(LaneTypeEnum szNew);
    virtual zelString GetLaneTransId();
    virtual void SetLaneTransId(LPCTSTR szNew);
    virtual zelString GetTimeStamp();
    virtual void SetTimeStamp(LPCTSTR szNew);
    virtual zelString GetItemId();
    virtual void SetItemId(LPCTSTR szNew);
    virtual zelString GetExtendedBarCode();
    virtual void SetExtendedBarCode(LPCTSTR szNew);
    virtual zelString GetItemDesc();
    virtual void SetItemDesc(LPCTSTR szNew);
    virtual double GetItemPrice();
    virtual void SetItemPrice(double szNew);
    virtual ItemTypeDefinitionEnum GetItemType();
    virtual void SetItemType(ItemTypeDefinitionEnum szNew);
    virtual bool GetMiniPassAround();
    virtual void SetMiniPassAround(bool szNew);
    virtual int GetItemQuantity();
    virtual void SetItemQuantity(int szNew);
    virtual int GetMeasuredWeight();
    virtual void SetMeasuredWeight(int szNew);
    virtual int GetScannerScaleWeight();
    virtual void SetScannerScaleWeight(int szNew);
    virtual int GetMeasuredHeight();
    virtual void SetMeasuredHeight(int szNew);
    virtual MultiBreakDefinition GetBreadTail();
    virtual void SetBreadTail(MultiBreakDefinition szNew);
    virtual ItemValidationStatusType GetValidationStatus();
    virtual void SetValidationStatus(ItemValidationStatusType szNew);
    virtual int GetSecurityAlert();
    virtual void SetSecurityAlert(int szNew);
    virtual bool GetOldInformationInSecRecord();
    virtual void SetOldInformationInSecRecord(bool szNew);
    virtual bool GetPassAround();
    virtual void SetPassAround(bool szNew);
    virtual bool GetFlagWithCheckCart();
    virtual void SetFlagWithCheckCart(bool szNew);
    virtual bool GetSkippedItemSecurityCheck();
    virtual void SetSkippedItemSecurityCheck(bool szNew);
    virtual bool GetLongItem();
    virtual void SetLongItem(bool szNew);
    virtual bool GetNewItem();
    virtual void SetNewItem(bool szNew);
    virtual OverrideModeDefinition GetOverrideMode();
    virtual void SetOverrideMode(OverrideModeDefinition szNew);
    virtual bool GetAssistantVoid();
    virtual void SetAssistantVoid(bool szNew);
    virtual bool GetUsedNofInformation();
    virtual void SetUsedNofInformation(bool szNew);
    virtual bool GetNewNofInformation();
    virtual void SetNewNofInformation(bool szNew);
    virtual zelString GetAssistantId();
    virtual void SetAssistantId(LPCTSTR szNew);
    virtual zelString GetNofDepartment();
    virtual void SetNofDepartment(LPCTSTR szNew);
    virtual double GetNofPrice();
    virtual void SetNofPrice(double szNew);
    virtual int GetNofMod1();
    virtual void SetNofMod1(int szNew);
    virtual int GetNofMod2();
    virtual void SetNofMod2(int szNew);
    virtual int GetNofMod3();
    virtual void SetNofMod3(int szNew);
    virtual int GetNofMod4();
    virtual void SetNofMod4(int szNew);
    virtual double GetPricePerUnitUsed();
    virtual void SetPricePerUnitUsed(double szNew);
    virtual int GetByCountQuantityUsed();
    virtual void SetByCountQuantityUsed(int szNew);
    virtual int GetType2SluUsed();
    virtual void SetType2SluUsed(int szNew);
    virtual int GetPriceOverrideReason();
    virtual void SetPriceOverrideReason(int szNew);
    virtual bool AutoFillTypeInfo();

    bool GetAutoFillTypeInfo() const { return m_bAutoFillTypeInfo; }
    void SetAutoFillTypeInfo(bool bNew) { m_bAutoFillTypeInfo = bNew; }

protected:
    bool m_bAutoFillTypeInfo = false;
    bool m_MiniPassAround = false;
    bool m_OldInformationInSecRecord = false;
    bool m_PassAround = false;
    bool m_FlagWithCheckCart = false;
    bool m_SkippedItemSecurityCheck = false;
    bool m_LongItem = false;
    bool m_NewItem = false;
    bool m_AssistantVoid = false;
    bool m_UsedNofInformation = false;
    bool m_NewNofInformation = false;
    int m_ItemQuantity = 0;
    int m_MeasuredWeight = 0;
    int m_ScannerScaleWeight = 0;
    int m_MeasuredHeight = 0;
    int m_SecurityAlert = 0;
    int m_NofMod1 = 0;
    int m_NofMod2 = 0;
    int m_NofMod3 = 0;
    int m_NofMod4 = 0;
    int m_ByCountQuantityUsed = 0;
    int m_Type2SluUsed = 0;
    int m_PriceOverrideReason = 0;
    LaneTypeEnum m_LaneType{0};
    zelString m_LaneTransId;
    zelString m_TimeStamp;
    zelString m_ItemId;
    zelString m_ExtendedBarCode;
    zelString m_ItemDesc;
    double m_ItemPrice = 0.0;
    ItemTypeDefinitionEnum m_ItemType{0};
    MultiBreakDefinition m_BreadTail{0};
    ItemValidationStatusType m_ValidationStatus{0};
    OverrideModeDefinition m_OverrideMode{0};
    zelString m_AssistantId;
    zelString m_NofDepartment;
    double m_NofPrice = 0.0;
    double m_PricePerUnitUsed = 0.0;

    static const Framework::FieldTable s_Table;
    friend struct Framework::FieldTableIndex;

private:
    static const Framework::FieldRow s_Rows[];
};
