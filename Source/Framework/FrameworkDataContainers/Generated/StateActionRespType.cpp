// Generated from StateProcessingRoot.xsd; do not edit. Regenerate with the target "generate".
#include "FrameworkDataContainers/StateActionRespType.h"

#include "Framework/FrameworkDataContainers/Walks/Lists.h"
#include "Framework/FrameworkDataContainers/Walks/Walks.h"

// clang-format off
constinit const Framework::FieldRow StateActionRespType::s_Rows[] = {
    Framework::Element("Unused", &StateActionRespType::m_Unused),
    Framework::Attribute("Result", &StateActionRespType::m_Result),
};

constinit const Framework::FieldTable StateActionRespType::s_Table = {
    .className = "StateActionRespType",
    .elementName = "StateActionResp",
    .parent = &StateActionBasicType::s_Table,
    .isStructuralConfigLoader = false,
    .isRoot = false,
    .rows = s_Rows,
    .create = &Framework::CreateContainer<StateActionRespType>,
    .type = &typeid(StateActionRespType),
    .autoFill = Framework::ToBase(&StateActionRespType::m_bAutoFillTypeInfo),
};
// clang-format on

StateActionRespType::StateActionRespType(bool bBuildFromScratch) : StateActionBasicType(bBuildFromScratch) {
    Framework::NameByClass(*this, s_Table);
}

StateActionRespType::~StateActionRespType() {}

zelString StateActionRespType::GetBaseType() {
    return "StateActionRespType";
}

void StateActionRespType::GetProperties(ParameterList& pList) {
    Framework::Properties(*this, s_Table, pList);
}

bool StateActionRespType::MergeDataMembers(XMLDataWrapper* pMergeData, zelString sFeatureID) {
    return Framework::Merge(*this, s_Table, pMergeData, sFeatureID, __LINE__);
}

zelString StateActionRespType::GetAttributeList() {
    return Framework::AttributePredicate(*this, s_Table);
}

ParameterList* StateActionRespType::GetPLAttributeList() {
    return Framework::AttributeParameters(*this, s_Table);
}

TypedDataContainer* StateActionRespType::Clone() {
    return Framework::Clone(*this, s_Table);
}

bool StateActionRespType::DumpMergeContents(const zelString& sParentQuery, FullFunctionXMLDataWrapper* pOutput,
                                            int QueryPos, bool bIncludeMergeAttributes) {
    return Framework::DumpByQuery(*this, s_Table, sParentQuery, pOutput, QueryPos, bIncludeMergeAttributes);
}

bool StateActionRespType::DumpMergeContentsII(DOMNode* pParentNode, FullFunctionXMLDataWrapper* pOutput,
                                              DOMNode*& pPassedCurrent, bool bIncludeMergeAttributes) {
    return Framework::DumpByNode(*this, s_Table, pParentNode, pOutput, pPassedCurrent, bIncludeMergeAttributes);
}

bool StateActionRespType::UpdateContainedData() {
    return Framework::Update(*this, s_Table);
}

bool StateActionRespType::PopulateDataMembers(XalanNode* pNode) {
    return Framework::Populate(*this, s_Table, pNode);
}

void StateActionRespType::ResetDataMembers() {
    Framework::Reset(*this, s_Table);
}

bool StateActionRespType::AutoFillTypeInfo() {
    return true;
}

zelString StateActionRespType::GetUnused() {
    return m_Unused;
}

void StateActionRespType::SetUnused(LPCTSTR szNew) {
    m_Unused = szNew;
}

int StateActionRespType::GetResult() {
    return m_Result;
}

void StateActionRespType::SetResult(int szNew) {
    m_Result = szNew;
}
