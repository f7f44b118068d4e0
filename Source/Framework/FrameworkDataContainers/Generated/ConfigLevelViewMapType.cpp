// Generated from ConfigDefRoot.xsd; do not edit. Regenerate with the target "generate".
#include "FrameworkDataContainers/ConfigLevelViewMapType.h"

#include "Framework/FrameworkDataContainers/Walks/Lists.h"
#include "Framework/FrameworkDataContainers/Walks/Walks.h"
#include "FrameworkDataContainers/ConfigLevelViewType.h"

// clang-format off
constinit const Framework::FieldRow ConfigLevelViewMapType::s_Rows[] = {
    Framework::KeyedList<ConfigLevelViewType, &ConfigLevelViewType::GetLevel, &ConfigLevelViewMapType::AddConfigLevelView, &ConfigLevelViewMapType::ClearConfigLevelView>("ConfigLevelView", "ConfigLevelViewType", "Level", &ConfigLevelViewMapType::m_MapConfigLevelViewList, &ConfigLevelViewMapType::m_ConfigLevelViewList),
};

constinit const Framework::FieldTable ConfigLevelViewMapType::s_Table = {
    .className = "ConfigLevelViewMapType",
    .elementName = "ConfigLevelViewMap",
    .parent = nullptr,
    .isStructuralConfigLoader = false,
    .isRoot = false,
    .rows = s_Rows,
    .create = &Framework::CreateContainer<ConfigLevelViewMapType>,
    .type = &typeid(ConfigLevelViewMapType),
    .autoFill = Framework::ToBase(&ConfigLevelViewMapType::m_bAutoFillTypeInfo),
};
// clang-format on

ConfigLevelViewMapType::ConfigLevelViewMapType(bool bBuildFromScratch) : TypedDataContainer(bBuildFromScratch) {
    Framework::NameByClass(*this, s_Table);
}

ConfigLevelViewMapType::~ConfigLevelViewMapType() {
    ConfigLevelViewMapType::ClearConfigLevelView();
}

zelString ConfigLevelViewMapType::GetBaseType() {
    return "ConfigLevelViewMapType";
}

void ConfigLevelViewMapType::GetProperties(ParameterList& pList) {
    Framework::Properties(*this, s_Table, pList);
}

bool ConfigLevelViewMapType::MergeDataMembers(XMLDataWrapper* pMergeData, zelString sFeatureID) {
    return Framework::Merge(*this, s_Table, pMergeData, sFeatureID, __LINE__);
}

zelString ConfigLevelViewMapType::GetAttributeList() {
    return Framework::AttributePredicate(*this, s_Table);
}

ParameterList* ConfigLevelViewMapType::GetPLAttributeList() {
    return Framework::AttributeParameters(*this, s_Table);
}

TypedDataContainer* ConfigLevelViewMapType::Clone() {
    return Framework::Clone(*this, s_Table);
}

bool ConfigLevelViewMapType::DumpMergeContents(const zelString& sParentQuery, FullFunctionXMLDataWrapper* pOutput,
                                               int QueryPos, bool bIncludeMergeAttributes) {
    return Framework::DumpByQuery(*this, s_Table, sParentQuery, pOutput, QueryPos, bIncludeMergeAttributes);
}

bool ConfigLevelViewMapType::DumpMergeContentsII(DOMNode* pParentNode, FullFunctionXMLDataWrapper* pOutput,
                                                 DOMNode*& pPassedCurrent, bool bIncludeMergeAttributes) {
    return Framework::DumpByNode(*this, s_Table, pParentNode, pOutput, pPassedCurrent, bIncludeMergeAttributes);
}

bool ConfigLevelViewMapType::UpdateContainedData() {
    return Framework::Update(*this, s_Table);
}

bool ConfigLevelViewMapType::PopulateDataMembers(XalanNode* pNode) {
    return Framework::Populate(*this, s_Table, pNode);
}

void ConfigLevelViewMapType::ResetDataMembers() {
    Framework::Reset(*this, s_Table);
}

int ConfigLevelViewMapType::GetConfigLevelViewLength() {
    return Framework::ListLength(m_ConfigLevelViewList);
}

ConfigLevelViewType* ConfigLevelViewMapType::GetConfigLevelView(int Index) {
    return static_cast<ConfigLevelViewType*>(Framework::EntryAt(m_ConfigLevelViewList, Index));
}

ConfigLevelViewType* ConfigLevelViewMapType::GetConfigLevelView(const zelString& sName) {
    return static_cast<ConfigLevelViewType*>(Framework::EntryByKey(m_MapConfigLevelViewList, sName));
}

void ConfigLevelViewMapType::AddNewConfigLevelView(ConfigLevelViewType* szNew, const zelString& sName) {
    Framework::AddNewKeyed(m_MapConfigLevelViewList, m_ConfigLevelViewList, szNew, sName);
}

void ConfigLevelViewMapType::RemoveConfigLevelView(const zelString& sName, const zelString& sFeatureId) {
    Framework::RemoveKeyed(*this, s_Rows[0], sName, sFeatureId);
}

bool ConfigLevelViewMapType::AutoFillTypeInfo() {
    return true;
}

void ConfigLevelViewMapType::AddConfigLevelView(XMLDataWrapper* pData, XalanNode* spNode, const zelString& sName) {
    Framework::AddKeyed(*this, s_Rows[0], pData, spNode, sName, __LINE__);
}

void ConfigLevelViewMapType::ClearConfigLevelView() {
    Framework::ClearKeyed(m_MapConfigLevelViewList, m_ConfigLevelViewList);
}
