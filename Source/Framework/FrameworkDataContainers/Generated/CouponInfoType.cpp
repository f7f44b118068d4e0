// Generated from ItemPurchase.xsd; do not edit. Regenerate with the target "generate".
#include "FrameworkDataContainers/CouponInfoType.h"

#include "Framework/FrameworkDataContainers/Walks/Lists.h"
#include "Framework/FrameworkDataContainers/Walks/Walks.h"
#include "FrameworkDataContainers/ItemIdentifierType.h"

// clang-format off
constinit const Framework::FieldRow CouponInfoType::s_Rows[] = {
    Framework::Child<&CouponInfoType::m_ItemID>("ItemID", "ItemIdentifierType"),
    Framework::Element("TransactionLineItemInstanceNumber", &CouponInfoType::m_TransactionLineItemInstanceNumber),
    Framework::EnumElement<&CouponInfoType::m_CouponType>("CouponType", "CouponType"),
    Framework::Element("RegularUnitPrice", &CouponInfoType::m_RegularUnitPrice),
    Framework::Element("Quantity", &CouponInfoType::m_Quantity),
    Framework::Element("Value", &CouponInfoType::m_Value),
    Framework::Element("Weight", &CouponInfoType::m_Weight),
    Framework::Element("DealPrice", &CouponInfoType::m_DealPrice),
    Framework::Element("DealQuantity", &CouponInfoType::m_DealQuantity),
    Framework::Element("LinkedItemID", &CouponInfoType::m_LinkedItemID),
    Framework::Element("RestrictedAge", &CouponInfoType::m_RestrictedAge),
    Framework::Element("ReducesFoodstampBalanceDueFlag", &CouponInfoType::m_ReducesFoodstampBalanceDueFlag),
    Framework::Element("ReducesTaxDueFlag", &CouponInfoType::m_ReducesTaxDueFlag),
    Framework::Element("ItemRepeatAllowedFlag", &CouponInfoType::m_ItemRepeatAllowedFlag),
    Framework::Element("PricingMethod", &CouponInfoType::m_PricingMethod),
    Framework::Element("ManufacturerNumber", &CouponInfoType::m_ManufacturerNumber),
};

constinit const Framework::FieldTable CouponInfoType::s_Table = {
    .className = "CouponInfoType",
    .elementName = "CouponInfo",
    .parent = &LineItemInfoType::s_Table,
    .isStructuralConfigLoader = false,
    .isRoot = false,
    .rows = s_Rows,
    .create = &Framework::CreateContainer<CouponInfoType>,
    .type = &typeid(CouponInfoType),
    .autoFill = Framework::ToBase(&CouponInfoType::m_bAutoFillTypeInfo),
};
// clang-format on

CouponInfoType::CouponInfoType(bool bBuildFromScratch) : LineItemInfoType(bBuildFromScratch) {
    Framework::NameByClass(*this, s_Table);
}

CouponInfoType::~CouponInfoType() {
    delete m_ItemID;
}

zelString CouponInfoType::GetBaseType() {
    return "CouponInfoType";
}

void CouponInfoType::GetProperties(ParameterList& pList) {
    Framework::Properties(*this, s_Table, pList);
}

bool CouponInfoType::MergeDataMembers(XMLDataWrapper* pMergeData, zelString sFeatureID) {
    return Framework::Merge(*this, s_Table, pMergeData, sFeatureID, __LINE__);
}

zelString CouponInfoType::GetAttributeList() {
    return Framework::AttributePredicate(*this, s_Table);
}

ParameterList* CouponInfoType::GetPLAttributeList() {
    return Framework::AttributeParameters(*this, s_Table);
}

TypedDataContainer* CouponInfoType::Clone() {
    return Framework::Clone(*this, s_Table);
}

bool CouponInfoType::DumpMergeContents(const zelString& sParentQuery, FullFunctionXMLDataWrapper* pOutput, int QueryPos,
                                       bool bIncludeMergeAttributes) {
    return Framework::DumpByQuery(*this, s_Table, sParentQuery, pOutput, QueryPos, bIncludeMergeAttributes);
}

