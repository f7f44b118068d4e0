// Generated from TranslationConfig.xsd; do not edit. Regenerate with the target "generate".
#include "FrameworkDataContainers/TranslationKeyMapType.h"

#include "Framework/FrameworkDataContainers/Walks/Lists.h"
#include "Framework/FrameworkDataContainers/Walks/Walks.h"
#include "FrameworkDataContainers/TranslationType.h"

// clang-format off
constinit const Framework::FieldRow TranslationKeyMapType::s_Rows[] = {
    Framework::KeyedList<TranslationType, &TranslationType::GetLookupData, &TranslationKeyMapType::AddTranslation, &TranslationKeyMapType::ClearTranslation>("Translation", "TranslationType", "LookupData", &TranslationKeyMapType::m_MapTranslationList, &TranslationKeyMapType::m_TranslationList),
    Framework::Attribute("language", &TranslationKeyMapType::m_language),
};

constinit const Framework::FieldTable TranslationKeyMapType::s_Table = {
    .className = "TranslationKeyMapType",
    .elementName = "TranslationKeyMap",
    .parent = nullptr,
    .isStructuralConfigLoader = false,
    .isRoot = false,
    .rows = s_Rows,
    .create = &Framework::CreateContainer<TranslationKeyMapType>,
    .type = &typeid(TranslationKeyMapType),
    .autoFill = Framework::ToBase(&TranslationKeyMapType::m_bAutoFillTypeInfo),
};
// clang-format on

TranslationKeyMapType::TranslationKeyMapType(bool bBuildFromScratch) : TypedDataContainer(bBuildFromScratch) {
    Framework::NameByClass(*this, s_Table);
}

TranslationKeyMapType::~TranslationKeyMapType() {
    TranslationKeyMapType::ClearTranslation();
}

zelString TranslationKeyMapType::GetBaseType() {
    return "TranslationKeyMapType";
}

void TranslationKeyMapType::GetProperties(ParameterList& pList) {
    Framework::Properties(*this, s_Table, pList);
}

bool TranslationKeyMapType::MergeDataMembers(XMLDataWrapper* pMergeData, zelString sFeatureID) {
    return Framework::Merge(*this, s_Table, pMergeData, sFeatureID, __LINE__);
}

zelString TranslationKeyMapType::GetAttributeList() {
    return Framework::AttributePredicate(*this, s_Table);
}

ParameterList* TranslationKeyMapType::GetPLAttributeList() {
    return Framework::AttributeParameters(*this, s_Table);
}

TypedDataContainer* TranslationKeyMapType::Clone() {
    return Framework::Clone(*this, s_Table);
}

bool TranslationKeyMapType::DumpMergeContents(const zelString& sParentQuery, FullFunctionXMLDataWrapper* pOutput,
                                              int QueryPos, bool bIncludeMergeAttributes) {
    return Framework::DumpByQuery(*this, s_Table, sParentQuery, pOutput, QueryPos, bIncludeMergeAttributes);
}

bool TranslationKeyMapType::DumpMergeContentsII(DOMNode* pParentNode, FullFunctionXMLDataWrapper* pOutput,
                                                DOMNode*& pPassedCurrent, bool bIncludeMergeAttributes) {
    return Framework::DumpByNode(*this, s_Table, pParentNode, pOutput, pPassedCurrent, bIncludeMergeAttributes);
}

bool TranslationKeyMapType::UpdateContainedData() {
    return Framework::Update(*this, s_Table);
}

bool TranslationKeyMapType::PopulateDataMembers(XalanNode* pNode) {
    return Framework::Populate(*this, s_Table, pNode);
}

void TranslationKeyMapType::ResetDataMembers() {
    Framework::Reset(*this, s_Table);
}

int TranslationKeyMapType::GetTranslationLength() {
    return Framework::ListLength(m_TranslationList);
}

TranslationType* TranslationKeyMapType::GetTranslation(int Index) {
    return static_cast<TranslationType*>(Framework::EntryAt(m_TranslationList, Index));
}

TranslationType* TranslationKeyMapType::GetTranslation(const zelString& sName) {
    return static_cast<TranslationType*>(Framework::EntryByKey(m_MapTranslationList, sName));
}

void TranslationKeyMapType::AddNewTranslation(TranslationType* szNew, const zelString& sName) {
    Framework::AddNewKeyed(m_MapTranslationList, m_TranslationList, szNew, sName);
}

void TranslationKeyMapType::RemoveTranslation(const zelString& sName, const zelString& sFeatureId) {
    Framework::RemoveKeyed(*this, s_Rows[0], sName, sFeatureId);
}

zelString TranslationKeyMapType::Getlanguage() {
    return m_language;
}

void TranslationKeyMapType::Setlanguage(LPCTSTR szNew) {
    m_language = szNew;
}

bool TranslationKeyMapType::AutoFillTypeInfo() {
    return true;
}

void TranslationKeyMapType::AddTranslation(XMLDataWrapper* pData, XalanNode* spNode, const zelString& sName) {
    Framework::AddKeyed(*this, s_Rows[0], pData, spNode, sName, __LINE__);
}

void TranslationKeyMapType::ClearTranslation() {
    Framework::ClearKeyed(m_MapTranslationList, m_TranslationList);
}
