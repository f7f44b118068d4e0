// Generated from ItemPurchase.xsd; do not edit. Regenerate with the target "generate".
#pragma once

#include "Framework/TypedDataContainer.h"

namespace Framework {
struct FieldTableIndex;
}

class BarCodeType;

/// What identifies an item, and how it was entered.
///
/// Element `ItemIdentifier` unless its parent names it otherwise.
class FRAMEWORK_API ItemIdentifierType : public TypedDataContainer {
public:
    explicit ItemIdentifierType(bool bBuildFromScratch);
    ~ItemIdentifierType() override;

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
    virtual zelString GetKeyedItemID();
    virtual void SetKeyedItemID(LPCTSTR szNew);
    virtual bool GetItemIDIncludesCheckDigit();
    virtual void SetItemIDIncludesCheckDigit(bool szNew);
    virtual BarCodeType* GetBarCode();
    virtual void SetBarCode(BarCodeType* szNew);
    virtual zelString GetDepartmentNumber();
    virtual void SetDepartmentNumber(LPCTSTR szNew);
    virtual double GetKeyedPrice();
    virtual void SetKeyedPrice(double szNew);
    virtual double GetQuantity();
    virtual void SetQuantity(double szNew);
    virtual double GetWeight();
    virtual void SetWeight(double szNew);
    virtual double GetTare();
    virtual void SetTare(double szNew);
    virtual double GetDealPrice();
    virtual void SetDealPrice(double szNew);
    virtual double GetDealQuantity();
    virtual void SetDealQuantity(double szNew);
    virtual bool GetNonmerchandiseFlag();
    virtual void SetNonmerchandiseFlag(bool szNew);
    virtual zelString GetOriginalSalesperson();
    virtual void SetOriginalSalesperson(LPCTSTR szNew);
    virtual zelString GetVoidReasonCode();
    virtual void SetVoidReasonCode(LPCTSTR szNew);
    virtual zelString GetPriceOverrideReasonCode();
    virtual void SetPriceOverrideReasonCode(LPCTSTR szNew);
    virtual zelString GetRefundReasonCode();
    virtual void SetRefundReasonCode(LPCTSTR szNew);
    virtual bool GetVoidFlag();
    virtual void SetVoidFlag(bool szNew);
    virtual bool AutoFillTypeInfo();

    bool GetAutoFillTypeInfo() const { return m_bAutoFillTypeInfo; }
    void SetAutoFillTypeInfo(bool bNew) { m_bAutoFillTypeInfo = bNew; }

protected:
    bool m_bAutoFillTypeInfo = false;
    bool m_ItemIDIncludesCheckDigit = false;
    bool m_NonmerchandiseFlag = false;
    bool m_VoidFlag = false;
    zelString m_KeyedItemID;
    BarCodeType* m_BarCode = nullptr;
    zelString m_DepartmentNumber;
    double m_KeyedPrice = 0.0;
    double m_Quantity = 0.0;
    double m_Weight = 0.0;
    double m_Tare = 0.0;
    double m_DealPrice = 0.0;
    double m_DealQuantity = 0.0;
    zelString m_OriginalSalesperson;
    zelString m_VoidReasonCode;
    zelString m_PriceOverrideReasonCode;
    zelString m_RefundReasonCode;

    static const Framework::FieldTable s_Table;
    friend struct Framework::FieldTableIndex;

private:
    static const Framework::FieldRow s_Rows[];
};
