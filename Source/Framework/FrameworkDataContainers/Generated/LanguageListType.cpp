// Generated from LanguageConfig.xsd; do not edit. Regenerate with the target "generate".
#include "FrameworkDataContainers/LanguageListType.h"

#include "Framework/FrameworkDataContainers/Walks/Lists.h"
#include "Framework/FrameworkDataContainers/Walks/Walks.h"
#include "FrameworkDataContainers/LanguageDefType.h"

// clang-format off
constinit const Framework::FieldRow LanguageListType::s_Rows[] = {
    Framework::KeyedList<LanguageDefType, &LanguageDefType::Getindex, &LanguageListType::AddLanguage, &LanguageListType::ClearLanguage>("Language", "LanguageDefType", "index", &LanguageListType::m_MapLanguageList, &LanguageListType::m_LanguageList),
};

constinit const Framework::FieldTable LanguageListType::s_Table = {
    .className = "LanguageListType",
    .elementName = "LanguageList",
    .parent = nullptr,
    .isStructuralConfigLoader = false,
    .isRoot = false,
    .rows = s_Rows,
    .create = &Framework::CreateContainer<LanguageListType>,
    .type = &typeid(LanguageListType),
    .autoFill = Framework::ToBase(&LanguageListType::m_bAutoFillTypeInfo),
};
// clang-format on

LanguageListType::LanguageListType(bool bBuildFromScratch) : TypedDataContainer(bBuildFromScratch) {
    Framework::NameByClass(*this, s_Table);
}

LanguageListType::~LanguageListType() {
    LanguageListType::ClearLanguage();
}

zelString LanguageListType::GetBaseType() {
    return "LanguageListType";
}

void LanguageListType::GetProperties(ParameterList& pList) {
    Framework::Properties(*this, s_Table, pList);
}

bool LanguageListType::MergeDataMembers(XMLDataWrapper* pMergeData, zelString sFeatureID) {
    return Framework::Merge(*this, s_Table, pMergeData, sFeatureID, __LINE__);
}

zelString LanguageListType::GetAttributeList() {
    return Framework::AttributePredicate(*this, s_Table);
}

ParameterList* LanguageListType::GetPLAttributeList() {
    return Framework::AttributeParameters(*this, s_Table);
}

TypedDataContainer* LanguageListType::Clone() {
    return Framework::Clone(*this, s_Table);
}

bool LanguageListType::DumpMergeContents(const zelString& sParentQuery, FullFunctionXMLDataWrapper* pOutput,
                                         int QueryPos, bool bIncludeMergeAttributes) {
    return Framework::DumpByQuery(*this, s_Table, sParentQuery, pOutput, QueryPos, bIncludeMergeAttributes);
}

bool LanguageListType::DumpMergeContentsII(DOMNode* pParentNode, FullFunctionXMLDataWrapper* pOutput,
                                           DOMNode*& pPassedCurrent, bool bIncludeMergeAttributes) {
    return Framework::DumpByNode(*this, s_Table, pParentNode, pOutput, pPassedCurrent, bIncludeMergeAttributes);
}

bool LanguageListType::UpdateContainedData() {
    return Framework::Update(*this, s_Table);
}

bool LanguageListType::PopulateDataMembers(XalanNode* pNode) {
    return Framework::Populate(*this, s_Table, pNode);
}

void LanguageListType::ResetDataMembers() {
    Framework::Reset(*this, s_Table);
}

int LanguageListType::GetLanguageLength() {
    return Framework::ListLength(m_LanguageList);
}

LanguageDefType* LanguageListType::GetLanguage(int Index) {
    return static_cast<LanguageDefType*>(Framework::EntryAt(m_LanguageList, Index));
}

LanguageDefType* LanguageListType::GetLanguage(const zelString& sName) {
    return static_cast<LanguageDefType*>(Framework::EntryByKey(m_MapLanguageList, sName));
}

void LanguageListType::AddNewLanguage(LanguageDefType* szNew, const zelString& sName) {
    Framework::AddNewKeyed(m_MapLanguageList, m_LanguageList, szNew, sName);
}

void LanguageListType::RemoveLanguage(const zelString& sName, const zelString& sFeatureId) {
    Framework::RemoveKeyed(*this, s_Rows[0], sName, sFeatureId);
}

bool LanguageListType::AutoFillTypeInfo() {
    return true;
}

void LanguageListType::AddLanguage(XMLDataWrapper* pData, XalanNode* spNode, const zelString& sName) {
    Framework::AddKeyed(*this, s_Rows[0], pData, spNode, sName, __LINE__);
}

void LanguageListType::ClearLanguage() {
    Framework::ClearKeyed(m_MapLanguageList, m_LanguageList);
}
