// Generated from StateActionDef.xsd; do not edit. Regenerate with the target "generate".
#include "FrameworkDataContainers/StateActionHandlerType.h"

#include "Framework/FrameworkDataContainers/Walks/Lists.h"
#include "Framework/FrameworkDataContainers/Walks/Walks.h"
#include "FrameworkDataContainers/StateActionParametersListType.h"

#include <utility>

// clang-format off
constinit const Framework::FieldRow StateActionHandlerType::s_Rows[] = {
    Framework::PlainStrings<&StateActionHandlerType::AddDoc, &StateActionHandlerType::ClearDoc>("Doc", &StateActionHandlerType::m_DocList),
    Framework::Child<&StateActionHandlerType::m_Parameters>("Parameters", "StateActionParametersListType"),
    Framework::Attribute("ActionID", &StateActionHandlerType::m_ActionID),
    Framework::Attribute("PreProcessor", &StateActionHandlerType::m_PreProcessor),
};

constinit const Framework::FieldTable StateActionHandlerType::s_Table = {
    .className = "StateActionHandlerType",
    .elementName = "StateActionHandler",
    .parent = &AbstractMethodDefType::s_Table,
    .isStructuralConfigLoader = false,
    .isRoot = false,
    .rows = s_Rows,
    .create = &Framework::CreateContainer<StateActionHandlerType>,
    .type = &typeid(StateActionHandlerType),
    .autoFill = Framework::ToBase(&StateActionHandlerType::m_bAutoFillTypeInfo),
};
// clang-format on

StateActionHandlerType::StateActionHandlerType(bool bBuildFromScratch) : AbstractMethodDefType(bBuildFromScratch) {
    Framework::NameByClass(*this, s_Table);
}

StateActionHandlerType::~StateActionHandlerType() {
    StateActionHandlerType::ClearDoc();
    delete m_Parameters;
}

zelString StateActionHandlerType::GetBaseType() {
    return "StateActionHandlerType";
}

void StateActionHandlerType::GetProperties(ParameterList& pList) {
    Framework::Properties(*this, s_Table, pList);
}

bool StateActionHandlerType::MergeDataMembers(XMLDataWrapper* pMergeData, zelString sFeatureID) {
    return Framework::Merge(*this, s_Table, pMergeData, sFeatureID, __LINE__);
}

zelString StateActionHandlerType::GetAttributeList() {
    return Framework::AttributePredicate(*this, s_Table);
}

ParameterList* StateActionHandlerType::GetPLAttributeList() {
    return Framework::AttributeParameters(*this, s_Table);
}

TypedDataContainer* StateActionHandlerType::Clone() {
    return Framework::Clone(*this, s_Table);
}

bool StateActionHandlerType::DumpMergeContents(const zelString& sParentQuery, FullFunctionXMLDataWrapper* pOutput,
                                               int QueryPos, bool bIncludeMergeAttributes) {
    return Framework::DumpByQuery(*this, s_Table, sParentQuery, pOutput, QueryPos, bIncludeMergeAttributes);
}

bool StateActionHandlerType::DumpMergeContentsII(DOMNode* pParentNode, FullFunctionXMLDataWrapper* pOutput,
                                                 DOMNode*& pPassedCurrent, bool bIncludeMergeAttributes) {
    return Framework::DumpByNode(*this, s_Table, pParentNode, pOutput, pPassedCurrent, bIncludeMergeAttributes);
}

bool StateActionHandlerType::UpdateContainedData() {
    return Framework::Update(*this, s_Table);
}

bool StateActionHandlerType::PopulateDataMembers(XalanNode* pNode) {
    return Framework::Populate(*this, s_Table, pNode);
}

void StateActionHandlerType::ResetDataMembers() {
    Framework::Reset(*this, s_Table);
}

bool StateActionHandlerType::AutoFillTypeInfo() {
    return true;
}

int StateActionHandlerType::GetDocLength() {
    return Framework::ListLength(m_DocList);
}

zelString StateActionHandlerType::GetDoc(int Index) {
    return Framework::GrowTo(m_DocList, Index);
}

void StateActionHandlerType::AddNewDoc(LPCTSTR szNew) {
    m_DocList.emplace_back(szNew);
}

StateActionParametersListType* StateActionHandlerType::GetParameters() {
    return m_Parameters;
}

void StateActionHandlerType::SetParameters(StateActionParametersListType* szNew) {
    Framework::ReplaceChild(m_Parameters, szNew);
}

zelString StateActionHandlerType::GetActionID() {
    return m_ActionID;
}

void StateActionHandlerType::SetActionID(LPCTSTR szNew) {
    m_ActionID = szNew;
}

bool StateActionHandlerType::GetPreProcessor() {
    return m_PreProcessor;
}

void StateActionHandlerType::SetPreProcessor(bool szNew) {
    m_PreProcessor = szNew;
}

void StateActionHandlerType::AddDoc(zelString pData) {
    m_DocList.push_back(std::move(pData));
}

void StateActionHandlerType::ClearDoc() {
    m_DocList.clear();
}
