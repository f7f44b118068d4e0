// Generated from ItemPurchase.xsd; do not edit. Regenerate with the target "generate".
#pragma once

#include "FrameworkDataContainers/FrameworkDataContainersEnums.h"
#include "FrameworkDataContainers/LineItemInfoType.h"

namespace Framework {
struct FieldTableIndex;
}

class ItemIdentifierType;

/// A coupon on the order.
///
/// Element `CouponInfo` unless its parent names it otherwise.
class FRAMEWORK_API CouponInfoType : public LineItemInfoType {
public:
    explicit CouponInfoType(bool bBuildFromScratch);
    ~CouponInfoType() override;

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
    virtual ItemIdentifierType* GetItemID();
    virtual void SetItemID(ItemIdentifierType* szNew);
    virtual zelString GetTransactionLineItemInstanceNumber();
    virtual void SetTransactionLineItemInstanceNumber(LPCTSTR szNew);
    virtual CouponType GetCouponType();
    virtual void SetCouponType(CouponType szNew);
    virtual double GetRegularUnitPrice();
    virtual void SetRegularUnitPrice(double szNew);
    virtual int GetQuantity();
    virtual void SetQuantity(int szNew);
    virtual zelString GetValue();
    virtual void SetValue(LPCTSTR szNew);
    virtual double GetWeight();
    virtual void SetWeight(double szNew);
    virtual double GetDealPrice();
    virtual void SetDealPrice(double szNew);
    virtual int GetDealQuantity();
    virtual void SetDealQuantity(int szNew);
    virtual zelString GetLinkedItemID();
    virtual void SetLinkedItemID(LPCTSTR szNew);
    virtual zelString GetRestrictedAge();
    virtual void SetRestrictedAge(LPCTSTR szNew);
    virtual bool GetReducesFoodstampBalanceDueFlag();
    virtual void SetReducesFoodstampBalanceDueFlag(bool szNew);
    virtual bool GetReducesTaxDueFlag();
    virtual void SetReducesTaxDueFlag(bool szNew);
    virtual bool GetItemRepeatAllowedFlag();
    virtual void SetItemRepeatAllowedFlag(bool szNew);
    virtual zelString GetPricingMethod();
    virtual void SetPricingMethod(LPCTSTR szNew);
    virtual zelString GetManufacturerNumber();
    virtual void SetManufacturerNumber(LPCTSTR szNew);

    bool GetAutoFillTypeInfo() const { return m_bAutoFillTypeInfo; }
    void SetAutoFillTypeInfo(bool bNew) { m_bAutoFillTypeInfo = bNew; }

protected:
    bool m_bAutoFillTypeInfo = false;
    bool m_ReducesFoodstampBalanceDueFlag = false;
    bool m_ReducesTaxDueFlag = false;
    bool m_ItemRepeatAllowedFlag = false;
    int m_Quantity = 0;
    int m_DealQuantity = 0;
    ItemIdentifierType* m_ItemID = nullptr;
    zelString m_TransactionLineItemInstanceNumber;
    CouponType m_CouponType{0};
    double m_RegularUnitPrice = 0.0;
    zelString m_Value;
    double m_Weight = 0.0;
    double m_DealPrice = 0.0;
    zelString m_LinkedItemID;
    zelString m_RestrictedAge;
    zelString m_PricingMethod;
    zelString m_ManufacturerNumber;

    static const Framework::FieldTable s_Table;
    friend struct Framework::FieldTableIndex;

private:
    static const Framework::FieldRow s_Rows[];
};
