// Generated from ActionData.xsd; do not edit. Regenerate with the target "generate".
#include "FrameworkDataContainers/PreProcessDataType.h"

#include "Framework/FrameworkDataContainers/Walks/Lists.h"
#include "Framework/FrameworkDataContainers/Walks/Walks.h"
#include "FrameworkDataContainers/PreProcessDataEntryType.h"

// clang-format off
constinit const Framework::FieldRow PreProcessDataType::s_Rows[] = {
    Framework::KeyedList<PreProcessDataEntryType, &PreProcessDataEntryType::GetName, &PreProcessDataType::AddProcessData, &PreProcessDataType::ClearProcessData>("ProcessData", "PreProcessDataEntryType", "Name", &PreProcessDataType::m_MapProcessDataList, &PreProcessDataType::m_ProcessDataList),
};

constinit const Framework::FieldTable PreProcessDataType::s_Table = {
    .className = "PreProcessDataType",
    .elementName = "PreProcessData",
    .parent = nullptr,
    .isStructuralConfigLoader = false,
    .isRoot = false,
    .rows = s_Rows,
    .create = &Framework::CreateContainer<PreProcessDataType>,
    .type = &typeid(PreProcessDataType),
    .autoFill = Framework::ToBase(&PreProcessDataType::m_bAutoFillTypeInfo),
};
// clang-format on

PreProcessDataType::PreProcessDataType(bool bBuildFromScratch) : TypedDataContainer(bBuildFromScratch) {
    Framework::NameByClass(*this, s_Table);
}

PreProcessDataType::~PreProcessDataType() {
    PreProcessDataType::ClearProcessData();
}

zelString PreProcessDataType::GetBaseType() {
    return "PreProcessDataType";
}

void PreProcessDataType::GetProperties(ParameterList& pList) {
    Framework::Properties(*this, s_Table, pList);
}

bool PreProcessDataType::MergeDataMembers(XMLDataWrapper* pMergeData, zelString sFeatureID) {
    return Framework::Merge(*this, s_Table, pMergeData, sFeatureID, __LINE__);
}

zelString PreProcessDataType::GetAttributeList() {
    return Framework::AttributePredicate(*this, s_Table);
}

ParameterList* PreProcessDataType::GetPLAttributeList() {
    return Framework::AttributeParameters(*this, s_Table);
}

TypedDataContainer* PreProcessDataType::Clone() {
    return Framework::Clone(*this, s_Table);
}

bool PreProcessDataType::DumpMergeContents(const zelString& sParentQuery, FullFunctionXMLDataWrapper* pOutput,
                                           int QueryPos, bool bIncludeMergeAttributes) {
    return Framework::DumpByQuery(*this, s_Table, sParentQuery, pOutput, QueryPos, bIncludeMergeAttributes);
}

bool PreProcessDataType::DumpMergeContentsII(DOMNode* pParentNode, FullFunctionXMLDataWrapper* pOutput,
                                             DOMNode*& pPassedCurrent, bool bIncludeMergeAttributes) {
    return Framework::DumpByNode(*this, s_Table, pParentNode, pOutput, pPassedCurrent, bIncludeMergeAttributes);
}

bool PreProcessDataType::UpdateContainedData() {
    return Framework::Update(*this, s_Table);
}

bool PreProcessDataType::PopulateDataMembers(XalanNode* pNode) {
    return Framework::Populate(*this, s_Table, pNode);
}

void PreProcessDataType::ResetDataMembers() {
    Framework::Reset(*this, s_Table);
}

int PreProcessDataType::GetProcessDataLength() {
    return Framework::ListLength(m_ProcessDataList);
}

PreProcessDataEntryType* PreProcessDataType::GetProcessData(int Index) {
    return static_cast<PreProcessDataEntryType*>(Framework::EntryAt(m_ProcessDataList, Index));
}

PreProcessDataEntryType* PreProcessDataType::GetProcessData(const zelString& sName) {
    return static_cast<PreProcessDataEntryType*>(Framework::EntryByKey(m_MapProcessDataList, sName));
}

void PreProcessDataType::AddNewProcessData(PreProcessDataEntryType* szNew, const zelString& sName) {
    Framework::AddNewKeyed(m_MapProcessDataList, m_ProcessDataList, szNew, sName);
}

void PreProcessDataType::RemoveProcessData(const zelString& sName, const zelString& sFeatureId) {
    Framework::RemoveKeyed(*this, s_Rows[0], sName, sFeatureId);
}

bool PreProcessDataType::AutoFillTypeInfo() {
    return true;
}

void PreProcessDataType::AddProcessData(XMLDataWrapper* pData, XalanNode* spNode, const zelString& sName) {
    Framework::AddKeyed(*this, s_Rows[0], pData, spNode, sName, __LINE__);
}

void PreProcessDataType::ClearProcessData() {
    Framework::ClearKeyed(m_MapProcessDataList, m_ProcessDataList);
}
