// Generated from VendraConfig.xsd; do not edit. Regenerate with the target "generate".
#include "FrameworkDataContainers/ConfigDefType.h"

#include "Framework/FrameworkDataContainers/Walks/Lists.h"
#include "Framework/FrameworkDataContainers/Walks/Walks.h"
#include "FrameworkDataContainers/ConfigDefDescriptionType.h"
#include "FrameworkDataContainers/LoadSourceType.h"

// clang-format off
constinit const Framework::FieldRow ConfigDefType::s_Rows[] = {
    Framework::Element("ConfigType", &ConfigDefType::m_ConfigType),
    Framework::Child<&ConfigDefType::m_Description>("Description", "ConfigDefDescriptionType"),
    Framework::PlainList<LoadSourceType, &ConfigDefType::AddLoadSource, &ConfigDefType::ClearLoadSource>("LoadSource", "LoadSourceType", &ConfigDefType::m_LoadSourceList),
    Framework::Attribute("Name", &ConfigDefType::m_Name),
};

constinit const Framework::FieldTable ConfigDefType::s_Table = {
    .className = "ConfigDefType",
    .elementName = "Config",
    .parent = nullptr,
    .isStructuralConfigLoader = false,
    .isRoot = false,
    .rows = s_Rows,
    .create = &Framework::CreateContainer<ConfigDefType>,
    .type = &typeid(ConfigDefType),
    .autoFill = Framework::ToBase(&ConfigDefType::m_bAutoFillTypeInfo),
};
// clang-format on

ConfigDefType::ConfigDefType(bool bBuildFromScratch) : TypedDataContainer(bBuildFromScratch) {
    Framework::NameByClass(*this, s_Table);
}

ConfigDefType::~ConfigDefType() {
    delete m_Description;
    ConfigDefType::ClearLoadSource();
}

zelString ConfigDefType::GetBaseType() {
    return "ConfigDefType";
}

void ConfigDefType::GetProperties(ParameterList& pList) {
    Framework::Properties(*this, s_Table, pList);
}

bool ConfigDefType::MergeDataMembers(XMLDataWrapper* pMergeData, zelString sFeatureID) {
    return Framework::Merge(*this, s_Table, pMergeData, sFeatureID, __LINE__);
}

zelString ConfigDefType::GetAttributeList() {
    return Framework::AttributePredicate(*this, s_Table);
}

ParameterList* ConfigDefType::GetPLAttributeList() {
    return Framework::AttributeParameters(*this, s_Table);
}

TypedDataContainer* ConfigDefType::Clone() {
    return Framework::Clone(*this, s_Table);
}

bool ConfigDefType::DumpMergeContents(const zelString& sParentQuery, FullFunctionXMLDataWrapper* pOutput, int QueryPos,
                                      bool bIncludeMergeAttributes) {
    return Framework::DumpByQuery(*this, s_Table, sParentQuery, pOutput, QueryPos, bIncludeMergeAttributes);
}

bool ConfigDefType::DumpMergeContentsII(DOMNode* pParentNode, FullFunctionXMLDataWrapper* pOutput,
                                        DOMNode*& pPassedCurrent, bool bIncludeMergeAttributes) {
    return Framework::DumpByNode(*this, s_Table, pParentNode, pOutput, pPassedCurrent, bIncludeMergeAttributes);
}

bool ConfigDefType::UpdateContainedData() {
    return Framework::Update(*this, s_Table);
}

bool ConfigDefType::PopulateDataMembers(XalanNode* pNode) {
    return Framework::Populate(*this, s_Table, pNode);
}

void ConfigDefType::ResetDataMembers() {
    Framework::Reset(*this, s_Table);
}

zelString ConfigDefType::GetConfigType() {
    return m_ConfigType;
}

void ConfigDefType::SetConfigType(LPCTSTR szNew) {
    m_ConfigType = szNew;
}

ConfigDefDescriptionType* ConfigDefType::GetDescription() {
    return m_Description;
}

void ConfigDefType::SetDescription(ConfigDefDescriptionType* szNew) {
    Framework::ReplaceChild(m_Description, szNew);
}

int ConfigDefType::GetLoadSourceLength() {
    return Framework::ListLength(m_LoadSourceList);
}

LoadSourceType* ConfigDefType::GetLoadSource(int Index) {
    return static_cast<LoadSourceType*>(Framework::GrowTo(*this, s_Rows[2], Index));
}

void ConfigDefType::AddNewLoadSource(LoadSourceType* szNew) {
    Framework::AddNewPlain(m_LoadSourceList, szNew);
}

zelString ConfigDefType::GetName() {
    return m_Name;
}

void ConfigDefType::SetName(LPCTSTR szNew) {
    m_Name = szNew;
}

bool ConfigDefType::AutoFillTypeInfo() {
    return true;
}

void ConfigDefType::AddLoadSource(XMLDataWrapper* pData, XalanNode* spNode) {
    Framework::AddPlain(*this, s_Rows[2], pData, spNode);
}

void ConfigDefType::ClearLoadSource() {
    Framework::ClearPlain(m_LoadSourceList);
}
