// Generated from TranslationConfig.xsd; do not edit. Regenerate with the target "generate".
#include "FrameworkDataContainers/TranslationTextType.h"

#include "Framework/FrameworkDataContainers/Walks/Lists.h"
#include "Framework/FrameworkDataContainers/Walks/Walks.h"
#include "FrameworkDataContainers/TranslationKeyMapType.h"

// clang-format off
constinit const Framework::FieldRow TranslationTextType::s_Rows[] = {
    Framework::KeyedList<TranslationKeyMapType, &TranslationKeyMapType::Getlanguage, &TranslationTextType::AddTranslationKeyMap, &TranslationTextType::ClearTranslationKeyMap>("TranslationKeyMap", "TranslationKeyMapType", "language", &TranslationTextType::m_MapTranslationKeyMapList, &TranslationTextType::m_TranslationKeyMapList),
};

constinit const Framework::FieldTable TranslationTextType::s_Table = {
    .className = "TranslationTextType",
    .elementName = "TranslationText",
    .parent = nullptr,
    .isStructuralConfigLoader = false,
    .isRoot = false,
    .rows = s_Rows,
    .create = &Framework::CreateContainer<TranslationTextType>,
    .type = &typeid(TranslationTextType),
    .autoFill = Framework::ToBase(&TranslationTextType::m_bAutoFillTypeInfo),
};
// clang-format on

TranslationTextType::TranslationTextType(bool bBuildFromScratch) : TypedDataContainer(bBuildFromScratch) {
    Framework::NameByClass(*this, s_Table);
}

TranslationTextType::~TranslationTextType() {
    TranslationTextType::ClearTranslationKeyMap();
}

zelString TranslationTextType::GetBaseType() {
    return "TranslationTextType";
}

void TranslationTextType::GetProperties(ParameterList& pList) {
    Framework::Properties(*this, s_Table, pList);
}

bool TranslationTextType::MergeDataMembers(XMLDataWrapper* pMergeData, zelString sFeatureID) {
    return Framework::Merge(*this, s_Table, pMergeData, sFeatureID, __LINE__);
}

zelString TranslationTextType::GetAttributeList() {
    return Framework::AttributePredicate(*this, s_Table);
}

ParameterList* TranslationTextType::GetPLAttributeList() {
    return Framework::AttributeParameters(*this, s_Table);
}

TypedDataContainer* TranslationTextType::Clone() {
    return Framework::Clone(*this, s_Table);
}

bool TranslationTextType::DumpMergeContents(const zelString& sParentQuery, FullFunctionXMLDataWrapper* pOutput,
                                            int QueryPos, bool bIncludeMergeAttributes) {
    return Framework::DumpByQuery(*this, s_Table, sParentQuery, pOutput, QueryPos, bIncludeMergeAttributes);
}

bool TranslationTextType::DumpMergeContentsII(DOMNode* pParentNode, FullFunctionXMLDataWrapper* pOutput,
                                              DOMNode*& pPassedCurrent, bool bIncludeMergeAttributes) {
    return Framework::DumpByNode(*this, s_Table, pParentNode, pOutput, pPassedCurrent, bIncludeMergeAttributes);
}

bool TranslationTextType::UpdateContainedData() {
    return Framework::Update(*this, s_Table);
}

bool TranslationTextType::PopulateDataMembers(XalanNode* pNode) {
    return Framework::Populate(*this, s_Table, pNode);
}

void TranslationTextType::ResetDataMembers() {
    Framework::Reset(*this, s_Table);
}

int TranslationTextType::GetTranslationKeyMapLength() {
    return Framework::ListLength(m_TranslationKeyMapList);
}

TranslationKeyMapType* TranslationTextType::GetTranslationKeyMap(int Index) {
    return static_cast<TranslationKeyMapType*>(Framework::EntryAt(m_TranslationKeyMapList, Index));
}

TranslationKeyMapType* TranslationTextType::GetTranslationKeyMap(const zelString& sName) {
    return static_cast<TranslationKeyMapType*>(Framework::EntryByKey(m_MapTranslationKeyMapList, sName));
}

void TranslationTextType::AddNewTranslationKeyMap(TranslationKeyMapType* szNew, const zelString& sName) {
    Framework::AddNewKeyed(m_MapTranslationKeyMapList, m_TranslationKeyMapList, szNew, sName);
}

void TranslationTextType::RemoveTranslationKeyMap(const zelString& sName, const zelString& sFeatureId) {
    Framework::RemoveKeyed(*this, s_Rows[0], sName, sFeatureId);
}

bool TranslationTextType::AutoFillTypeInfo() {
    return true;
}

void TranslationTextType::AddTranslationKeyMap(XMLDataWrapper* pData, XalanNode* spNode, const zelString& sName) {
    Framework::AddKeyed(*this, s_Rows[0], pData, spNode, sName, __LINE__);
}

void TranslationTextType::ClearTranslationKeyMap() {
    Framework::ClearKeyed(m_MapTranslationKeyMapList, m_TranslationKeyMapList);
}
