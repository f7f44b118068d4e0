// Generated from TarnLoggingConfig.xsd; do not edit. Regenerate with the target "generate".
#include "FrameworkDataContainers/TarnLoggingConfigType.h"

#include "Framework/FrameworkDataContainers/Walks/Lists.h"
#include "Framework/FrameworkDataContainers/Walks/Walks.h"
#include "FrameworkDataContainers/LoggingRulesListType.h"

// clang-format off
constinit const Framework::FieldRow TarnLoggingConfigType::s_Rows[] = {
    Framework::Element("DBName", &TarnLoggingConfigType::m_DBName),
    Framework::Child<&TarnLoggingConfigType::m_LoggingRules>("LoggingRules", "LoggingRulesListType"),
};

constinit const Framework::FieldTable TarnLoggingConfigType::s_Table = {
    .className = "TarnLoggingConfigType",
    .elementName = "TarnLoggingConfig",
    .parent = nullptr,
    .isStructuralConfigLoader = true,
    .isRoot = true,
    .rows = s_Rows,
    .create = &Framework::CreateContainer<TarnLoggingConfigType>,
    .type = &typeid(TarnLoggingConfigType),
    .autoFill = Framework::ToBase(&TarnLoggingConfigType::m_bAutoFillTypeInfo),
};
// clang-format on

TarnLoggingConfigType::TarnLoggingConfigType(bool bBuildFromScratch) : StructuralConfigLoader(bBuildFromScratch) {
    Framework::NameByClass(*this, s_Table);
}

TarnLoggingConfigType::~TarnLoggingConfigType() {
    delete m_LoggingRules;
}

zelString TarnLoggingConfigType::GetBaseType() {
    return "TarnLoggingConfigType";
}

void TarnLoggingConfigType::GetProperties(ParameterList& pList) {
    Framework::Properties(*this, s_Table, pList);
}

bool TarnLoggingConfigType::MergeDataMembers(XMLDataWrapper* pMergeData, zelString sFeatureID) {
    return Framework::Merge(*this, s_Table, pMergeData, sFeatureID, __LINE__);
}

zelString TarnLoggingConfigType::GetAttributeList() {
    return Framework::AttributePredicate(*this, s_Table);
}

ParameterList* TarnLoggingConfigType::GetPLAttributeList() {
    return Framework::AttributeParameters(*this, s_Table);
}

TypedDataContainer* TarnLoggingConfigType::Clone() {
    return Framework::Clone(*this, s_Table);
}

bool TarnLoggingConfigType::DumpMergeContents(const zelString& sParentQuery, FullFunctionXMLDataWrapper* pOutput,
                                              int QueryPos, bool bIncludeMergeAttributes) {
    return Framework::DumpByQuery(*this, s_Table, sParentQuery, pOutput, QueryPos, bIncludeMergeAttributes);
}

bool TarnLoggingConfigType::DumpMergeContentsII(DOMNode* pParentNode, FullFunctionXMLDataWrapper* pOutput,
                                                DOMNode*& pPassedCurrent, bool bIncludeMergeAttributes) {
    return Framework::DumpByNode(*this, s_Table, pParentNode, pOutput, pPassedCurrent, bIncludeMergeAttributes);
}

bool TarnLoggingConfigType::UpdateContainedData() {
    return Framework::Update(*this, s_Table);
}

bool TarnLoggingConfigType::PopulateDataMembers(XalanNode* pNode) {
    return Framework::Populate(*this, s_Table, pNode);
}

void TarnLoggingConfigType::ResetDataMembers() {
    Framework::Reset(*this, s_Table);
}

zelString TarnLoggingConfigType::GetDBName() {
    return m_DBName;
}

void TarnLoggingConfigType::SetDBName(LPCTSTR szNew) {
    m_DBName = szNew;
}

LoggingRulesListType* TarnLoggingConfigType::GetLoggingRules() {
    return m_LoggingRules;
}

void TarnLoggingConfigType::SetLoggingRules(LoggingRulesListType* szNew) {
    Framework::ReplaceChild(m_LoggingRules, szNew);
}

bool TarnLoggingConfigType::AutoFillTypeInfo() {
    return true;
}
