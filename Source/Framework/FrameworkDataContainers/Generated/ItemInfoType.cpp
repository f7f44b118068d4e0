// Generated from ItemPurchase.xsd; do not edit. Regenerate with the target "generate".
#include "FrameworkDataContainers/ItemInfoType.h"

#include "Framework/FrameworkDataContainers/Walks/Lists.h"
#include "Framework/FrameworkDataContainers/Walks/Walks.h"
#include "FrameworkDataContainers/ItemIdentifierType.h"

// clang-format off
constinit const Framework::FieldRow ItemInfoType::s_Rows[] = {
    Framework::Child<&ItemInfoType::m_ItemIdentifier>("ItemIdentifier", "ItemIdentifierType"),
    Framework::Element("RegularUnitPrice", &ItemInfoType::m_RegularUnitPrice),
    Framework::Element("Quantity", &ItemInfoType::m_Quantity),
    Framework::Element("ExtendedPrice", &ItemInfoType::m_ExtendedPrice),
    Framework::Element("Weight", &ItemInfoType::m_Weight),
    Framework::Element("DealPrice", &ItemInfoType::m_DealPrice),
    Framework::Element("DealQuantity", &ItemInfoType::m_DealQuantity),
    Framework::Element("LinkedItemID", &ItemInfoType::m_LinkedItemID),
    Framework::Element("MixAndMatchPricingGroup", &ItemInfoType::m_MixAndMatchPricingGroup),
    Framework::Element("TimeRestrictedFlag", &ItemInfoType::m_TimeRestrictedFlag),
    Framework::Element("RestrictedAge", &ItemInfoType::m_RestrictedAge),
    Framework::Element("FoodStampEligibleFlag", &ItemInfoType::m_FoodStampEligibleFlag),
    Framework::Element("WICEligibleFlag", &ItemInfoType::m_WICEligibleFlag),
    Framework::Element("ItemRepeatAllowedFlag", &ItemInfoType::m_ItemRepeatAllowedFlag),
    Framework::Element("TaxableFlag", &ItemInfoType::m_TaxableFlag),
};

constinit const Framework::FieldTable ItemInfoType::s_Table = {
    .className = "ItemInfoType",
    .elementName = "ItemInfo",
    .parent = &LineItemInfoType::s_Table,
    .isStructuralConfigLoader = false,
    .isRoot = false,
    .rows = s_Rows,
    .create = &Framework::CreateContainer<ItemInfoType>,
    .type = &typeid(ItemInfoType),
    .autoFill = Framework::ToBase(&ItemInfoType::m_bAutoFillTypeInfo),
};
// clang-format on

ItemInfoType::ItemInfoType(bool bBuildFromScratch) : LineItemInfoType(bBuildFromScratch) {
    Framework::NameByClass(*this, s_Table);
}

ItemInfoType::~ItemInfoType() {
    delete m_ItemIdentifier;
}

zelString ItemInfoType::GetBaseType() {
    return "ItemInfoType";
}

void ItemInfoType::GetProperties(ParameterList& pList) {
    Framework::Properties(*this, s_Table, pList);
}

bool ItemInfoType::MergeDataMembers(XMLDataWrapper* pMergeData, zelString sFeatureID) {
    return Framework::Merge(*this, s_Table, pMergeData, sFeatureID, __LINE__);
}

zelString ItemInfoType::GetAttributeList() {
    return Framework::AttributePredicate(*this, s_Table);
}

ParameterList* ItemInfoType::GetPLAttributeList() {
    return Framework::AttributeParameters(*this, s_Table);
}

TypedDataContainer* ItemInfoType::Clone() {
    return Framework::Clone(*this, s_Table);
}

bool ItemInfoType::DumpMergeContents(const zelString& sParentQuery, FullFunctionXMLDataWrapper* pOutput, int QueryPos,
                                     bool bIncludeMergeAttributes) {
    return Framework::DumpByQuery(*this, s_Table, sParentQuery, pOutput, QueryPos, bIncludeMergeAttributes);
}

