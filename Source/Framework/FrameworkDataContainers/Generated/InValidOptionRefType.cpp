// Generated from ConfigDefRoot.xsd; do not edit. Regenerate with the target "generate".
#include "FrameworkDataContainers/InValidOptionRefType.h"

#include "Framework/FrameworkDataContainers/Walks/Lists.h"
#include "Framework/FrameworkDataContainers/Walks/Walks.h"
#include "FrameworkDataContainers/TestInValidOptionType.h"

// clang-format off
constinit const Framework::FieldRow InValidOptionRefType::s_Rows[] = {
    Framework::Element("FailedAction", &InValidOptionRefType::m_FailedAction),
    Framework::Element("NewDefault", &InValidOptionRefType::m_NewDefault),
    Framework::PlainList<TestInValidOptionType, &InValidOptionRefType::AddTestInValidOption, &InValidOptionRefType::ClearTestInValidOption>("TestInValidOption", "TestInValidOptionType", &InValidOptionRefType::m_TestInValidOptionList),
    Framework::Attribute("Value", &InValidOptionRefType::m_Value),
};

constinit const Framework::FieldTable InValidOptionRefType::s_Table = {
    .className = "InValidOptionRefType",
    .elementName = "InValidOptionRef",
    .parent = nullptr,
    .isStructuralConfigLoader = false,
    .isRoot = false,
    .rows = s_Rows,
    .create = &Framework::CreateContainer<InValidOptionRefType>,
    .type = &typeid(InValidOptionRefType),
    .autoFill = Framework::ToBase(&InValidOptionRefType::m_bAutoFillTypeInfo),
};
// clang-format on

InValidOptionRefType::InValidOptionRefType(bool bBuildFromScratch) : TypedDataContainer(bBuildFromScratch) {
    Framework::NameByClass(*this, s_Table);
}

InValidOptionRefType::~InValidOptionRefType() {
    InValidOptionRefType::ClearTestInValidOption();
}

zelString InValidOptionRefType::GetBaseType() {
    return "InValidOptionRefType";
}

void InValidOptionRefType::GetProperties(ParameterList& pList) {
    Framework::Properties(*this, s_Table, pList);
}

bool InValidOptionRefType::MergeDataMembers(XMLDataWrapper* pMergeData, zelString sFeatureID) {
    return Framework::Merge(*this, s_Table, pMergeData, sFeatureID, __LINE__);
}

zelString InValidOptionRefType::GetAttributeList() {
    return Framework::AttributePredicate(*this, s_Table);
}

ParameterList* InValidOptionRefType::GetPLAttributeList() {
    return Framework::AttributeParameters(*this, s_Table);
}

TypedDataContainer* InValidOptionRefType::Clone() {
    return Framework::Clone(*this, s_Table);
}

bool InValidOptionRefType::DumpMergeContents(const zelString& sParentQuery, FullFunctionXMLDataWrapper* pOutput,
                                             int QueryPos, bool bIncludeMergeAttributes) {
    return Framework::DumpByQuery(*this, s_Table, sParentQuery, pOutput, QueryPos, bIncludeMergeAttributes);
}

bool InValidOptionRefType::DumpMergeContentsII(DOMNode* pParentNode, FullFunctionXMLDataWrapper* pOutput,
                                               DOMNode*& pPassedCurrent, bool bIncludeMergeAttributes) {
    return Framework::DumpByNode(*this, s_Table, pParentNode, pOutput, pPassedCurrent, bIncludeMergeAttributes);
}

bool InValidOptionRefType::UpdateContainedData() {
    return Framework::Update(*this, s_Table);
}

bool InValidOptionRefType::PopulateDataMembers(XalanNode* pNode) {
    return Framework::Populate(*this, s_Table, pNode);
}

void InValidOptionRefType::ResetDataMembers() {
    Framework::Reset(*this, s_Table);
}

zelString InValidOptionRefType::GetFailedAction() {
    return m_FailedAction;
}

void InValidOptionRefType::SetFailedAction(LPCTSTR szNew) {
    m_FailedAction = szNew;
}

zelString InValidOptionRefType::GetNewDefault() {
    return m_NewDefault;
}

void InValidOptionRefType::SetNewDefault(LPCTSTR szNew) {
    m_NewDefault = szNew;
}

int InValidOptionRefType::GetTestInValidOptionLength() {
    return Framework::ListLength(m_TestInValidOptionList);
}

TestInValidOptionType* InValidOptionRefType::GetTestInValidOption(int Index) {
    return static_cast<TestInValidOptionType*>(Framework::GrowTo(*this, s_Rows[2], Index));
}

void InValidOptionRefType::AddNewTestInValidOption(TestInValidOptionType* szNew) {
    Framework::AddNewPlain(m_TestInValidOptionList, szNew);
}

zelString InValidOptionRefType::GetValue() {
    return m_Value;
}

void InValidOptionRefType::SetValue(LPCTSTR szNew) {
    m_Value = szNew;
}

bool InValidOptionRefType::AutoFillTypeInfo() {
    return true;
}

void InValidOptionRefType::AddTestInValidOption(XMLDataWrapper* pData, XalanNode* spNode) {
    Framework::AddPlain(*this, s_Rows[2], pData, spNode);
}

void InValidOptionRefType::ClearTestInValidOption() {
    Framework::ClearPlain(m_TestInValidOptionList);
}
