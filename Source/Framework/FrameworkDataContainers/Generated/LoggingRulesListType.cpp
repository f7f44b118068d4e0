// Generated from TarnLoggingConfig.xsd; do not edit. Regenerate with the target "generate".
#include "FrameworkDataContainers/LoggingRulesListType.h"

#include "Framework/FrameworkDataContainers/Walks/Lists.h"
#include "Framework/FrameworkDataContainers/Walks/Walks.h"
#include "FrameworkDataContainers/LoggingRuleType.h"

// clang-format off
constinit const Framework::FieldRow LoggingRulesListType::s_Rows[] = {
    Framework::PlainList<LoggingRuleType, &LoggingRulesListType::AddLoggingRule, &LoggingRulesListType::ClearLoggingRule>("LoggingRule", "LoggingRuleType", &LoggingRulesListType::m_LoggingRuleList),
};

constinit const Framework::FieldTable LoggingRulesListType::s_Table = {
    .className = "LoggingRulesListType",
    .elementName = "LoggingRulesList",
    .parent = nullptr,
    .isStructuralConfigLoader = false,
    .isRoot = false,
    .rows = s_Rows,
    .create = &Framework::CreateContainer<LoggingRulesListType>,
    .type = &typeid(LoggingRulesListType),
    .autoFill = Framework::ToBase(&LoggingRulesListType::m_bAutoFillTypeInfo),
};
// clang-format on

LoggingRulesListType::LoggingRulesListType(bool bBuildFromScratch) : TypedDataContainer(bBuildFromScratch) {
    Framework::NameByClass(*this, s_Table);
}

LoggingRulesListType::~LoggingRulesListType() {
    LoggingRulesListType::ClearLoggingRule();
}

zelString LoggingRulesListType::GetBaseType() {
    return "LoggingRulesListType";
}

void LoggingRulesListType::GetProperties(ParameterList& pList) {
    Framework::Properties(*this, s_Table, pList);
}

bool LoggingRulesListType::MergeDataMembers(XMLDataWrapper* pMergeData, zelString sFeatureID) {
    return Framework::Merge(*this, s_Table, pMergeData, sFeatureID, __LINE__);
}

zelString LoggingRulesListType::GetAttributeList() {
    return Framework::AttributePredicate(*this, s_Table);
}

ParameterList* LoggingRulesListType::GetPLAttributeList() {
    return Framework::AttributeParameters(*this, s_Table);
}

TypedDataContainer* LoggingRulesListType::Clone() {
    return Framework::Clone(*this, s_Table);
}

bool LoggingRulesListType::DumpMergeContents(const zelString& sParentQuery, FullFunctionXMLDataWrapper* pOutput,
                                             int QueryPos, bool bIncludeMergeAttributes) {
    return Framework::DumpByQuery(*this, s_Table, sParentQuery, pOutput, QueryPos, bIncludeMergeAttributes);
}

bool LoggingRulesListType::DumpMergeContentsII(DOMNode* pParentNode, FullFunctionXMLDataWrapper* pOutput,
                                               DOMNode*& pPassedCurrent, bool bIncludeMergeAttributes) {
    return Framework::DumpByNode(*this, s_Table, pParentNode, pOutput, pPassedCurrent, bIncludeMergeAttributes);
}

bool LoggingRulesListType::UpdateContainedData() {
    return Framework::Update(*this, s_Table);
}

bool LoggingRulesListType::PopulateDataMembers(XalanNode* pNode) {
    return Framework::Populate(*this, s_Table, pNode);
}

void LoggingRulesListType::ResetDataMembers() {
    Framework::Reset(*this, s_Table);
}

int LoggingRulesListType::GetLoggingRuleLength() {
    return Framework::ListLength(m_LoggingRuleList);
}

LoggingRuleType* LoggingRulesListType::GetLoggingRule(int Index) {
    return static_cast<LoggingRuleType*>(Framework::GrowTo(*this, s_Rows[0], Index));
}

void LoggingRulesListType::AddNewLoggingRule(LoggingRuleType* szNew) {
    Framework::AddNewPlain(m_LoggingRuleList, szNew);
}

bool LoggingRulesListType::AutoFillTypeInfo() {
    return true;
}

void LoggingRulesListType::AddLoggingRule(XMLDataWrapper* pData, XalanNode* spNode) {
    Framework::AddPlain(*this, s_Rows[0], pData, spNode);
}

void LoggingRulesListType::ClearLoggingRule() {
    Framework::ClearPlain(m_LoggingRuleList);
}
