// Generated from StateTriggerFilterDef.xsd; do not edit. Regenerate with the target "generate".
#include "FrameworkDataContainers/TestFilterType.h"

#include "Framework/FrameworkDataContainers/Walks/Lists.h"
#include "Framework/FrameworkDataContainers/Walks/Walks.h"
#include "FrameworkDataContainers/FilterPropertyTestType.h"

// clang-format off
constinit const Framework::FieldRow TestFilterType::s_Rows[] = {
    Framework::Element("TestQuery", &TestFilterType::m_TestQuery),
    Framework::Child<&TestFilterType::m_TestValue>("TestValue", "FilterPropertyTestType"),
    Framework::Element("TestExists", &TestFilterType::m_TestExists),
    Framework::Element("TriggerResponse", &TestFilterType::m_TriggerResponse),
    Framework::Attribute("Index", &TestFilterType::m_Index),
};

constinit const Framework::FieldTable TestFilterType::s_Table = {
    .className = "TestFilterType",
    .elementName = "TestFilter",
    .parent = nullptr,
    .isStructuralConfigLoader = false,
    .isRoot = false,
    .rows = s_Rows,
    .create = &Framework::CreateContainer<TestFilterType>,
    .type = &typeid(TestFilterType),
    .autoFill = Framework::ToBase(&TestFilterType::m_bAutoFillTypeInfo),
};
// clang-format on

TestFilterType::TestFilterType(bool bBuildFromScratch) : TypedDataContainer(bBuildFromScratch) {
    Framework::NameByClass(*this, s_Table);
}

TestFilterType::~TestFilterType() {
    delete m_TestValue;
}

zelString TestFilterType::GetBaseType() {
    return "TestFilterType";
}

void TestFilterType::GetProperties(ParameterList& pList) {
    Framework::Properties(*this, s_Table, pList);
}

bool TestFilterType::MergeDataMembers(XMLDataWrapper* pMergeData, zelString sFeatureID) {
    return Framework::Merge(*this, s_Table, pMergeData, sFeatureID, __LINE__);
}

zelString TestFilterType::GetAttributeList() {
    return Framework::AttributePredicate(*this, s_Table);
}

ParameterList* TestFilterType::GetPLAttributeList() {
    return Framework::AttributeParameters(*this, s_Table);
}

TypedDataContainer* TestFilterType::Clone() {
    return Framework::Clone(*this, s_Table);
}

bool TestFilterType::DumpMergeContents(const zelString& sParentQuery, FullFunctionXMLDataWrapper* pOutput, int QueryPos,
                                       bool bIncludeMergeAttributes) {
    return Framework::DumpByQuery(*this, s_Table, sParentQuery, pOutput, QueryPos, bIncludeMergeAttributes);
}

bool TestFilterType::DumpMergeContentsII(DOMNode* pParentNode, FullFunctionXMLDataWrapper* pOutput,
                                         DOMNode*& pPassedCurrent, bool bIncludeMergeAttributes) {
    return Framework::DumpByNode(*this, s_Table, pParentNode, pOutput, pPassedCurrent, bIncludeMergeAttributes);
}

bool TestFilterType::UpdateContainedData() {
    return Framework::Update(*this, s_Table);
}

bool TestFilterType::PopulateDataMembers(XalanNode* pNode) {
    return Framework::Populate(*this, s_Table, pNode);
}

void TestFilterType::ResetDataMembers() {
    Framework::Reset(*this, s_Table);
}

zelString TestFilterType::GetTestQuery() {
    return m_TestQuery;
}

void TestFilterType::SetTestQuery(LPCTSTR szNew) {
    m_TestQuery = szNew;
}

FilterPropertyTestType* TestFilterType::GetTestValue() {
    return m_TestValue;
}

void TestFilterType::SetTestValue(FilterPropertyTestType* szNew) {
    Framework::ReplaceChild(m_TestValue, szNew);
}

bool TestFilterType::GetTestExists() {
    return m_TestExists;
}

void TestFilterType::SetTestExists(bool szNew) {
    m_TestExists = szNew;
}

zelString TestFilterType::GetTriggerResponse() {
    return m_TriggerResponse;
}

void TestFilterType::SetTriggerResponse(LPCTSTR szNew) {
    m_TriggerResponse = szNew;
}

zelString TestFilterType::GetIndex() {
    return m_Index;
}

void TestFilterType::SetIndex(LPCTSTR szNew) {
    m_Index = szNew;
}

bool TestFilterType::AutoFillTypeInfo() {
    return true;
}
