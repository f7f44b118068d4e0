// Generated from LoggingInformation.xsd; do not edit. Regenerate with the target "generate".
#include "FrameworkDataContainers/ItemHandlerLogDataType.h"

#include "Framework/FrameworkDataContainers/Walks/Lists.h"
#include "Framework/FrameworkDataContainers/Walks/Walks.h"

// clang-format off
constinit const Framework::FieldRow ItemHandlerLogDataType::s_Rows[] = {
    Framework::Element("RequestID", &ItemHandlerLogDataType::m_RequestID),
    Framework::Element("MeasuredHeight", &ItemHandlerLogDataType::m_MeasuredHeight),
    Framework::Element("MeasuredWeight", &ItemHandlerLogDataType::m_MeasuredWeight),
    Framework::EnumElement<&ItemHandlerLogDataType::m_BreadTail>("BreadTail", "MultiBreakDefinition"),
    Framework::EnumElement<&ItemHandlerLogDataType::m_ValidationStatus>("ValidationStatus", "ItemValidationStatusType"),
    Framework::Element("PassAround", &ItemHandlerLogDataType::m_PassAround),
    Framework::Element("FlagWithCheckCart", &ItemHandlerLogDataType::m_FlagWithCheckCart),
    Framework::Element("SkippedItemSecurityCheck", &ItemHandlerLogDataType::m_SkippedItemSecurityCheck),
    Framework::Element("LongItem", &ItemHandlerLogDataType::m_LongItem),
    Framework::Element("Type2PriceUsed", &ItemHandlerLogDataType::m_Type2PriceUsed),
    Framework::Element("ByCountQuantityUsed", &ItemHandlerLogDataType::m_ByCountQuantityUsed),
    Framework::Element("Type2ItemCount", &ItemHandlerLogDataType::m_Type2ItemCount),
    Framework::Element("Type2SluUsed", &ItemHandlerLogDataType::m_Type2SluUsed),
    Framework::Element("Type2ExpectedWeightMin", &ItemHandlerLogDataType::m_Type2ExpectedWeightMin),
    Framework::Element("Type2ExpectedWeightMax", &ItemHandlerLogDataType::m_Type2ExpectedWeightMax),
    Framework::Element("BaseWeight", &ItemHandlerLogDataType::m_BaseWeight),
    Framework::EnumElement<&ItemHandlerLogDataType::m_Correction>("Correction", "ItemHandlerCorrectionType"),
};

constinit const Framework::FieldTable ItemHandlerLogDataType::s_Table = {
    .className = "ItemHandlerLogDataType",
    .elementName = "ItemHandlerLogData",
    .parent = nullptr,
    .isStructuralConfigLoader = false,
    .isRoot = true,
    .rows = s_Rows,
    .create = &Framework::CreateContainer<ItemHandlerLogDataType>,
    .type = &typeid(ItemHandlerLogDataType),
    .autoFill = Framework::ToBase(&ItemHandlerLogDataType::m_bAutoFillTypeInfo),
};
// clang-format on

ItemHandlerLogDataType::ItemHandlerLogDataType(bool bBuildFromScratch) : TypedDataContainer(bBuildFromScratch) {
    Framework::NameByClass(*this, s_Table);
}

ItemHandlerLogDataType::~ItemHandlerLogDataType() {}

zelString ItemHandlerLogDataType::GetBaseType() {
    return "ItemHandlerLogDataType";
}

void ItemHandlerLogDataType::GetProperties(ParameterList& pList) {
    Framework::Properties(*this, s_Table, pList);
}

bool ItemHandlerLogDataType::MergeDataMembers(XMLDataWrapper* pMergeData, zelString sFeatureID) {
    return Framework::Merge(*this, s_Table, pMergeData, sFeatureID, __LINE__);
}

zelString ItemHandlerLogDataType::GetAttributeList() {
    return Framework::AttributePredicate(*this, s_Table);
}

ParameterList* ItemHandlerLogDataType::GetPLAttributeList() {
    return Framework::AttributeParameters(*this, s_Table);
}

TypedDataContainer* ItemHandlerLogDataType::Clone() {
    return Framework::Clone(*this, s_Table);
}

bool ItemHandlerLogDataType::DumpMergeContents(const zelString& sParentQuery, FullFunctionXMLDataWrapper* pOutput,
                                               int QueryPos, bool bIncludeMergeAttributes) {
    return Framework::DumpByQuery(*this, s_Table, sParentQuery, pOutput, QueryPos, bIncludeMergeAttributes);
}

bool ItemHandlerLogDataType::DumpMergeContentsII(DOMNode* pParentNode, FullFunctionXMLDataWrapper* pOutput,
                                                 DOMNode*& pPassedCurrent, bool bIncludeMergeAttributes) {
    return Framework::DumpByNode(*this, s_Table, pParentNode, pOutput, pPassedCurrent, bIncludeMergeAttributes);
}

