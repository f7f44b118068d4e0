// Generated from ItemPurchase.xsd; do not edit. Regenerate with the target "generate".
#pragma once

#include "FrameworkDataContainers/LineItemInfoType.h"

namespace Framework {
struct FieldTableIndex;
}

class ItemIdentifierType;

/// An item on the order.
///
/// Element `ItemInfo` unless its parent names it otherwise.
class FRAMEWORK_API ItemInfoType : public LineItemInfoType {
public:
    explicit ItemInfoType(bool bBuildFromScratch);
    ~ItemInfoType() override;

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
    virtual ItemIdentifierType* GetItemIdentifier();
    virtual void SetItemIdentifier(ItemIdentifierType* szNew);
    virtual double GetRegularUnitPrice();
    virtual void SetRegularUnitPrice(double szNew);
    virtual int GetQuantity();
    virtual void SetQuantity(int szNew);
    virtual double GetExtendedPrice();
    virtual void SetExtendedPrice(double szNew);
    virtual double GetWeight();
    virtual void SetWeight(double szNew);
    virtual double GetDealPrice();
    virtual void SetDealPrice(double szNew);
    virtual int GetDealQuantity();
    virtual void SetDealQuantity(int szNew);
    virtual zelString GetLinkedItemID();
    virtual void SetLinkedItemID(LPCTSTR szNew);
    virtual zelString GetMixAndMatchPricingGroup();
    virtual void SetMixAndMatchPricingGroup(LPCTSTR szNew);
    virtual bool GetTimeRestrictedFlag();
    virtual void SetTimeRestrictedFlag(bool szNew);
    virtual int GetRestrictedAge();
    virtual void SetRestrictedAge(int szNew);
    virtual bool GetFoodStampEligibleFlag();
    virtual void SetFoodStampEligibleFlag(bool szNew);
    virtual bool GetWICEligibleFlag();
    virtual void SetWICEligibleFlag(bool szNew);
    virtual bool GetItemRepeatAllowedFlag();
    virtual void SetItemRepeatAllowedFlag(bool szNew);
    virtual bool GetTaxableFlag();
    virtual void SetTaxableFlag(bool szNew);

    bool GetAutoFillTypeInfo() const { return m_bAutoFillTypeInfo; }
    void SetAutoFillTypeInfo(bool bNew) { m_bAutoFillTypeInfo = bNew; }

protected:
    bool m_bAutoFillTypeInfo = false;
    bool m_TimeRestrictedFlag = false;
    bool m_FoodStampEligibleFlag = false;
    bool m_WICEligibleFlag = false;
    bool m_ItemRepeatAllowedFlag = false;
    bool m_TaxableFlag = false;
    int m_Quantity = 0;
    int m_DealQuantity = 0;
    int m_RestrictedAge = 0;
    ItemIdentifierType* m_ItemIdentifier = nullptr;
    double m_RegularUnitPrice = 0.0;
    double m_ExtendedPrice = 0.0;
    double m_Weight = 0.0;
    double m_DealPrice = 0.0;
    zelString m_LinkedItemID;
    zelString m_MixAndMatchPricingGroup;

    static const Framework::FieldTable s_Table;
    friend struct Framework::FieldTableIndex;

private:
    static const Framework::FieldRow s_Rows[];
};
