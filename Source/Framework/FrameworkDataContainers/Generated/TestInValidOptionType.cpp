// Generated from ConfigDefRoot.xsd; do not edit. Regenerate with the target "generate".
#include "FrameworkDataContainers/TestInValidOptionType.h"

#include "Framework/FrameworkDataContainers/Walks/Lists.h"
#include "Framework/FrameworkDataContainers/Walks/Walks.h"

// clang-format off
constinit const Framework::FieldRow TestInValidOptionType::s_Rows[] = {
    Framework::Element("OptionName", &TestInValidOptionType::m_OptionName),
    Framework::Element("Value", &TestInValidOptionType::m_Value),
};

constinit const Framework::FieldTable TestInValidOptionType::s_Table = {
    .className = "TestInValidOptionType",
    .elementName = "TestInValidOption",
    .parent = nullptr,
    .isStructuralConfigLoader = false,
    .isRoot = false,
    .rows = s_Rows,
    .create = &Framework::CreateContainer<TestInValidOptionType>,
    .type = &typeid(TestInValidOptionType),
    .autoFill = Framework::ToBase(&TestInValidOptionType::m_bAutoFillTypeInfo),
};
// clang-format on

TestInValidOptionType::TestInValidOptionType(bool bBuildFromScratch) : TypedDataContainer(bBuildFromScratch) {
    Framework::NameByClass(*this, s_Table);
}

TestInValidOptionType::~TestInValidOptionType() {}

zelString TestInValidOptionType::GetBaseType() {
    return "TestInValidOptionType";
}

void TestInValidOptionType::GetProperties(ParameterList& pList) {
    Framework::Properties(*this, s_Table, pList);
}

bool TestInValidOptionType::MergeDataMembers(XMLDataWrapper* pMergeData, zelString sFeatureID) {
    return Framework::Merge(*this, s_Table, pMergeData, sFeatureID, __LINE__);
}

zelString TestInValidOptionType::GetAttributeList() {
    return Framework::AttributePredicate(*this, s_Table);
}

ParameterList* TestInValidOptionType::GetPLAttributeList() {
    return Framework::AttributeParameters(*this, s_Table);
}

TypedDataContainer* TestInValidOptionType::Clone() {
    return Framework::Clone(*this, s_Table);
}

bool TestInValidOptionType::DumpMergeContents(const zelString& sParentQuery, FullFunctionXMLDataWrapper* pOutput,
                                              int QueryPos, bool bIncludeMergeAttributes) {
    return Framework::DumpByQuery(*this, s_Table, sParentQuery, pOutput, QueryPos, bIncludeMergeAttributes);
}

bool TestInValidOptionType::DumpMergeContentsII(DOMNode* pParentNode, FullFunctionXMLDataWrapper* pOutput,
                                                DOMNode*& pPassedCurrent, bool bIncludeMergeAttributes) {
    return Framework::DumpByNode(*this, s_Table, pParentNode, pOutput, pPassedCurrent, bIncludeMergeAttributes);
}

bool TestInValidOptionType::UpdateContainedData() {
    return Framework::Update(*this, s_Table);
}

bool TestInValidOptionType::PopulateDataMembers(XalanNode* pNode) {
    return Framework::Populate(*this, s_Table, pNode);
}

void TestInValidOptionType::ResetDataMembers() {
    Framework::Reset(*this, s_Table);
}

zelString TestInValidOptionType::GetOptionName() {
    return m_OptionName;
}

void TestInValidOptionType::SetOptionName(LPCTSTR szNew) {
    m_OptionName = szNew;
}

zelString TestInValidOptionType::GetValue() {
    return m_Value;
}

void TestInValidOptionType::SetValue(LPCTSTR szNew) {
    m_Value = szNew;
}

bool TestInValidOptionType::AutoFillTypeInfo() {
    return true;
}
