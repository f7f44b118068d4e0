// Generated from TranslationConfig.xsd; do not edit. Regenerate with the target "generate".
#include "FrameworkDataContainers/TranslationType.h"

#include "Framework/FrameworkDataContainers/Walks/Lists.h"
#include "Framework/FrameworkDataContainers/Walks/Walks.h"

#include <utility>

// clang-format off
constinit const Framework::FieldRow TranslationType::s_Rows[] = {
    Framework::Element("ResultValue", &TranslationType::m_ResultValue),
    Framework::PlainStrings<&TranslationType::AddDoc, &TranslationType::ClearDoc>("Doc", &TranslationType::m_DocList),
    Framework::Attribute("LookupData", &TranslationType::m_LookupData),
};

constinit const Framework::FieldTable TranslationType::s_Table = {
    .className = "TranslationType",
    .elementName = "Translation",
    .parent = nullptr,
    .isStructuralConfigLoader = false,
    .isRoot = false,
    .rows = s_Rows,
    .create = &Framework::CreateContainer<TranslationType>,
    .type = &typeid(TranslationType),
    .autoFill = Framework::ToBase(&TranslationType::m_bAutoFillTypeInfo),
};
// clang-format on

TranslationType::TranslationType(bool bBuildFromScratch) : TypedDataContainer(bBuildFromScratch) {
    Framework::NameByClass(*this, s_Table);
}

TranslationType::~TranslationType() {
    TranslationType::ClearDoc();
}

zelString TranslationType::GetBaseType() {
    return "TranslationType";
}

void TranslationType::GetProperties(ParameterList& pList) {
    Framework::Properties(*this, s_Table, pList);
}

bool TranslationType::MergeDataMembers(XMLDataWrapper* pMergeData, zelString sFeatureID) {
    return Framework::Merge(*this, s_Table, pMergeData, sFeatureID, __LINE__);
}

zelString TranslationType::GetAttributeList() {
    return Framework::AttributePredicate(*this, s_Table);
}

ParameterList* TranslationType::GetPLAttributeList() {
    return Framework::AttributeParameters(*this, s_Table);
}

TypedDataContainer* TranslationType::Clone() {
    return Framework::Clone(*this, s_Table);
}

bool TranslationType::DumpMergeContents(const zelString& sParentQuery, FullFunctionXMLDataWrapper* pOutput,
                                        int QueryPos, bool bIncludeMergeAttributes) {
    return Framework::DumpByQuery(*this, s_Table, sParentQuery, pOutput, QueryPos, bIncludeMergeAttributes);
}

bool TranslationType::DumpMergeContentsII(DOMNode* pParentNode, FullFunctionXMLDataWrapper* pOutput,
                                          DOMNode*& pPassedCurrent, bool bIncludeMergeAttributes) {
    return Framework::DumpByNode(*this, s_Table, pParentNode, pOutput, pPassedCurrent, bIncludeMergeAttributes);
}

bool TranslationType::UpdateContainedData() {
    return Framework::Update(*this, s_Table);
}

bool TranslationType::PopulateDataMembers(XalanNode* pNode) {
    return Framework::Populate(*this, s_Table, pNode);
}

void TranslationType::ResetDataMembers() {
    Framework::Reset(*this, s_Table);
}

zelString TranslationType::GetResultValue() {
    return m_ResultValue;
}

void TranslationType::SetResultValue(LPCTSTR szNew) {
    m_ResultValue = szNew;
}

int TranslationType::GetDocLength() {
    return Framework::ListLength(m_DocList);
}

zelString TranslationType::GetDoc(int Index) {
    return Framework::GrowTo(m_DocList, Index);
}

void TranslationType::AddNewDoc(LPCTSTR szNew) {
    m_DocList.emplace_back(szNew);
}

zelString TranslationType::GetLookupData() {
    return m_LookupData;
}

void TranslationType::SetLookupData(LPCTSTR szNew) {
    m_LookupData = szNew;
}

bool TranslationType::AutoFillTypeInfo() {
    return true;
}

void TranslationType::AddDoc(zelString pData) {
    m_DocList.push_back(std::move(pData));
}

void TranslationType::ClearDoc() {
    m_DocList.clear();
}
