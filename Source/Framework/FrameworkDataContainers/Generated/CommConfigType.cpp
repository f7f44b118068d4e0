// Generated from CommConfig.xsd; do not edit. Regenerate with the target "generate".
#include "FrameworkDataContainers/CommConfigType.h"

#include "Framework/FrameworkDataContainers/Walks/Lists.h"
#include "Framework/FrameworkDataContainers/Walks/Walks.h"
#include "FrameworkDataContainers/CommEntryType.h"

// clang-format off
constinit const Framework::FieldRow CommConfigType::s_Rows[] = {
    Framework::KeyedList<CommEntryType, &CommEntryType::Getname, &CommConfigType::AddCommEntry, &CommConfigType::ClearCommEntry>("CommEntry", "CommEntryType", "name", &CommConfigType::m_MapCommEntryList, &CommConfigType::m_CommEntryList),
};

constinit const Framework::FieldTable CommConfigType::s_Table = {
    .className = "CommConfigType",
    .elementName = "CommConfig",
    .parent = nullptr,
    .isStructuralConfigLoader = true,
    .isRoot = true,
    .rows = s_Rows,
    .create = &Framework::CreateContainer<CommConfigType>,
    .type = &typeid(CommConfigType),
    .autoFill = Framework::ToBase(&CommConfigType::m_bAutoFillTypeInfo),
};
// clang-format on

CommConfigType::CommConfigType(bool bBuildFromScratch) : StructuralConfigLoader(bBuildFromScratch) {
    Framework::NameByClass(*this, s_Table);
}

CommConfigType::~CommConfigType() {
    CommConfigType::ClearCommEntry();
}

zelString CommConfigType::GetBaseType() {
    return "CommConfigType";
}

void CommConfigType::GetProperties(ParameterList& pList) {
    Framework::Properties(*this, s_Table, pList);
}

bool CommConfigType::MergeDataMembers(XMLDataWrapper* pMergeData, zelString sFeatureID) {
    return Framework::Merge(*this, s_Table, pMergeData, sFeatureID, __LINE__);
}

zelString CommConfigType::GetAttributeList() {
    return Framework::AttributePredicate(*this, s_Table);
}

ParameterList* CommConfigType::GetPLAttributeList() {
    return Framework::AttributeParameters(*this, s_Table);
}

TypedDataContainer* CommConfigType::Clone() {
    return Framework::Clone(*this, s_Table);
}

bool CommConfigType::DumpMergeContents(const zelString& sParentQuery, FullFunctionXMLDataWrapper* pOutput, int QueryPos,
                                       bool bIncludeMergeAttributes) {
    return Framework::DumpByQuery(*this, s_Table, sParentQuery, pOutput, QueryPos, bIncludeMergeAttributes);
}

bool CommConfigType::DumpMergeContentsII(DOMNode* pParentNode, FullFunctionXMLDataWrapper* pOutput,
                                         DOMNode*& pPassedCurrent, bool bIncludeMergeAttributes) {
    return Framework::DumpByNode(*this, s_Table, pParentNode, pOutput, pPassedCurrent, bIncludeMergeAttributes);
}

bool CommConfigType::UpdateContainedData() {
    return Framework::Update(*this, s_Table);
}

bool CommConfigType::PopulateDataMembers(XalanNode* pNode) {
    return Framework::Populate(*this, s_Table, pNode);
}

void CommConfigType::ResetDataMembers() {
    Framework::Reset(*this, s_Table);
}

int CommConfigType::GetCommEntryLength() {
    return Framework::ListLength(m_CommEntryList);
}

CommEntryType* CommConfigType::GetCommEntry(int Index) {
    return static_cast<CommEntryType*>(Framework::EntryAt(m_CommEntryList, Index));
}

CommEntryType* CommConfigType::GetCommEntry(const zelString& sName) {
    return static_cast<CommEntryType*>(Framework::EntryByKey(m_MapCommEntryList, sName));
}

void CommConfigType::AddNewCommEntry(CommEntryType* szNew, const zelString& sName) {
    Framework::AddNewKeyed(m_MapCommEntryList, m_CommEntryList, szNew, sName);
}

void CommConfigType::RemoveCommEntry(const zelString& sName, const zelString& sFeatureId) {
    Framework::RemoveKeyed(*this, s_Rows[0], sName, sFeatureId);
}

bool CommConfigType::AutoFillTypeInfo() {
    return true;
}

void CommConfigType::AddCommEntry(XMLDataWrapper* pData, XalanNode* spNode, const zelString& sName) {
    Framework::AddKeyed(*this, s_Rows[0], pData, spNode, sName, __LINE__);
}

void CommConfigType::ClearCommEntry() {
    Framework::ClearKeyed(m_MapCommEntryList, m_CommEntryList);
}
