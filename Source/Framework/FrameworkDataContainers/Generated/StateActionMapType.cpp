// Generated from StateActionDef.xsd; do not edit. Regenerate with the target "generate".
#include "FrameworkDataContainers/StateActionMapType.h"

#include "Framework/FrameworkDataContainers/Walks/Lists.h"
#include "Framework/FrameworkDataContainers/Walks/Walks.h"
#include "FrameworkDataContainers/StateActionHandlerType.h"

// clang-format off
constinit const Framework::FieldRow StateActionMapType::s_Rows[] = {
    Framework::KeyedList<StateActionHandlerType, &StateActionHandlerType::GetActionID, &StateActionMapType::AddActionHandler, &StateActionMapType::ClearActionHandler>("ActionHandler", "StateActionHandlerType", "ActionID", &StateActionMapType::m_MapActionHandlerList, &StateActionMapType::m_ActionHandlerList),
};

constinit const Framework::FieldTable StateActionMapType::s_Table = {
    .className = "StateActionMapType",
    .elementName = "StateActionMap",
    .parent = nullptr,
    .isStructuralConfigLoader = false,
    .isRoot = false,
    .rows = s_Rows,
    .create = &Framework::CreateContainer<StateActionMapType>,
    .type = &typeid(StateActionMapType),
    .autoFill = Framework::ToBase(&StateActionMapType::m_bAutoFillTypeInfo),
};
// clang-format on

StateActionMapType::StateActionMapType(bool bBuildFromScratch) : TypedDataContainer(bBuildFromScratch) {
    Framework::NameByClass(*this, s_Table);
}

StateActionMapType::~StateActionMapType() {
    StateActionMapType::ClearActionHandler();
}

zelString StateActionMapType::GetBaseType() {
    return "StateActionMapType";
}

void StateActionMapType::GetProperties(ParameterList& pList) {
    Framework::Properties(*this, s_Table, pList);
}

bool StateActionMapType::MergeDataMembers(XMLDataWrapper* pMergeData, zelString sFeatureID) {
    return Framework::Merge(*this, s_Table, pMergeData, sFeatureID, __LINE__);
}

zelString StateActionMapType::GetAttributeList() {
    return Framework::AttributePredicate(*this, s_Table);
}

ParameterList* StateActionMapType::GetPLAttributeList() {
    return Framework::AttributeParameters(*this, s_Table);
}

TypedDataContainer* StateActionMapType::Clone() {
    return Framework::Clone(*this, s_Table);
}

bool StateActionMapType::DumpMergeContents(const zelString& sParentQuery, FullFunctionXMLDataWrapper* pOutput,
                                           int QueryPos, bool bIncludeMergeAttributes) {
    return Framework::DumpByQuery(*this, s_Table, sParentQuery, pOutput, QueryPos, bIncludeMergeAttributes);
}

bool StateActionMapType::DumpMergeContentsII(DOMNode* pParentNode, FullFunctionXMLDataWrapper* pOutput,
                                             DOMNode*& pPassedCurrent, bool bIncludeMergeAttributes) {
    return Framework::DumpByNode(*this, s_Table, pParentNode, pOutput, pPassedCurrent, bIncludeMergeAttributes);
}

bool StateActionMapType::UpdateContainedData() {
    return Framework::Update(*this, s_Table);
}

bool StateActionMapType::PopulateDataMembers(XalanNode* pNode) {
    return Framework::Populate(*this, s_Table, pNode);
}

void StateActionMapType::ResetDataMembers() {
    Framework::Reset(*this, s_Table);
}

int StateActionMapType::GetActionHandlerLength() {
    return Framework::ListLength(m_ActionHandlerList);
}

StateActionHandlerType* StateActionMapType::GetActionHandler(int Index) {
    return static_cast<StateActionHandlerType*>(Framework::EntryAt(m_ActionHandlerList, Index));
}

StateActionHandlerType* StateActionMapType::GetActionHandler(const zelString& sName) {
    return static_cast<StateActionHandlerType*>(Framework::EntryByKey(m_MapActionHandlerList, sName));
}

void StateActionMapType::AddNewActionHandler(StateActionHandlerType* szNew, const zelString& sName) {
    Framework::AddNewKeyed(m_MapActionHandlerList, m_ActionHandlerList, szNew, sName);
}

void StateActionMapType::RemoveActionHandler(const zelString& sName, const zelString& sFeatureId) {
    Framework::RemoveKeyed(*this, s_Rows[0], sName, sFeatureId);
}

bool StateActionMapType::AutoFillTypeInfo() {
    return true;
}

void StateActionMapType::AddActionHandler(XMLDataWrapper* pData, XalanNode* spNode, const zelString& sName) {
    Framework::AddKeyed(*this, s_Rows[0], pData, spNode, sName, __LINE__);
}

void StateActionMapType::ClearActionHandler() {
    Framework::ClearKeyed(m_MapActionHandlerList, m_ActionHandlerList);
}