bool ItemInfoType::DumpMergeContentsII(DOMNode* pParentNode, FullFunctionXMLDataWrapper* pOutput,
                                       DOMNode*& pPassedCurrent, bool bIncludeMergeAttributes) {
    return Framework::DumpByNode(*this, s_Table, pParentNode, pOutput, pPassedCurrent, bIncludeMergeAttributes);
}

bool ItemInfoType::UpdateContainedData() {
    return Framework::Update(*this, s_Table);
}

bool ItemInfoType::PopulateDataMembers(XalanNode* pNode) {
    return Framework::Populate(*this, s_Table, pNode);
}

void ItemInfoType::ResetDataMembers() {
    Framework::Reset(*this, s_Table);
}

bool ItemInfoType::AutoFillTypeInfo() {
    return true;
}

ItemIdentifierType* ItemInfoType::GetItemIdentifier() {
    return m_ItemIdentifier;
}

void ItemInfoType::SetItemIdentifier(ItemIdentifierType* szNew) {
    Framework::ReplaceChild(m_ItemIdentifier, szNew);
}

double ItemInfoType::GetRegularUnitPrice() {
    return m_RegularUnitPrice;
}

void ItemInfoType::SetRegularUnitPrice(double szNew) {
    m_RegularUnitPrice = szNew;
}

int ItemInfoType::GetQuantity() {
    return m_Quantity;
}

void ItemInfoType::SetQuantity(int szNew) {
    m_Quantity = szNew;
}

double ItemInfoType::GetExtendedPrice() {
    return m_ExtendedPrice;
}

void ItemInfoType::SetExtendedPrice(double szNew) {
    m_ExtendedPrice = szNew;
}

double ItemInfoType::GetWeight() {
    return m_Weight;
}

void ItemInfoType::SetWeight(double szNew) {
    m_Weight = szNew;
}

double ItemInfoType::GetDealPrice() {
    return m_DealPrice;
}

void ItemInfoType::SetDealPrice(double szNew) {
    m_DealPrice = szNew;
}

int ItemInfoType::GetDealQuantity() {
    return m_DealQuantity;
}

void ItemInfoType::SetDealQuantity(int szNew) {
    m_DealQuantity = szNew;
}

zelString ItemInfoType::GetLinkedItemID() {
    return m_LinkedItemID;
}

void ItemInfoType::SetLinkedItemID(LPCTSTR szNew) {
    m_LinkedItemID = szNew;
}

zelString ItemInfoType::GetMixAndMatchPricingGroup() {
    return m_MixAndMatchPricingGroup;
}

void ItemInfoType::SetMixAndMatchPricingGroup(LPCTSTR szNew) {
    m_MixAndMatchPricingGroup = szNew;
}

bool ItemInfoType::GetTimeRestrictedFlag() {
    return m_TimeRestrictedFlag;
}

void ItemInfoType::SetTimeRestrictedFlag(bool szNew) {
    m_TimeRestrictedFlag = szNew;
}

int ItemInfoType::GetRestrictedAge() {
    return m_RestrictedAge;
}

void ItemInfoType::SetRestrictedAge(int szNew) {
    m_RestrictedAge = szNew;
}

bool ItemInfoType::GetFoodStampEligibleFlag() {
    return m_FoodStampEligibleFlag;
}

void ItemInfoType::SetFoodStampEligibleFlag(bool szNew) {
    m_FoodStampEligibleFlag = szNew;
}

bool ItemInfoType::GetWICEligibleFlag() {
    return m_WICEligibleFlag;
}

void ItemInfoType::SetWICEligibleFlag(bool szNew) {
    m_WICEligibleFlag = szNew;
}

bool ItemInfoType::GetItemRepeatAllowedFlag() {
    return m_ItemRepeatAllowedFlag;
}

void ItemInfoType::SetItemRepeatAllowedFlag(bool szNew) {
    m_ItemRepeatAllowedFlag = szNew;
}

bool ItemInfoType::GetTaxableFlag() {
    return m_TaxableFlag;
}

void ItemInfoType::SetTaxableFlag(bool szNew) {
    m_TaxableFlag = szNew;
}
