// Generated from LoggingInformation.xsd; do not edit. Regenerate with the target "generate".
#pragma once

#include "Framework/TypedDataContainer.h"

namespace Framework {
struct FieldTableIndex;
}

class TenderDataListType;

/// The totals of a transaction, and its tenders.
///
/// Element `TransactionInformation` unless its parent names it otherwise.
class FRAMEWORK_API TransactionInformationType : public TypedDataContainer {
public:
    explicit TransactionInformationType(bool bBuildFromScratch);
    ~TransactionInformationType() override;

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
    virtual zelString GetLaneTransId();
    virtual void SetLaneTransId(LPCTSTR szNew);
    virtual zelString GetPosTransId();
    virtual void SetPosTransId(LPCTSTR szNew);
    virtual zelString GetOrderSavingsAmount();
    virtual void SetOrderSavingsAmount(LPCTSTR szNew);
    virtual zelString GetOrderDiscountAmount();
    virtual void SetOrderDiscountAmount(LPCTSTR szNew);
    virtual zelString GetOrderSubTotalAmount();
    virtual void SetOrderSubTotalAmount(LPCTSTR szNew);
    virtual zelString GetOrderTaxAmount();
    virtual void SetOrderTaxAmount(LPCTSTR szNew);
    virtual zelString GetOrderTotalAmount();
    virtual void SetOrderTotalAmount(LPCTSTR szNew);
    virtual zelString GetOrderFoodStampTotal();
    virtual void SetOrderFoodStampTotal(LPCTSTR szNew);
    virtual zelString GetOrderCouponTotal();
    virtual void SetOrderCouponTotal(LPCTSTR szNew);
    virtual zelString GetOrderAmountPaid();
    virtual void SetOrderAmountPaid(LPCTSTR szNew);
    virtual zelString GetOrderAmountDue();
    virtual void SetOrderAmountDue(LPCTSTR szNew);
    virtual zelString GetOrderChangeAmount();
    virtual void SetOrderChangeAmount(LPCTSTR szNew);
    virtual zelString GetNumberOfTenderElements();
    virtual void SetNumberOfTenderElements(LPCTSTR szNew);
    virtual TenderDataListType* GetTenderData();
    virtual void SetTenderData(TenderDataListType* szNew);
    virtual bool AutoFillTypeInfo();

    bool GetAutoFillTypeInfo() const { return m_bAutoFillTypeInfo; }
    void SetAutoFillTypeInfo(bool bNew) { m_bAutoFillTypeInfo = bNew; }

protected:
    bool m_bAutoFillTypeInfo = false;
    zelString m_LaneTransId;
    zelString m_PosTransId;
    zelString m_OrderSavingsAmount;
    zelString m_OrderDiscountAmount;
    zelString m_OrderSubTotalAmount;
    zelString m_OrderTaxAmount;
    zelString m_OrderTotalAmount;
    zelString m_OrderFoodStampTotal;
    zelString m_OrderCouponTotal;
    zelString m_OrderAmountPaid;
    zelString m_OrderAmountDue;
    zelString m_OrderChangeAmount;
    zelString m_NumberOfTenderElements;
    TenderDataListType* m_TenderData = nullptr;

    static const Framework::FieldTable s_Table;
    friend struct Framework::FieldTableIndex;

private:
    static const Framework::FieldRow s_Rows[];
};
