// Generated from LoggingInformation.xsd; do not edit. Regenerate with the target "generate".
#include "FrameworkDataContainers/LoggingInformationPacketType.h"

#include "Framework/FrameworkDataContainers/Walks/Lists.h"
#include "Framework/FrameworkDataContainers/Walks/Walks.h"
#include "FrameworkDataContainers/ItemInformationType.h"
#include "FrameworkDataContainers/SystemEventType.h"
#include "FrameworkDataContainers/TransactionInformationType.h"

// clang-format off
constinit const Framework::FieldRow LoggingInformationPacketType::s_Rows[] = {
    Framework::EnumElement<&LoggingInformationPacketType::m_PacketType>("PacketType", "LogInformationTypeDefintion"),
    Framework::Element("Lane", &LoggingInformationPacketType::m_Lane),
    Framework::Element("TimeStamp", &LoggingInformationPacketType::m_TimeStamp),
    Framework::Child<&LoggingInformationPacketType::m_SystemEvent>("SystemEvent", "SystemEventType"),
    Framework::Child<&LoggingInformationPacketType::m_ItemInformation>("ItemInformation", "ItemInformationType"),
    Framework::Child<&LoggingInformationPacketType::m_TransactionInformation>("TransactionInformation", "TransactionInformationType"),
};

constinit const Framework::FieldTable LoggingInformationPacketType::s_Table = {
    .className = "LoggingInformationPacketType",
    .elementName = "LoggingInformationPacket",
    .parent = nullptr,
    .isStructuralConfigLoader = false,
    .isRoot = true,
    .rows = s_Rows,
    .create = &Framework::CreateContainer<LoggingInformationPacketType>,
    .type = &typeid(LoggingInformationPacketType),
    .autoFill = Framework::ToBase(&LoggingInformationPacketType::m_bAutoFillTypeInfo),
};
// clang-format on

LoggingInformationPacketType::LoggingInformationPacketType(bool bBuildFromScratch)
    : TypedDataContainer(bBuildFromScratch) {
    Framework::NameByClass(*this, s_Table);
}

LoggingInformationPacketType::~LoggingInformationPacketType() {
    delete m_SystemEvent;
    delete m_ItemInformation;
    delete m_TransactionInformation;
}

zelString LoggingInformationPacketType::GetBaseType() {
    return "LoggingInformationPacketType";
}

void LoggingInformationPacketType::GetProperties(ParameterList& pList) {
    Framework::Properties(*this, s_Table, pList);
}

bool LoggingInformationPacketType::MergeDataMembers(XMLDataWrapper* pMergeData, zelString sFeatureID) {
    return Framework::Merge(*this, s_Table, pMergeData, sFeatureID, __LINE__);
}

zelString LoggingInformationPacketType::GetAttributeList() {
    return Framework::AttributePredicate(*this, s_Table);
}

ParameterList* LoggingInformationPacketType::GetPLAttributeList() {
    return Framework::AttributeParameters(*this, s_Table);
}

TypedDataContainer* LoggingInformationPacketType::Clone() {
    return Framework::Clone(*this, s_Table);
}

bool LoggingInformationPacketType::DumpMergeContents(const zelString& sParentQuery, FullFunctionXMLDataWrapper* pOutput,
                                                     int QueryPos, bool bIncludeMergeAttributes) {
    return Framework::DumpByQuery(*this, s_Table, sParentQuery, pOutput, QueryPos, bIncludeMergeAttributes);
}

bool LoggingInformationPacketType::DumpMergeContentsII(DOMNode* pParentNode, FullFunctionXMLDataWrapper* pOutput,
                                                       DOMNode*& pPassedCurrent, bool bIncludeMergeAttributes) {
    return Framework::DumpByNode(*this, s_Table, pParentNode, pOutput, pPassedCurrent, bIncludeMergeAttributes);
}

bool LoggingInformationPacketType::UpdateContainedData() {
    return Framework::Update(*this, s_Table);
}

bool LoggingInformationPacketType::PopulateDataMembers(XalanNode* pNode) {
    return Framework::Populate(*this, s_Table, pNode);
}

void LoggingInformationPacketType::ResetDataMembers() {
    Framework::Reset(*this, s_Table);
}

LogInformationTypeDefintion LoggingInformationPacketType::GetPacketType() {
    return m_PacketType;
}

void LoggingInformationPacketType::SetPacketType(LogInformationTypeDefintion szNew) {
    m_PacketType = szNew;
}

int LoggingInformationPacketType::GetLane() {
    return m_Lane;
}

void LoggingInformationPacketType::SetLane(int szNew) {
    m_Lane = szNew;
}

zelString LoggingInformationPacketType::GetTimeStamp() {
    return m_TimeStamp;
}

void LoggingInformationPacketType::SetTimeStamp(LPCTSTR szNew) {
    m_TimeStamp = szNew;
}

SystemEventType* LoggingInformationPacketType::GetSystemEvent() {
    return m_SystemEvent;
}

void LoggingInformationPacketType::SetSystemEvent(SystemEventType* szNew) {
    Framework::ReplaceChild(m_SystemEvent, szNew);
}

ItemInformationType* LoggingInformationPacketType::GetItemInformation() {
    return m_ItemInformation;
}

void LoggingInformationPacketType::SetItemInformation(ItemInformationType* szNew) {
    Framework::ReplaceChild(m_ItemInformation, szNew);
}

TransactionInformationType* LoggingInformationPacketType::GetTransactionInformation() {
    return m_TransactionInformation;
}

void LoggingInformationPacketType::SetTransactionInformation(TransactionInformationType* szNew) {
    Framework::ReplaceChild(m_TransactionInformation, szNew);
}

bool LoggingInformationPacketType::AutoFillTypeInfo() {
    return true;
}
