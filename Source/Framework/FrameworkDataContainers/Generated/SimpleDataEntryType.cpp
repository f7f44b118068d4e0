// Generated from ActionData.xsd; do not edit. Regenerate with the target "generate".
#include "FrameworkDataContainers/SimpleDataEntryType.h"

#include "Framework/FrameworkDataContainers/Walks/Lists.h"
#include "Framework/FrameworkDataContainers/Walks/Walks.h"

// clang-format off
constinit const Framework::FieldRow SimpleDataEntryType::s_Rows[] = {
    Framework::KeyedStrings<&SimpleDataEntryType::AddDoc, &SimpleDataEntryType::ClearDoc>("Doc", "Index", true, &SimpleDataEntryType::m_MapDocList, &SimpleDataEntryType::m_DocList),
    Framework::Element("Value", &SimpleDataEntryType::m_Value),
    Framework::Attribute("SourceType", &SimpleDataEntryType::m_SourceType),
    Framework::Attribute("Source", &SimpleDataEntryType::m_Source),
    Framework::Attribute("PreProcess", &SimpleDataEntryType::m_PreProcess),
    Framework::Attribute("RootData", &SimpleDataEntryType::m_RootData),
    Framework::Attribute("ReadOnly", &SimpleDataEntryType::m_ReadOnly),
    Framework::Attribute("ExtraData", &SimpleDataEntryType::m_ExtraData),
};

constinit const Framework::FieldTable SimpleDataEntryType::s_Table = {
    .className = "SimpleDataEntryType",
    .elementName = "SimpleDataEntry",
    .parent = nullptr,
    .isStructuralConfigLoader = false,
    .isRoot = false,
    .rows = s_Rows,
    .create = &Framework::CreateContainer<SimpleDataEntryType>,
    .type = &typeid(SimpleDataEntryType),
    .autoFill = Framework::ToBase(&SimpleDataEntryType::m_bAutoFillTypeInfo),
};
// clang-format on

SimpleDataEntryType::SimpleDataEntryType(bool bBuildFromScratch) : TypedDataContainer(bBuildFromScratch) {
    Framework::NameByClass(*this, s_Table);
}

SimpleDataEntryType::~SimpleDataEntryType() {
    SimpleDataEntryType::ClearDoc();
}

zelString SimpleDataEntryType::GetBaseType() {
    return "SimpleDataEntryType";
}

void SimpleDataEntryType::GetProperties(ParameterList& pList) {
    Framework::Properties(*this, s_Table, pList);
}

bool SimpleDataEntryType::MergeDataMembers(XMLDataWrapper* pMergeData, zelString sFeatureID) {
    return Framework::Merge(*this, s_Table, pMergeData, sFeatureID, __LINE__);
}

zelString SimpleDataEntryType::GetAttributeList() {
    return Framework::AttributePredicate(*this, s_Table);
}

ParameterList* SimpleDataEntryType::GetPLAttributeList() {
    return Framework::AttributeParameters(*this, s_Table);
}

TypedDataContainer* SimpleDataEntryType::Clone() {
    return Framework::Clone(*this, s_Table);
}

bool SimpleDataEntryType::DumpMergeContents(const zelString& sParentQuery, FullFunctionXMLDataWrapper* pOutput,
                                            int QueryPos, bool bIncludeMergeAttributes) {
    return Framework::DumpByQuery(*this, s_Table, sParentQuery, pOutput, QueryPos, bIncludeMergeAttributes);
}

bool SimpleDataEntryType::DumpMergeContentsII(DOMNode* pParentNode, FullFunctionXMLDataWrapper* pOutput,
                                              DOMNode*& pPassedCurrent, bool bIncludeMergeAttributes) {
    return Framework::DumpByNode(*this, s_Table, pParentNode, pOutput, pPassedCurrent, bIncludeMergeAttributes);
}

bool SimpleDataEntryType::UpdateContainedData() {
    return Framework::Update(*this, s_Table);
}

bool SimpleDataEntryType::PopulateDataMembers(XalanNode* pNode) {
    return Framework::Populate(*this, s_Table, pNode);
}

void SimpleDataEntryType::ResetDataMembers() {
    Framework::Reset(*this, s_Table);
}

int SimpleDataEntryType::GetDocLength() {
    return Framework::ListLength(m_DocList);
}

zelString SimpleDataEntryType::GetDoc(int Index) {
    return Framework::TextAt(m_DocList, Index);
}

zelString SimpleDataEntryType::GetDoc(const zelString& sName) {
    return Framework::TextByKey(m_MapDocList, sName);
}

zelString SimpleDataEntryType::GetValue() {
    return m_Value;
}

void SimpleDataEntryType::SetValue(LPCTSTR szNew) {
    m_Value = szNew;
}

zelString SimpleDataEntryType::GetSourceType() {
    return m_SourceType;
}

void SimpleDataEntryType::SetSourceType(LPCTSTR szNew) {
    m_SourceType = szNew;
}

zelString SimpleDataEntryType::GetSource() {
    return m_Source;
}

void SimpleDataEntryType::SetSource(LPCTSTR szNew) {
    m_Source = szNew;
}

zelString SimpleDataEntryType::GetPreProcess() {
    return m_PreProcess;
}

void SimpleDataEntryType::SetPreProcess(LPCTSTR szNew) {
    m_PreProcess = szNew;
}

bool SimpleDataEntryType::GetRootData() {
    return m_RootData;
}

void SimpleDataEntryType::SetRootData(bool szNew) {
    m_RootData = szNew;
}

bool SimpleDataEntryType::GetReadOnly() {
    return m_ReadOnly;
}

void SimpleDataEntryType::SetReadOnly(bool szNew) {
    m_ReadOnly = szNew;
}

zelString SimpleDataEntryType::GetExtraData() {
    return m_ExtraData;
}

void SimpleDataEntryType::SetExtraData(LPCTSTR szNew) {
    m_ExtraData = szNew;
}

bool SimpleDataEntryType::AutoFillTypeInfo() {
    return true;
}

void SimpleDataEntryType::AddDoc(const zelString& pData, const zelString& sName) {
    Framework::AddKeyedText(*this, s_Rows[0], pData, sName, __LINE__);
}

void SimpleDataEntryType::ClearDoc() {
    Framework::ClearKeyedTexts(m_MapDocList, m_DocList);
}
