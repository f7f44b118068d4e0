// Generated from StateProcessingRoot.xsd; do not edit. Regenerate with the target "generate".
#include "FrameworkDataContainers/StateTriggersListType.h"

#include "Framework/FrameworkDataContainers/Walks/Lists.h"
#include "Framework/FrameworkDataContainers/Walks/Walks.h"
#include "FrameworkDataContainers/StateActionListType.h"

// clang-format off
constinit const Framework::FieldRow StateTriggersListType::s_Rows[] = {
    Framework::KeyedList<StateActionListType, &StateActionListType::GetTrigger, &StateTriggersListType::AddStateAction, &StateTriggersListType::ClearStateAction>("StateAction", "StateActionListType", "Trigger", &StateTriggersListType::m_MapStateActionList, &StateTriggersListType::m_StateActionList),
};

constinit const Framework::FieldTable StateTriggersListType::s_Table = {
    .className = "StateTriggersListType",
    .elementName = "StateTriggersList",
    .parent = nullptr,
    .isStructuralConfigLoader = false,
    .isRoot = false,
    .rows = s_Rows,
    .create = &Framework::CreateContainer<StateTriggersListType>,
    .type = &typeid(StateTriggersListType),
    .autoFill = Framework::ToBase(&StateTriggersListType::m_bAutoFillTypeInfo),
};
// clang-format on

StateTriggersListType::StateTriggersListType(bool bBuildFromScratch) : TypedDataContainer(bBuildFromScratch) {
    Framework::NameByClass(*this, s_Table);
}

StateTriggersListType::~StateTriggersListType() {
    StateTriggersListType::ClearStateAction();
}

zelString StateTriggersListType::GetBaseType() {
    return "StateTriggersListType";
}

void StateTriggersListType::GetProperties(ParameterList& pList) {
    Framework::Properties(*this, s_Table, pList);
}

bool StateTriggersListType::MergeDataMembers(XMLDataWrapper* pMergeData, zelString sFeatureID) {
    return Framework::Merge(*this, s_Table, pMergeData, sFeatureID, __LINE__);
}

zelString StateTriggersListType::GetAttributeList() {
    return Framework::AttributePredicate(*this, s_Table);
}

ParameterList* StateTriggersListType::GetPLAttributeList() {
    return Framework::AttributeParameters(*this, s_Table);
}

TypedDataContainer* StateTriggersListType::Clone() {
    return Framework::Clone(*this, s_Table);
}

bool StateTriggersListType::DumpMergeContents(const zelString& sParentQuery, FullFunctionXMLDataWrapper* pOutput,
                                              int QueryPos, bool bIncludeMergeAttributes) {
    return Framework::DumpByQuery(*this, s_Table, sParentQuery, pOutput, QueryPos, bIncludeMergeAttributes);
}

bool StateTriggersListType::DumpMergeContentsII(DOMNode* pParentNode, FullFunctionXMLDataWrapper* pOutput,
                                                DOMNode*& pPassedCurrent, bool bIncludeMergeAttributes) {
    return Framework::DumpByNode(*this, s_Table, pParentNode, pOutput, pPassedCurrent, bIncludeMergeAttributes);
}

bool StateTriggersListType::UpdateContainedData() {
    return Framework::Update(*this, s_Table);
}

bool StateTriggersListType::PopulateDataMembers(XalanNode* pNode) {
    return Framework::Populate(*this, s_Table, pNode);
}

void StateTriggersListType::ResetDataMembers() {
    Framework::Reset(*this, s_Table);
}

int StateTriggersListType::GetStateActionLength() {
    return Framework::ListLength(m_StateActionList);
}

StateActionListType* StateTriggersListType::GetStateAction(int Index) {
    return static_cast<StateActionListType*>(Framework::EntryAt(m_StateActionList, Index));
}

StateActionListType* StateTriggersListType::GetStateAction(const zelString& sName) {
    return static_cast<StateActionListType*>(Framework::EntryByKey(m_MapStateActionList, sName));
}

void StateTriggersListType::AddNewStateAction(StateActionListType* szNew, const zelString& sName) {
    Framework::AddNewKeyed(m_MapStateActionList, m_StateActionList, szNew, sName);
}

void StateTriggersListType::RemoveStateAction(const zelString& sName, const zelString& sFeatureId) {
    Framework::RemoveKeyed(*this, s_Rows[0], sName, sFeatureId);
}

bool StateTriggersListType::AutoFillTypeInfo() {
    return true;
}

void StateTriggersListType::AddStateAction(XMLDataWrapper* pData, XalanNode* spNode, const zelString& sName) {
    Framework::AddKeyed(*this, s_Rows[0], pData, spNode, sName, __LINE__);
}

void StateTriggersListType::ClearStateAction() {
    Framework::ClearKeyed(m_MapStateActionList, m_StateActionList);
}
