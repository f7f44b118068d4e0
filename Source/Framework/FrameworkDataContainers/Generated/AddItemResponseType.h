// Generated from ItemPurchase.xsd; do not edit. Regenerate with the target "generate".
#pragma once

#include "Framework/TypedDataContainer.h"

namespace Framework {
struct FieldTableIndex;
}

class CouponInfoType;
class ItemInfoType;
class PointsInfoType;

/// What adding an item has put on the order.
///
/// Element `AddItemResponse` unless its parent names it otherwise.
class FRAMEWORK_API AddItemResponseType : public TypedDataContainer {
public:
    explicit AddItemResponseType(bool bBuildFromScratch);
    ~AddItemResponseType() override;

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
    virtual int GetLineItemLength();
    virtual ItemInfoType* GetLineItem(int Index);
    virtual void AddNewLineItem(ItemInfoType* szNew);
    virtual int GetCouponItemLength();
    virtual CouponInfoType* GetCouponItem(int Index);
    virtual void AddNewCouponItem(CouponInfoType* szNew);
    virtual int GetPointsItemLength();
    virtual PointsInfoType* GetPointsItem(int Index);
    virtual void AddNewPointsItem(PointsInfoType* szNew);
    virtual bool AutoFillTypeInfo();
    virtual void AddLineItem(XMLDataWrapper* pData, XalanNode* spNode);
    virtual void ClearLineItem();
    virtual void AddCouponItem(XMLDataWrapper* pData, XalanNode* spNode);
    virtual void ClearCouponItem();
    virtual void AddPointsItem(XMLDataWrapper* pData, XalanNode* spNode);
    virtual void ClearPointsItem();

    bool GetAutoFillTypeInfo() const { return m_bAutoFillTypeInfo; }
    void SetAutoFillTypeInfo(bool bNew) { m_bAutoFillTypeInfo = bNew; }

protected:
    bool m_bAutoFillTypeInfo = false;
    zelString m_RequestID;
    std::vector<TypedDataContainer*> m_LineItemList;
    std::vector<TypedDataContainer*> m_CouponItemList;
    std::vector<TypedDataContainer*> m_PointsItemList;

    static const Framework::FieldTable s_Table;
    friend struct Framework::FieldTableIndex;

private:
    static const Framework::FieldRow s_Rows[];
};
