// Generated from LoggingInformation.xsd; do not edit. Regenerate with the target "generate".
#include "FrameworkDataContainers/ItemInformationType.h"

#include "Framework/FrameworkDataContainers/Walks/Lists.h"
#include "Framework/FrameworkDataContainers/Walks/Walks.h"

// clang-format off
constinit const Framework::FieldRow ItemInformationType::s_Rows[] = {
    Framework::EnumElement<&ItemInformationType::m_LaneType>("LaneType", "LaneTypeEnum"),
    Framework::Element("LaneTransId", &ItemInformationType::m_LaneTransId),
    Framework::Element("TimeStamp", &ItemInformationType::m_TimeStamp),
    Framework::Element("ItemId", &ItemInformationType::m_ItemId),
    Framework::Element("ExtendedBarCode", &ItemInformationType::m_ExtendedBarCode),
    Framework::Element("ItemDesc", &ItemInformationType::m_ItemDesc),
    Framework::Element("ItemPrice", &ItemInformationType::m_ItemPrice),
    Framework::EnumElement<&ItemInformationType::m_ItemType>("ItemType", "ItemTypeDefinitionEnum"),
    Framework::Element("MiniPassAround", &ItemInformationType::m_MiniPassAround),
    Framework::Element("ItemQuantity", &ItemInformationType::m_ItemQuantity),
    Framework::Element("MeasuredWeight", &ItemInformationType::m_MeasuredWeight),
    Framework::Element("ScannerScaleWeight", &ItemInformationType::m_ScannerScaleWeight),
    Framework::Element("MeasuredHeight", &ItemInformationType::m_MeasuredHeight),
    Framework::EnumElement<&ItemInformationType::m_BreadTail>("BreadTail", "MultiBreakDefinition"),
    Framework::EnumElement<&ItemInformationType::m_ValidationStatus>("ValidationStatus", "ItemValidationStatusType"),
    Framework::Element("SecurityAlert", &ItemInformationType::m_SecurityAlert),
    Framework::Element("OldInformationInSecRecord", &ItemInformationType::m_OldInformationInSecRecord),
    Framework::Element("PassAround", &ItemInformationType::m_PassAround),
    Framework::Element("FlagWithCheckCart", &ItemInformationType::m_FlagWithCheckCart),
    Framework::Element("SkippedItemSecurityCheck", &ItemInformationType::m_SkippedItemSecurityCheck),
    Framework::Element("LongItem", &ItemInformationType::m_LongItem),
    Framework::Element("NewItem", &ItemInformationType::m_NewItem),
    Framework::EnumElement<&ItemInformationType::m_OverrideMode>("OverrideMode", "OverrideModeDefinition"),
    Framework::Element("AssistantVoid", &ItemInformationType::m_AssistantVoid),
    Framework::Element("UsedNofInformation", &ItemInformationType::m_UsedNofInformation),
    Framework::Element("NewNofInformation", &ItemInformationType::m_NewNofInformation),
    Framework::Element("AssistantId", &ItemInformationType::m_AssistantId),
    Framework::Element("NofDepartment", &ItemInformationType::m_NofDepartment),
    Framework::Element("NofPrice", &ItemInformationType::m_NofPrice),
    Framework::Element("NofMod1", &ItemInformationType::m_NofMod1),
    Framework::Element("NofMod2", &ItemInformationType::m_NofMod2),
    Framework::Element("NofMod3", &ItemInformationType::m_NofMod3),
    Framework::Element("NofMod4", &ItemInformationType::m_NofMod4),
    Framework::Element("PricePerUnitUsed", &ItemInformationType::m_PricePerUnitUsed),
    Framework::Element("ByCountQuantityUsed", &ItemInformationType::m_ByCountQuantityUsed),
    Framework::Element("Type2SluUsed", &ItemInformationType::m_Type2SluUsed),
    Framework::Element("PriceOverrideReason", &ItemInformationType::m_PriceOverrideReason),
};

constinit const Framework::FieldTable ItemInformationType::s_Table = {
    .className = "ItemInformationType",
    .elementName = "ItemInformation",
    .parent = nullptr,
    .isStructuralConfigLoader = false,
    .isRoot = false,
    .rows = s_Rows,
    .create = &Framework::CreateContainer<ItemInformationType>,
    .type = &typeid(ItemInformationType),
    .autoFill = Framework::ToBase(&ItemInformationType::m_bAutoFillTypeInfo),
};
// clang-format on

ItemInformationType::ItemInformationType(bool bBuildFromScratch) : TypedDataContainer(bBuildFromScratch) {
    Framework::NameByClass(*this, s_Table);
}

ItemInformationType::~ItemInformationType() {}

zelString ItemInformationType::GetBaseType() {
    return "ItemInformationType";
}

