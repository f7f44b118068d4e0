// Generated from ActionData.xsd; do not edit. Regenerate with the target "generate".
#include "FrameworkDataContainers/StateActionDataEntryType.h"

#include "Framework/FrameworkDataContainers/Walks/Lists.h"
#include "Framework/FrameworkDataContainers/Walks/Walks.h"
#include "FrameworkDataContainers/DataListType.h"

// clang-format off
constinit const Framework::FieldRow StateActionDataEntryType::s_Rows[] = {
    Framework::Child<&StateActionDataEntryType::m_DataList>("DataList", "DataListType"),
    Framework::Attribute("Name", &StateActionDataEntryType::m_Name),
};

constinit const Framework::FieldTable StateActionDataEntryType::s_Table = {
    .className = "StateActionDataEntryType",
    .elementName = "StateActionDataEntry",
    .parent = &ExtendableDataEntryType::s_Table,
    .isStructuralConfigLoader = false,
    .isRoot = false,
    .rows = s_Rows,
    .create = &Framework::CreateContainer<StateActionDataEntryType>,
    .type = &typeid(StateActionDataEntryType),
    .autoFill = Framework::ToBase(&StateActionDataEntryType::m_bAutoFillTypeInfo),
};
// clang-format on

StateActionDataEntryType::StateActionDataEntryType(bool bBuildFromScratch)
    : ExtendableDataEntryType(bBuildFromScratch) {
    Framework::NameByClass(*this, s_Table);
}

StateActionDataEntryType::~StateActionDataEntryType() {
    delete m_DataList;
}

zelString StateActionDataEntryType::GetBaseType() {
    return "StateActionDataEntryType";
}

void StateActionDataEntryType::GetProperties(ParameterList& pList) {
    Framework::Properties(*this, s_Table, pList);
}

bool StateActionDataEntryType::MergeDataMembers(XMLDataWrapper* pMergeData, zelString sFeatureID) {
    return Framework::Merge(*this, s_Table, pMergeData, sFeatureID, __LINE__);
}

zelString StateActionDataEntryType::GetAttributeList() {
    return Framework::AttributePredicate(*this, s_Table);
}

ParameterList* StateActionDataEntryType::GetPLAttributeList() {
    return Framework::AttributeParameters(*this, s_Table);
}

TypedDataContainer* StateActionDataEntryType::Clone() {
    return Framework::Clone(*this, s_Table);
}

bool StateActionDataEntryType::DumpMergeContents(const zelString& sParentQuery, FullFunctionXMLDataWrapper* pOutput,
                                                 int QueryPos, bool bIncludeMergeAttributes) {
    return Framework::DumpByQuery(*this, s_Table, sParentQuery, pOutput, QueryPos, bIncludeMergeAttributes);
}

bool StateActionDataEntryType::DumpMergeContentsII(DOMNode* pParentNode, FullFunctionXMLDataWrapper* pOutput,
                                                   DOMNode*& pPassedCurrent, bool bIncludeMergeAttributes) {
    return Framework::DumpByNode(*this, s_Table, pParentNode, pOutput, pPassedCurrent, bIncludeMergeAttributes);
}

bool StateActionDataEntryType::UpdateContainedData() {
    return Framework::Update(*this, s_Table);
}

bool StateActionDataEntryType::PopulateDataMembers(XalanNode* pNode) {
    return Framework::Populate(*this, s_Table, pNode);
}

void StateActionDataEntryType::ResetDataMembers() {
    Framework::Reset(*this, s_Table);
}

bool StateActionDataEntryType::AutoFillTypeInfo() {
    return true;
}

DataListType* StateActionDataEntryType::GetDataList() {
    return m_DataList;
}

void StateActionDataEntryType::SetDataList(DataListType* szNew) {
    Framework::ReplaceChild(m_DataList, szNew);
}

zelString StateActionDataEntryType::GetName() {
    return m_Name;
}

void StateActionDataEntryType::SetName(LPCTSTR szNew) {
    m_Name = szNew;
}
