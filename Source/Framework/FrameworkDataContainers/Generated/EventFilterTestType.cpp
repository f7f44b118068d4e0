// Generated from StateTriggerFilterDef.xsd; do not edit. Regenerate with the target "generate".
#include "FrameworkDataContainers/EventFilterTestType.h"

#include "Framework/FrameworkDataContainers/Walks/Lists.h"
#include "Framework/FrameworkDataContainers/Walks/Walks.h"
#include "FrameworkDataContainers/FilterPropertyTestType.h"
#include "FrameworkDataContainers/TestFilterType.h"

// clang-format off
constinit const Framework::FieldRow EventFilterTestType::s_Rows[] = {
    Framework::KeyedList<FilterPropertyTestType, &FilterPropertyTestType::GetName, &EventFilterTestType::AddFilterPropertyTest, &EventFilterTestType::ClearFilterPropertyTest>("FilterPropertyTest", "FilterPropertyTestType", "Name", &EventFilterTestType::m_MapFilterPropertyTestList, &EventFilterTestType::m_FilterPropertyTestList),
    Framework::KeyedList<TestFilterType, &TestFilterType::GetIndex, &EventFilterTestType::AddTestFilter, &EventFilterTestType::ClearTestFilter>("TestFilter", "TestFilterType", "Index", &EventFilterTestType::m_MapTestFilterList, &EventFilterTestType::m_TestFilterList),
    Framework::Attribute("Index", &EventFilterTestType::m_Index),
    Framework::Attribute("Doc", &EventFilterTestType::m_Doc),
};

constinit const Framework::FieldTable EventFilterTestType::s_Table = {
    .className = "EventFilterTestType",
    .elementName = "EventFilterTest",
    .parent = nullptr,
    .isStructuralConfigLoader = false,
    .isRoot = false,
    .rows = s_Rows,
    .create = &Framework::CreateContainer<EventFilterTestType>,
    .type = &typeid(EventFilterTestType),
    .autoFill = Framework::ToBase(&EventFilterTestType::m_bAutoFillTypeInfo),
};
// clang-format on

EventFilterTestType::EventFilterTestType(bool bBuildFromScratch) : TypedDataContainer(bBuildFromScratch) {
    Framework::NameByClass(*this, s_Table);
}

EventFilterTestType::~EventFilterTestType() {
    EventFilterTestType::ClearFilterPropertyTest();
    EventFilterTestType::ClearTestFilter();
}

zelString EventFilterTestType::GetBaseType() {
    return "EventFilterTestType";
}

void EventFilterTestType::GetProperties(ParameterList& pList) {
    Framework::Properties(*this, s_Table, pList);
}

bool EventFilterTestType::MergeDataMembers(XMLDataWrapper* pMergeData, zelString sFeatureID) {
    return Framework::Merge(*this, s_Table, pMergeData, sFeatureID, __LINE__);
}

zelString EventFilterTestType::GetAttributeList() {
    return Framework::AttributePredicate(*this, s_Table);
}

ParameterList* EventFilterTestType::GetPLAttributeList() {
    return Framework::AttributeParameters(*this, s_Table);
}

TypedDataContainer* EventFilterTestType::Clone() {
    return Framework::Clone(*this, s_Table);
}

bool EventFilterTestType::DumpMergeContents(const zelString& sParentQuery, FullFunctionXMLDataWrapper* pOutput,
                                            int QueryPos, bool bIncludeMergeAttributes) {
    return Framework::DumpByQuery(*this, s_Table, sParentQuery, pOutput, QueryPos, bIncludeMergeAttributes);
}

bool EventFilterTestType::DumpMergeContentsII(DOMNode* pParentNode, FullFunctionXMLDataWrapper* pOutput,
                                              DOMNode*& pPassedCurrent, bool bIncludeMergeAttributes) {
    return Framework::DumpByNode(*this, s_Table, pParentNode, pOutput, pPassedCurrent, bIncludeMergeAttributes);
}

bool EventFilterTestType::UpdateContainedData() {
    return Framework::Update(*this, s_Table);
}

bool EventFilterTestType::PopulateDataMembers(XalanNode* pNode) {
    return Framework::Populate(*this, s_Table, pNode);
}

void EventFilterTestType::ResetDataMembers() {
    Framework::Reset(*this, s_Table);
}

int EventFilterTestType::GetFilterPropertyTestLength() {
    return Framework::ListLength(m_FilterPropertyTestList);
}

FilterPropertyTestType* EventFilterTestType::GetFilterPropertyTest(int Index) {
    return static_cast<FilterPropertyTestType*>(Framework::EntryAt(m_FilterPropertyTestList, Index));
}

FilterPropertyTestType* EventFilterTestType::GetFilterPropertyTest(const zelString& sName) {
    return static_cast<FilterPropertyTestType*>(Framework::EntryByKey(m_MapFilterPropertyTestList, sName));
}

void EventFilterTestType::AddNewFilterPropertyTest(FilterPropertyTestType* szNew, const zelString& sName) {
    Framework::AddNewKeyed(m_MapFilterPropertyTestList, m_FilterPropertyTestList, szNew, sName);
}

void EventFilterTestType::RemoveFilterPropertyTest(const zelString& sName, const zelString& sFeatureId) {
    Framework::RemoveKeyed(*this, s_Rows[0], sName, sFeatureId);
}

int EventFilterTestType::GetTestFilterLength() {
    return Framework::ListLength(m_TestFilterList);
}

TestFilterType* EventFilterTestType::GetTestFilter(int Index) {
    return static_cast<TestFilterType*>(Framework::EntryAt(m_TestFilterList, Index));
}

TestFilterType* EventFilterTestType::GetTestFilter(const zelString& sName) {
    return static_cast<TestFilterType*>(Framework::EntryByKey(m_MapTestFilterList, sName));
}

void EventFilterTestType::AddNewTestFilter(TestFilterType* szNew, const zelString& sName) {
    Framework::AddNewKeyed(m_MapTestFilterList, m_TestFilterList, szNew, sName);
}

void EventFilterTestType::RemoveTestFilter(const zelString& sName, const zelString& sFeatureId) {
    Framework::RemoveKeyed(*this, s_Rows[1], sName, sFeatureId);
}

zelString EventFilterTestType::GetIndex() {
    return m_Index;
}

void EventFilterTestType::SetIndex(LPCTSTR szNew) {
    m_Index = szNew;
}

zelString EventFilterTestType::GetDoc() {
    return m_Doc;
}

void EventFilterTestType::SetDoc(LPCTSTR szNew) {
    m_Doc = szNew;
}

bool EventFilterTestType::AutoFillTypeInfo() {
    return true;
}

void EventFilterTestType::AddFilterPropertyTest(XMLDataWrapper* pData, XalanNode* spNode, const zelString& sName) {
    Framework::AddKeyed(*this, s_Rows[0], pData, spNode, sName, __LINE__);
}

void EventFilterTestType::ClearFilterPropertyTest() {
    Framework::ClearKeyed(m_MapFilterPropertyTestList, m_FilterPropertyTestList);
}

void EventFilterTestType::AddTestFilter(XMLDataWrapper* pData, XalanNode* spNode, const zelString& sName) {
    Framework::AddKeyed(*this, s_Rows[1], pData, spNode, sName, __LINE__);
}

void EventFilterTestType::ClearTestFilter() {
    Framework::ClearKeyed(m_MapTestFilterList, m_TestFilterList);
}