void ItemInformationType::GetProperties(ParameterList& pList) {
    Framework::Properties(*this, s_Table, pList);
}

bool ItemInformationType::MergeDataMembers(XMLDataWrapper* pMergeData, zelString sFeatureID) {
    return Framework::Merge(*this, s_Table, pMergeData, sFeatureID, __LINE__);
}

zelString ItemInformationType::GetAttributeList() {
    return Framework::AttributePredicate(*this, s_Table);
}

ParameterList* ItemInformationType::GetPLAttributeList() {
    return Framework::AttributeParameters(*this, s_Table);
}

TypedDataContainer* ItemInformationType::Clone() {
    return Framework::Clone(*this, s_Table);
}

bool ItemInformationType::DumpMergeContents(const zelString& sParentQuery, FullFunctionXMLDataWrapper* pOutput,
                                            int QueryPos, bool bIncludeMergeAttributes) {
    return Framework::DumpByQuery(*this, s_Table, sParentQuery, pOutput, QueryPos, bIncludeMergeAttributes);
}

bool ItemInformationType::DumpMergeContentsII(DOMNode* pParentNode, FullFunctionXMLDataWrapper* pOutput,
                                              DOMNode*& pPassedCurrent, bool bIncludeMergeAttributes) {
    return Framework::DumpByNode(*this, s_Table, pParentNode, pOutput, pPassedCurrent, bIncludeMergeAttributes);
}

bool ItemInformationType::UpdateContainedData() {
    return Framework::Update(*this, s_Table);
}

bool ItemInformationType::PopulateDataMembers(XalanNode* pNode) {
    return Framework::Populate(*this, s_Table, pNode);
}

void ItemInformationType::ResetDataMembers() {
    Framework::Reset(*this, s_Table);
}

LaneTypeEnum ItemInformationType::GetLaneType() {
    return m_LaneType;
}

void ItemInformationType::SetLaneType(LaneTypeEnum szNew) {
    m_LaneType = szNew;
}

zelString ItemInformationType::GetLaneTransId() {
    return m_LaneTransId;
}

void ItemInformationType::SetLaneTransId(LPCTSTR szNew) {
    m_LaneTransId = szNew;
}

zelString ItemInformationType::GetTimeStamp() {
    return m_TimeStamp;
}

void ItemInformationType::SetTimeStamp(LPCTSTR szNew) {
    m_TimeStamp = szNew;
}

zelString ItemInformationType::GetItemId() {
    return m_ItemId;
}

void ItemInformationType::SetItemId(LPCTSTR szNew) {
    m_ItemId = szNew;
}

zelString ItemInformationType::GetExtendedBarCode() {
    return m_ExtendedBarCode;
}

void ItemInformationType::SetExtendedBarCode(LPCTSTR szNew) {
    m_ExtendedBarCode = szNew;
}

zelString ItemInformationType::GetItemDesc() {
    return m_ItemDesc;
}

void ItemInformationType::SetItemDesc(LPCTSTR szNew) {
    m_ItemDesc = szNew;
}

double ItemInformationType::GetItemPrice() {
    return m_ItemPrice;
}

void ItemInformationType::SetItemPrice(double szNew) {
    m_ItemPrice = szNew;
}

ItemTypeDefinitionEnum ItemInformationType::GetItemType() {
    return m_ItemType;
}

void ItemInformationType::SetItemType(ItemTypeDefinitionEnum szNew) {
    m_ItemType = szNew;
}

bool ItemInformationType::GetMiniPassAround() {
    return m_MiniPassAround;
}

void ItemInformationType::SetMiniPassAround(bool szNew) {
    m_MiniPassAround = szNew;
}

int ItemInformationType::GetItemQuantity() {
    return m_ItemQuantity;
}

void ItemInformationType::SetItemQuantity(int szNew) {
    m_ItemQuantity = szNew;
}

int ItemInformationType::GetMeasuredWeight() {
    return m_MeasuredWeight;
}

void ItemInformationType::SetMeasuredWeight(int szNew) {
    m_MeasuredWeight = szNew;
}

int ItemInformationType::GetScannerScaleWeight() {
    return m_ScannerScaleWeight;
}

void ItemInformationType::SetScannerScaleWeight(int szNew) {
    m_ScannerScaleWeight = szNew;
}

int ItemInformationType::GetMeasuredHeight() {
    return m_MeasuredHeight;
}

void ItemInformationType::SetMeasuredHeight(int szNew) {
    m_MeasuredHeight = szNew;
}

MultiBreakDefinition ItemInformationType::GetBreadTail() {
    return m_BreadTail;
}

void ItemInformationType::SetBreadTail(MultiBreakDefinition szNew) {
    m_BreadTail = szNew;
}

ItemValidationStatusType ItemInformationType::GetValidationStatus() {
    return m_ValidationStatus;
}

