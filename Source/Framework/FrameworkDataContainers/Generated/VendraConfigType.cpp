// Generated from VendraConfig.xsd; do not edit. Regenerate with the target "generate".
#include "FrameworkDataContainers/VendraConfigType.h"

#include "Framework/FrameworkDataContainers/Walks/Lists.h"
#include "Framework/FrameworkDataContainers/Walks/Walks.h"
#include "FrameworkDataContainers/ConfigDefType.h"

// clang-format off
constinit const Framework::FieldRow VendraConfigType::s_Rows[] = {
    Framework::KeyedList<ConfigDefType, &ConfigDefType::GetName, &VendraConfigType::AddConfig, &VendraConfigType::ClearConfig>("Config", "ConfigDefType", "Name", &VendraConfigType::m_MapConfigList, &VendraConfigType::m_ConfigList),
};

constinit const Framework::FieldTable VendraConfigType::s_Table = {
    .className = "VendraConfigType",
    .elementName = "VendraConfig",
    .parent = nullptr,
    .isStructuralConfigLoader = false,
    .isRoot = true,
    .rows = s_Rows,
    .create = &Framework::CreateContainer<VendraConfigType>,
    .type = &typeid(VendraConfigType),
    .autoFill = Framework::ToBase(&VendraConfigType::m_bAutoFillTypeInfo),
};
// clang-format on

VendraConfigType::VendraConfigType(bool bBuildFromScratch) : TypedDataContainer(bBuildFromScratch) {
    Framework::NameByClass(*this, s_Table);
}

VendraConfigType::~VendraConfigType() {
    VendraConfigType::ClearConfig();
}

zelString VendraConfigType::GetBaseType() {
    return "VendraConfigType";
}

void VendraConfigType::GetProperties(ParameterList& pList) {
    Framework::Properties(*this, s_Table, pList);
}

bool VendraConfigType::MergeDataMembers(XMLDataWrapper* pMergeData, zelString sFeatureID) {
    return Framework::Merge(*this, s_Table, pMergeData, sFeatureID, __LINE__);
}

zelString VendraConfigType::GetAttributeList() {
    return Framework::AttributePredicate(*this, s_Table);
}

ParameterList* VendraConfigType::GetPLAttributeList() {
    return Framework::AttributeParameters(*this, s_Table);
}

TypedDataContainer* VendraConfigType::Clone() {
    return Framework::Clone(*this, s_Table);
}

bool VendraConfigType::DumpMergeContents(const zelString& sParentQuery, FullFunctionXMLDataWrapper* pOutput,
                                         int QueryPos, bool bIncludeMergeAttributes) {
    return Framework::DumpByQuery(*this, s_Table, sParentQuery, pOutput, QueryPos, bIncludeMergeAttributes);
}

bool VendraConfigType::DumpMergeContentsII(DOMNode* pParentNode, FullFunctionXMLDataWrapper* pOutput,
                                           DOMNode*& pPassedCurrent, bool bIncludeMergeAttributes) {
    return Framework::DumpByNode(*this, s_Table, pParentNode, pOutput, pPassedCurrent, bIncludeMergeAttributes);
}

bool VendraConfigType::UpdateContainedData() {
    return Framework::Update(*this, s_Table);
}

bool VendraConfigType::PopulateDataMembers(XalanNode* pNode) {
    return Framework::Populate(*this, s_Table, pNode);
}

void VendraConfigType::ResetDataMembers() {
    Framework::Reset(*this, s_Table);
}

int VendraConfigType::GetConfigLength() {
    return Framework::ListLength(m_ConfigList);
}

ConfigDefType* VendraConfigType::GetConfig(int Index) {
    return static_cast<ConfigDefType*>(Framework::EntryAt(m_ConfigList, Index));
}

ConfigDefType* VendraConfigType::GetConfig(const zelString& sName) {
    return static_cast<ConfigDefType*>(Framework::EntryByKey(m_MapConfigList, sName));
}

void VendraConfigType::AddNewConfig(ConfigDefType* szNew, const zelString& sName) {
    Framework::AddNewKeyed(m_MapConfigList, m_ConfigList, szNew, sName);
}

void VendraConfigType::RemoveConfig(const zelString& sName, const zelString& sFeatureId) {
    Framework::RemoveKeyed(*this, s_Rows[0], sName, sFeatureId);
}

bool VendraConfigType::AutoFillTypeInfo() {
    return true;
}

void VendraConfigType::AddConfig(XMLDataWrapper* pData, XalanNode* spNode, const zelString& sName) {
    Framework::AddKeyed(*this, s_Rows[0], pData, spNode, sName, __LINE__);
}

void VendraConfigType::ClearConfig() {
    Framework::ClearKeyed(m_MapConfigList, m_ConfigList);
}
