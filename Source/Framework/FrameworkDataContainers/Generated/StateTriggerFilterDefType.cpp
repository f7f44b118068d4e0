// Generated from StateTriggerFilterDef.xsd; do not edit. Regenerate with the target "generate".
#include "FrameworkDataContainers/StateTriggerFilterDefType.h"

#include "Framework/FrameworkDataContainers/Walks/Lists.h"
#include "Framework/FrameworkDataContainers/Walks/Walks.h"
#include "FrameworkDataContainers/TriggerFiltersType.h"

// clang-format off
constinit const Framework::FieldRow StateTriggerFilterDefType::s_Rows[] = {
    Framework::Child<&StateTriggerFilterDefType::m_TriggerFilters>("TriggerFilters", "TriggerFiltersType"),
};

constinit const Framework::FieldTable StateTriggerFilterDefType::s_Table = {
    .className = "StateTriggerFilterDefType",
    .elementName = "StateTriggerFilterDef",
    .parent = nullptr,
    .isStructuralConfigLoader = true,
    .isRoot = true,
    .rows = s_Rows,
    .create = &Framework::CreateContainer<StateTriggerFilterDefType>,
    .type = &typeid(StateTriggerFilterDefType),
    .autoFill = Framework::ToBase(&StateTriggerFilterDefType::m_bAutoFillTypeInfo),
};
// clang-format on

StateTriggerFilterDefType::StateTriggerFilterDefType(bool bBuildFromScratch)
    : StructuralConfigLoader(bBuildFromScratch) {
    Framework::NameByClass(*this, s_Table);
}

StateTriggerFilterDefType::~StateTriggerFilterDefType() {
    delete m_TriggerFilters;
}

zelString StateTriggerFilterDefType::GetBaseType() {
    return "StateTriggerFilterDefType";
}

void StateTriggerFilterDefType::GetProperties(ParameterList& pList) {
    Framework::Properties(*this, s_Table, pList);
}

bool StateTriggerFilterDefType::MergeDataMembers(XMLDataWrapper* pMergeData, zelString sFeatureID) {
    return Framework::Merge(*this, s_Table, pMergeData, sFeatureID, __LINE__);
}

zelString StateTriggerFilterDefType::GetAttributeList() {
    return Framework::AttributePredicate(*this, s_Table);
}

ParameterList* StateTriggerFilterDefType::GetPLAttributeList() {
    return Framework::AttributeParameters(*this, s_Table);
}

TypedDataContainer* StateTriggerFilterDefType::Clone() {
    return Framework::Clone(*this, s_Table);
}

bool StateTriggerFilterDefType::DumpMergeContents(const zelString& sParentQuery, FullFunctionXMLDataWrapper* pOutput,
                                                  int QueryPos, bool bIncludeMergeAttributes) {
    return Framework::DumpByQuery(*this, s_Table, sParentQuery, pOutput, QueryPos, bIncludeMergeAttributes);
}

bool StateTriggerFilterDefType::DumpMergeContentsII(DOMNode* pParentNode, FullFunctionXMLDataWrapper* pOutput,
                                                    DOMNode*& pPassedCurrent, bool bIncludeMergeAttributes) {
    return Framework::DumpByNode(*this, s_Table, pParentNode, pOutput, pPassedCurrent, bIncludeMergeAttributes);
}

bool StateTriggerFilterDefType::UpdateContainedData() {
    return Framework::Update(*this, s_Table);
}

bool StateTriggerFilterDefType::PopulateDataMembers(XalanNode* pNode) {
    return Framework::Populate(*this, s_Table, pNode);
}

void StateTriggerFilterDefType::ResetDataMembers() {
    Framework::Reset(*this, s_Table);
}

TriggerFiltersType* StateTriggerFilterDefType::GetTriggerFilters() {
    return m_TriggerFilters;
}

void StateTriggerFilterDefType::SetTriggerFilters(TriggerFiltersType* szNew) {
    Framework::ReplaceChild(m_TriggerFilters, szNew);
}

bool StateTriggerFilterDefType::AutoFillTypeInfo() {
    return true;
}
