// Generated from ConfigDefRoot.xsd; do not edit. Regenerate with the target "generate".
#include "FrameworkDataContainers/ConfigSchemaDefType.h"

#include "Framework/FrameworkDataContainers/Walks/Lists.h"
#include "Framework/FrameworkDataContainers/Walks/Walks.h"

// clang-format off
constinit const Framework::FieldRow ConfigSchemaDefType::s_Rows[] = {
    Framework::Element("SchemaFile", &ConfigSchemaDefType::m_SchemaFile),
    Framework::Element("RootElementType", &ConfigSchemaDefType::m_RootElementType),
    Framework::Element("RootElementName", &ConfigSchemaDefType::m_RootElementName),
};

constinit const Framework::FieldTable ConfigSchemaDefType::s_Table = {
    .className = "ConfigSchemaDefType",
    .elementName = "SchemaDef",
    .parent = nullptr,
    .isStructuralConfigLoader = false,
    .isRoot = false,
    .rows = s_Rows,
    .create = &Framework::CreateContainer<ConfigSchemaDefType>,
    .type = &typeid(ConfigSchemaDefType),
    .autoFill = Framework::ToBase(&ConfigSchemaDefType::m_bAutoFillTypeInfo),
};
// clang-format on

ConfigSchemaDefType::ConfigSchemaDefType(bool bBuildFromScratch) : TypedDataContainer(bBuildFromScratch) {
    Framework::NameByClass(*this, s_Table);
}

ConfigSchemaDefType::~ConfigSchemaDefType() {}

zelString ConfigSchemaDefType::GetBaseType() {
    return "ConfigSchemaDefType";
}

void ConfigSchemaDefType::GetProperties(ParameterList& pList) {
    Framework::Properties(*this, s_Table, pList);
}

bool ConfigSchemaDefType::MergeDataMembers(XMLDataWrapper* pMergeData, zelString sFeatureID) {
    return Framework::Merge(*this, s_Table, pMergeData, sFeatureID, __LINE__);
}

zelString ConfigSchemaDefType::GetAttributeList() {
    return Framework::AttributePredicate(*this, s_Table);
}

ParameterList* ConfigSchemaDefType::GetPLAttributeList() {
    return Framework::AttributeParameters(*this, s_Table);
}

TypedDataContainer* ConfigSchemaDefType::Clone() {
    return Framework::Clone(*this, s_Table);
}

bool ConfigSchemaDefType::DumpMergeContents(const zelString& sParentQuery, FullFunctionXMLDataWrapper* pOutput,
                                            int QueryPos, bool bIncludeMergeAttributes) {
    return Framework::DumpByQuery(*this, s_Table, sParentQuery, pOutput, QueryPos, bIncludeMergeAttributes);
}

bool ConfigSchemaDefType::DumpMergeContentsII(DOMNode* pParentNode, FullFunctionXMLDataWrapper* pOutput,
                                              DOMNode*& pPassedCurrent, bool bIncludeMergeAttributes) {
    return Framework::DumpByNode(*this, s_Table, pParentNode, pOutput, pPassedCurrent, bIncludeMergeAttributes);
}

bool ConfigSchemaDefType::UpdateContainedData() {
    return Framework::Update(*this, s_Table);
}

bool ConfigSchemaDefType::PopulateDataMembers(XalanNode* pNode) {
    return Framework::Populate(*this, s_Table, pNode);
}

void ConfigSchemaDefType::ResetDataMembers() {
    Framework::Reset(*this, s_Table);
}

zelString ConfigSchemaDefType::GetSchemaFile() {
    return m_SchemaFile;
}

void ConfigSchemaDefType::SetSchemaFile(LPCTSTR szNew) {
    m_SchemaFile = szNew;
}

zelString ConfigSchemaDefType::GetRootElementType() {
    return m_RootElementType;
}

void ConfigSchemaDefType::SetRootElementType(LPCTSTR szNew) {
    m_RootElementType = szNew;
}

zelString ConfigSchemaDefType::GetRootElementName() {
    return m_RootElementName;
}

void ConfigSchemaDefType::SetRootElementName(LPCTSTR szNew) {
    m_RootElementName = szNew;
}

bool ConfigSchemaDefType::AutoFillTypeInfo() {
    return true;
}
