// Generated from ConfigDefRoot.xsd; do not edit. Regenerate with the target "generate".
#include "FrameworkDataContainers/ConfigOptionType.h"

#include "Framework/FrameworkDataContainers/Walks/Lists.h"
#include "Framework/FrameworkDataContainers/Walks/Walks.h"

// clang-format off
constinit const Framework::FieldRow ConfigOptionType::s_Rows[] = {
    Framework::Element("ReferenceLookup", &ConfigOptionType::m_ReferenceLookup),
    Framework::Attribute("Name", &ConfigOptionType::m_Name),
};

constinit const Framework::FieldTable ConfigOptionType::s_Table = {
    .className = "ConfigOptionType",
    .elementName = "ConfigOption",
    .parent = nullptr,
    .isStructuralConfigLoader = false,
    .isRoot = false,
    .rows = s_Rows,
    .create = &Framework::CreateContainer<ConfigOptionType>,
    .type = &typeid(ConfigOptionType),
    .autoFill = Framework::ToBase(&ConfigOptionType::m_bAutoFillTypeInfo),
};
// clang-format on

ConfigOptionType::ConfigOptionType(bool bBuildFromScratch) : TypedDataContainer(bBuildFromScratch) {
    Framework::NameByClass(*this, s_Table);
}

ConfigOptionType::~ConfigOptionType() {}

zelString ConfigOptionType::GetBaseType() {
    return "ConfigOptionType";
}

void ConfigOptionType::GetProperties(ParameterList& pList) {
    Framework::Properties(*this, s_Table, pList);
}

bool ConfigOptionType::MergeDataMembers(XMLDataWrapper* pMergeData, zelString sFeatureID) {
    return Framework::Merge(*this, s_Table, pMergeData, sFeatureID, __LINE__);
}

zelString ConfigOptionType::GetAttributeList() {
    return Framework::AttributePredicate(*this, s_Table);
}

ParameterList* ConfigOptionType::GetPLAttributeList() {
    return Framework::AttributeParameters(*this, s_Table);
}

TypedDataContainer* ConfigOptionType::Clone() {
    return Framework::Clone(*this, s_Table);
}

bool ConfigOptionType::DumpMergeContents(const zelString& sParentQuery, FullFunctionXMLDataWrapper* pOutput,
                                         int QueryPos, bool bIncludeMergeAttributes) {
    return Framework::DumpByQuery(*this, s_Table, sParentQuery, pOutput, QueryPos, bIncludeMergeAttributes);
}

bool ConfigOptionType::DumpMergeContentsII(DOMNode* pParentNode, FullFunctionXMLDataWrapper* pOutput,
                                           DOMNode*& pPassedCurrent, bool bIncludeMergeAttributes) {
    return Framework::DumpByNode(*this, s_Table, pParentNode, pOutput, pPassedCurrent, bIncludeMergeAttributes);
}

bool ConfigOptionType::UpdateContainedData() {
    return Framework::Update(*this, s_Table);
}

bool ConfigOptionType::PopulateDataMembers(XalanNode* pNode) {
    return Framework::Populate(*this, s_Table, pNode);
}

void ConfigOptionType::ResetDataMembers() {
    Framework::Reset(*this, s_Table);
}

zelString ConfigOptionType::GetReferenceLookup() {
    return m_ReferenceLookup;
}

void ConfigOptionType::SetReferenceLookup(LPCTSTR szNew) {
    m_ReferenceLookup = szNew;
}

zelString ConfigOptionType::GetName() {
    return m_Name;
}

void ConfigOptionType::SetName(LPCTSTR szNew) {
    m_Name = szNew;
}

bool ConfigOptionType::AutoFillTypeInfo() {
    return true;
}
