// Generated from ItemPurchase.xsd; do not edit. Regenerate with the target "generate".
#include "FrameworkDataContainers/ItemIdentifierType.h"

#include "Framework/FrameworkDataContainers/Walks/Lists.h"
#include "Framework/FrameworkDataContainers/Walks/Walks.h"
#include "FrameworkDataContainers/BarCodeType.h"

// clang-format off
constinit const Framework::FieldRow ItemIdentifierType::s_Rows[] = {
    Framework::Element("KeyedItemID", &ItemIdentifierType::m_KeyedItemID),
    Framework::Element("ItemIDIncludesCheckDigit", &ItemIdentifierType::m_ItemIDIncludesCheckDigit),
    Framework::Child<&ItemIdentifierType::m_BarCode>("BarCode", "BarCodeType"),
    Framework::Element("DepartmentNumber", &ItemIdentifierType::m_DepartmentNumber),
    Framework::Element("KeyedPrice", &ItemIdentifierType::m_KeyedPrice),
    Framework::Element("Quantity", &ItemIdentifierType::m_Quantity),
    Framework::Element("Weight", &ItemIdentifierType::m_Weight),
    Framework::Element("Tare", &ItemIdentifierType::m_Tare),
    Framework::Element("DealPrice", &ItemIdentifierType::m_DealPrice),
    Framework::Element("DealQuantity", &ItemIdentifierType::m_DealQuantity),
    Framework::Element("NonmerchandiseFlag", &ItemIdentifierType::m_NonmerchandiseFlag),
    Framework::Element("OriginalSalesperson", &ItemIdentifierType::m_OriginalSalesperson),
    Framework::Element("VoidReasonCode", &ItemIdentifierType::m_VoidReasonCode),
    Framework::Element("PriceOverrideReasonCode", &ItemIdentifierType::m_PriceOverrideReasonCode),
    Framework::Element("RefundReasonCode", &ItemIdentifierType::m_RefundReasonCode),
    Framework::Element("VoidFlag", &ItemIdentifierType::m_VoidFlag),
};

constinit const Framework::FieldTable ItemIdentifierType::s_Table = {
    .className = "ItemIdentifierType",
    .elementName = "ItemIdentifier",
    .parent = nullptr,
    .isStructuralConfigLoader = false,
    .isRoot = false,
    .rows = s_Rows,
    .create = &Framework::CreateContainer<ItemIdentifierType>,
    .type = &typeid(ItemIdentifierType),
    .autoFill = Framework::ToBase(&ItemIdentifierType::m_bAutoFillTypeInfo),
};
// clang-format on

ItemIdentifierType::ItemIdentifierType(bool bBuildFromScratch) : TypedDataContainer(bBuildFromScratch) {
    Framework::NameByClass(*this, s_Table);
}

ItemIdentifierType::~ItemIdentifierType() {
    delete m_BarCode;
}

zelString ItemIdentifierType::GetBaseType() {
    return "ItemIdentifierType";
}

void ItemIdentifierType::GetProperties(ParameterList& pList) {
    Framework::Properties(*this, s_Table, pList);
}

bool ItemIdentifierType::MergeDataMembers(XMLDataWrapper* pMergeData, zelString sFeatureID) {
    return Framework::Merge(*this, s_Table, pMergeData, sFeatureID, __LINE__);
}

zelString ItemIdentifierType::GetAttributeList() {
    return Framework::AttributePredicate(*this, s_Table);
}

ParameterList* ItemIdentifierType::GetPLAttributeList() {
    return Framework::AttributeParameters(*this, s_Table);
}

TypedDataContainer* ItemIdentifierType::Clone() {
    return Framework::Clone(*this, s_Table);
}

bool ItemIdentifierType::DumpMergeContents(const zelString& sParentQuery, FullFunctionXMLDataWrapper* pOutput,
                                           int QueryPos, bool bIncludeMergeAttributes) {
    return Framework::DumpByQuery(*this, s_Table, sParentQuery, pOutput, QueryPos, bIncludeMergeAttributes);
}

bool ItemIdentifierType::DumpMergeContentsII(DOMNode* pParentNode, FullFunctionXMLDataWrapper* pOutput,
                                             DOMNode*& pPassedCurrent, bool bIncludeMergeAttributes) {
    return Framework::DumpByNode(*this, s_Table, pParentNode, pOutput, pPassedCurrent, bIncludeMergeAttributes);
}

