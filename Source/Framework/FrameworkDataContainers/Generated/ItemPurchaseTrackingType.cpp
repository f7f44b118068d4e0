// Generated from ItemPurchase.xsd; do not edit. Regenerate with the target "generate".
#include "FrameworkDataContainers/ItemPurchaseTrackingType.h"

#include "Framework/FrameworkDataContainers/Walks/Lists.h"
#include "Framework/FrameworkDataContainers/Walks/Walks.h"
#include "FrameworkDataContainers/AddItemRequestType.h"
#include "FrameworkDataContainers/AddItemResponseType.h"
#include "FrameworkDataContainers/BarCodeType.h"

// clang-format off
constinit const Framework::FieldRow ItemPurchaseTrackingType::s_Rows[] = {
    Framework::Child<&ItemPurchaseTrackingType::m_ItemIdentifier>("ItemIdentifier", "BarCodeType"),
    Framework::Element("RequestID", &ItemPurchaseTrackingType::m_RequestID),
    Framework::Child<&ItemPurchaseTrackingType::m_AddItemRequest>("AddItemRequest", "AddItemRequestType"),
    Framework::Child<&ItemPurchaseTrackingType::m_AddItemResponse>("AddItemResponse", "AddItemResponseType"),
};

constinit const Framework::FieldTable ItemPurchaseTrackingType::s_Table = {
    .className = "ItemPurchaseTrackingType",
    .elementName = "ItemPurchaseTracking",
    .parent = nullptr,
    .isStructuralConfigLoader = false,
    .isRoot = true,
    .rows = s_Rows,
    .create = &Framework::CreateContainer<ItemPurchaseTrackingType>,
    .type = &typeid(ItemPurchaseTrackingType),
    .autoFill = Framework::ToBase(&ItemPurchaseTrackingType::m_bAutoFillTypeInfo),
};
// clang-format on

ItemPurchaseTrackingType::ItemPurchaseTrackingType(bool bBuildFromScratch) : TypedDataContainer(bBuildFromScratch) {
    Framework::NameByClass(*this, s_Table);
}

ItemPurchaseTrackingType::~ItemPurchaseTrackingType() {
    delete m_ItemIdentifier;
    delete m_AddItemRequest;
    delete m_AddItemResponse;
}

zelString ItemPurchaseTrackingType::GetBaseType() {
    return "ItemPurchaseTrackingType";
}

void ItemPurchaseTrackingType::GetProperties(ParameterList& pList) {
    Framework::Properties(*this, s_Table, pList);
}

bool ItemPurchaseTrackingType::MergeDataMembers(XMLDataWrapper* pMergeData, zelString sFeatureID) {
    return Framework::Merge(*this, s_Table, pMergeData, sFeatureID, __LINE__);
}

zelString ItemPurchaseTrackingType::GetAttributeList() {
    return Framework::AttributePredicate(*this, s_Table);
}

ParameterList* ItemPurchaseTrackingType::GetPLAttributeList() {
    return Framework::AttributeParameters(*this, s_Table);
}

TypedDataContainer* ItemPurchaseTrackingType::Clone() {
    return Framework::Clone(*this, s_Table);
}

bool ItemPurchaseTrackingType::DumpMergeContents(const zelString& sParentQuery, FullFunctionXMLDataWrapper* pOutput,
                                                 int QueryPos, bool bIncludeMergeAttributes) {
    return Framework::DumpByQuery(*this, s_Table, sParentQuery, pOutput, QueryPos, bIncludeMergeAttributes);
}

bool ItemPurchaseTrackingType::DumpMergeContentsII(DOMNode* pParentNode, FullFunctionXMLDataWrapper* pOutput,
                                                   DOMNode*& pPassedCurrent, bool bIncludeMergeAttributes) {
    return Framework::DumpByNode(*this, s_Table, pParentNode, pOutput, pPassedCurrent, bIncludeMergeAttributes);
}

bool ItemPurchaseTrackingType::UpdateContainedData() {
    return Framework::Update(*this, s_Table);
}

bool ItemPurchaseTrackingType::PopulateDataMembers(XalanNode* pNode) {
    return Framework::Populate(*this, s_Table, pNode);
}

void ItemPurchaseTrackingType::ResetDataMembers() {
    Framework::Reset(*this, s_Table);
}

BarCodeType* ItemPurchaseTrackingType::GetItemIdentifier() {
    return m_ItemIdentifier;
}

void ItemPurchaseTrackingType::SetItemIdentifier(BarCodeType* szNew) {
    Framework::ReplaceChild(m_ItemIdentifier, szNew);
}

zelString ItemPurchaseTrackingType::GetRequestID() {
    return m_RequestID;
}

void ItemPurchaseTrackingType::SetRequestID(LPCTSTR szNew) {
    m_RequestID = szNew;
}

AddItemRequestType* ItemPurchaseTrackingType::GetAddItemRequest() {
    return m_AddItemRequest;
}

void ItemPurchaseTrackingType::SetAddItemRequest(AddItemRequestType* szNew) {
    Framework::ReplaceChild(m_AddItemRequest, szNew);
}

AddItemResponseType* ItemPurchaseTrackingType::GetAddItemResponse() {
    return m_AddItemResponse;
}

void ItemPurchaseTrackingType::SetAddItemResponse(AddItemResponseType* szNew) {
    Framework::ReplaceChild(m_AddItemResponse, szNew);
}

bool ItemPurchaseTrackingType::AutoFillTypeInfo() {
    return true;
}
