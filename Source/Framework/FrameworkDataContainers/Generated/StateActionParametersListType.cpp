// Generated from StateActionDef.xsd; do not edit. Regenerate with the target "generate".
#include "FrameworkDataContainers/StateActionParametersListType.h"

#include "Framework/FrameworkDataContainers/Walks/Lists.h"
#include "Framework/FrameworkDataContainers/Walks/Walks.h"
#include "FrameworkDataContainers/StateActionParameterType.h"

// clang-format off
constinit const Framework::FieldRow StateActionParametersListType::s_Rows[] = {
    Framework::KeyedList<StateActionParameterType, &StateActionParameterType::GetName, &StateActionParametersListType::AddParameter, &StateActionParametersListType::ClearParameter>("Parameter", "StateActionParameterType", "Name", &StateActionParametersListType::m_MapParameterList, &StateActionParametersListType::m_ParameterList),
};

constinit const Framework::FieldTable StateActionParametersListType::s_Table = {
    .className = "StateActionParametersListType",
    .elementName = "StateActionParametersList",
    .parent = nullptr,
    .isStructuralConfigLoader = false,
    .isRoot = false,
    .rows = s_Rows,
    .create = &Framework::CreateContainer<StateActionParametersListType>,
    .type = &typeid(StateActionParametersListType),
    .autoFill = Framework::ToBase(&StateActionParametersListType::m_bAutoFillTypeInfo),
};
// clang-format on

StateActionParametersListType::StateActionParametersListType(bool bBuildFromScratch)
    : TypedDataContainer(bBuildFromScratch) {
    Framework::NameByClass(*this, s_Table);
}

StateActionParametersListType::~StateActionParametersListType() {
    StateActionParametersListType::ClearParameter();
}

zelString StateActionParametersListType::GetBaseType() {
    return "StateActionParametersListType";
}

void StateActionParametersListType::GetProperties(ParameterList& pList) {
    Framework::Properties(*this, s_Table, pList);
}

bool StateActionParametersListType::MergeDataMembers(XMLDataWrapper* pMergeData, zelString sFeatureID) {
    return Framework::Merge(*this, s_Table, pMergeData, sFeatureID, __LINE__);
}

zelString StateActionParametersListType::GetAttributeList() {
    return Framework::AttributePredicate(*this, s_Table);
}

ParameterList* StateActionParametersListType::GetPLAttributeList() {
    return Framework::AttributeParameters(*this, s_Table);
}

TypedDataContainer* StateActionParametersListType::Clone() {
    return Framework::Clone(*this, s_Table);
}

bool StateActionParametersListType::DumpMergeContents(const zelString& sParentQuery,
                                                      FullFunctionXMLDataWrapper* pOutput, int QueryPos,
                                                      bool bIncludeMergeAttributes) {
    return Framework::DumpByQuery(*this, s_Table, sParentQuery, pOutput, QueryPos, bIncludeMergeAttributes);
}

bool StateActionParametersListType::DumpMergeContentsII(DOMNode* pParentNode, FullFunctionXMLDataWrapper* pOutput,
                                                        DOMNode*& pPassedCurrent, bool bIncludeMergeAttributes) {
    return Framework::DumpByNode(*this, s_Table, pParentNode, pOutput, pPassedCurrent, bIncludeMergeAttributes);
}

bool StateActionParametersListType::UpdateContainedData() {
    return Framework::Update(*this, s_Table);
}

bool StateActionParametersListType::PopulateDataMembers(XalanNode* pNode) {
    return Framework::Populate(*this, s_Table, pNode);
}

void StateActionParametersListType::ResetDataMembers() {
    Framework::Reset(*this, s_Table);
}

int StateActionParametersListType::GetParameterLength() {
    return Framework::ListLength(m_ParameterList);
}

StateActionParameterType* StateActionParametersListType::GetParameter(int Index) {
    return static_cast<StateActionParameterType*>(Framework::EntryAt(m_ParameterList, Index));
}

StateActionParameterType* StateActionParametersListType::GetParameter(const zelString& sName) {
    return static_cast<StateActionParameterType*>(Framework::EntryByKey(m_MapParameterList, sName));
}

void StateActionParametersListType::AddNewParameter(StateActionParameterType* szNew, const zelString& sName) {
    Framework::AddNewKeyed(m_MapParameterList, m_ParameterList, szNew, sName);
}

void StateActionParametersListType::RemoveParameter(const zelString& sName, const zelString& sFeatureId) {
    Framework::RemoveKeyed(*this, s_Rows[0], sName, sFeatureId);
}

bool StateActionParametersListType::AutoFillTypeInfo() {
    return true;
}

void StateActionParametersListType::AddParameter(XMLDataWrapper* pData, XalanNode* spNode, const zelString& sName) {
    Framework::AddKeyed(*this, s_Rows[0], pData, spNode, sName, __LINE__);
}

void StateActionParametersListType::ClearParameter() {
    Framework::ClearKeyed(m_MapParameterList, m_ParameterList);
}
