// Generated from ActionData.xsd; do not edit. Regenerate with the target "generate".
#include "FrameworkDataContainers/DataListType.h"

#include "Framework/FrameworkDataContainers/Walks/Lists.h"
#include "Framework/FrameworkDataContainers/Walks/Walks.h"
#include "FrameworkDataContainers/DataListDataEntryType.h"

// clang-format off
constinit const Framework::FieldRow DataListType::s_Rows[] = {
    Framework::KeyedList<DataListDataEntryType, &DataListDataEntryType::GetName, &DataListType::AddDataListItem, &DataListType::ClearDataListItem>("DataListItem", "DataListDataEntryType", "Name", &DataListType::m_MapDataListItemList, &DataListType::m_DataListItemList),
};

constinit const Framework::FieldTable DataListType::s_Table = {
    .className = "DataListType",
    .elementName = "DataList",
    .parent = nullptr,
    .isStructuralConfigLoader = false,
    .isRoot = false,
    .rows = s_Rows,
    .create = &Framework::CreateContainer<DataListType>,
    .type = &typeid(DataListType),
    .autoFill = Framework::ToBase(&DataListType::m_bAutoFillTypeInfo),
};
// clang-format on

DataListType::DataListType(bool bBuildFromScratch) : TypedDataContainer(bBuildFromScratch) {
    Framework::NameByClass(*this, s_Table);
}

DataListType::~DataListType() {
    DataListType::ClearDataListItem();
}

zelString DataListType::GetBaseType() {
    return "DataListType";
}

void DataListType::GetProperties(ParameterList& pList) {
    Framework::Properties(*this, s_Table, pList);
}

bool DataListType::MergeDataMembers(XMLDataWrapper* pMergeData, zelString sFeatureID) {
    return Framework::Merge(*this, s_Table, pMergeData, sFeatureID, __LINE__);
}

zelString DataListType::GetAttributeList() {
    return Framework::AttributePredicate(*this, s_Table);
}

ParameterList* DataListType::GetPLAttributeList() {
    return Framework::AttributeParameters(*this, s_Table);
}

TypedDataContainer* DataListType::Clone() {
    return Framework::Clone(*this, s_Table);
}

bool DataListType::DumpMergeContents(const zelString& sParentQuery, FullFunctionXMLDataWrapper* pOutput, int QueryPos,
                                     bool bIncludeMergeAttributes) {
    return Framework::DumpByQuery(*this, s_Table, sParentQuery, pOutput, QueryPos, bIncludeMergeAttributes);
}

bool DataListType::DumpMergeContentsII(DOMNode* pParentNode, FullFunctionXMLDataWrapper* pOutput,
                                       DOMNode*& pPassedCurrent, bool bIncludeMergeAttributes) {
    return Framework::DumpByNode(*this, s_Table, pParentNode, pOutput, pPassedCurrent, bIncludeMergeAttributes);
}

bool DataListType::UpdateContainedData() {
    return Framework::Update(*this, s_Table);
}

bool DataListType::PopulateDataMembers(XalanNode* pNode) {
    return Framework::Populate(*this, s_Table, pNode);
}

void DataListType::ResetDataMembers() {
    Framework::Reset(*this, s_Table);
}

int DataListType::GetDataListItemLength() {
    return Framework::ListLength(m_DataListItemList);
}

DataListDataEntryType* DataListType::GetDataListItem(int Index) {
    return static_cast<DataListDataEntryType*>(Framework::EntryAt(m_DataListItemList, Index));
}

DataListDataEntryType* DataListType::GetDataListItem(const zelString& sName) {
    return static_cast<DataListDataEntryType*>(Framework::EntryByKey(m_MapDataListItemList, sName));
}

void DataListType::AddNewDataListItem(DataListDataEntryType* szNew, const zelString& sName) {
    Framework::AddNewKeyed(m_MapDataListItemList, m_DataListItemList, szNew, sName);
}

void DataListType::RemoveDataListItem(const zelString& sName, const zelString& sFeatureId) {
    Framework::RemoveKeyed(*this, s_Rows[0], sName, sFeatureId);
}

bool DataListType::AutoFillTypeInfo() {
    return true;
}

void DataListType::AddDataListItem(XMLDataWrapper* pData, XalanNode* spNode, const zelString& sName) {
    Framework::AddKeyed(*this, s_Rows[0], pData, spNode, sName, __LINE__);
}

void DataListType::ClearDataListItem() {
    Framework::ClearKeyed(m_MapDataListItemList, m_DataListItemList);
}
