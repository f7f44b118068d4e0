// Generated from StateProcessingRoot.xsd; do not edit. Regenerate with the target "generate".
#include "FrameworkDataContainers/StateTableType.h"

#include "Framework/FrameworkDataContainers/Walks/Lists.h"
#include "Framework/FrameworkDataContainers/Walks/Walks.h"
#include "FrameworkDataContainers/StateDefinitionType.h"

// clang-format off
constinit const Framework::FieldRow StateTableType::s_Rows[] = {
    Framework::KeyedList<StateDefinitionType, &StateDefinitionType::GetName, &StateTableType::AddState, &StateTableType::ClearState>("State", "StateDefinitionType", "Name", &StateTableType::m_MapStateList, &StateTableType::m_StateList),
    Framework::Attribute("Name", &StateTableType::m_Name),
    Framework::Attribute("ActionMap", &StateTableType::m_ActionMap),
    Framework::Attribute("InitialState", &StateTableType::m_InitialState),
    Framework::Attribute("TriggerFilterName", &StateTableType::m_TriggerFilterName),
};

constinit const Framework::FieldTable StateTableType::s_Table = {
    .className = "StateTableType",
    .elementName = "StateTable",
    .parent = nullptr,
    .isStructuralConfigLoader = false,
    .isRoot = false,
    .rows = s_Rows,
    .create = &Framework::CreateContainer<StateTableType>,
    .type = &typeid(StateTableType),
    .autoFill = Framework::ToBase(&StateTableType::m_bAutoFillTypeInfo),
};
// clang-format on

StateTableType::StateTableType(bool bBuildFromScratch) : TypedDataContainer(bBuildFromScratch) {
    Framework::NameByClass(*this, s_Table);
}

StateTableType::~StateTableType() {
    StateTableType::ClearState();
}

zelString StateTableType::GetBaseType() {
    return "StateTableType";
}

void StateTableType::GetProperties(ParameterList& pList) {
    Framework::Properties(*this, s_Table, pList);
}

bool StateTableType::MergeDataMembers(XMLDataWrapper* pMergeData, zelString sFeatureID) {
    return Framework::Merge(*this, s_Table, pMergeData, sFeatureID, __LINE__);
}

zelString StateTableType::GetAttributeList() {
    return Framework::AttributePredicate(*this, s_Table);
}

ParameterList* StateTableType::GetPLAttributeList() {
    return Framework::AttributeParameters(*this, s_Table);
}

TypedDataContainer* StateTableType::Clone() {
    return Framework::Clone(*this, s_Table);
}

bool StateTableType::DumpMergeContents(const zelString& sParentQuery, FullFunctionXMLDataWrapper* pOutput, int QueryPos,
                                       bool bIncludeMergeAttributes) {
    return Framework::DumpByQuery(*this, s_Table, sParentQuery, pOutput, QueryPos, bIncludeMergeAttributes);
}

bool StateTableType::DumpMergeContentsII(DOMNode* pParentNode, FullFunctionXMLDataWrapper* pOutput,
                                         DOMNode*& pPassedCurrent, bool bIncludeMergeAttributes) {
    return Framework::DumpByNode(*this, s_Table, pParentNode, pOutput, pPassedCurrent, bIncludeMergeAttributes);
}

bool StateTableType::UpdateContainedData() {
    return Framework::Update(*this, s_Table);
}

bool StateTableType::PopulateDataMembers(XalanNode* pNode) {
    return Framework::Populate(*this, s_Table, pNode);
}

void StateTableType::ResetDataMembers() {
    Framework::Reset(*this, s_Table);
}

int StateTableType::GetStateLength() {
    return Framework::ListLength(m_StateList);
}

StateDefinitionType* StateTableType::GetState(int Index) {
    return static_cast<StateDefinitionType*>(Framework::EntryAt(m_StateList, Index));
}

StateDefinitionType* StateTableType::GetState(const zelString& sName) {
    return static_cast<StateDefinitionType*>(Framework::EntryByKey(m_MapStateList, sName));
}

void StateTableType::AddNewState(StateDefinitionType* szNew, const zelString& sName) {
    Framework::AddNewKeyed(m_MapStateList, m_StateList, szNew, sName);
}

void StateTableType::RemoveState(const zelString& sName, const zelString& sFeatureId) {
    Framework::RemoveKeyed(*this, s_Rows[0], sName, sFeatureId);
}

zelString StateTableType::GetName() {
    return m_Name;
}

void StateTableType::SetName(LPCTSTR szNew) {
    m_Name = szNew;
}

zelString StateTableType::GetActionMap() {
    return m_ActionMap;
}

void StateTableType::SetActionMap(LPCTSTR szNew) {
    m_ActionMap = szNew;
}

zelString StateTableType::GetInitialState() {
    return m_InitialState;
}

void StateTableType::SetInitialState(LPCTSTR szNew) {
    m_InitialState = szNew;
}

zelString StateTableType::GetTriggerFilterName() {
    return m_TriggerFilterName;
}

void StateTableType::SetTriggerFilterName(LPCTSTR szNew) {
    m_TriggerFilterName = szNew;
}

bool StateTableType::AutoFillTypeInfo() {
    return true;
}

void StateTableType::AddState(XMLDataWrapper* pData, XalanNode* spNode, const zelString& sName) {
    Framework::AddKeyed(*this, s_Rows[0], pData, spNode, sName, __LINE__);
}

void StateTableType::ClearState() {
    Framework::ClearKeyed(m_MapStateList, m_StateList);
}
