// Generated from LanguageConfig.xsd; do not edit. Regenerate with the target "generate".
#include "FrameworkDataContainers/LanguageDefType.h"

#include "Framework/FrameworkDataContainers/Walks/Lists.h"
#include "Framework/FrameworkDataContainers/Walks/Walks.h"

// clang-format off
constinit const Framework::FieldRow LanguageDefType::s_Rows[] = {
    Framework::Element("Name", &LanguageDefType::m_Name),
    Framework::Element("LanguageCode", &LanguageDefType::m_LanguageCode),
    Framework::Element("Default", &LanguageDefType::m_Default),
    Framework::Attribute("index", &LanguageDefType::m_index),
};

constinit const Framework::FieldTable LanguageDefType::s_Table = {
    .className = "LanguageDefType",
    .elementName = "Language",
    .parent = nullptr,
    .isStructuralConfigLoader = false,
    .isRoot = false,
    .rows = s_Rows,
    .create = &Framework::CreateContainer<LanguageDefType>,
    .type = &typeid(LanguageDefType),
    .autoFill = Framework::ToBase(&LanguageDefType::m_bAutoFillTypeInfo),
};
// clang-format on

LanguageDefType::LanguageDefType(bool bBuildFromScratch) : TypedDataContainer(bBuildFromScratch) {
    Framework::NameByClass(*this, s_Table);
}

LanguageDefType::~LanguageDefType() {}

zelString LanguageDefType::GetBaseType() {
    return "LanguageDefType";
}

void LanguageDefType::GetProperties(ParameterList& pList) {
    Framework::Properties(*this, s_Table, pList);
}

bool LanguageDefType::MergeDataMembers(XMLDataWrapper* pMergeData, zelString sFeatureID) {
    return Framework::Merge(*this, s_Table, pMergeData, sFeatureID, __LINE__);
}

zelString LanguageDefType::GetAttributeList() {
    return Framework::AttributePredicate(*this, s_Table);
}

ParameterList* LanguageDefType::GetPLAttributeList() {
    return Framework::AttributeParameters(*this, s_Table);
}

TypedDataContainer* LanguageDefType::Clone() {
    return Framework::Clone(*this, s_Table);
}

bool LanguageDefType::DumpMergeContents(const zelString& sParentQuery, FullFunctionXMLDataWrapper* pOutput,
                                        int QueryPos, bool bIncludeMergeAttributes) {
    return Framework::DumpByQuery(*this, s_Table, sParentQuery, pOutput, QueryPos, bIncludeMergeAttributes);
}

bool LanguageDefType::DumpMergeContentsII(DOMNode* pParentNode, FullFunctionXMLDataWrapper* pOutput,
                                          DOMNode*& pPassedCurrent, bool bIncludeMergeAttributes) {
    return Framework::DumpByNode(*this, s_Table, pParentNode, pOutput, pPassedCurrent, bIncludeMergeAttributes);
}

bool LanguageDefType::UpdateContainedData() {
    return Framework::Update(*this, s_Table);
}

bool LanguageDefType::PopulateDataMembers(XalanNode* pNode) {
    return Framework::Populate(*this, s_Table, pNode);
}

void LanguageDefType::ResetDataMembers() {
    Framework::Reset(*this, s_Table);
}

zelString LanguageDefType::GetName() {
    return m_Name;
}

void LanguageDefType::SetName(LPCTSTR szNew) {
    m_Name = szNew;
}

zelString LanguageDefType::GetLanguageCode() {
    return m_LanguageCode;
}

void LanguageDefType::SetLanguageCode(LPCTSTR szNew) {
    m_LanguageCode = szNew;
}

bool LanguageDefType::GetDefault() {
    return m_Default;
}

void LanguageDefType::SetDefault(bool szNew) {
    m_Default = szNew;
}

zelString LanguageDefType::Getindex() {
    return m_index;
}

void LanguageDefType::Setindex(LPCTSTR szNew) {
    m_index = szNew;
}

bool LanguageDefType::AutoFillTypeInfo() {
    return true;
}
