// Generated from DeviceConfig.xsd; do not edit. Regenerate with the target "generate".
#include "FrameworkDataContainers/DeviceConfigType.h"

#include "Framework/FrameworkDataContainers/Walks/Lists.h"
#include "Framework/FrameworkDataContainers/Walks/Walks.h"
#include "FrameworkDataContainers/DeviceEntryType.h"

// clang-format off
constinit const Framework::FieldRow DeviceConfigType::s_Rows[] = {
    Framework::KeyedList<DeviceEntryType, &DeviceEntryType::Getname, &DeviceConfigType::AddDeviceEntry, &DeviceConfigType::ClearDeviceEntry>("DeviceEntry", "DeviceEntryType", "name", &DeviceConfigType::m_MapDeviceEntryList, &DeviceConfigType::m_DeviceEntryList),
};

constinit const Framework::FieldTable DeviceConfigType::s_Table = {
    .className = "DeviceConfigType",
    .elementName = "DeviceConfig",
    .parent = nullptr,
    .isStructuralConfigLoader = true,
    .isRoot = true,
    .rows = s_Rows,
    .create = &Framework::CreateContainer<DeviceConfigType>,
    .type = &typeid(DeviceConfigType),
    .autoFill = Framework::ToBase(&DeviceConfigType::m_bAutoFillTypeInfo),
};
// clang-format on

DeviceConfigType::DeviceConfigType(bool bBuildFromScratch) : StructuralConfigLoader(bBuildFromScratch) {
    Framework::NameByClass(*this, s_Table);
}

DeviceConfigType::~DeviceConfigType() {
    DeviceConfigType::ClearDeviceEntry();
}

zelString DeviceConfigType::GetBaseType() {
    return "DeviceConfigType";
}

void DeviceConfigType::GetProperties(ParameterList& pList) {
    Framework::Properties(*this, s_Table, pList);
}

bool DeviceConfigType::MergeDataMembers(XMLDataWrapper* pMergeData, zelString sFeatureID) {
    return Framework::Merge(*this, s_Table, pMergeData, sFeatureID, __LINE__);
}

zelString DeviceConfigType::GetAttributeList() {
    return Framework::AttributePredicate(*this, s_Table);
}

ParameterList* DeviceConfigType::GetPLAttributeList() {
    return Framework::AttributeParameters(*this, s_Table);
}

TypedDataContainer* DeviceConfigType::Clone() {
    return Framework::Clone(*this, s_Table);
}

bool DeviceConfigType::DumpMergeContents(const zelString& sParentQuery, FullFunctionXMLDataWrapper* pOutput,
                                         int QueryPos, bool bIncludeMergeAttributes) {
    return Framework::DumpByQuery(*this, s_Table, sParentQuery, pOutput, QueryPos, bIncludeMergeAttributes);
}

bool DeviceConfigType::DumpMergeContentsII(DOMNode* pParentNode, FullFunctionXMLDataWrapper* pOutput,
                                           DOMNode*& pPassedCurrent, bool bIncludeMergeAttributes) {
    return Framework::DumpByNode(*this, s_Table, pParentNode, pOutput, pPassedCurrent, bIncludeMergeAttributes);
}

bool DeviceConfigType::UpdateContainedData() {
    return Framework::Update(*this, s_Table);
}

bool DeviceConfigType::PopulateDataMembers(XalanNode* pNode) {
    return Framework::Populate(*this, s_Table, pNode);
}

void DeviceConfigType::ResetDataMembers() {
    Framework::Reset(*this, s_Table);
}

int DeviceConfigType::GetDeviceEntryLength() {
    return Framework::ListLength(m_DeviceEntryList);
}

DeviceEntryType* DeviceConfigType::GetDeviceEntry(int Index) {
    return static_cast<DeviceEntryType*>(Framework::EntryAt(m_DeviceEntryList, Index));
}

DeviceEntryType* DeviceConfigType::GetDeviceEntry(const zelString& sName) {
    return static_cast<DeviceEntryType*>(Framework::EntryByKey(m_MapDeviceEntryList, sName));
}

void DeviceConfigType::AddNewDeviceEntry(DeviceEntryType* szNew, const zelString& sName) {
    Framework::AddNewKeyed(m_MapDeviceEntryList, m_DeviceEntryList, szNew, sName);
}

void DeviceConfigType::RemoveDeviceEntry(const zelString& sName, const zelString& sFeatureId) {
    Framework::RemoveKeyed(*this, s_Rows[0], sName, sFeatureId);
}

bool DeviceConfigType::AutoFillTypeInfo() {
    return true;
}

void DeviceConfigType::AddDeviceEntry(XMLDataWrapper* pData, XalanNode* spNode, const zelString& sName) {
    Framework::AddKeyed(*this, s_Rows[0], pData, spNode, sName, __LINE__);
}

void DeviceConfigType::ClearDeviceEntry() {
    Framework::ClearKeyed(m_MapDeviceEntryList, m_DeviceEntryList);
}
