// Generated from ConfigDefRoot.xsd; do not edit. Regenerate with the target "generate".
#include "FrameworkDataContainers/ConfigurationViewsType.h"

#include "Framework/FrameworkDataContainers/Walks/Lists.h"
#include "Framework/FrameworkDataContainers/Walks/Walks.h"
#include "FrameworkDataContainers/ConfigViewType.h"

// clang-format off
constinit const Framework::FieldRow ConfigurationViewsType::s_Rows[] = {
    Framework::KeyedList<ConfigViewType, &ConfigViewType::GetName, &ConfigurationViewsType::AddConfigView, &ConfigurationViewsType::ClearConfigView>("ConfigView", "ConfigViewType", "Name", &ConfigurationViewsType::m_MapConfigViewList, &ConfigurationViewsType::m_ConfigViewList),
};

constinit const Framework::FieldTable ConfigurationViewsType::s_Table = {
    .className = "ConfigurationViewsType",
    .elementName = "ConfigurationViews",
    .parent = nullptr,
    .isStructuralConfigLoader = false,
    .isRoot = false,
    .rows = s_Rows,
    .create = &Framework::CreateContainer<ConfigurationViewsType>,
    .type = &typeid(ConfigurationViewsType),
    .autoFill = Framework::ToBase(&ConfigurationViewsType::m_bAutoFillTypeInfo),
};
// clang-format on

ConfigurationViewsType::ConfigurationViewsType(bool bBuildFromScratch) : TypedDataContainer(bBuildFromScratch) {
    Framework::NameByClass(*this, s_Table);
}

ConfigurationViewsType::~ConfigurationViewsType() {
    ConfigurationViewsType::ClearConfigView();
}

zelString ConfigurationViewsType::GetBaseType() {
    return "ConfigurationViewsType";
}

void ConfigurationViewsType::GetProperties(ParameterList& pList) {
    Framework::Properties(*this, s_Table, pList);
}

bool ConfigurationViewsType::MergeDataMembers(XMLDataWrapper* pMergeData, zelString sFeatureID) {
    return Framework::Merge(*this, s_Table, pMergeData, sFeatureID, __LINE__);
}

zelString ConfigurationViewsType::GetAttributeList() {
    return Framework::AttributePredicate(*this, s_Table);
}

ParameterList* ConfigurationViewsType::GetPLAttributeList() {
    return Framework::AttributeParameters(*this, s_Table);
}

TypedDataContainer* ConfigurationViewsType::Clone() {
    return Framework::Clone(*this, s_Table);
}

bool ConfigurationViewsType::DumpMergeContents(const zelString& sParentQuery, FullFunctionXMLDataWrapper* pOutput,
                                               int QueryPos, bool bIncludeMergeAttributes) {
    return Framework::DumpByQuery(*this, s_Table, sParentQuery, pOutput, QueryPos, bIncludeMergeAttributes);
}

bool ConfigurationViewsType::DumpMergeContentsII(DOMNode* pParentNode, FullFunctionXMLDataWrapper* pOutput,
                                                 DOMNode*& pPassedCurrent, bool bIncludeMergeAttributes) {
    return Framework::DumpByNode(*this, s_Table, pParentNode, pOutput, pPassedCurrent, bIncludeMergeAttributes);
}

bool ConfigurationViewsType::UpdateContainedData() {
    return Framework::Update(*this, s_Table);
}

bool ConfigurationViewsType::PopulateDataMembers(XalanNode* pNode) {
    return Framework::Populate(*this, s_Table, pNode);
}

void ConfigurationViewsType::ResetDataMembers() {
    Framework::Reset(*this, s_Table);
}

int ConfigurationViewsType::GetConfigViewLength() {
    return Framework::ListLength(m_ConfigViewList);
}

ConfigViewType* ConfigurationViewsType::GetConfigView(int Index) {
    return static_cast<ConfigViewType*>(Framework::EntryAt(m_ConfigViewList, Index));
}

ConfigViewType* ConfigurationViewsType::GetConfigView(const zelString& sName) {
    return static_cast<ConfigViewType*>(Framework::EntryByKey(m_MapConfigViewList, sName));
}

void ConfigurationViewsType::AddNewConfigView(ConfigViewType* szNew, const zelString& sName) {
    Framework::AddNewKeyed(m_MapConfigViewList, m_ConfigViewList, szNew, sName);
}

void ConfigurationViewsType::RemoveConfigView(const zelString& sName, const zelString& sFeatureId) {
    Framework::RemoveKeyed(*this, s_Rows[0], sName, sFeatureId);
}

bool ConfigurationViewsType::AutoFillTypeInfo() {
    return true;
}

void ConfigurationViewsType::AddConfigView(XMLDataWrapper* pData, XalanNode* spNode, const zelString& sName) {
    Framework::AddKeyed(*this, s_Rows[0], pData, spNode, sName, __LINE__);
}

void ConfigurationViewsType::ClearConfigView() {
    Framework::ClearKeyed(m_MapConfigViewList, m_ConfigViewList);
}