bool CouponInfoType::DumpMergeContentsII(DOMNode* pParentNode, FullFunctionXMLDataWrapper* pOutput,
                                         DOMNode*& pPassedCurrent, bool bIncludeMergeAttributes) {
    return Framework::DumpByNode(*this, s_Table, pParentNode, pOutput, pPassedCurrent, bIncludeMergeAttributes);
}

bool CouponInfoType::UpdateContainedData() {
    return Framework::Update(*this, s_Table);
}

bool CouponInfoType::PopulateDataMembers(XalanNode* pNode) {
    return Framework::Populate(*this, s_Table, pNode);
}

void CouponInfoType::ResetDataMembers() {
    Framework::Reset(*this, s_Table);
}

bool CouponInfoType::AutoFillTypeInfo() {
    return true;
}

ItemIdentifierType* CouponInfoType::GetItemID() {
    return m_ItemID;
}

void CouponInfoType::SetItemID(ItemIdentifierType* szNew) {
    Framework::ReplaceChild(m_ItemID, szNew);
}

zelString CouponInfoType::GetTransactionLineItemInstanceNumber() {
    return m_TransactionLineItemInstanceNumber;
}

void CouponInfoType::SetTransactionLineItemInstanceNumber(LPCTSTR szNew) {
    m_TransactionLineItemInstanceNumber = szNew;
}

CouponType CouponInfoType::GetCouponType() {
    return m_CouponType;
}

void CouponInfoType::SetCouponType(CouponType szNew) {
    m_CouponType = szNew;
}

double CouponInfoType::GetRegularUnitPrice() {
    return m_RegularUnitPrice;
}

void CouponInfoType::SetRegularUnitPrice(double szNew) {
    m_RegularUnitPrice = szNew;
}

int CouponInfoType::GetQuantity() {
    return m_Quantity;
}

void CouponInfoType::SetQuantity(int szNew) {
    m_Quantity = szNew;
}

zelString CouponInfoType::GetValue() {
    return m_Value;
}

void CouponInfoType::SetValue(LPCTSTR szNew) {
    m_Value = szNew;
}

double CouponInfoType::GetWeight() {
    return m_Weight;
}

void CouponInfoType::SetWeight(double szNew) {
    m_Weight = szNew;
}

double CouponInfoType::GetDealPrice() {
    return m_DealPrice;
}

void CouponInfoType::SetDealPrice(double szNew) {
    m_DealPrice = szNew;
}

int CouponInfoType::GetDealQuantity() {
    return m_DealQuantity;
}

void CouponInfoType::SetDealQuantity(int szNew) {
    m_DealQuantity = szNew;
}

zelString CouponInfoType::GetLinkedItemID() {
    return m_LinkedItemID;
}

void CouponInfoType::SetLinkedItemID(LPCTSTR szNew) {
    m_LinkedItemID = szNew;
}

zelString CouponInfoType::GetRestrictedAge() {
    return m_RestrictedAge;
}

void CouponInfoType::SetRestrictedAge(LPCTSTR szNew) {
    m_RestrictedAge = szNew;
}

bool CouponInfoType::GetReducesFoodstampBalanceDueFlag() {
    return m_ReducesFoodstampBalanceDueFlag;
}

void CouponInfoType::SetReducesFoodstampBalanceDueFlag(bool szNew) {
    m_ReducesFoodstampBalanceDueFlag = szNew;
}

bool CouponInfoType::GetReducesTaxDueFlag() {
    return m_ReducesTaxDueFlag;
}

void CouponInfoType::SetReducesTaxDueFlag(bool szNew) {
    m_ReducesTaxDueFlag = szNew;
}

bool CouponInfoType::GetItemRepeatAllowedFlag() {
    return m_ItemRepeatAllowedFlag;
}

void CouponInfoType::SetItemRepeatAllowedFlag(bool szNew) {
    m_ItemRepeatAllowedFlag = szNew;
}

zelString CouponInfoType::GetPricingMethod() {
    return m_PricingMethod;
}

void CouponInfoType::SetPricingMethod(LPCTSTR szNew) {
    m_PricingMethod = szNew;
}

zelString CouponInfoType::GetManufacturerNumber() {
    return m_ManufacturerNumber;
}

void CouponInfoType::SetManufacturerNumber(LPCTSTR szNew) {
    m_ManufacturerNumber = szNew;
}
