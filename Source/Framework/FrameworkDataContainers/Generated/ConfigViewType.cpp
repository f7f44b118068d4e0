// Generated from ConfigDefRoot.xsd; do not edit. Regenerate with the target "generate".
#include "FrameworkDataContainers/ConfigViewType.h"

#include "Framework/FrameworkDataContainers/Walks/Lists.h"
#include "Framework/FrameworkDataContainers/Walks/Walks.h"
#include "FrameworkDataContainers/ConfigOptionType.h"

// clang-format off
constinit const Framework::FieldRow ConfigViewType::s_Rows[] = {
    Framework::KeyedList<ConfigOptionType, &ConfigOptionType::GetName, &ConfigViewType::AddConfigOption, &ConfigViewType::ClearConfigOption>("ConfigOption", "ConfigOptionType", "Name", &ConfigViewType::m_MapConfigOptionList, &ConfigViewType::m_ConfigOptionList),
    Framework::Attribute("Name", &ConfigViewType::m_Name),
    Framework::Attribute("IsPublic", &ConfigViewType::m_IsPublic),
};

constinit const Framework::FieldTable ConfigViewType::s_Table = {
    .className = "ConfigViewType",
    .elementName = "ConfigView",
    .parent = nullptr,
    .isStructuralConfigLoader = false,
    .isRoot = false,
    .rows = s_Rows,
    .create = &Framework::CreateContainer<ConfigViewType>,
    .type = &typeid(ConfigViewType),
    .autoFill = Framework::ToBase(&ConfigViewType::m_bAutoFillTypeInfo),
};
// clang-format on

ConfigViewType::ConfigViewType(bool bBuildFromScratch) : TypedDataContainer(bBuildFromScratch) {
    Framework::NameByClass(*this, s_Table);
}

ConfigViewType::~ConfigViewType() {
    ConfigViewType::ClearConfigOption();
}

zelString ConfigViewType::GetBaseType() {
    return "ConfigViewType";
}

void ConfigViewType::GetProperties(ParameterList& pList) {
    Framework::Properties(*this, s_Table, pList);
}

bool ConfigViewType::MergeDataMembers(XMLDataWrapper* pMergeData, zelString sFeatureID) {
    return Framework::Merge(*this, s_Table, pMergeData, sFeatureID, __LINE__);
}

zelString ConfigViewType::GetAttributeList() {
    return Framework::AttributePredicate(*this, s_Table);
}

ParameterList* ConfigViewType::GetPLAttributeList() {
    return Framework::AttributeParameters(*this, s_Table);
}

TypedDataContainer* ConfigViewType::Clone() {
    return Framework::Clone(*this, s_Table);
}

bool ConfigViewType::DumpMergeContents(const zelString& sParentQuery, FullFunctionXMLDataWrapper* pOutput, int QueryPos,
                                       bool bIncludeMergeAttributes) {
    return Framework::DumpByQuery(*this, s_Table, sParentQuery, pOutput, QueryPos, bIncludeMergeAttributes);
}

bool ConfigViewType::DumpMergeContentsII(DOMNode* pParentNode, FullFunctionXMLDataWrapper* pOutput,
                                         DOMNode*& pPassedCurrent, bool bIncludeMergeAttributes) {
    return Framework::DumpByNode(*this, s_Table, pParentNode, pOutput, pPassedCurrent, bIncludeMergeAttributes);
}

bool ConfigViewType::UpdateContainedData() {
    return Framework::Update(*this, s_Table);
}

bool ConfigViewType::PopulateDataMembers(XalanNode* pNode) {
    return Framework::Populate(*this, s_Table, pNode);
}

void ConfigViewType::ResetDataMembers() {
    Framework::Reset(*this, s_Table);
}

int ConfigViewType::GetConfigOptionLength() {
    return Framework::ListLength(m_ConfigOptionList);
}

ConfigOptionType* ConfigViewType::GetConfigOption(int Index) {
    return static_cast<ConfigOptionType*>(Framework::EntryAt(m_ConfigOptionList, Index));
}

ConfigOptionType* ConfigViewType::GetConfigOption(const zelString& sName) {
    return static_cast<ConfigOptionType*>(Framework::EntryByKey(m_MapConfigOptionList, sName));
}

void ConfigViewType::AddNewConfigOption(ConfigOptionType* szNew, const zelString& sName) {
    Framework::AddNewKeyed(m_MapConfigOptionList, m_ConfigOptionList, szNew, sName);
}

void ConfigViewType::RemoveConfigOption(const zelString& sName, const zelString& sFeatureId) {
    Framework::RemoveKeyed(*this, s_Rows[0], sName, sFeatureId);
}

zelString ConfigViewType::GetName() {
    return m_Name;
}

void ConfigViewType::SetName(LPCTSTR szNew) {
    m_Name = szNew;
}

bool ConfigViewType::GetIsPublic() {
    return m_IsPublic;
}

void ConfigViewType::SetIsPublic(bool szNew) {
    m_IsPublic = szNew;
}

bool ConfigViewType::AutoFillTypeInfo() {
    return true;
}

void ConfigViewType::AddConfigOption(XMLDataWrapper* pData, XalanNode* spNode, const zelString& sName) {
    Framework::AddKeyed(*this, s_Rows[0], pData, spNode, sName, __LINE__);
}

void ConfigViewType::ClearConfigOption() {
    Framework::ClearKeyed(m_MapConfigOptionList, m_ConfigOptionList);
}
