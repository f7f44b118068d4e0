// Generated from ConfigDefRoot.xsd; do not edit. Regenerate with the target "generate".
#include "FrameworkDataContainers/ConfigurationDefinitionType.h"

#include "Framework/FrameworkDataContainers/Walks/Lists.h"
#include "Framework/FrameworkDataContainers/Walks/Walks.h"
#include "FrameworkDataContainers/OptionsConfigDefType.h"

// clang-format off
constinit const Framework::FieldRow ConfigurationDefinitionType::s_Rows[] = {
    Framework::KeyedList<OptionsConfigDefType, &OptionsConfigDefType::GetName, &ConfigurationDefinitionType::AddConfigDef, &ConfigurationDefinitionType::ClearConfigDef>("ConfigDef", "OptionsConfigDefType", "Name", &ConfigurationDefinitionType::m_MapConfigDefList, &ConfigurationDefinitionType::m_ConfigDefList),
};

constinit const Framework::FieldTable ConfigurationDefinitionType::s_Table = {
    .className = "ConfigurationDefinitionType",
    .elementName = "ConfigurationDefinition",
    .parent = nullptr,
    .isStructuralConfigLoader = false,
    .isRoot = false,
    .rows = s_Rows,
    .create = &Framework::CreateContainer<ConfigurationDefinitionType>,
    .type = &typeid(ConfigurationDefinitionType),
    .autoFill = Framework::ToBase(&ConfigurationDefinitionType::m_bAutoFillTypeInfo),
};
// clang-format on

ConfigurationDefinitionType::ConfigurationDefinitionType(bool bBuildFromScratch)
    : TypedDataContainer(bBuildFromScratch) {
    Framework::NameByClass(*this, s_Table);
}

ConfigurationDefinitionType::~ConfigurationDefinitionType() {
    ConfigurationDefinitionType::ClearConfigDef();
}

zelString ConfigurationDefinitionType::GetBaseType() {
    return "ConfigurationDefinitionType";
}

void ConfigurationDefinitionType::GetProperties(ParameterList& pList) {
    Framework::Properties(*this, s_Table, pList);
}

bool ConfigurationDefinitionType::MergeDataMembers(XMLDataWrapper* pMergeData, zelString sFeatureID) {
    return Framework::Merge(*this, s_Table, pMergeData, sFeatureID, __LINE__);
}

zelString ConfigurationDefinitionType::GetAttributeList() {
    return Framework::AttributePredicate(*this, s_Table);
}

ParameterList* ConfigurationDefinitionType::GetPLAttributeList() {
    return Framework::AttributeParameters(*this, s_Table);
}

TypedDataContainer* ConfigurationDefinitionType::Clone() {
    return Framework::Clone(*this, s_Table);
}

bool ConfigurationDefinitionType::DumpMergeContents(const zelString& sParentQuery, FullFunctionXMLDataWrapper* pOutput,
                                                    int QueryPos, bool bIncludeMergeAttributes) {
    return Framework::DumpByQuery(*this, s_Table, sParentQuery, pOutput, QueryPos, bIncludeMergeAttributes);
}

bool ConfigurationDefinitionType::DumpMergeContentsII(DOMNode* pParentNode, FullFunctionXMLDataWrapper* pOutput,
                                                      DOMNode*& pPassedCurrent, bool bIncludeMergeAttributes) {
    return Framework::DumpByNode(*this, s_Table, pParentNode, pOutput, pPassedCurrent, bIncludeMergeAttributes);
}

bool ConfigurationDefinitionType::UpdateContainedData() {
    return Framework::Update(*this, s_Table);
}

bool ConfigurationDefinitionType::PopulateDataMembers(XalanNode* pNode) {
    return Framework::Populate(*this, s_Table, pNode);
}

void ConfigurationDefinitionType::ResetDataMembers() {
    Framework::Reset(*this, s_Table);
}

int ConfigurationDefinitionType::GetConfigDefLength() {
    return Framework::ListLength(m_ConfigDefList);
}

OptionsConfigDefType* ConfigurationDefinitionType::GetConfigDef(int Index) {
    return static_cast<OptionsConfigDefType*>(Framework::EntryAt(m_ConfigDefList, Index));
}

OptionsConfigDefType* ConfigurationDefinitionType::GetConfigDef(const zelString& sName) {
    return static_cast<OptionsConfigDefType*>(Framework::EntryByKey(m_MapConfigDefList, sName));
}

void ConfigurationDefinitionType::AddNewConfigDef(OptionsConfigDefType* szNew, const zelString& sName) {
    Framework::AddNewKeyed(m_MapConfigDefList, m_ConfigDefList, szNew, sName);
}

void ConfigurationDefinitionType::RemoveConfigDef(const zelString& sName, const zelString& sFeatureId) {
    Framework::RemoveKeyed(*this, s_Rows[0], sName, sFeatureId);
}

bool ConfigurationDefinitionType::AutoFillTypeInfo() {
    return true;
}

void ConfigurationDefinitionType::AddConfigDef(XMLDataWrapper* pData, XalanNode* spNode, const zelString& sName) {
    Framework::AddKeyed(*this, s_Rows[0], pData, spNode, sName, __LINE__);
}

void ConfigurationDefinitionType::ClearConfigDef() {
    Framework::ClearKeyed(m_MapConfigDefList, m_ConfigDefList);
}
