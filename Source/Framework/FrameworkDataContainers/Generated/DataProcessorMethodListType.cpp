// Generated from DBManagerThreadConfig.xsd; do not edit. Regenerate with the target "generate".
#include "FrameworkDataContainers/DataProcessorMethodListType.h"

#include "Framework/FrameworkDataContainers/Walks/Lists.h"
#include "Framework/FrameworkDataContainers/Walks/Walks.h"
#include "FrameworkDataContainers/DataProcessorMethodType.h"

// clang-format off
constinit const Framework::FieldRow DataProcessorMethodListType::s_Rows[] = {
    Framework::KeyedList<DataProcessorMethodType, &DataProcessorMethodType::GetName, &DataProcessorMethodListType::AddDataProcessorMethod, &DataProcessorMethodListType::ClearDataProcessorMethod>("DataProcessorMethod", "DataProcessorMethodType", "Name", &DataProcessorMethodListType::m_MapDataProcessorMethodList, &DataProcessorMethodListType::m_DataProcessorMethodList),
};

constinit const Framework::FieldTable DataProcessorMethodListType::s_Table = {
    .className = "DataProcessorMethodListType",
    .elementName = "DataProcessorMethodList",
    .parent = nullptr,
    .isStructuralConfigLoader = false,
    .isRoot = false,
    .rows = s_Rows,
    .create = &Framework::CreateContainer<DataProcessorMethodListType>,
    .type = &typeid(DataProcessorMethodListType),
    .autoFill = Framework::ToBase(&DataProcessorMethodListType::m_bAutoFillTypeInfo),
};
// clang-format on

DataProcessorMethodListType::DataProcessorMethodListType(bool bBuildFromScratch)
    : TypedDataContainer(bBuildFromScratch) {
    Framework::NameByClass(*this, s_Table);
}

DataProcessorMethodListType::~DataProcessorMethodListType() {
    DataProcessorMethodListType::ClearDataProcessorMethod();
}

zelString DataProcessorMethodListType::GetBaseType() {
    return "DataProcessorMethodListType";
}

void DataProcessorMethodListType::GetProperties(ParameterList& pList) {
    Framework::Properties(*this, s_Table, pList);
}

bool DataProcessorMethodListType::MergeDataMembers(XMLDataWrapper* pMergeData, zelString sFeatureID) {
    return Framework::Merge(*this, s_Table, pMergeData, sFeatureID, __LINE__);
}

zelString DataProcessorMethodListType::GetAttributeList() {
    return Framework::AttributePredicate(*this, s_Table);
}

ParameterList* DataProcessorMethodListType::GetPLAttributeList() {
    return Framework::AttributeParameters(*this, s_Table);
}

TypedDataContainer* DataProcessorMethodListType::Clone() {
    return Framework::Clone(*this, s_Table);
}

bool DataProcessorMethodListType::DumpMergeContents(const zelString& sParentQuery, FullFunctionXMLDataWrapper* pOutput,
                                                    int QueryPos, bool bIncludeMergeAttributes) {
    return Framework::DumpByQuery(*this, s_Table, sParentQuery, pOutput, QueryPos, bIncludeMergeAttributes);
}

bool DataProcessorMethodListType::DumpMergeContentsII(DOMNode* pParentNode, FullFunctionXMLDataWrapper* pOutput,
                                                      DOMNode*& pPassedCurrent, bool bIncludeMergeAttributes) {
    return Framework::DumpByNode(*this, s_Table, pParentNode, pOutput, pPassedCurrent, bIncludeMergeAttributes);
}

bool DataProcessorMethodListType::UpdateContainedData() {
    return Framework::Update(*this, s_Table);
}

bool DataProcessorMethodListType::PopulateDataMembers(XalanNode* pNode) {
    return Framework::Populate(*this, s_Table, pNode);
}

void DataProcessorMethodListType::ResetDataMembers() {
    Framework::Reset(*this, s_Table);
}

int DataProcessorMethodListType::GetDataProcessorMethodLength() {
    return Framework::ListLength(m_DataProcessorMethodList);
}

DataProcessorMethodType* DataProcessorMethodListType::GetDataProcessorMethod(int Index) {
    return static_cast<DataProcessorMethodType*>(Framework::EntryAt(m_DataProcessorMethodList, Index));
}

DataProcessorMethodType* DataProcessorMethodListType::GetDataProcessorMethod(const zelString& sName) {
    return static_cast<DataProcessorMethodType*>(Framework::EntryByKey(m_MapDataProcessorMethodList, sName));
}

void DataProcessorMethodListType::AddNewDataProcessorMethod(DataProcessorMethodType* szNew, const zelString& sName) {
    Framework::AddNewKeyed(m_MapDataProcessorMethodList, m_DataProcessorMethodList, szNew, sName);
}

void DataProcessorMethodListType::RemoveDataProcessorMethod(const zelString& sName, const zelString& sFeatureId) {
    Framework::RemoveKeyed(*this, s_Rows[0], sName, sFeatureId);
}

bool DataProcessorMethodListType::AutoFillTypeInfo() {
    return true;
}

void DataProcessorMethodListType::AddDataProcessorMethod(XMLDataWrapper* pData, XalanNode* spNode,
                                                         const zelString& sName) {
    Framework::AddKeyed(*this, s_Rows[0], pData, spNode, sName, __LINE__);
}

void DataProcessorMethodListType::ClearDataProcessorMethod() {
    Framework::ClearKeyed(m_MapDataProcessorMethodList, m_DataProcessorMethodList);
}