bool ItemHandlerLogDataType::UpdateContainedData() {
    return Framework::Update(*this, s_Table);
}

bool ItemHandlerLogDataType::PopulateDataMembers(XalanNode* pNode) {
    return Framework::Populate(*this, s_Table, pNode);
}

void ItemHandlerLogDataType::ResetDataMembers() {
    Framework::Reset(*this, s_Table);
}

zelString ItemHandlerLogDataType::GetRequestID() {
    return m_RequestID;
}

void ItemHandlerLogDataType::SetRequestID(LPCTSTR szNew) {
    m_RequestID = szNew;
}

int ItemHandlerLogDataType::GetMeasuredHeight() {
    return m_MeasuredHeight;
}

void ItemHandlerLogDataType::SetMeasuredHeight(int szNew) {
    m_MeasuredHeight = szNew;
}

int ItemHandlerLogDataType::GetMeasuredWeight() {
    return m_MeasuredWeight;
}

void ItemHandlerLogDataType::SetMeasuredWeight(int szNew) {
    m_MeasuredWeight = szNew;
}

MultiBreakDefinition ItemHandlerLogDataType::GetBreadTail() {
    return m_BreadTail;
}

void ItemHandlerLogDataType::SetBreadTail(MultiBreakDefinition szNew) {
    m_BreadTail = szNew;
}

ItemValidationStatusType ItemHandlerLogDataType::GetValidationStatus() {
    return m_ValidationStatus;
}

void ItemHandlerLogDataType::SetValidationStatus(ItemValidationStatusType szNew) {
    m_ValidationStatus = szNew;
}

bool ItemHandlerLogDataType::GetPassAround() {
    return m_PassAround;
}

void ItemHandlerLogDataType::SetPassAround(bool szNew) {
    m_PassAround = szNew;
}

bool ItemHandlerLogDataType::GetFlagWithCheckCart() {
    return m_FlagWithCheckCart;
}

void ItemHandlerLogDataType::SetFlagWithCheckCart(bool szNew) {
    m_FlagWithCheckCart = szNew;
}

bool ItemHandlerLogDataType::GetSkippedItemSecurityCheck() {
    return m_SkippedItemSecurityCheck;
}

void ItemHandlerLogDataType::SetSkippedItemSecurityCheck(bool szNew) {
    m_SkippedItemSecurityCheck = szNew;
}

bool ItemHandlerLogDataType::GetLongItem() {
    return m_LongItem;
}

void ItemHandlerLogDataType::SetLongItem(bool szNew) {
    m_LongItem = szNew;
}

int ItemHandlerLogDataType::GetType2PriceUsed() {
    return m_Type2PriceUsed;
}

void ItemHandlerLogDataType::SetType2PriceUsed(int szNew) {
    m_Type2PriceUsed = szNew;
}

int ItemHandlerLogDataType::GetByCountQuantityUsed() {
    return m_ByCountQuantityUsed;
}

void ItemHandlerLogDataType::SetByCountQuantityUsed(int szNew) {
    m_ByCountQuantityUsed = szNew;
}

int ItemHandlerLogDataType::GetType2ItemCount() {
    return m_Type2ItemCount;
}

void ItemHandlerLogDataType::SetType2ItemCount(int szNew) {
    m_Type2ItemCount = szNew;
}

int ItemHandlerLogDataType::GetType2SluUsed() {
    return m_Type2SluUsed;
}

void ItemHandlerLogDataType::SetType2SluUsed(int szNew) {
    m_Type2SluUsed = szNew;
}

int ItemHandlerLogDataType::GetType2ExpectedWeightMin() {
    return m_Type2ExpectedWeightMin;
}

void ItemHandlerLogDataType::SetType2ExpectedWeightMin(int szNew) {
    m_Type2ExpectedWeightMin = szNew;
}

int ItemHandlerLogDataType::GetType2ExpectedWeightMax() {
    return m_Type2ExpectedWeightMax;
}

void ItemHandlerLogDataType::SetType2ExpectedWeightMax(int szNew) {
    m_Type2ExpectedWeightMax = szNew;
}

int ItemHandlerLogDataType::GetBaseWeight() {
    return m_BaseWeight;
}

void ItemHandlerLogDataType::SetBaseWeight(int szNew) {
    m_BaseWeight = szNew;
}

ItemHandlerCorrectionType ItemHandlerLogDataType::GetCorrection() {
    return m_Correction;
}

void ItemHandlerLogDataType::SetCorrection(ItemHandlerCorrectionType szNew) {
    m_Correction = szNew;
}

bool ItemHandlerLogDataType::AutoFillTypeInfo() {
    return true;
}
