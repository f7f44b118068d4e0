// Generated from SystemsManagement.xsd; do not edit. Regenerate with the target "generate".
#include "FrameworkDataContainers/SystemEventPacketType.h"

#include "Framework/FrameworkDataContainers/Walks/Lists.h"
#include "Framework/FrameworkDataContainers/Walks/Walks.h"

// clang-format off
constinit const Framework::FieldRow SystemEventPacketType::s_Rows[] = {
    Framework::EnumElement<&SystemEventPacketType::m_EventId>("EventId", "SystemEventIdEnum"),
    Framework::EnumElement<&SystemEventPacketType::m_LaneType>("LaneType", "LaneTypeEnum"),
    Framework::Element("VendraTransactionID", &SystemEventPacketType::m_VendraTransactionID),
    Framework::Element("SaActivity", &SystemEventPacketType::m_SaActivity),
    Framework::Element("SaReferenceID", &SystemEventPacketType::m_SaReferenceID),
    Framework::Element("SystemHalted", &SystemEventPacketType::m_SystemHalted),
    Framework::Element("DBItemID", &SystemEventPacketType::m_DBItemID),
    Framework::Element("Weight", &SystemEventPacketType::m_Weight),
    Framework::Element("AgeEntered", &SystemEventPacketType::m_AgeEntered),
    Framework::Element("EventSpecificData", &SystemEventPacketType::m_EventSpecificData),
    Framework::Element("AdditionalInformation", &SystemEventPacketType::m_AdditionalInformation),
    Framework::Element("DebugContextData", &SystemEventPacketType::m_DebugContextData),
};

constinit const Framework::FieldTable SystemEventPacketType::s_Table = {
    .className = "SystemEventPacketType",
    .elementName = "SystemEventPacket",
    .parent = nullptr,
    .isStructuralConfigLoader = false,
    .isRoot = false,
    .rows = s_Rows,
    .create = &Framework::CreateContainer<SystemEventPacketType>,
    .type = &typeid(SystemEventPacketType),
    .autoFill = Framework::ToBase(&SystemEventPacketType::m_bAutoFillTypeInfo),
};
// clang-format on

SystemEventPacketType::SystemEventPacketType(bool bBuildFromScratch) : TypedDataContainer(bBuildFromScratch) {
    Framework::NameByClass(*this, s_Table);
}

SystemEventPacketType::~SystemEventPacketType() {}

zelString SystemEventPacketType::GetBaseType() {
    return "SystemEventPacketType";
}

void SystemEventPacketType::GetProperties(ParameterList& pList) {
    Framework::Properties(*this, s_Table, pList);
}

bool SystemEventPacketType::MergeDataMembers(XMLDataWrapper* pMergeData, zelString sFeatureID) {
    return Framework::Merge(*this, s_Table, pMergeData, sFeatureID, __LINE__);
}

zelString SystemEventPacketType::GetAttributeList() {
    return Framework::AttributePredicate(*this, s_Table);
}

ParameterList* SystemEventPacketType::GetPLAttributeList() {
    return Framework::AttributeParameters(*this, s_Table);
}

TypedDataContainer* SystemEventPacketType::Clone() {
    return Framework::Clone(*this, s_Table);
}

bool SystemEventPacketType::DumpMergeContents(const zelString& sParentQuery, FullFunctionXMLDataWrapper* pOutput,
                                              int QueryPos, bool bIncludeMergeAttributes) {
    return Framework::DumpByQuery(*this, s_Table, sParentQuery, pOutput, QueryPos, bIncludeMergeAttributes);
}

bool SystemEventPacketType::DumpMergeContentsII(DOMNode* pParentNode, FullFunctionXMLDataWrapper* pOutput,
                                                DOMNode*& pPassedCurrent, bool bIncludeMergeAttributes) {
    return Framework::DumpByNode(*this, s_Table, pParentNode, pOutput, pPassedCurrent, bIncludeMergeAttributes);
}

bool SystemEventPacketType::UpdateContainedData() {
    return Framework::Update(*this, s_Table);
}

bool SystemEventPacketType::PopulateDataMembers(XalanNode* pNode) {
    return Framework::Populate(*this, s_Table, pNode);
}

void SystemEventPacketType::ResetDataMembers() {
    Framework::Reset(*this, s_Table);
}

SystemEventIdEnum SystemEventPacketType::GetEventId() {
    return m_EventId;
}

void SystemEventPacketType::SetEventId(SystemEventIdEnum szNew) {
    m_EventId = szNew;
}

LaneTypeEnum SystemEventPacketType::GetLaneType() {
    return m_LaneType;
}

void SystemEventPacketType::SetLaneType(LaneTypeEnum szNew) {
    m_LaneType = szNew;
}

zelString SystemEventPacketType::GetVendraTransactionID() {
    return m_VendraTransactionID;
}

void SystemEventPacketType::SetVendraTransactionID(LPCTSTR szNew) {
    m_VendraTransactionID = szNew;
}

zelString SystemEventPacketType::GetSaActivity() {
    return m_SaActivity;
}

void SystemEventPacketType::SetSaActivity(LPCTSTR szNew) {
    m_SaActivity = szNew;
}

zelString SystemEventPacketType::GetSaReferenceID() {
    return m_SaReferenceID;
}

void SystemEventPacketType::SetSaReferenceID(LPCTSTR szNew) {
    m_SaReferenceID = szNew;
}

zelString SystemEventPacketType::GetSystemHalted() {
    return m_SystemHalted;
}

void SystemEventPacketType::SetSystemHalted(LPCTSTR szNew) {
    m_SystemHalted = szNew;
}

zelString SystemEventPacketType::GetDBItemID() {
    return m_DBItemID;
}

void SystemEventPacketType::SetDBItemID(LPCTSTR szNew) {
    m_DBItemID = szNew;
}

zelString SystemEventPacketType::GetWeight() {
    return m_Weight;
}

void SystemEventPacketType::SetWeight(LPCTSTR szNew) {
    m_Weight = szNew;
}

zelString SystemEventPacketType::GetAgeEntered() {
    return m_AgeEntered;
}

void SystemEventPacketType::SetAgeEntered(LPCTSTR szNew) {
    m_AgeEntered = szNew;
}

zelString SystemEventPacketType::GetEventSpecificData() {
    return m_EventSpecificData;
}

void SystemEventPacketType::SetEventSpecificData(LPCTSTR szNew) {
    m_EventSpecificData = szNew;
}

zelString SystemEventPacketType::GetAdditionalInformation() {
    return m_AdditionalInformation;
}

void SystemEventPacketType::SetAdditionalInformation(LPCTSTR szNew) {
    m_AdditionalInformation = szNew;
}

zelString SystemEventPacketType::GetDebugContextData() {
    return m_DebugContextData;
}

void SystemEventPacketType::SetDebugContextData(LPCTSTR szNew) {
    m_DebugContextData = szNew;
}

bool SystemEventPacketType::AutoFillTypeInfo() {
    return true;
}
