// Generated from ActionData.xsd; do not edit. Regenerate with the target "generate".
#include "FrameworkDataContainers/DataListDataEntryType.h"

#include "Framework/FrameworkDataContainers/Walks/Lists.h"
#include "Framework/FrameworkDataContainers/Walks/Walks.h"

// clang-format off
constinit const Framework::FieldRow DataListDataEntryType::s_Rows[] = {
    Framework::Element("Unused", &DataListDataEntryType::m_Unused),
    Framework::Attribute("Name", &DataListDataEntryType::m_Name),
    Framework::Attribute("DataType", &DataListDataEntryType::m_DataType),
};

constinit const Framework::FieldTable DataListDataEntryType::s_Table = {
    .className = "DataListDataEntryType",
    .elementName = "DataListItem",
    .parent = &ExtendableDataEntryType::s_Table,
    .isStructuralConfigLoader = false,
    .isRoot = false,
    .rows = s_Rows,
    .create = &Framework::CreateContainer<DataListDataEntryType>,
    .type = &typeid(DataListDataEntryType),
    .autoFill = Framework::ToBase(&DataListDataEntryType::m_bAutoFillTypeInfo),
};
// clang-format on

DataListDataEntryType::DataListDataEntryType(bool bBuildFromScratch) : ExtendableDataEntryType(bBuildFromScratch) {
    Framework::NameByClass(*this, s_Table);
}

DataListDataEntryType::~DataListDataEntryType() {}

zelString DataListDataEntryType::GetBaseType() {
    return "DataListDataEntryType";
}

void DataListDataEntryType::GetProperties(ParameterList& pList) {
    Framework::Properties(*this, s_Table, pList);
}

bool DataListDataEntryType::MergeDataMembers(XMLDataWrapper* pMergeData, zelString sFeatureID) {
    return Framework::Merge(*this, s_Table, pMergeData, sFeatureID, __LINE__);
}

zelString DataListDataEntryType::GetAttributeList() {
    return Framework::AttributePredicate(*this, s_Table);
}

ParameterList* DataListDataEntryType::GetPLAttributeList() {
    return Framework::AttributeParameters(*this, s_Table);
}

TypedDataContainer* DataListDataEntryType::Clone() {
    return Framework::Clone(*this, s_Table);
}

bool DataListDataEntryType::DumpMergeContents(const zelString& sParentQuery, FullFunctionXMLDataWrapper* pOutput,
                                              int QueryPos, bool bIncludeMergeAttributes) {
    return Framework::DumpByQuery(*this, s_Table, sParentQuery, pOutput, QueryPos, bIncludeMergeAttributes);
}

bool DataListDataEntryType::DumpMergeContentsII(DOMNode* pParentNode, FullFunctionXMLDataWrapper* pOutput,
                                                DOMNode*& pPassedCurrent, bool bIncludeMergeAttributes) {
    return Framework::DumpByNode(*this, s_Table, pParentNode, pOutput, pPassedCurrent, bIncludeMergeAttributes);
}

bool DataListDataEntryType::UpdateContainedData() {
    return Framework::Update(*this, s_Table);
}

bool DataListDataEntryType::PopulateDataMembers(XalanNode* pNode) {
    return Framework::Populate(*this, s_Table, pNode);
}

void DataListDataEntryType::ResetDataMembers() {
    Framework::Reset(*this, s_Table);
}

bool DataListDataEntryType::AutoFillTypeInfo() {
    return true;
}

zelString DataListDataEntryType::GetUnused() {
    return m_Unused;
}

void DataListDataEntryType::SetUnused(LPCTSTR szNew) {
    m_Unused = szNew;
}

zelString DataListDataEntryType::GetName() {
    return m_Name;
}

void DataListDataEntryType::SetName(LPCTSTR szNew) {
    m_Name = szNew;
}

zelString DataListDataEntryType::GetDataType() {
    return m_DataType;
}

void DataListDataEntryType::SetDataType(LPCTSTR szNew) {
    m_DataType = szNew;
}
