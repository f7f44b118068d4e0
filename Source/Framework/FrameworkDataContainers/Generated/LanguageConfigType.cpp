// Generated from LanguageConfig.xsd; do not edit. Regenerate with the target "generate".
#include "FrameworkDataContainers/LanguageConfigType.h"

#include "Framework/FrameworkDataContainers/Walks/Lists.h"
#include "Framework/FrameworkDataContainers/Walks/Walks.h"
#include "FrameworkDataContainers/LanguageListType.h"

// clang-format off
constinit const Framework::FieldRow LanguageConfigType::s_Rows[] = {
    Framework::Child<&LanguageConfigType::m_LanguageList>("LanguageList", "LanguageListType"),
};

constinit const Framework::FieldTable LanguageConfigType::s_Table = {
    .className = "LanguageConfigType",
    .elementName = "LanguageConfig",
    .parent = nullptr,
    .isStructuralConfigLoader = true,
    .isRoot = true,
    .rows = s_Rows,
    .create = &Framework::CreateContainer<LanguageConfigType>,
    .type = &typeid(LanguageConfigType),
    .autoFill = Framework::ToBase(&LanguageConfigType::m_bAutoFillTypeInfo),
};
// clang-format on

LanguageConfigType::LanguageConfigType(bool bBuildFromScratch) : StructuralConfigLoader(bBuildFromScratch) {
    Framework::NameByClass(*this, s_Table);
}

LanguageConfigType::~LanguageConfigType() {
    delete m_LanguageList;
}

zelString LanguageConfigType::GetBaseType() {
    return "LanguageConfigType";
}

void LanguageConfigType::GetProperties(ParameterList& pList) {
    Framework::Properties(*this, s_Table, pList);
}

bool LanguageConfigType::MergeDataMembers(XMLDataWrapper* pMergeData, zelString sFeatureID) {
    return Framework::Merge(*this, s_Table, pMergeData, sFeatureID, __LINE__);
}

zelString LanguageConfigType::GetAttributeList() {
    return Framework::AttributePredicate(*this, s_Table);
}

ParameterList* LanguageConfigType::GetPLAttributeList() {
    return Framework::AttributeParameters(*this, s_Table);
}

TypedDataContainer* LanguageConfigType::Clone() {
    return Framework::Clone(*this, s_Table);
}

bool LanguageConfigType::DumpMergeContents(const zelString& sParentQuery, FullFunctionXMLDataWrapper* pOutput,
                                           int QueryPos, bool bIncludeMergeAttributes) {
    return Framework::DumpByQuery(*this, s_Table, sParentQuery, pOutput, QueryPos, bIncludeMergeAttributes);
}

bool LanguageConfigType::DumpMergeContentsII(DOMNode* pParentNode, FullFunctionXMLDataWrapper* pOutput,
                                             DOMNode*& pPassedCurrent, bool bIncludeMergeAttributes) {
    return Framework::DumpByNode(*this, s_Table, pParentNode, pOutput, pPassedCurrent, bIncludeMergeAttributes);
}

bool LanguageConfigType::UpdateContainedData() {
    return Framework::Update(*this, s_Table);
}

bool LanguageConfigType::PopulateDataMembers(XalanNode* pNode) {
    return Framework::Populate(*this, s_Table, pNode);
}

void LanguageConfigType::ResetDataMembers() {
    Framework::Reset(*this, s_Table);
}

LanguageListType* LanguageConfigType::GetLanguageList() {
    return m_LanguageList;
}

void LanguageConfigType::SetLanguageList(LanguageListType* szNew) {
    Framework::ReplaceChild(m_LanguageList, szNew);
}

bool LanguageConfigType::AutoFillTypeInfo() {
    return true;
}
