// Generated from ConfigDefRoot.xsd; do not edit. Regenerate with the target "generate".
#include "FrameworkDataContainers/ConfigLevelViewType.h"

#include "Framework/FrameworkDataContainers/Walks/Lists.h"
#include "Framework/FrameworkDataContainers/Walks/Walks.h"
#include "FrameworkDataContainers/ViewListType.h"

// clang-format off
constinit const Framework::FieldRow ConfigLevelViewType::s_Rows[] = {
    Framework::Child<&ConfigLevelViewType::m_ViewList>("ViewList", "ViewListType"),
    Framework::Element("ForceSaveRules", &ConfigLevelViewType::m_ForceSaveRules, true),
    Framework::Attribute("Level", &ConfigLevelViewType::m_Level),
};

constinit const Framework::FieldTable ConfigLevelViewType::s_Table = {
    .className = "ConfigLevelViewType",
    .elementName = "ConfigLevelViewType",
    .parent = nullptr,
    .isStructuralConfigLoader = false,
    .isRoot = false,
    .rows = s_Rows,
    .create = &Framework::CreateContainer<ConfigLevelViewType>,
    .type = &typeid(ConfigLevelViewType),
    .autoFill = Framework::ToBase(&ConfigLevelViewType::m_bAutoFillTypeInfo),
};
// clang-format on

ConfigLevelViewType::ConfigLevelViewType(bool bBuildFromScratch) : TypedDataContainer(bBuildFromScratch) {
    Framework::NameByClass(*this, s_Table);
}

ConfigLevelViewType::~ConfigLevelViewType() {
    delete m_ViewList;
}

zelString ConfigLevelViewType::GetBaseType() {
    return "ConfigLevelViewType";
}

void ConfigLevelViewType::GetProperties(ParameterList& pList) {
    Framework::Properties(*this, s_Table, pList);
}

bool ConfigLevelViewType::MergeDataMembers(XMLDataWrapper* pMergeData, zelString sFeatureID) {
    return Framework::Merge(*this, s_Table, pMergeData, sFeatureID, __LINE__);
}

zelString ConfigLevelViewType::GetAttributeList() {
    return Framework::AttributePredicate(*this, s_Table);
}

ParameterList* ConfigLevelViewType::GetPLAttributeList() {
    return Framework::AttributeParameters(*this, s_Table);
}

TypedDataContainer* ConfigLevelViewType::Clone() {
    return Framework::Clone(*this, s_Table);
}

bool ConfigLevelViewType::DumpMergeContents(const zelString& sParentQuery, FullFunctionXMLDataWrapper* pOutput,
                                            int QueryPos, bool bIncludeMergeAttributes) {
    return Framework::DumpByQuery(*this, s_Table, sParentQuery, pOutput, QueryPos, bIncludeMergeAttributes);
}

bool ConfigLevelViewType::DumpMergeContentsII(DOMNode* pParentNode, FullFunctionXMLDataWrapper* pOutput,
                                              DOMNode*& pPassedCurrent, bool bIncludeMergeAttributes) {
    return Framework::DumpByNode(*this, s_Table, pParentNode, pOutput, pPassedCurrent, bIncludeMergeAttributes);
}

bool ConfigLevelViewType::UpdateContainedData() {
    return Framework::Update(*this, s_Table);
}

bool ConfigLevelViewType::PopulateDataMembers(XalanNode* pNode) {
    return Framework::Populate(*this, s_Table, pNode);
}

void ConfigLevelViewType::ResetDataMembers() {
    Framework::Reset(*this, s_Table);
}

ViewListType* ConfigLevelViewType::GetViewList() {
    return m_ViewList;
}

void ConfigLevelViewType::SetViewList(ViewListType* szNew) {
    Framework::ReplaceChild(m_ViewList, szNew);
}

bool ConfigLevelViewType::GetForceSaveRules() {
    return m_ForceSaveRules;
}

void ConfigLevelViewType::SetForceSaveRules(bool szNew) {
    m_ForceSaveRules = szNew;
}

zelString ConfigLevelViewType::GetLevel() {
    return m_Level;
}

void ConfigLevelViewType::SetLevel(LPCTSTR szNew) {
    m_Level = szNew;
}

bool ConfigLevelViewType::AutoFillTypeInfo() {
    return true;
}