bool ItemIdentifierType::UpdateContainedData() {
    return Framework::Update(*this, s_Table);
}

bool ItemIdentifierType::PopulateDataMembers(XalanNode* pNode) {
    return Framework::Populate(*this, s_Table, pNode);
}

void ItemIdentifierType::ResetDataMembers() {
    Framework::Reset(*this, s_Table);
}

zelString ItemIdentifierType::GetKeyedItemID() {
    return m_KeyedItemID;
}

void ItemIdentifierType::SetKeyedItemID(LPCTSTR szNew) {
    m_KeyedItemID = szNew;
}

bool ItemIdentifierType::GetItemIDIncludesCheckDigit() {
    return m_ItemIDIncludesCheckDigit;
}

void ItemIdentifierType::SetItemIDIncludesCheckDigit(bool szNew) {
    m_ItemIDIncludesCheckDigit = szNew;
}

BarCodeType* ItemIdentifierType::GetBarCode() {
    return m_BarCode;
}

void ItemIdentifierType::SetBarCode(BarCodeType* szNew) {
    Framework::ReplaceChild(m_BarCode, szNew);
}

zelString ItemIdentifierType::GetDepartmentNumber() {
    return m_DepartmentNumber;
}

void ItemIdentifierType::SetDepartmentNumber(LPCTSTR szNew) {
    m_DepartmentNumber = szNew;
}

double ItemIdentifierType::GetKeyedPrice() {
    return m_KeyedPrice;
}

void ItemIdentifierType::SetKeyedPrice(double szNew) {
    m_KeyedPrice = szNew;
}

double ItemIdentifierType::GetQuantity() {
    return m_Quantity;
}

void ItemIdentifierType::SetQuantity(double szNew) {
    m_Quantity = szNew;
}

double ItemIdentifierType::GetWeight() {
    return m_Weight;
}

void ItemIdentifierType::SetWeight(double szNew) {
    m_Weight = szNew;
}

double ItemIdentifierType::GetTare() {
    return m_Tare;
}

void ItemIdentifierType::SetTare(double szNew) {
    m_Tare = szNew;
}

double ItemIdentifierType::GetDealPrice() {
    return m_DealPrice;
}

void ItemIdentifierType::SetDealPrice(double szNew) {
    m_DealPrice = szNew;
}

double ItemIdentifierType::GetDealQuantity() {
    return m_DealQuantity;
}

void ItemIdentifierType::SetDealQuantity(double szNew) {
    m_DealQuantity = szNew;
}

bool ItemIdentifierType::GetNonmerchandiseFlag() {
    return m_NonmerchandiseFlag;
}

void ItemIdentifierType::SetNonmerchandiseFlag(bool szNew) {
    m_NonmerchandiseFlag = szNew;
}

zelString ItemIdentifierType::GetOriginalSalesperson() {
    return m_OriginalSalesperson;
}

void ItemIdentifierType::SetOriginalSalesperson(LPCTSTR szNew) {
    m_OriginalSalesperson = szNew;
}

zelString ItemIdentifierType::GetVoidReasonCode() {
    return m_VoidReasonCode;
}

void ItemIdentifierType::SetVoidReasonCode(LPCTSTR szNew) {
    m_VoidReasonCode = szNew;
}

zelString ItemIdentifierType::GetPriceOverrideReasonCode() {
    return m_PriceOverrideReasonCode;
}

void ItemIdentifierType::SetPriceOverrideReasonCode(LPCTSTR szNew) {
    m_PriceOverrideReasonCode = szNew;
}

zelString ItemIdentifierType::GetRefundReasonCode() {
    return m_RefundReasonCode;
}

void ItemIdentifierType::SetRefundReasonCode(LPCTSTR szNew) {
    m_RefundReasonCode = szNew;
}

bool ItemIdentifierType::GetVoidFlag() {
    return m_VoidFlag;
}

void ItemIdentifierType::SetVoidFlag(bool szNew) {
    m_VoidFlag = szNew;
}

bool ItemIdentifierType::AutoFillTypeInfo() {
    return true;
}
