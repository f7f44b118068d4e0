// Generated from GUIConfigurations.xsd; do not edit. Regenerate with the target "generate".
#include "FrameworkDataContainers/GUIConfigSettingsType.h"

#include "Framework/FrameworkDataContainers/Walks/Lists.h"
#include "Framework/FrameworkDataContainers/Walks/Walks.h"
#include "FrameworkDataContainers/GUIConfigType.h"

// clang-format off
constinit const Framework::FieldRow GUIConfigSettingsType::s_Rows[] = {
    Framework::PlainList<GUIConfigType, &GUIConfigSettingsType::AddGUIConfig, &GUIConfigSettingsType::ClearGUIConfig>("GUIConfig", "GUIConfigType", &GUIConfigSettingsType::m_GUIConfigList),
    Framework::Attribute("id", &GUIConfigSettingsType::m_id),
};

constinit const Framework::FieldTable GUIConfigSettingsType::s_Table = {
    .className = "GUIConfigSettingsType",
    .elementName = "GUIConfigSettings",
    .parent = nullptr,
    .isStructuralConfigLoader = false,
    .isRoot = false,
    .rows = s_Rows,
    .create = &Framework::CreateContainer<GUIConfigSettingsType>,
    .type = &typeid(GUIConfigSettingsType),
    .autoFill = Framework::ToBase(&GUIConfigSettingsType::m_bAutoFillTypeInfo),
};
// clang-format on

GUIConfigSettingsType::GUIConfigSettingsType(bool bBuildFromScratch) : TypedDataContainer(bBuildFromScratch) {
    Framework::NameByClass(*this, s_Table);
}

GUIConfigSettingsType::~GUIConfigSettingsType() {
    GUIConfigSettingsType::ClearGUIConfig();
}

zelString GUIConfigSettingsType::GetBaseType() {
    return "GUIConfigSettingsType";
}

void GUIConfigSettingsType::GetProperties(ParameterList& pList) {
    Framework::Properties(*this, s_Table, pList);
}

bool GUIConfigSettingsType::MergeDataMembers(XMLDataWrapper* pMergeData, zelString sFeatureID) {
    return Framework::Merge(*this, s_Table, pMergeData, sFeatureID, __LINE__);
}

zelString GUIConfigSettingsType::GetAttributeList() {
    return Framework::AttributePredicate(*this, s_Table);
}

ParameterList* GUIConfigSettingsType::GetPLAttributeList() {
    return Framework::AttributeParameters(*this, s_Table);
}

TypedDataContainer* GUIConfigSettingsType::Clone() {
    return Framework::Clone(*this, s_Table);
}

bool GUIConfigSettingsType::DumpMergeContents(const zelString& sParentQuery, FullFunctionXMLDataWrapper* pOutput,
                                              int QueryPos, bool bIncludeMergeAttributes) {
    return Framework::DumpByQuery(*this, s_Table, sParentQuery, pOutput, QueryPos, bIncludeMergeAttributes);
}

bool GUIConfigSettingsType::DumpMergeContentsII(DOMNode* pParentNode, FullFunctionXMLDataWrapper* pOutput,
                                                DOMNode*& pPassedCurrent, bool bIncludeMergeAttributes) {
    return Framework::DumpByNode(*this, s_Table, pParentNode, pOutput, pPassedCurrent, bIncludeMergeAttributes);
}

bool GUIConfigSettingsType::UpdateContainedData() {
    return Framework::Update(*this, s_Table);
}

bool GUIConfigSettingsType::PopulateDataMembers(XalanNode* pNode) {
    return Framework::Populate(*this, s_Table, pNode);
}

void GUIConfigSettingsType::ResetDataMembers() {
    Framework::Reset(*this, s_Table);
}

int GUIConfigSettingsType::GetGUIConfigLength() {
    return Framework::ListLength(m_GUIConfigList);
}

GUIConfigType* GUIConfigSettingsType::GetGUIConfig(int Index) {
    return static_cast<GUIConfigType*>(Framework::GrowTo(*this, s_Rows[0], Index));
}

void GUIConfigSettingsType::AddNewGUIConfig(GUIConfigType* szNew) {
    Framework::AddNewPlain(m_GUIConfigList, szNew);
}

zelString GUIConfigSettingsType::Getid() {
    return m_id;
}

void GUIConfigSettingsType::Setid(LPCTSTR szNew) {
    m_id = szNew;
}

bool GUIConfigSettingsType::AutoFillTypeInfo() {
    return true;
}

void GUIConfigSettingsType::AddGUIConfig(XMLDataWrapper* pData, XalanNode* spNode) {
    Framework::AddPlain(*this, s_Rows[0], pData, spNode);
}

void GUIConfigSettingsType::ClearGUIConfig() {
    Framework::ClearPlain(m_GUIConfigList);
}
