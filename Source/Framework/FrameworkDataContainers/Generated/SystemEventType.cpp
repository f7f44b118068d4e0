// Generated from LoggingInformation.xsd; do not edit. Regenerate with the target "generate".
#include "FrameworkDataContainers/SystemEventType.h"

#include "Framework/FrameworkDataContainers/Walks/Lists.h"
#include "Framework/FrameworkDataContainers/Walks/Walks.h"

// clang-format off
constinit const Framework::FieldRow SystemEventType::s_Rows[] = {
    Framework::EnumElement<&SystemEventType::m_LogId>("LogId", "LogIdTypeDefintion"),
    Framework::Element("SystemMessage", &SystemEventType::m_SystemMessage),
    Framework::EnumElement<&SystemEventType::m_OverrideMode>("OverrideMode", "OverrideModeDefinition"),
};

constinit const Framework::FieldTable SystemEventType::s_Table = {
    .className = "SystemEventType",
    .elementName = "SystemEvent",
    .parent = nullptr,
    .isStructuralConfigLoader = false,
    .isRoot = false,
    .rows = s_Rows,
    .create = &Framework::CreateContainer<SystemEventType>,
    .type = &typeid(SystemEventType),
    .autoFill = Framework::ToBase(&SystemEventType::m_bAutoFillTypeInfo),
};
// clang-format on

SystemEventType::SystemEventType(bool bBuildFromScratch) : TypedDataContainer(bBuildFromScratch) {
    Framework::NameByClass(*this, s_Table);
}

SystemEventType::~SystemEventType() {}

zelString SystemEventType::GetBaseType() {
    return "SystemEventType";
}

void SystemEventType::GetProperties(ParameterList& pList) {
    Framework::Properties(*this, s_Table, pList);
}

bool SystemEventType::MergeDataMembers(XMLDataWrapper* pMergeData, zelString sFeatureID) {
    return Framework::Merge(*this, s_Table, pMergeData, sFeatureID, __LINE__);
}

zelString SystemEventType::GetAttributeList() {
    return Framework::AttributePredicate(*this, s_Table);
}

ParameterList* SystemEventType::GetPLAttributeList() {
    return Framework::AttributeParameters(*this, s_Table);
}

TypedDataContainer* SystemEventType::Clone() {
    return Framework::Clone(*this, s_Table);
}

bool SystemEventType::DumpMergeContents(const zelString& sParentQuery, FullFunctionXMLDataWrapper* pOutput,
                                        int QueryPos, bool bIncludeMergeAttributes) {
    return Framework::DumpByQuery(*this, s_Table, sParentQuery, pOutput, QueryPos, bIncludeMergeAttributes);
}

bool SystemEventType::DumpMergeContentsII(DOMNode* pParentNode, FullFunctionXMLDataWrapper* pOutput,
                                          DOMNode*& pPassedCurrent, bool bIncludeMergeAttributes) {
    return Framework::DumpByNode(*this, s_Table, pParentNode, pOutput, pPassedCurrent, bIncludeMergeAttributes);
}

bool SystemEventType::UpdateContainedData() {
    return Framework::Update(*this, s_Table);
}

bool SystemEventType::PopulateDataMembers(XalanNode* pNode) {
    return Framework::Populate(*this, s_Table, pNode);
}

void SystemEventType::ResetDataMembers() {
    Framework::Reset(*this, s_Table);
}

LogIdTypeDefintion SystemEventType::GetLogId() {
    return m_LogId;
}

void SystemEventType::SetLogId(LogIdTypeDefintion szNew) {
    m_LogId = szNew;
}

zelString SystemEventType::GetSystemMessage() {
    return m_SystemMessage;
}

void SystemEventType::SetSystemMessage(LPCTSTR szNew) {
    m_SystemMessage = szNew;
}

OverrideModeDefinition SystemEventType::GetOverrideMode() {
    return m_OverrideMode;
}

void SystemEventType::SetOverrideMode(OverrideModeDefinition szNew) {
    m_OverrideMode = szNew;
}

bool SystemEventType::AutoFillTypeInfo() {
    return true;
}
