// Generated from StateProcessingRoot.xsd; do not edit. Regenerate with the target "generate".
#include "FrameworkDataContainers/ActionItemType.h"

#include "Framework/FrameworkDataContainers/Walks/Lists.h"
#include "Framework/FrameworkDataContainers/Walks/Walks.h"
#include "FrameworkDataContainers/ActionRespType.h"

// clang-format off
constinit const Framework::FieldRow ActionItemType::s_Rows[] = {
    Framework::Child<&ActionItemType::m_ActionResp>("ActionResp", "ActionRespType"),
    Framework::Attribute("Index", &ActionItemType::m_Index),
};

constinit const Framework::FieldTable ActionItemType::s_Table = {
    .className = "ActionItemType",
    .elementName = "ActionItem",
    .parent = &StateActionBasicType::s_Table,
    .isStructuralConfigLoader = false,
    .isRoot = false,
    .rows = s_Rows,
    .create = &Framework::CreateContainer<ActionItemType>,
    .type = &typeid(ActionItemType),
    .autoFill = Framework::ToBase(&ActionItemType::m_bAutoFillTypeInfo),
};
// clang-format on

ActionItemType::ActionItemType(bool bBuildFromScratch) : StateActionBasicType(bBuildFromScratch) {
    Framework::NameByClass(*this, s_Table);
}

ActionItemType::~ActionItemType() {
    delete m_ActionResp;
}

zelString ActionItemType::GetBaseType() {
    return "ActionItemType";
}

void ActionItemType::GetProperties(ParameterList& pList) {
    Framework::Properties(*this, s_Table, pList);
}

bool ActionItemType::MergeDataMembers(XMLDataWrapper* pMergeData, zelString sFeatureID) {
    return Framework::Merge(*this, s_Table, pMergeData, sFeatureID, __LINE__);
}

zelString ActionItemType::GetAttributeList() {
    return Framework::AttributePredicate(*this, s_Table);
}

ParameterList* ActionItemType::GetPLAttributeList() {
    return Framework::AttributeParameters(*this, s_Table);
}

TypedDataContainer* ActionItemType::Clone() {
    return Framework::Clone(*this, s_Table);
}

bool ActionItemType::DumpMergeContents(const zelString& sParentQuery, FullFunctionXMLDataWrapper* pOutput, int QueryPos,
                                       bool bIncludeMergeAttributes) {
    return Framework::DumpByQuery(*this, s_Table, sParentQuery, pOutput, QueryPos, bIncludeMergeAttributes);
}

bool ActionItemType::DumpMergeContentsII(DOMNode* pParentNode, FullFunctionXMLDataWrapper* pOutput,
                                         DOMNode*& pPassedCurrent, bool bIncludeMergeAttributes) {
    return Framework::DumpByNode(*this, s_Table, pParentNode, pOutput, pPassedCurrent, bIncludeMergeAttributes);
}

bool ActionItemType::UpdateContainedData() {
    return Framework::Update(*this, s_Table);
}

bool ActionItemType::PopulateDataMembers(XalanNode* pNode) {
    return Framework::Populate(*this, s_Table, pNode);
}

void ActionItemType::ResetDataMembers() {
    Framework::Reset(*this, s_Table);
}

bool ActionItemType::AutoFillTypeInfo() {
    return true;
}

ActionRespType* ActionItemType::GetActionResp() {
    return m_ActionResp;
}

void ActionItemType::SetActionResp(ActionRespType* szNew) {
    Framework::ReplaceChild(m_ActionResp, szNew);
}

zelString ActionItemType::GetIndex() {
    return m_Index;
}

void ActionItemType::SetIndex(LPCTSTR szNew) {
    m_Index = szNew;
}
