// Generated from GUIConfigurations.xsd; do not edit. Regenerate with the target "generate".
#include "FrameworkDataContainers/GUIConfigListType.h"

#include "Framework/FrameworkDataContainers/Walks/Lists.h"
#include "Framework/FrameworkDataContainers/Walks/Walks.h"
#include "FrameworkDataContainers/GUIConfigSettingsType.h"

// clang-format off
constinit const Framework::FieldRow GUIConfigListType::s_Rows[] = {
    Framework::KeyedList<GUIConfigSettingsType, &GUIConfigSettingsType::Getid, &GUIConfigListType::AddGUIConfigSettings, &GUIConfigListType::ClearGUIConfigSettings>("GUIConfigSettings", "GUIConfigSettingsType", "id", &GUIConfigListType::m_MapGUIConfigSettingsList, &GUIConfigListType::m_GUIConfigSettingsList),
};

constinit const Framework::FieldTable GUIConfigListType::s_Table = {
    .className = "GUIConfigListType",
    .elementName = "GUIConfigList",
    .parent = nullptr,
    .isStructuralConfigLoader = false,
    .isRoot = false,
    .rows = s_Rows,
    .create = &Framework::CreateContainer<GUIConfigListType>,
    .type = &typeid(GUIConfigListType),
    .autoFill = Framework::ToBase(&GUIConfigListType::m_bAutoFillTypeInfo),
};
// clang-format on

GUIConfigListType::GUIConfigListType(bool bBuildFromScratch) : TypedDataContainer(bBuildFromScratch) {
    Framework::NameByClass(*this, s_Table);
}

GUIConfigListType::~GUIConfigListType() {
    GUIConfigListType::ClearGUIConfigSettings();
}

zelString GUIConfigListType::GetBaseType() {
    return "GUIConfigListType";
}

void GUIConfigListType::GetProperties(ParameterList& pList) {
    Framework::Properties(*this, s_Table, pList);
}

bool GUIConfigListType::MergeDataMembers(XMLDataWrapper* pMergeData, zelString sFeatureID) {
    return Framework::Merge(*this, s_Table, pMergeData, sFeatureID, __LINE__);
}

zelString GUIConfigListType::GetAttributeList() {
    return Framework::AttributePredicate(*this, s_Table);
}

ParameterList* GUIConfigListType::GetPLAttributeList() {
    return Framework::AttributeParameters(*this, s_Table);
}

TypedDataContainer* GUIConfigListType::Clone() {
    return Framework::Clone(*this, s_Table);
}

bool GUIConfigListType::DumpMergeContents(const zelString& sParentQuery, FullFunctionXMLDataWrapper* pOutput,
                                          int QueryPos, bool bIncludeMergeAttributes) {
    return Framework::DumpByQuery(*this, s_Table, sParentQuery, pOutput, QueryPos, bIncludeMergeAttributes);
}

bool GUIConfigListType::DumpMergeContentsII(DOMNode* pParentNode, FullFunctionXMLDataWrapper* pOutput,
                                            DOMNode*& pPassedCurrent, bool bIncludeMergeAttributes) {
    return Framework::DumpByNode(*this, s_Table, pParentNode, pOutput, pPassedCurrent, bIncludeMergeAttributes);
}

bool GUIConfigListType::UpdateContainedData() {
    return Framework::Update(*this, s_Table);
}

bool GUIConfigListType::PopulateDataMembers(XalanNode* pNode) {
    return Framework::Populate(*this, s_Table, pNode);
}

void GUIConfigListType::ResetDataMembers() {
    Framework::Reset(*this, s_Table);
}

int GUIConfigListType::GetGUIConfigSettingsLength() {
    return Framework::ListLength(m_GUIConfigSettingsList);
}

GUIConfigSettingsType* GUIConfigListType::GetGUIConfigSettings(int Index) {
    return static_cast<GUIConfigSettingsType*>(Framework::EntryAt(m_GUIConfigSettingsList, Index));
}

GUIConfigSettingsType* GUIConfigListType::GetGUIConfigSettings(const zelString& sName) {
    return static_cast<GUIConfigSettingsType*>(Framework::EntryByKey(m_MapGUIConfigSettingsList, sName));
}

void GUIConfigListType::AddNewGUIConfigSettings(GUIConfigSettingsType* szNew, const zelString& sName) {
    Framework::AddNewKeyed(m_MapGUIConfigSettingsList, m_GUIConfigSettingsList, szNew, sName);
}

void GUIConfigListType::RemoveGUIConfigSettings(const zelString& sName, const zelString& sFeatureId) {
    Framework::RemoveKeyed(*this, s_Rows[0], sName, sFeatureId);
}

bool GUIConfigListType::AutoFillTypeInfo() {
    return true;
}

void GUIConfigListType::AddGUIConfigSettings(XMLDataWrapper* pData, XalanNode* spNode, const zelString& sName) {
    Framework::AddKeyed(*this, s_Rows[0], pData, spNode, sName, __LINE__);
}

void GUIConfigListType::ClearGUIConfigSettings() {
    Framework::ClearKeyed(m_MapGUIConfigSettingsList, m_GUIConfigSettingsList);
}