void ItemInformationType::SetValidationStatus(ItemValidationStatusType szNew) {
    m_ValidationStatus = szNew;
}

int ItemInformationType::GetSecurityAlert() {
    return m_SecurityAlert;
}

void ItemInformationType::SetSecurityAlert(int szNew) {
    m_SecurityAlert = szNew;
}

bool ItemInformationType::GetOldInformationInSecRecord() {
    return m_OldInformationInSecRecord;
}

void ItemInformationType::SetOldInformationInSecRecord(bool szNew) {
    m_OldInformationInSecRecord = szNew;
}

bool ItemInformationType::GetPassAround() {
    return m_PassAround;
}

void ItemInformationType::SetPassAround(bool szNew) {
    m_PassAround = szNew;
}

bool ItemInformationType::GetFlagWithCheckCart() {
    return m_FlagWithCheckCart;
}

void ItemInformationType::SetFlagWithCheckCart(bool szNew) {
    m_FlagWithCheckCart = szNew;
}

bool ItemInformationType::GetSkippedItemSecurityCheck() {
    return m_SkippedItemSecurityCheck;
}

void ItemInformationType::SetSkippedItemSecurityCheck(bool szNew) {
    m_SkippedItemSecurityCheck = szNew;
}

bool ItemInformationType::GetLongItem() {
    return m_LongItem;
}

void ItemInformationType::SetLongItem(bool szNew) {
    m_LongItem = szNew;
}

bool ItemInformationType::GetNewItem() {
    return m_NewItem;
}

void ItemInformationType::SetNewItem(bool szNew) {
    m_NewItem = szNew;
}

OverrideModeDefinition ItemInformationType::GetOverrideMode() {
    return m_OverrideMode;
}

void ItemInformationType::SetOverrideMode(OverrideModeDefinition szNew) {
    m_OverrideMode = szNew;
}

bool ItemInformationType::GetAssistantVoid() {
    return m_AssistantVoid;
}

void ItemInformationType::SetAssistantVoid(bool szNew) {
    m_AssistantVoid = szNew;
}

bool ItemInformationType::GetUsedNofInformation() {
    return m_UsedNofInformation;
}

void ItemInformationType::SetUsedNofInformation(bool szNew) {
    m_UsedNofInformation = szNew;
}

bool ItemInformationType::GetNewNofInformation() {
    return m_NewNofInformation;
}

void ItemInformationType::SetNewNofInformation(bool szNew) {
    m_NewNofInformation = szNew;
}

zelString ItemInformationType::GetAssistantId() {
    return m_AssistantId;
}

void ItemInformationType::SetAssistantId(LPCTSTR szNew) {
    m_AssistantId = szNew;
}

zelString ItemInformationType::GetNofDepartment() {
    return m_NofDepartment;
}

void ItemInformationType::SetNofDepartment(LPCTSTR szNew) {
    m_NofDepartment = szNew;
}

double ItemInformationType::GetNofPrice() {
    return m_NofPrice;
}

void ItemInformationType::SetNofPrice(double szNew) {
    m_NofPrice = szNew;
}

int ItemInformationType::GetNofMod1() {
    return m_NofMod1;
}

void ItemInformationType::SetNofMod1(int szNew) {
    m_NofMod1 = szNew;
}

int ItemInformationType::GetNofMod2() {
    return m_NofMod2;
}

void ItemInformationType::SetNofMod2(int szNew) {
    m_NofMod2 = szNew;
}

int ItemInformationType::GetNofMod3() {
    return m_NofMod3;
}

void ItemInformationType::SetNofMod3(int szNew) {
    m_NofMod3 = szNew;
}

int ItemInformationType::GetNofMod4() {
    return m_NofMod4;
}

void ItemInformationType::SetNofMod4(int szNew) {
    m_NofMod4 = szNew;
}

double ItemInformationType::GetPricePerUnitUsed() {
    return m_PricePerUnitUsed;
}

void ItemInformationType::SetPricePerUnitUsed(double szNew) {
    m_PricePerUnitUsed = szNew;
}

int ItemInformationType::GetByCountQuantityUsed() {
    return m_ByCountQuantityUsed;
}

void ItemInformationType::SetByCountQuantityUsed(int szNew) {
    m_ByCountQuantityUsed = szNew;
}

int ItemInformationType::GetType2SluUsed() {
    return m_Type2SluUsed;
}

void ItemInformationType::SetType2SluUsed(int szNew) {
    m_Type2SluUsed = szNew;
}

int ItemInformationType::GetPriceOverrideReason() {
    return m_PriceOverrideReason;
}

void ItemInformationType::SetPriceOverrideReason(int szNew) {
    m_PriceOverrideReason = szNew;
}

bool ItemInformationType::AutoFillTypeInfo() {
    return true;
}
