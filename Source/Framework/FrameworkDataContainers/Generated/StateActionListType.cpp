// Generated from StateProcessingRoot.xsd; do not edit. Regenerate with the target "generate".
#include "FrameworkDataContainers/StateActionListType.h"

#include "Framework/FrameworkDataContainers/Walks/Lists.h"
#include "Framework/FrameworkDataContainers/Walks/Walks.h"
#include "FrameworkDataContainers/ActionItemType.h"

// clang-format off
constinit const Framework::FieldRow StateActionListType::s_Rows[] = {
    Framework::KeyedStrings<&StateActionListType::AddDoc, &StateActionListType::ClearDoc>("Doc", "Index", true, &StateActionListType::m_MapDocList, &StateActionListType::m_DocList),
    Framework::KeyedList<ActionItemType, &ActionItemType::GetIndex, &StateActionListType::AddActionItem, &StateActionListType::ClearActionItem>("ActionItem", "ActionItemType", "Index", &StateActionListType::m_MapActionItemList, &StateActionListType::m_ActionItemList),
    Framework::Element("ActionListCached", &StateActionListType::m_ActionListCached),
    Framework::Attribute("Trigger", &StateActionListType::m_Trigger),
    Framework::Attribute("Transient", &StateActionListType::m_Transient),
};

constinit const Framework::FieldTable StateActionListType::s_Table = {
    .className = "StateActionListType",
    .elementName = "StateActionList",
    .parent = nullptr,
    .isStructuralConfigLoader = false,
    .isRoot = false,
    .rows = s_Rows,
    .create = &Framework::CreateContainer<StateActionListType>,
    .type = &typeid(StateActionListType),
    .autoFill = Framework::ToBase(&StateActionListType::m_bAutoFillTypeInfo),
};
// clang-format on

StateActionListType::StateActionListType(bool bBuildFromScratch) : TypedDataContainer(bBuildFromScratch) {
    Framework::NameByClass(*this, s_Table);
}

StateActionListType::~StateActionListType() {
    StateActionListType::ClearDoc();
    StateActionListType::ClearActionItem();
}

zelString StateActionListType::GetBaseType() {
    return "StateActionListType";
}

void StateActionListType::GetProperties(ParameterList& pList) {
    Framework::Properties(*this, s_Table, pList);
}

bool StateActionListType::MergeDataMembers(XMLDataWrapper* pMergeData, zelString sFeatureID) {
    return Framework::Merge(*this, s_Table, pMergeData, sFeatureID, __LINE__);
}

zelString StateActionListType::GetAttributeList() {
    return Framework::AttributePredicate(*this, s_Table);
}

ParameterList* StateActionListType::GetPLAttributeList() {
    return Framework::AttributeParameters(*this, s_Table);
}

TypedDataContainer* StateActionListType::Clone() {
    return Framework::Clone(*this, s_Table);
}

bool StateActionListType::DumpMergeContents(const zelString& sParentQuery, FullFunctionXMLDataWrapper* pOutput,
                                            int QueryPos, bool bIncludeMergeAttributes) {
    return Framework::DumpByQuery(*this, s_Table, sParentQuery, pOutput, QueryPos, bIncludeMergeAttributes);
}

bool StateActionListType::DumpMergeContentsII(DOMNode* pParentNode, FullFunctionXMLDataWrapper* pOutput,
                                              DOMNode*& pPassedCurrent, bool bIncludeMergeAttributes) {
    return Framework::DumpByNode(*this, s_Table, pParentNode, pOutput, pPassedCurrent, bIncludeMergeAttributes);
}

bool StateActionListType::UpdateContainedData() {
    return Framework::Update(*this, s_Table);
}

bool StateActionListType::PopulateDataMembers(XalanNode* pNode) {
    return Framework::Populate(*this, s_Table, pNode);
}

void StateActionListType::ResetDataMembers() {
    Framework::Reset(*this, s_Table);
}

int StateActionListType::GetDocLength() {
    return Framework::ListLength(m_DocList);
}

zelString StateActionListType::GetDoc(int Index) {
    return Framework::TextAt(m_DocList, Index);
}

zelString StateActionListType::GetDoc(const zelString& sName) {
    return Framework::TextByKey(m_MapDocList, sName);
}

int StateActionListType::GetActionItemLength() {
    return Framework::ListLength(m_ActionItemList);
}

ActionItemType* StateActionListType::GetActionItem(int Index) {
    return static_cast<ActionItemType*>(Framework::EntryAt(m_ActionItemList, Index));
}

ActionItemType* StateActionListType::GetActionItem(const zelString& sName) {
    return static_cast<ActionItemType*>(Framework::EntryByKey(m_MapActionItemList, sName));
}

void StateActionListType::AddNewActionItem(ActionItemType* szNew, const zelString& sName) {
    Framework::AddNewKeyed(m_MapActionItemList, m_ActionItemList, szNew, sName);
}

void StateActionListType::RemoveActionItem(const zelString& sName, const zelString& sFeatureId) {
    Framework::RemoveKeyed(*this, s_Rows[1], sName, sFeatureId);
}

bool StateActionListType::GetActionListCached() {
    return m_ActionListCached;
}

void StateActionListType::SetActionListCached(bool szNew) {
    m_ActionListCached = szNew;
}

zelString StateActionListType::GetTrigger() {
    return m_Trigger;
}

void StateActionListType::SetTrigger(LPCTSTR szNew) {
    m_Trigger = szNew;
}

bool StateActionListType::GetTransient() {
    return m_Transient;
}

void StateActionListType::SetTransient(bool szNew) {
    m_Transient = szNew;
}

bool StateActionListType::AutoFillTypeInfo() {
    return true;
}

void StateActionListType::AddDoc(const zelString& pData, const zelString& sName) {
    Framework::AddKeyedText(*this, s_Rows[0], pData, sName, __LINE__);
}

void StateActionListType::ClearDoc() {
    Framework::ClearKeyedTexts(m_MapDocList, m_DocList);
}

void StateActionListType::AddActionItem(XMLDataWrapper* pData, XalanNode* spNode, const zelString& sName) {
    Framework::AddKeyed(*this, s_Rows[1], pData, spNode, sName, __LINE__);
}

void StateActionListType::ClearActionItem() {
    Framework::ClearKeyed(m_MapActionItemList, m_ActionItemList);
}
