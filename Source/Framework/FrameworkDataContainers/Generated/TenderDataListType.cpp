// Generated from LoggingInformation.xsd; do not edit. Regenerate with the target "generate".
#include "FrameworkDataContainers/TenderDataListType.h"

#include "Framework/FrameworkDataContainers/Walks/Lists.h"
#include "Framework/FrameworkDataContainers/Walks/Walks.h"
#include "FrameworkDataContainers/TenderDataEntryType.h"

// clang-format off
constinit const Framework::FieldRow TenderDataListType::s_Rows[] = {
    Framework::KeyedList<TenderDataEntryType, &TenderDataEntryType::GetEntryIndex, &TenderDataListType::AddTenderDataEntry, &TenderDataListType::ClearTenderDataEntry>("TenderDataEntry", "TenderDataEntryType", "EntryIndex", &TenderDataListType::m_MapTenderDataEntryList, &TenderDataListType::m_TenderDataEntryList),
};

constinit const Framework::FieldTable TenderDataListType::s_Table = {
    .className = "TenderDataListType",
    .elementName = "TenderDataList",
    .parent = nullptr,
    .isStructuralConfigLoader = false,
    .isRoot = false,
    .rows = s_Rows,
    .create = &Framework::CreateContainer<TenderDataListType>,
    .type = &typeid(TenderDataListType),
    .autoFill = Framework::ToBase(&TenderDataListType::m_bAutoFillTypeInfo),
};
// clang-format on

TenderDataListType::TenderDataListType(bool bBuildFromScratch) : TypedDataContainer(bBuildFromScratch) {
    Framework::NameByClass(*this, s_Table);
}

TenderDataListType::~TenderDataListType() {
    TenderDataListType::ClearTenderDataEntry();
}

zelString TenderDataListType::GetBaseType() {
    return "TenderDataListType";
}

void TenderDataListType::GetProperties(ParameterList& pList) {
    Framework::Properties(*this, s_Table, pList);
}

bool TenderDataListType::MergeDataMembers(XMLDataWrapper* pMergeData, zelString sFeatureID) {
    return Framework::Merge(*this, s_Table, pMergeData, sFeatureID, __LINE__);
}

zelString TenderDataListType::GetAttributeList() {
    return Framework::AttributePredicate(*this, s_Table);
}

ParameterList* TenderDataListType::GetPLAttributeList() {
    return Framework::AttributeParameters(*this, s_Table);
}

TypedDataContainer* TenderDataListType::Clone() {
    return Framework::Clone(*this, s_Table);
}

bool TenderDataListType::DumpMergeContents(const zelString& sParentQuery, FullFunctionXMLDataWrapper* pOutput,
                                           int QueryPos, bool bIncludeMergeAttributes) {
    return Framework::DumpByQuery(*this, s_Table, sParentQuery, pOutput, QueryPos, bIncludeMergeAttributes);
}

bool TenderDataListType::DumpMergeContentsII(DOMNode* pParentNode, FullFunctionXMLDataWrapper* pOutput,
                                             DOMNode*& pPassedCurrent, bool bIncludeMergeAttributes) {
    return Framework::DumpByNode(*this, s_Table, pParentNode, pOutput, pPassedCurrent, bIncludeMergeAttributes);
}

bool TenderDataListType::UpdateContainedData() {
    return Framework::Update(*this, s_Table);
}

bool TenderDataListType::PopulateDataMembers(XalanNode* pNode) {
    return Framework::Populate(*this, s_Table, pNode);
}

void TenderDataListType::ResetDataMembers() {
    Framework::Reset(*this, s_Table);
}

int TenderDataListType::GetTenderDataEntryLength() {
    return Framework::ListLength(m_TenderDataEntryList);
}

TenderDataEntryType* TenderDataListType::GetTenderDataEntry(int Index) {
    return static_cast<TenderDataEntryType*>(Framework::EntryAt(m_TenderDataEntryList, Index));
}

TenderDataEntryType* TenderDataListType::GetTenderDataEntry(const zelString& sName) {
    return static_cast<TenderDataEntryType*>(Framework::EntryByKey(m_MapTenderDataEntryList, sName));
}

void TenderDataListType::AddNewTenderDataEntry(TenderDataEntryType* szNew, const zelString& sName) {
    Framework::AddNewKeyed(m_MapTenderDataEntryList, m_TenderDataEntryList, szNew, sName);
}

void TenderDataListType::RemoveTenderDataEntry(const zelString& sName, const zelString& sFeatureId) {
    Framework::RemoveKeyed(*this, s_Rows[0], sName, sFeatureId);
}

bool TenderDataListType::AutoFillTypeInfo() {
    return true;
}

void TenderDataListType::AddTenderDataEntry(XMLDataWrapper* pData, XalanNode* spNode, const zelString& sName) {
    Framework::AddKeyed(*this, s_Rows[0], pData, spNode, sName, __LINE__);
}

void TenderDataListType::ClearTenderDataEntry() {
    Framework::ClearKeyed(m_MapTenderDataEntryList, m_TenderDataEntryList);
}
