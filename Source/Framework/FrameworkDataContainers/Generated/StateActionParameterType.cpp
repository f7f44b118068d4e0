// Generated from StateActionDef.xsd; do not edit. Regenerate with the target "generate".
#include "FrameworkDataContainers/StateActionParameterType.h"

#include "Framework/FrameworkDataContainers/Walks/Lists.h"
#include "Framework/FrameworkDataContainers/Walks/Walks.h"

#include <utility>

// clang-format off
constinit const Framework::FieldRow StateActionParameterType::s_Rows[] = {
    Framework::PlainStrings<&StateActionParameterType::AddDoc, &StateActionParameterType::ClearDoc>("Doc", &StateActionParameterType::m_DocList),
    Framework::Element("DataType", &StateActionParameterType::m_DataType),
    Framework::Element("DefaultValue", &StateActionParameterType::m_DefaultValue),
    Framework::Attribute("Name", &StateActionParameterType::m_Name),
};

constinit const Framework::FieldTable StateActionParameterType::s_Table = {
    .className = "StateActionParameterType",
    .elementName = "StateActionParameter",
    .parent = nullptr,
    .isStructuralConfigLoader = false,
    .isRoot = false,
    .rows = s_Rows,
    .create = &Framework::CreateContainer<StateActionParameterType>,
    .type = &typeid(StateActionParameterType),
    .autoFill = Framework::ToBase(&StateActionParameterType::m_bAutoFillTypeInfo),
};
// clang-format on

StateActionParameterType::StateActionParameterType(bool bBuildFromScratch) : TypedDataContainer(bBuildFromScratch) {
    Framework::NameByClass(*this, s_Table);
}

StateActionParameterType::~StateActionParameterType() {
    StateActionParameterType::ClearDoc();
}

zelString StateActionParameterType::GetBaseType() {
    return "StateActionParameterType";
}

void StateActionParameterType::GetProperties(ParameterList& pList) {
    Framework::Properties(*this, s_Table, pList);
}

bool StateActionParameterType::MergeDataMembers(XMLDataWrapper* pMergeData, zelString sFeatureID) {
    return Framework::Merge(*this, s_Table, pMergeData, sFeatureID, __LINE__);
}

zelString StateActionParameterType::GetAttributeList() {
    return Framework::AttributePredicate(*this, s_Table);
}

ParameterList* StateActionParameterType::GetPLAttributeList() {
    return Framework::AttributeParameters(*this, s_Table);
}

TypedDataContainer* StateActionParameterType::Clone() {
    return Framework::Clone(*this, s_Table);
}

bool StateActionParameterType::DumpMergeContents(const zelString& sParentQuery, FullFunctionXMLDataWrapper* pOutput,
                                                 int QueryPos, bool bIncludeMergeAttributes) {
    return Framework::DumpByQuery(*this, s_Table, sParentQuery, pOutput, QueryPos, bIncludeMergeAttributes);
}

bool StateActionParameterType::DumpMergeContentsII(DOMNode* pParentNode, FullFunctionXMLDataWrapper* pOutput,
                                                   DOMNode*& pPassedCurrent, bool bIncludeMergeAttributes) {
    return Framework::DumpByNode(*this, s_Table, pParentNode, pOutput, pPassedCurrent, bIncludeMergeAttributes);
}

bool StateActionParameterType::UpdateContainedData() {
    return Framework::Update(*this, s_Table);
}

bool StateActionParameterType::PopulateDataMembers(XalanNode* pNode) {
    return Framework::Populate(*this, s_Table, pNode);
}

void StateActionParameterType::ResetDataMembers() {
    Framework::Reset(*this, s_Table);
}

int StateActionParameterType::GetDocLength() {
    return Framework::ListLength(m_DocList);
}

zelString StateActionParameterType::GetDoc(int Index) {
    return Framework::GrowTo(m_DocList, Index);
}

void StateActionParameterType::AddNewDoc(LPCTSTR szNew) {
    m_DocList.emplace_back(szNew);
}

zelString StateActionParameterType::GetDataType() {
    return m_DataType;
}

void StateActionParameterType::SetDataType(LPCTSTR szNew) {
    m_DataType = szNew;
}

zelString StateActionParameterType::GetDefaultValue() {
    return m_DefaultValue;
}

void StateActionParameterType::SetDefaultValue(LPCTSTR szNew) {
    m_DefaultValue = szNew;
}

zelString StateActionParameterType::GetName() {
    return m_Name;
}

void StateActionParameterType::SetName(LPCTSTR szNew) {
    m_Name = szNew;
}

bool StateActionParameterType::AutoFillTypeInfo() {
    return true;
}

void StateActionParameterType::AddDoc(zelString pData) {
    m_DocList.push_back(std::move(pData));
}

void StateActionParameterType::ClearDoc() {
    m_DocList.clear();
}
