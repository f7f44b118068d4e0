// Generated from ActionData.xsd; do not edit. Regenerate with the target "generate".
#include "FrameworkDataContainers/StateActionDataType.h"

#include "Framework/FrameworkDataContainers/Walks/Lists.h"
#include "Framework/FrameworkDataContainers/Walks/Walks.h"
#include "FrameworkDataContainers/StateActionDataEntryType.h"

// clang-format off
constinit const Framework::FieldRow StateActionDataType::s_Rows[] = {
    Framework::KeyedList<StateActionDataEntryType, &StateActionDataEntryType::GetName, &StateActionDataType::AddData, &StateActionDataType::ClearData>("Data", "StateActionDataEntryType", "Name", &StateActionDataType::m_MapDataList, &StateActionDataType::m_DataList),
};

constinit const Framework::FieldTable StateActionDataType::s_Table = {
    .className = "StateActionDataType",
    .elementName = "StateActionData",
    .parent = nullptr,
    .isStructuralConfigLoader = false,
    .isRoot = false,
    .rows = s_Rows,
    .create = &Framework::CreateContainer<StateActionDataType>,
    .type = &typeid(StateActionDataType),
    .autoFill = Framework::ToBase(&StateActionDataType::m_bAutoFillTypeInfo),
};
// clang-format on

StateActionDataType::StateActionDataType(bool bBuildFromScratch) : TypedDataContainer(bBuildFromScratch) {
    Framework::NameByClass(*this, s_Table);
}

StateActionDataType::~StateActionDataType() {
    StateActionDataType::ClearData();
}

zelString StateActionDataType::GetBaseType() {
    return "StateActionDataType";
}

void StateActionDataType::GetProperties(ParameterList& pList) {
    Framework::Properties(*this, s_Table, pList);
}

bool StateActionDataType::MergeDataMembers(XMLDataWrapper* pMergeData, zelString sFeatureID) {
    return Framework::Merge(*this, s_Table, pMergeData, sFeatureID, __LINE__);
}

zelString StateActionDataType::GetAttributeList() {
    return Framework::AttributePredicate(*this, s_Table);
}

ParameterList* StateActionDataType::GetPLAttributeList() {
    return Framework::AttributeParameters(*this, s_Table);
}

TypedDataContainer* StateActionDataType::Clone() {
    return Framework::Clone(*this, s_Table);
}

bool StateActionDataType::DumpMergeContents(const zelString& sParentQuery, FullFunctionXMLDataWrapper* pOutput,
                                            int QueryPos, bool bIncludeMergeAttributes) {
    return Framework::DumpByQuery(*this, s_Table, sParentQuery, pOutput, QueryPos, bIncludeMergeAttributes);
}

bool StateActionDataType::DumpMergeContentsII(DOMNode* pParentNode, FullFunctionXMLDataWrapper* pOutput,
                                              DOMNode*& pPassedCurrent, bool bIncludeMergeAttributes) {
    return Framework::DumpByNode(*this, s_Table, pParentNode, pOutput, pPassedCurrent, bIncludeMergeAttributes);
}

bool StateActionDataType::UpdateContainedData() {
    return Framework::Update(*this, s_Table);
}

bool StateActionDataType::PopulateDataMembers(XalanNode* pNode) {
    return Framework::Populate(*this, s_Table, pNode);
}

void StateActionDataType::ResetDataMembers() {
    Framework::Reset(*this, s_Table);
}

int StateActionDataType::GetDataLength() {
    return Framework::ListLength(m_DataList);
}

StateActionDataEntryType* StateActionDataType::GetData(int Index) {
    return static_cast<StateActionDataEntryType*>(Framework::EntryAt(m_DataList, Index));
}

StateActionDataEntryType* StateActionDataType::GetData(const zelString& sName) {
    return static_cast<StateActionDataEntryType*>(Framework::EntryByKey(m_MapDataList, sName));
}

void StateActionDataType::AddNewData(StateActionDataEntryType* szNew, const zelString& sName) {
    Framework::AddNewKeyed(m_MapDataList, m_DataList, szNew, sName);
}

void StateActionDataType::RemoveData(const zelString& sName, const zelString& sFeatureId) {
    Framework::RemoveKeyed(*this, s_Rows[0], sName, sFeatureId);
}

bool StateActionDataType::AutoFillTypeInfo() {
    return true;
}

void StateActionDataType::AddData(XMLDataWrapper* pData, XalanNode* spNode, const zelString& sName) {
    Framework::AddKeyed(*this, s_Rows[0], pData, spNode, sName, __LINE__);
}

void StateActionDataType::ClearData() {
    Framework::ClearKeyed(m_MapDataList, m_DataList);
}
