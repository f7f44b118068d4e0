// Generated from DeviceConfig.xsd; do not edit. Regenerate with the target "generate".
#include "FrameworkDataContainers/DeviceEntryType.h"

#include "Framework/FrameworkDataContainers/Walks/Lists.h"
#include "Framework/FrameworkDataContainers/Walks/Walks.h"

// clang-format off
constinit const Framework::FieldRow DeviceEntryType::s_Rows[] = {
    Framework::Element("FactoryName", &DeviceEntryType::m_FactoryName),
    Framework::Element("FactoryMethod", &DeviceEntryType::m_FactoryMethod),
    Framework::Element("InitializeString", &DeviceEntryType::m_InitializeString),
    Framework::Attribute("name", &DeviceEntryType::m_name),
};

constinit const Framework::FieldTable DeviceEntryType::s_Table = {
    .className = "DeviceEntryType",
    .elementName = "DeviceEntry",
    .parent = nullptr,
    .isStructuralConfigLoader = false,
    .isRoot = false,
    .rows = s_Rows,
    .create = &Framework::CreateContainer<DeviceEntryType>,
    .type = &typeid(DeviceEntryType),
    .autoFill = Framework::ToBase(&DeviceEntryType::m_bAutoFillTypeInfo),
};
// clang-format on

DeviceEntryType::DeviceEntryType(bool bBuildFromScratch) : TypedDataContainer(bBuildFromScratch) {
    Framework::NameByClass(*this, s_Table);
}

DeviceEntryType::~DeviceEntryType() {}

zelString DeviceEntryType::GetBaseType() {
    return "DeviceEntryType";
}

void DeviceEntryType::GetProperties(ParameterList& pList) {
    Framework::Properties(*this, s_Table, pList);
}

bool DeviceEntryType::MergeDataMembers(XMLDataWrapper* pMergeData, zelString sFeatureID) {
    return Framework::Merge(*this, s_Table, pMergeData, sFeatureID, __LINE__);
}

zelString DeviceEntryType::GetAttributeList() {
    return Framework::AttributePredicate(*this, s_Table);
}

ParameterList* DeviceEntryType::GetPLAttributeList() {
    return Framework::AttributeParameters(*this, s_Table);
}

TypedDataContainer* DeviceEntryType::Clone() {
    return Framework::Clone(*this, s_Table);
}

bool DeviceEntryType::DumpMergeContents(const zelString& sParentQuery, FullFunctionXMLDataWrapper* pOutput,
                                        int QueryPos, bool bIncludeMergeAttributes) {
    return Framework::DumpByQuery(*this, s_Table, sParentQuery, pOutput, QueryPos, bIncludeMergeAttributes);
}

bool DeviceEntryType::DumpMergeContentsII(DOMNode* pParentNode, FullFunctionXMLDataWrapper* pOutput,
                                          DOMNode*& pPassedCurrent, bool bIncludeMergeAttributes) {
    return Framework::DumpByNode(*this, s_Table, pParentNode, pOutput, pPassedCurrent, bIncludeMergeAttributes);
}

bool DeviceEntryType::UpdateContainedData() {
    return Framework::Update(*this, s_Table);
}

bool DeviceEntryType::PopulateDataMembers(XalanNode* pNode) {
    return Framework::Populate(*this, s_Table, pNode);
}

void DeviceEntryType::ResetDataMembers() {
    Framework::Reset(*this, s_Table);
}

zelString DeviceEntryType::GetFactoryName() {
    return m_FactoryName;
}

void DeviceEntryType::SetFactoryName(LPCTSTR szNew) {
    m_FactoryName = szNew;
}

zelString DeviceEntryType::GetFactoryMethod() {
    return m_FactoryMethod;
}

void DeviceEntryType::SetFactoryMethod(LPCTSTR szNew) {
    m_FactoryMethod = szNew;
}

zelString DeviceEntryType::GetInitializeString() {
    return m_InitializeString;
}

void DeviceEntryType::SetInitializeString(LPCTSTR szNew) {
    m_InitializeString = szNew;
}

zelString DeviceEntryType::Getname() {
    return m_name;
}

void DeviceEntryType::Setname(LPCTSTR szNew) {
    m_name = szNew;
}

bool DeviceEntryType::AutoFillTypeInfo() {
    return true;
}
