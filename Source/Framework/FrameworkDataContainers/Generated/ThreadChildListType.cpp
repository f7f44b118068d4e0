// Generated from LoadConfig.xsd; do not edit. Regenerate with the target "generate".
#include "FrameworkDataContainers/ThreadChildListType.h"

#include "Framework/FrameworkDataContainers/Walks/Lists.h"
#include "Framework/FrameworkDataContainers/Walks/Walks.h"
#include "FrameworkDataContainers/ChildThreadType.h"
#include "FrameworkDataContainers/DataStorageContainerType.h"

// clang-format off
constinit const Framework::FieldRow ThreadChildListType::s_Rows[] = {
    Framework::KeyedList<ChildThreadType, &ChildThreadType::GetUniqueName, &ThreadChildListType::AddChildThread, &ThreadChildListType::ClearChildThread>("ChildThread", "ChildThreadType", "UniqueName", &ThreadChildListType::m_MapChildThreadList, &ThreadChildListType::m_ChildThreadList),
    Framework::PlainList<DataStorageContainerType, &ThreadChildListType::AddDataStorageContainer, &ThreadChildListType::ClearDataStorageContainer>("DataStorageContainer", "DataStorageContainerType", &ThreadChildListType::m_DataStorageContainerList),
    Framework::Attribute("UniqueName", &ThreadChildListType::m_UniqueName),
};

constinit const Framework::FieldTable ThreadChildListType::s_Table = {
    .className = "ThreadChildListType",
    .elementName = "ThreadChildList",
    .parent = nullptr,
    .isStructuralConfigLoader = false,
    .isRoot = false,
    .rows = s_Rows,
    .create = &Framework::CreateContainer<ThreadChildListType>,
    .type = &typeid(ThreadChildListType),
    .autoFill = Framework::ToBase(&ThreadChildListType::m_bAutoFillTypeInfo),
};
// clang-format on

ThreadChildListType::ThreadChildListType(bool bBuildFromScratch) : TypedDataContainer(bBuildFromScratch) {
    Framework::NameByClass(*this, s_Table);
}

ThreadChildListType::~ThreadChildListType() {
    ThreadChildListType::ClearChildThread();
    ThreadChildListType::ClearDataStorageContainer();
}

zelString ThreadChildListType::GetBaseType() {
    return "ThreadChildListType";
}

void ThreadChildListType::GetProperties(ParameterList& pList) {
    Framework::Properties(*this, s_Table, pList);
}

bool ThreadChildListType::MergeDataMembers(XMLDataWrapper* pMergeData, zelString sFeatureID) {
    return Framework::Merge(*this, s_Table, pMergeData, sFeatureID, __LINE__);
}

zelString ThreadChildListType::GetAttributeList() {
    return Framework::AttributePredicate(*this, s_Table);
}

ParameterList* ThreadChildListType::GetPLAttributeList() {
    return Framework::AttributeParameters(*this, s_Table);
}

TypedDataContainer* ThreadChildListType::Clone() {
    return Framework::Clone(*this, s_Table);
}

bool ThreadChildListType::DumpMergeContents(const zelString& sParentQuery, FullFunctionXMLDataWrapper* pOutput,
                                            int QueryPos, bool bIncludeMergeAttributes) {
    return Framework::DumpByQuery(*this, s_Table, sParentQuery, pOutput, QueryPos, bIncludeMergeAttributes);
}

bool ThreadChildListType::DumpMergeContentsII(DOMNode* pParentNode, FullFunctionXMLDataWrapper* pOutput,
                                              DOMNode*& pPassedCurrent, bool bIncludeMergeAttributes) {
    return Framework::DumpByNode(*this, s_Table, pParentNode, pOutput, pPassedCurrent, bIncludeMergeAttributes);
}

bool ThreadChildListType::UpdateContainedData() {
    return Framework::Update(*this, s_Table);
}

bool ThreadChildListType::PopulateDataMembers(XalanNode* pNode) {
    return Framework::Populate(*this, s_Table, pNode);
}

void ThreadChildListType::ResetDataMembers() {
    Framework::Reset(*this, s_Table);
}

int ThreadChildListType::GetChildThreadLength() {
    return Framework::ListLength(m_ChildThreadList);
}

ChildThreadType* ThreadChildListType::GetChildThread(int Index) {
    return static_cast<ChildThreadType*>(Framework::EntryAt(m_ChildThreadList, Index));
}

ChildThreadType* ThreadChildListType::GetChildThread(const zelString& sName) {
    return static_cast<ChildThreadType*>(Framework::EntryByKey(m_MapChildThreadList, sName));
}

void ThreadChildListType::AddNewChildThread(ChildThreadType* szNew, const zelString& sName) {
    Framework::AddNewKeyed(m_MapChildThreadList, m_ChildThreadList, szNew, sName);
}

void ThreadChildListType::RemoveChildThread(const zelString& sName, const zelString& sFeatureId) {
    Framework::RemoveKeyed(*this, s_Rows[0], sName, sFeatureId);
}

int ThreadChildListType::GetDataStorageContainerLength() {
    return Framework::ListLength(m_DataStorageContainerList);
}

DataStorageContainerType* ThreadChildListType::GetDataStorageContainer(int Index) {
    return static_cast<DataStorageContainerType*>(Framework::GrowTo(*this, s_Rows[1], Index));
}

void ThreadChildListType::AddNewDataStorageContainer(DataStorageContainerType* szNew) {
    Framework::AddNewPlain(m_DataStorageContainerList, szNew);
}

zelString ThreadChildListType::GetUniqueName() {
    return m_UniqueName;
}

void ThreadChildListType::SetUniqueName(LPCTSTR szNew) {
    m_UniqueName = szNew;
}

bool ThreadChildListType::AutoFillTypeInfo() {
    return true;
}

void ThreadChildListType::AddChildThread(XMLDataWrapper* pData, XalanNode* spNode, const zelString& sName) {
    Framework::AddKeyed(*this, s_Rows[0], pData, spNode, sName, __LINE__);
}

void ThreadChildListType::ClearChildThread() {
    Framework::ClearKeyed(m_MapChildThreadList, m_ChildThreadList);
}

void ThreadChildListType::AddDataStorageContainer(XMLDataWrapper* pData, XalanNode* spNode) {
    Framework::AddPlain(*this, s_Rows[1], pData, spNode);
}

void ThreadChildListType::ClearDataStorageContainer() {
    Framework::ClearPlain(m_DataStorageContainerList);
}
