// Generated from LoggingInformation.xsd; do not edit. Regenerate with the target "generate".
#pragma once

#include "Framework/TypedDataContainer.h"
#include "FrameworkDataContainers/FrameworkDataContainersEnums.h"

namespace Framework {
struct FieldTableIndex;
}

/// What the item handler measured and decided for one item.
///
/// Element `ItemHandlerLogData`, the root of its document.
class FRAMEWORK_API ItemHandlerLogDataType : public TypedDataContainer {
public:
    explicit ItemHandlerLogDataType(bool bBuildFromScratch);
    ~ItemHandlerLogDataType() override;

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
    virtual zelString GetRequestID();
    virtual void SetRequestID(LPCTSTR szNew);
    virtual int GetMeasuredHeight();
    virtual void SetMeasuredHeight(int szNew);
    virtual int GetMeasuredWeight();
    virtual void SetMeasuredWeight(int szNew);
    virtual MultiBreakDefinition GetBreadTail();
    virtual void SetBreadTail(MultiBreakDefinition szNew);
    virtual ItemValidationStatusType GetValidationStatus();
    virtual void SetValidationStatus(ItemValidationStatusType szNew);
    virtual bool GetPassAround();
    virtual void SetPassAround(bool szNew);
    virtual bool GetFlagWithCheckCart();
    virtual void SetFlagWithCheckCart(bool szNew);
    virtual bool GetSkippedItemSecurityCheck();
    virtual void SetSkippedItemSecurityCheck(bool szNew);
    virtual bool GetLongItem();
    virtual void SetLongItem(bool szNew);
    virtual int GetType2PriceUsed();
    virtual void SetType2PriceUsed(int szNew);
    virtual int GetByCountQuantityUsed();
    virtual void SetByCountQuantityUsed(int szNew);
    virtual int GetType2ItemCount();
    virtual void SetType2ItemCount(int szNew);
    virtual int GetType2SluUsed();
    virtual void SetType2SluUsed(int szNew);
    virtual int GetType2ExpectedWeightMin();
    virtual void SetType2ExpectedWeightMin(int szNew);
    virtual int GetType2ExpectedWeightMax();
    virtual void SetType2ExpectedWeightMax(int szNew);
    virtual int GetBaseWeight();
    virtual void SetBaseWeight(int szNew);
    virtual ItemHandlerCorrectionType GetCorrection();
    virtual void SetCorrection(ItemHandlerCorrectionType szNew);
    virtual bool AutoFillTypeInfo();

    bool GetAutoFillTypeInfo() const { return m_bAutoFillTypeInfo; }
    void SetAutoFillTypeInfo(bool bNew) { m_bAutoFillTypeInfo = bNew; }

protected:
    bool m_bAutoFillTypeInfo = false;
    bool m_PassAround = false;
    bool m_FlagWithCheckCart = false;
    bool m_SkippedItemSecurityCheck = false;
    bool m_LongItem = false;
    int m_MeasuredHeight = 0;
    int m_MeasuredWeight = 0;
    int m_Type2PriceUsed = 0;
    int m_ByCountQuantityUsed = 0;
    int m_Type2ItemCount = 0;
    int m_Type2SluUsed = 0;
    int m_Type2ExpectedWeightMin = 0;
    int m_Type2ExpectedWeightMax = 0;
    int m_BaseWeight = 0;
    zelString m_RequestID;
    MultiBreakDefinition m_BreadTail{0};
    ItemValidationStatusType m_ValidationStatus{0};
    ItemHandlerCorrectionType m_Correction{0};

    static const Framework::FieldTable s_Table;
    friend struct Framework::FieldTableIndex;

private:
    static const Framework::FieldRow s_Rows[];
};
