// Generated from TarnLoggingConfig.xsd; do not edit. Regenerate with the target "generate".
#include "FrameworkDataContainers/LoggingRuleType.h"

#include "Framework/FrameworkDataContainers/Walks/Lists.h"
#include "Framework/FrameworkDataContainers/Walks/Walks.h"

// clang-format off
constinit const Framework::FieldRow LoggingRuleType::s_Rows[] = {
    Framework::EnumElement<&LoggingRuleType::m_PacketType>("PacketType", "LogInformationTypeDefintion"),
    Framework::EnumElement<&LoggingRuleType::m_SystemLogId>("SystemLogId", "LogIdTypeDefintion"),
    Framework::Element("ExcludeOutput", &LoggingRuleType::m_ExcludeOutput),
};

constinit const Framework::FieldTable LoggingRuleType::s_Table = {
    .className = "LoggingRuleType",
    .elementName = "LoggingRule",
    .parent = nullptr,
    .isStructuralConfigLoader = false,
    .isRoot = false,
    .rows = s_Rows,
    .create = &Framework::CreateContainer<LoggingRuleType>,
    .type = &typeid(LoggingRuleType),
    .autoFill = Framework::ToBase(&LoggingRuleType::m_bAutoFillTypeInfo),
};
// clang-format on

LoggingRuleType::LoggingRuleType(bool bBuildFromScratch) : TypedDataContainer(bBuildFromScratch) {
    Framework::NameByClass(*this, s_Table);
}

LoggingRuleType::~LoggingRuleType() {}

zelString LoggingRuleType::GetBaseType() {
    return "LoggingRuleType";
}

void LoggingRuleType::GetProperties(ParameterList& pList) {
    Framework::Properties(*this, s_Table, pList);
}

bool LoggingRuleType::MergeDataMembers(XMLDataWrapper* pMergeData, zelString sFeatureID) {
    return Framework::Merge(*this, s_Table, pMergeData, sFeatureID, __LINE__);
}

zelString LoggingRuleType::GetAttributeList() {
    return Framework::AttributePredicate(*this, s_Table);
}

ParameterList* LoggingRuleType::GetPLAttributeList() {
    return Framework::AttributeParameters(*this, s_Table);
}

TypedDataContainer* LoggingRuleType::Clone() {
    return Framework::Clone(*this, s_Table);
}

bool LoggingRuleType::DumpMergeContents(const zelString& sParentQuery, FullFunctionXMLDataWrapper* pOutput,
                                        int QueryPos, bool bIncludeMergeAttributes) {
    return Framework::DumpByQuery(*this, s_Table, sParentQuery, pOutput, QueryPos, bIncludeMergeAttributes);
}

bool LoggingRuleType::DumpMergeContentsII(DOMNode* pParentNode, FullFunctionXMLDataWrapper* pOutput,
                                          DOMNode*& pPassedCurrent, bool bIncludeMergeAttributes) {
    return Framework::DumpByNode(*this, s_Table, pParentNode, pOutput, pPassedCurrent, bIncludeMergeAttributes);
}

bool LoggingRuleType::UpdateContainedData() {
    return Framework::Update(*this, s_Table);
}

bool LoggingRuleType::PopulateDataMembers(XalanNode* pNode) {
    return Framework::Populate(*this, s_Table, pNode);
}

void LoggingRuleType::ResetDataMembers() {
    Framework::Reset(*this, s_Table);
}

LogInformationTypeDefintion LoggingRuleType::GetPacketType() {
    return m_PacketType;
}

void LoggingRuleType::SetPacketType(LogInformationTypeDefintion szNew) {
    m_PacketType = szNew;
}

LogIdTypeDefintion LoggingRuleType::GetSystemLogId() {
    return m_SystemLogId;
}

void LoggingRuleType::SetSystemLogId(LogIdTypeDefintion szNew) {
    m_SystemLogId = szNew;
}

bool LoggingRuleType::GetExcludeOutput() {
    return m_ExcludeOutput;
}

void LoggingRuleType::SetExcludeOutput(bool szNew) {
    m_ExcludeOutput = szNew;
}

bool LoggingRuleType::AutoFillTypeInfo() {
    return true;
}
