// Generated from StateTriggerFilterDef.xsd; do not edit. Regenerate with the target "generate".
#include "FrameworkDataContainers/FilterPropertyTestType.h"

#include "Framework/FrameworkDataContainers/Walks/Lists.h"
#include "Framework/FrameworkDataContainers/Walks/Walks.h"
#include "FrameworkDataContainers/VarInputType.h"

// clang-format off
constinit const Framework::FieldRow FilterPropertyTestType::s_Rows[] = {
    Framework::Element("Value", &FilterPropertyTestType::m_Value),
    Framework::Child<&FilterPropertyTestType::m_VarInput>("VarInput", "VarInputType"),
    Framework::Attribute("Name", &FilterPropertyTestType::m_Name),
    Framework::Attribute("MatchType", &FilterPropertyTestType::m_MatchType),
    Framework::Attribute("SourceType", &FilterPropertyTestType::m_SourceType),
    Framework::Attribute("Source", &FilterPropertyTestType::m_Source),
    Framework::Attribute("PreProcess", &FilterPropertyTestType::m_PreProcess),
    Framework::Attribute("RootData", &FilterPropertyTestType::m_RootData),
};

constinit const Framework::FieldTable FilterPropertyTestType::s_Table = {
    .className = "FilterPropertyTestType",
    .elementName = "FilterPropertyTest",
    .parent = nullptr,
    .isStructuralConfigLoader = false,
    .isRoot = false,
    .rows = s_Rows,
    .create = &Framework::CreateContainer<FilterPropertyTestType>,
    .type = &typeid(FilterPropertyTestType),
    .autoFill = Framework::ToBase(&FilterPropertyTestType::m_bAutoFillTypeInfo),
};
// clang-format on

FilterPropertyTestType::FilterPropertyTestType(bool bBuildFromScratch) : TypedDataContainer(bBuildFromScratch) {
    Framework::NameByClass(*this, s_Table);
}

FilterPropertyTestType::~FilterPropertyTestType() {
    delete m_VarInput;
}

zelString FilterPropertyTestType::GetBaseType() {
    return "FilterPropertyTestType";
}

void FilterPropertyTestType::GetProperties(ParameterList& pList) {
    Framework::Properties(*this, s_Table, pList);
}

bool FilterPropertyTestType::MergeDataMembers(XMLDataWrapper* pMergeData, zelString sFeatureID) {
    return Framework::Merge(*this, s_Table, pMergeData, sFeatureID, __LINE__);
}

zelString FilterPropertyTestType::GetAttributeList() {
    return Framework::AttributePredicate(*this, s_Table);
}

ParameterList* FilterPropertyTestType::GetPLAttributeList() {
    return Framework::AttributeParameters(*this, s_Table);
}

TypedDataContainer* FilterPropertyTestType::Clone() {
    return Framework::Clone(*this, s_Table);
}

bool FilterPropertyTestType::DumpMergeContents(const zelString& sParentQuery, FullFunctionXMLDataWrapper* pOutput,
                                               int QueryPos, bool bIncludeMergeAttributes) {
    return Framework::DumpByQuery(*this, s_Table, sParentQuery, pOutput, QueryPos, bIncludeMergeAttributes);
}

bool FilterPropertyTestType::DumpMergeContentsII(DOMNode* pParentNode, FullFunctionXMLDataWrapper* pOutput,
                                                 DOMNode*& pPassedCurrent, bool bIncludeMergeAttributes) {
    return Framework::DumpByNode(*this, s_Table, pParentNode, pOutput, pPassedCurrent, bIncludeMergeAttributes);
}

bool FilterPropertyTestType::UpdateContainedData() {
    return Framework::Update(*this, s_Table);
}

bool FilterPropertyTestType::PopulateDataMembers(XalanNode* pNode) {
    return Framework::Populate(*this, s_Table, pNode);
}

void FilterPropertyTestType::ResetDataMembers() {
    Framework::Reset(*this, s_Table);
}

zelString FilterPropertyTestType::GetValue() {
    return m_Value;
}

void FilterPropertyTestType::SetValue(LPCTSTR szNew) {
    m_Value = szNew;
}

VarInputType* FilterPropertyTestType::GetVarInput() {
    return m_VarInput;
}

void FilterPropertyTestType::SetVarInput(VarInputType* szNew) {
    Framework::ReplaceChild(m_VarInput, szNew);
}

zelString FilterPropertyTestType::GetName() {
    return m_Name;
}

void FilterPropertyTestType::SetName(LPCTSTR szNew) {
    m_Name = szNew;
}

zelString FilterPropertyTestType::GetMatchType() {
    return m_MatchType;
}

void FilterPropertyTestType::SetMatchType(LPCTSTR szNew) {
    m_MatchType = szNew;
}

zelString FilterPropertyTestType::GetSourceType() {
    return m_SourceType;
}

void FilterPropertyTestType::SetSourceType(LPCTSTR szNew) {
    m_SourceType = szNew;
}

zelString FilterPropertyTestType::GetSource() {
    return m_Source;
}

void FilterPropertyTestType::SetSource(LPCTSTR szNew) {
    m_Source = szNew;
}

zelString FilterPropertyTestType::GetPreProcess() {
    return m_PreProcess;
}

void FilterPropertyTestType::SetPreProcess(LPCTSTR szNew) {
    m_PreProcess = szNew;
}

bool FilterPropertyTestType::GetRootData() {
    return m_RootData;
}

void FilterPropertyTestType::SetRootData(bool szNew) {
    m_RootData = szNew;
}

bool FilterPropertyTestType::AutoFillTypeInfo() {
    return true;
}
