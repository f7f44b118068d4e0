// Generated from SystemsManagement.xsd; do not edit. Regenerate with the target "generate".
#include "FrameworkDataContainers/SystemsManagementPacketType.h"

#include "Framework/FrameworkDataContainers/Walks/Lists.h"
#include "Framework/FrameworkDataContainers/Walks/Walks.h"
#include "FrameworkDataContainers/AvailabilityType.h"
#include "FrameworkDataContainers/SystemEventPacketType.h"

// clang-format off
constinit const Framework::FieldRow SystemsManagementPacketType::s_Rows[] = {
    Framework::EnumElement<&SystemsManagementPacketType::m_PacketType>("PacketType", "SystemsManagementPacketTypeEnum"),
    Framework::Child<&SystemsManagementPacketType::m_Availability>("Availability", "AvailabilityType"),
    Framework::Child<&SystemsManagementPacketType::m_SystemEvent>("SystemEvent", "SystemEventPacketType"),
};

constinit const Framework::FieldTable SystemsManagementPacketType::s_Table = {
    .className = "SystemsManagementPacketType",
    .elementName = "SystemsManagementPacket",
    .parent = nullptr,
    .isStructuralConfigLoader = false,
    .isRoot = true,
    .rows = s_Rows,
    .create = &Framework::CreateContainer<SystemsManagementPacketType>,
    .type = &typeid(SystemsManagementPacketType),
    .autoFill = Framework::ToBase(&SystemsManagementPacketType::m_bAutoFillTypeInfo),
};
// clang-format on

SystemsManagementPacketType::SystemsManagementPacketType(bool bBuildFromScratch)
    : TypedDataContainer(bBuildFromScratch) {
    Framework::NameByClass(*this, s_Table);
}

SystemsManagementPacketType::~SystemsManagementPacketType() {
    delete m_Availability;
    delete m_SystemEvent;
}

zelString SystemsManagementPacketType::GetBaseType() {
    return "SystemsManagementPacketType";
}

void SystemsManagementPacketType::GetProperties(ParameterList& pList) {
    Framework::Properties(*this, s_Table, pList);
}

bool SystemsManagementPacketType::MergeDataMembers(XMLDataWrapper* pMergeData, zelString sFeatureID) {
    return Framework::Merge(*this, s_Table, pMergeData, sFeatureID, __LINE__);
}

zelString SystemsManagementPacketType::GetAttributeList() {
    return Framework::AttributePredicate(*this, s_Table);
}

ParameterList* SystemsManagementPacketType::GetPLAttributeList() {
    return Framework::AttributeParameters(*this, s_Table);
}

TypedDataContainer* SystemsManagementPacketType::Clone() {
    return Framework::Clone(*this, s_Table);
}

bool SystemsManagementPacketType::DumpMergeContents(const zelString& sParentQuery, FullFunctionXMLDataWrapper* pOutput,
                                                    int QueryPos, bool bIncludeMergeAttributes) {
    return Framework::DumpByQuery(*this, s_Table, sParentQuery, pOutput, QueryPos, bIncludeMergeAttributes);
}

bool SystemsManagementPacketType::DumpMergeContentsII(DOMNode* pParentNode, FullFunctionXMLDataWrapper* pOutput,
                                                      DOMNode*& pPassedCurrent, bool bIncludeMergeAttributes) {
    return Framework::DumpByNode(*this, s_Table, pParentNode, pOutput, pPassedCurrent, bIncludeMergeAttributes);
}

bool SystemsManagementPacketType::UpdateContainedData() {
    return Framework::Update(*this, s_Table);
}

bool SystemsManagementPacketType::PopulateDataMembers(XalanNode* pNode) {
    return Framework::Populate(*this, s_Table, pNode);
}

void SystemsManagementPacketType::ResetDataMembers() {
    Framework::Reset(*this, s_Table);
}

SystemsManagementPacketTypeEnum SystemsManagementPacketType::GetPacketType() {
    return m_PacketType;
}

void SystemsManagementPacketType::SetPacketType(SystemsManagementPacketTypeEnum szNew) {
    m_PacketType = szNew;
}

AvailabilityType* SystemsManagementPacketType::GetAvailability() {
    return m_Availability;
}

void SystemsManagementPacketType::SetAvailability(AvailabilityType* szNew) {
    Framework::ReplaceChild(m_Availability, szNew);
}

SystemEventPacketType* SystemsManagementPacketType::GetSystemEvent() {
    return m_SystemEvent;
}

void SystemsManagementPacketType::SetSystemEvent(SystemEventPacketType* szNew) {
    Framework::ReplaceChild(m_SystemEvent, szNew);
}

bool SystemsManagementPacketType::AutoFillTypeInfo() {
    return true;
}
