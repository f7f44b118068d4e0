// Generated from ItemPurchase.xsd; do not edit. Regenerate with the target "generate".
#pragma once

#include "Framework/TypedDataContainer.h"

namespace Framework {
struct FieldTableIndex;
}

class AddItemRequestType;
class AddItemResponseType;
class BarCodeType;

/// A request to add an item, and its response.
///
/// Element `ItemPurchaseTracking`, the root of its document.
class FRAMEWORK_API ItemPurchaseTrackingType : public TypedDataContainer {
public:
    explicit ItemPurchaseTrackingType(bool bBuildFromScratch);
    ~ItemPurchaseTrackingType() override;

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
    virtual BarCodeType* GetItemIdentifier();
    virtual void SetItemIdentifier(BarCodeType* szNew);
    virtual zelString GetRequestID();
    virtual void SetRequestID(LPCTSTR szNew);
    virtual AddItemRequestType* GetAddItemRequest();
    virtual void SetAddItemRequest(AddItemRequestType* szNew);
    virtual AddItemResponseType* GetAddItemResponse();
    virtual void SetAddItemResponse(AddItemResponseType* szNew);
    virtual bool AutoFillTypeInfo();

    bool GetAutoFillTypeInfo() const { return m_bAutoFillTypeInfo; }
    void SetAutoFillTypeInfo(bool bNew) { m_bAutoFillTypeInfo = bNew; }

protected:
    bool m_bAutoFillTypeInfo = false;
    BarCodeType* m_ItemIdentifier = nullptr;
    zelString m_RequestID;
    AddItemRequestType* m_AddItemRequest = nullptr;
    AddItemResponseType* m_AddItemResponse = nullptr;

    static const Framework::FieldTable s_Table;
    friend struct Framework::FieldTableIndex;

private:
    static const Framework::FieldRow s_Rows[];
};
