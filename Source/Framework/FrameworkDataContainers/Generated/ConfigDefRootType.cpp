// Generated from ConfigDefRoot.xsd; do not edit. Regenerate with the target "generate".
#include "FrameworkDataContainers/ConfigDefRootType.h"

#include "Framework/FrameworkDataContainers/Walks/Lists.h"
#include "Framework/FrameworkDataContainers/Walks/Walks.h"
#include "FrameworkDataContainers/ConfigLevelViewMapType.h"
#include "FrameworkDataContainers/ConfigurationDefinitionType.h"
#include "FrameworkDataContainers/ConfigurationViewsType.h"

// clang-format off
constinit const Framework::FieldRow ConfigDefRootType::s_Rows[] = {
    Framework::Child<&ConfigDefRootType::m_ConfigurationDefinition>("ConfigurationDefinition", "ConfigurationDefinitionType"),
    Framework::Child<&ConfigDefRootType::m_ConfigurationViews>("ConfigurationViews", "ConfigurationViewsType"),
    Framework::Child<&ConfigDefRootType::m_ConfigLevelViewMap>("ConfigLevelViewMap", "ConfigLevelViewMapType"),
};

constinit const Framework::FieldTable ConfigDefRootType::s_Table = {
    .className = "ConfigDefRootType",
    .elementName = "ConfigDefRoot",
    .parent = nullptr,
    .isStructuralConfigLoader = true,
    .isRoot = true,
    .rows = s_Rows,
    .create = &Framework::CreateContainer<ConfigDefRootType>,
    .type = &typeid(ConfigDefRootType),
    .autoFill = Framework::ToBase(&ConfigDefRootType::m_bAutoFillTypeInfo),
};
// clang-format on

ConfigDefRootType::ConfigDefRootType(bool bBuildFromScratch) : StructuralConfigLoader(bBuildFromScratch) {
    Framework::NameByClass(*this, s_Table);
}

ConfigDefRootType::~ConfigDefRootType() {
    delete m_ConfigurationDefinition;
    delete m_ConfigurationViews;
    delete m_ConfigLevelViewMap;
}

zelString ConfigDefRootType::GetBaseType() {
    return "ConfigDefRootType";
}

void ConfigDefRootType::GetProperties(ParameterList& pList) {
    Framework::Properties(*this, s_Table, pList);
}

bool ConfigDefRootType::MergeDataMembers(XMLDataWrapper* pMergeData, zelString sFeatureID) {
    return Framework::Merge(*this, s_Table, pMergeData, sFeatureID, __LINE__);
}

zelString ConfigDefRootType::GetAttributeList() {
    return Framework::AttributePredicate(*this, s_Table);
}

ParameterList* ConfigDefRootType::GetPLAttributeList() {
    return Framework::AttributeParameters(*this, s_Table);
}

TypedDataContainer* ConfigDefRootType::Clone() {
    return Framework::Clone(*this, s_Table);
}

bool ConfigDefRootType::DumpMergeContents(const zelString& sParentQuery, FullFunctionXMLDataWrapper* pOutput,
                                          int QueryPos, bool bIncludeMergeAttributes) {
    return Framework::DumpByQuery(*this, s_Table, sParentQuery, pOutput, QueryPos, bIncludeMergeAttributes);
}

bool ConfigDefRootType::DumpMergeContentsII(DOMNode* pParentNode, FullFunctionXMLDataWrapper* pOutput,
                                            DOMNode*& pPassedCurrent, bool bIncludeMergeAttributes) {
    return Framework::DumpByNode(*this, s_Table, pParentNode, pOutput, pPassedCurrent, bIncludeMergeAttributes);
}

bool ConfigDefRootType::UpdateContainedData() {
    return Framework::Update(*this, s_Table);
}

bool ConfigDefRootType::PopulateDataMembers(XalanNode* pNode) {
    return Framework::Populate(*this, s_Table, pNode);
}

void ConfigDefRootType::ResetDataMembers() {
    Framework::Reset(*this, s_Table);
}

ConfigurationDefinitionType* ConfigDefRootType::GetConfigurationDefinition() {
    return m_ConfigurationDefinition;
}

void ConfigDefRootType::SetConfigurationDefinition(ConfigurationDefinitionType* szNew) {
    Framework::ReplaceChild(m_ConfigurationDefinition, szNew);
}

ConfigurationViewsType* ConfigDefRootType::GetConfigurationViews() {
    return m_ConfigurationViews;
}

void ConfigDefRootType::SetConfigurationViews(ConfigurationViewsType* szNew) {
    Framework::ReplaceChild(m_ConfigurationViews, szNew);
}

ConfigLevelViewMapType* ConfigDefRootType::GetConfigLevelViewMap() {
    return m_ConfigLevelViewMap;
}

void ConfigDefRootType::SetConfigLevelViewMap(ConfigLevelViewMapType* szNew) {
    Framework::ReplaceChild(m_ConfigLevelViewMap, szNew);
}

bool ConfigDefRootType::AutoFillTypeInfo() {
    return true;
}
