// Generated from StateProcessingRoot.xsd; do not edit. Regenerate with the target "generate".
#include "FrameworkDataContainers/StateActionBasicType.h"

#include "Framework/FrameworkDataContainers/Walks/Lists.h"
#include "Framework/FrameworkDataContainers/Walks/Walks.h"
#include "FrameworkDataContainers/StateActionDataType.h"

// clang-format off
constinit const Framework::FieldRow StateActionBasicType::s_Rows[] = {
    Framework::KeyedStrings<&StateActionBasicType::AddDoc, &StateActionBasicType::ClearDoc>("Doc", "Index", true, &StateActionBasicType::m_MapDocList, &StateActionBasicType::m_DocList),
    Framework::Element("ActionRef", &StateActionBasicType::m_ActionRef),
    Framework::Child<&StateActionBasicType::m_ActionData>("ActionData", "StateActionDataType"),
};

constinit const Framework::FieldTable StateActionBasicType::s_Table = {
    .className = "StateActionBasicType",
    .elementName = "StateActionBasic",
    .parent = nullptr,
    .isStructuralConfigLoader = false,
    .isRoot = false,
    .rows = s_Rows,
    .create = &Framework::CreateContainer<StateActionBasicType>,
    .type = &typeid(StateActionBasicType),
    .autoFill = Framework::ToBase(&StateActionBasicType::m_bAutoFillTypeInfo),
};
// clang-format on

StateActionBasicType::StateActionBasicType(bool bBuildFromScratch) : TypedDataContainer(bBuildFromScratch) {
    Framework::NameByClass(*this, s_Table);
}

StateActionBasicType::~StateActionBasicType() {
    StateActionBasicType::ClearDoc();
    delete m_ActionData;
}

zelString StateActionBasicType::GetBaseType() {
    return "StateActionBasicType";
}

void StateActionBasicType::GetProperties(ParameterList& pList) {
    Framework::Properties(*this, s_Table, pList);
}

bool StateActionBasicType::MergeDataMembers(XMLDataWrapper* pMergeData, zelString sFeatureID) {
    return Framework::Merge(*this, s_Table, pMergeData, sFeatureID, __LINE__);
}

zelString StateActionBasicType::GetAttributeList() {
    return Framework::AttributePredicate(*this, s_Table);
}

ParameterList* StateActionBasicType::GetPLAttributeList() {
    return Framework::AttributeParameters(*this, s_Table);
}

TypedDataContainer* StateActionBasicType::Clone() {
    return Framework::Clone(*this, s_Table);
}

bool StateActionBasicType::DumpMergeContents(const zelString& sParentQuery, FullFunctionXMLDataWrapper* pOutput,
                                             int QueryPos, bool bIncludeMergeAttributes) {
    return Framework::DumpByQuery(*this, s_Table, sParentQuery, pOutput, QueryPos, bIncludeMergeAttributes);
}

bool StateActionBasicType::DumpMergeContentsII(DOMNode* pParentNode, FullFunctionXMLDataWrapper* pOutput,
                                               DOMNode*& pPassedCurrent, bool bIncludeMergeAttributes) {
    return Framework::DumpByNode(*this, s_Table, pParentNode, pOutput, pPassedCurrent, bIncludeMergeAttributes);
}

bool StateActionBasicType::UpdateContainedData() {
    return Framework::Update(*this, s_Table);
}

bool StateActionBasicType::PopulateDataMembers(XalanNode* pNode) {
    return Framework::Populate(*this, s_Table, pNode);
}

void StateActionBasicType::ResetDataMembers() {
    Framework::Reset(*this, s_Table);
}

int StateActionBasicType::GetDocLength() {
    return Framework::ListLength(m_DocList);
}

zelString StateActionBasicType::GetDoc(int Index) {
    return Framework::TextAt(m_DocList, Index);
}

zelString StateActionBasicType::GetDoc(const zelString& sName) {
    return Framework::TextByKey(m_MapDocList, sName);
}

zelString StateActionBasicType::GetActionRef() {
    return m_ActionRef;
}

void StateActionBasicType::SetActionRef(LPCTSTR szNew) {
    m_ActionRef = szNew;
}

StateActionDataType* StateActionBasicType::GetActionData() {
    return m_ActionData;
}

void StateActionBasicType::SetActionData(StateActionDataType* szNew) {
    Framework::ReplaceChild(m_ActionData, szNew);
}

bool StateActionBasicType::AutoFillTypeInfo() {
    return true;
}

void StateActionBasicType::AddDoc(const zelString& pData, const zelString& sName) {
    Framework::AddKeyedText(*this, s_Rows[0], pData, sName, __LINE__);
}

void StateActionBasicType::ClearDoc() {
    Framework::ClearKeyedTexts(m_MapDocList, m_DocList);
}
