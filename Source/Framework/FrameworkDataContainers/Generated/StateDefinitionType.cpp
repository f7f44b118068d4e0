// Generated from StateProcessingRoot.xsd; do not edit. Regenerate with the target "generate".
#include "FrameworkDataContainers/StateDefinitionType.h"

#include "Framework/FrameworkDataContainers/Walks/Lists.h"
#include "Framework/FrameworkDataContainers/Walks/Walks.h"
#include "FrameworkDataContainers/ActionItemType.h"
#include "FrameworkDataContainers/StateTriggersListType.h"

// clang-format off
constinit const Framework::FieldRow StateDefinitionType::s_Rows[] = {
    Framework::KeyedStrings<&StateDefinitionType::AddDoc, &StateDefinitionType::ClearDoc>("Doc", "Index", true, &StateDefinitionType::m_MapDocList, &StateDefinitionType::m_DocList),
    Framework::Child<&StateDefinitionType::m_PreStateTrigger>("PreStateTrigger", "ActionItemType"),
    Framework::Child<&StateDefinitionType::m_StateTriggers>("StateTriggers", "StateTriggersListType"),
    Framework::Child<&StateDefinitionType::m_PostStateTrigger>("PostStateTrigger", "ActionItemType"),
    Framework::Attribute("Name", &StateDefinitionType::m_Name),
    Framework::Attribute("Transient", &StateDefinitionType::m_Transient),
    Framework::Attribute("CacheActions", &StateDefinitionType::m_CacheActions),
    Framework::Attribute("BaseState", &StateDefinitionType::m_BaseState),
};

constinit const Framework::FieldTable StateDefinitionType::s_Table = {
    .className = "StateDefinitionType",
    .elementName = "StateDefinition",
    .parent = nullptr,
    .isStructuralConfigLoader = false,
    .isRoot = false,
    .rows = s_Rows,
    .create = &Framework::CreateContainer<StateDefinitionType>,
    .type = &typeid(StateDefinitionType),
    .autoFill = Framework::ToBase(&StateDefinitionType::m_bAutoFillTypeInfo),
};
// clang-format on

StateDefinitionType::StateDefinitionType(bool bBuildFromScratch) : TypedDataContainer(bBuildFromScratch) {
    Framework::NameByClass(*this, s_Table);
}

StateDefinitionType::~StateDefinitionType() {
    StateDefinitionType::ClearDoc();
    delete m_PreStateTrigger;
    delete m_StateTriggers;
    delete m_PostStateTrigger;
}

zelString StateDefinitionType::GetBaseType() {
    return "StateDefinitionType";
}

void StateDefinitionType::GetProperties(ParameterList& pList) {
    Framework::Properties(*this, s_Table, pList);
}

bool StateDefinitionType::MergeDataMembers(XMLDataWrapper* pMergeData, zelString sFeatureID) {
    return Framework::Merge(*this, s_Table, pMergeData, sFeatureID, __LINE__);
}

zelString StateDefinitionType::GetAttributeList() {
    return Framework::AttributePredicate(*this, s_Table);
}

ParameterList* StateDefinitionType::GetPLAttributeList() {
    return Framework::AttributeParameters(*this, s_Table);
}

TypedDataContainer* StateDefinitionType::Clone() {
    return Framework::Clone(*this, s_Table);
}

bool StateDefinitionType::DumpMergeContents(const zelString& sParentQuery, FullFunctionXMLDataWrapper* pOutput,
                                            int QueryPos, bool bIncludeMergeAttributes) {
    return Framework::DumpByQuery(*this, s_Table, sParentQuery, pOutput, QueryPos, bIncludeMergeAttributes);
}

bool StateDefinitionType::DumpMergeContentsII(DOMNode* pParentNode, FullFunctionXMLDataWrapper* pOutput,
                                              DOMNode*& pPassedCurrent, bool bIncludeMergeAttributes) {
    return Framework::DumpByNode(*this, s_Table, pParentNode, pOutput, pPassedCurrent, bIncludeMergeAttributes);
}

bool StateDefinitionType::UpdateContainedData() {
    return Framework::Update(*this, s_Table);
}

bool StateDefinitionType::PopulateDataMembers(XalanNode* pNode) {
    return Framework::Populate(*this, s_Table, pNode);
}

void StateDefinitionType::ResetDataMembers() {
    Framework::Reset(*this, s_Table);
}

int StateDefinitionType::GetDocLength() {
    return Framework::ListLength(m_DocList);
}

zelString StateDefinitionType::GetDoc(int Index) {
    return Framework::TextAt(m_DocList, Index);
}

zelString StateDefinitionType::GetDoc(const zelString& sName) {
    return Framework::TextByKey(m_MapDocList, sName);
}

ActionItemType* StateDefinitionType::GetPreStateTrigger() {
    return m_PreStateTrigger;
}

void StateDefinitionType::SetPreStateTrigger(ActionItemType* szNew) {
    Framework::ReplaceChild(m_PreStateTrigger, szNew);
}

StateTriggersListType* StateDefinitionType::GetStateTriggers() {
    return m_StateTriggers;
}

void StateDefinitionType::SetStateTriggers(StateTriggersListType* szNew) {
    Framework::ReplaceChild(m_StateTriggers, szNew);
}

ActionItemType* StateDefinitionType::GetPostStateTrigger() {
    return m_PostStateTrigger;
}

void StateDefinitionType::SetPostStateTrigger(ActionItemType* szNew) {
    Framework::ReplaceChild(m_PostStateTrigger, szNew);
}

zelString StateDefinitionType::GetName() {
    return m_Name;
}

void StateDefinitionType::SetName(LPCTSTR szNew) {
    m_Name = szNew;
}

bool StateDefinitionType::GetTransient() {
    return m_Transient;
}

void StateDefinitionType::SetTransient(bool szNew) {
    m_Transient = szNew;
}

bool StateDefinitionType::GetCacheActions() {
    return m_CacheActions;
}

void StateDefinitionType::SetCacheActions(bool szNew) {
    m_CacheActions = szNew;
}

zelString StateDefinitionType::GetBaseState() {
    return m_BaseState;
}

void StateDefinitionType::SetBaseState(LPCTSTR szNew) {
    m_BaseState = szNew;
}

bool StateDefinitionType::AutoFillTypeInfo() {
    return true;
}

void StateDefinitionType::AddDoc(const zelString& pData, const zelString& sName) {
    Framework::AddKeyedText(*this, s_Rows[0], pData, sName, __LINE__);
}

void StateDefinitionType::ClearDoc() {
    Framework::ClearKeyedTexts(m_MapDocList, m_DocList);
}
