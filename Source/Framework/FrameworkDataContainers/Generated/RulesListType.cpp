// Generated from CaptureConfig.xsd; do not edit. Regenerate with the target "generate".
#include "FrameworkDataContainers/RulesListType.h"

#include "Framework/FrameworkDataContainers/Walks/Lists.h"
#include "Framework/FrameworkDataContainers/Walks/Walks.h"
#include "FrameworkDataContainers/CaptureConfigRuleType.h"

// clang-format off
constinit const Framework::FieldRow RulesListType::s_Rows[] = {
    Framework::PlainList<CaptureConfigRuleType, &RulesListType::AddRule, &RulesListType::ClearRule>("Rule", "CaptureConfigRuleType", &RulesListType::m_RuleList),
};

constinit const Framework::FieldTable RulesListType::s_Table = {
    .className = "RulesListType",
    .elementName = "Rules",
    .parent = nullptr,
    .isStructuralConfigLoader = false,
    .isRoot = false,
    .rows = s_Rows,
    .create = &Framework::CreateContainer<RulesListType>,
    .type = &typeid(RulesListType),
    .autoFill = Framework::ToBase(&RulesListType::m_bAutoFillTypeInfo),
};
// clang-format on

RulesListType::RulesListType(bool bBuildFromScratch) : TypedDataContainer(bBuildFromScratch) {
    Framework::NameByClass(*this, s_Table);
}

RulesListType::~RulesListType() {
    RulesListType::ClearRule();
}

zelString RulesListType::GetBaseType() {
    return "RulesListType";
}

void RulesListType::GetProperties(ParameterList& pList) {
    Framework::Properties(*this, s_Table, pList);
}

bool RulesListType::MergeDataMembers(XMLDataWrapper* pMergeData, zelString sFeatureID) {
    return Framework::Merge(*this, s_Table, pMergeData, sFeatureID, __LINE__);
}

zelString RulesListType::GetAttributeList() {
    return Framework::AttributePredicate(*this, s_Table);
}

ParameterList* RulesListType::GetPLAttributeList() {
    return Framework::AttributeParameters(*this, s_Table);
}

TypedDataContainer* RulesListType::Clone() {
    return Framework::Clone(*this, s_Table);
}

bool RulesListType::DumpMergeContents(const zelString& sParentQuery, FullFunctionXMLDataWrapper* pOutput, int QueryPos,
                                      bool bIncludeMergeAttributes) {
    return Framework::DumpByQuery(*this, s_Table, sParentQuery, pOutput, QueryPos, bIncludeMergeAttributes);
}

bool RulesListType::DumpMergeContentsII(DOMNode* pParentNode, FullFunctionXMLDataWrapper* pOutput,
                                        DOMNode*& pPassedCurrent, bool bIncludeMergeAttributes) {
    return Framework::DumpByNode(*this, s_Table, pParentNode, pOutput, pPassedCurrent, bIncludeMergeAttributes);
}

bool RulesListType::UpdateContainedData() {
    return Framework::Update(*this, s_Table);
}

bool RulesListType::PopulateDataMembers(XalanNode* pNode) {
    return Framework::Populate(*this, s_Table, pNode);
}

void RulesListType::ResetDataMembers() {
    Framework::Reset(*this, s_Table);
}

int RulesListType::GetRuleLength() {
    return Framework::ListLength(m_RuleList);
}

CaptureConfigRuleType* RulesListType::GetRule(int Index) {
    return static_cast<CaptureConfigRuleType*>(Framework::GrowTo(*this, s_Rows[0], Index));
}

void RulesListType::AddNewRule(CaptureConfigRuleType* szNew) {
    Framework::AddNewPlain(m_RuleList, szNew);
}

bool RulesListType::AutoFillTypeInfo() {
    return true;
}

void RulesListType::AddRule(XMLDataWrapper* pData, XalanNode* spNode) {
    Framework::AddPlain(*this, s_Rows[0], pData, spNode);
}

void RulesListType::ClearRule() {
    Framework::ClearPlain(m_RuleList);
}
