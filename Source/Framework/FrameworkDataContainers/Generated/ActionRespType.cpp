// Generated from StateProcessingRoot.xsd; do not edit. Regenerate with the target "generate".
#include "FrameworkDataContainers/ActionRespType.h"

#include "Framework/FrameworkDataContainers/Walks/Lists.h"
#include "Framework/FrameworkDataContainers/Walks/Walks.h"
#include "FrameworkDataContainers/StateActionRespType.h"

// clang-format off
constinit const Framework::FieldRow ActionRespType::s_Rows[] = {
    Framework::KeyedStrings<&ActionRespType::AddDoc, &ActionRespType::ClearDoc>("Doc", "Index", true, &ActionRespType::m_MapDocList, &ActionRespType::m_DocList),
    Framework::KeyedList<StateActionRespType, &StateActionRespType::GetResult, &ActionRespType::AddPostActionResp, &ActionRespType::ClearPostActionResp>("PostActionResp", "StateActionRespType", "Result", &ActionRespType::m_MapPostActionRespList, &ActionRespType::m_PostActionRespList),
};

constinit const Framework::FieldTable ActionRespType::s_Table = {
    .className = "ActionRespType",
    .elementName = "ActionResp",
    .parent = nullptr,
    .isStructuralConfigLoader = false,
    .isRoot = false,
    .rows = s_Rows,
    .create = &Framework::CreateContainer<ActionRespType>,
    .type = &typeid(ActionRespType),
    .autoFill = Framework::ToBase(&ActionRespType::m_bAutoFillTypeInfo),
};
// clang-format on

ActionRespType::ActionRespType(bool bBuildFromScratch) : TypedDataContainer(bBuildFromScratch) {
    Framework::NameByClass(*this, s_Table);
}

ActionRespType::~ActionRespType() {
    ActionRespType::ClearDoc();
    ActionRespType::ClearPostActionResp();
}

zelString ActionRespType::GetBaseType() {
    return "ActionRespType";
}

void ActionRespType::GetProperties(ParameterList& pList) {
    Framework::Properties(*this, s_Table, pList);
}

bool ActionRespType::MergeDataMembers(XMLDataWrapper* pMergeData, zelString sFeatureID) {
    return Framework::Merge(*this, s_Table, pMergeData, sFeatureID, __LINE__);
}

zelString ActionRespType::GetAttributeList() {
    return Framework::AttributePredicate(*this, s_Table);
}

ParameterList* ActionRespType::GetPLAttributeList() {
    return Framework::AttributeParameters(*this, s_Table);
}

TypedDataContainer* ActionRespType::Clone() {
    return Framework::Clone(*this, s_Table);
}

bool ActionRespType::DumpMergeContents(const zelString& sParentQuery, FullFunctionXMLDataWrapper* pOutput, int QueryPos,
                                       bool bIncludeMergeAttributes) {
    return Framework::DumpByQuery(*this, s_Table, sParentQuery, pOutput, QueryPos, bIncludeMergeAttributes);
}

bool ActionRespType::DumpMergeContentsII(DOMNode* pParentNode, FullFunctionXMLDataWrapper* pOutput,
                                         DOMNode*& pPassedCurrent, bool bIncludeMergeAttributes) {
    return Framework::DumpByNode(*this, s_Table, pParentNode, pOutput, pPassedCurrent, bIncludeMergeAttributes);
}

bool ActionRespType::UpdateContainedData() {
    return Framework::Update(*this, s_Table);
}

bool ActionRespType::PopulateDataMembers(XalanNode* pNode) {
    return Framework::Populate(*this, s_Table, pNode);
}

void ActionRespType::ResetDataMembers() {
    Framework::Reset(*this, s_Table);
}

int ActionRespType::GetDocLength() {
    return Framework::ListLength(m_DocList);
}

zelString ActionRespType::GetDoc(int Index) {
    return Framework::TextAt(m_DocList, Index);
}

zelString ActionRespType::GetDoc(const zelString& sName) {
    return Framework::TextByKey(m_MapDocList, sName);
}

int ActionRespType::GetPostActionRespLength() {
    return Framework::ListLength(m_PostActionRespList);
}

StateActionRespType* ActionRespType::GetPostActionResp(int Index) {
    return static_cast<StateActionRespType*>(Framework::EntryAt(m_PostActionRespList, Index));
}

StateActionRespType* ActionRespType::GetPostActionResp(const zelString& sName) {
    return static_cast<StateActionRespType*>(Framework::EntryByKey(m_MapPostActionRespList, sName));
}

void ActionRespType::AddNewPostActionResp(StateActionRespType* szNew, const zelString& sName) {
    Framework::AddNewKeyed(m_MapPostActionRespList, m_PostActionRespList, szNew, sName);
}

void ActionRespType::RemovePostActionResp(const zelString& sName, const zelString& sFeatureId) {
    Framework::RemoveKeyed(*this, s_Rows[1], sName, sFeatureId);
}

bool ActionRespType::AutoFillTypeInfo() {
    return true;
}

void ActionRespType::AddDoc(const zelString& pData, const zelString& sName) {
    Framework::AddKeyedText(*this, s_Rows[0], pData, sName, __LINE__);
}

void ActionRespType::ClearDoc() {
    Framework::ClearKeyedTexts(m_MapDocList, m_DocList);
}

void ActionRespType::AddPostActionResp(XMLDataWrapper* pData, XalanNode* spNode, const zelString& sName) {
    Framework::AddKeyed(*this, s_Rows[1], pData, spNode, sName, __LINE__);
}

void ActionRespType::ClearPostActionResp() {
    Framework::ClearKeyed(m_MapPostActionRespList, m_PostActionRespList);
}
