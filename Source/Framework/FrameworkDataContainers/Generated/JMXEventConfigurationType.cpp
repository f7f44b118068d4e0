// Generated from JMXEventConfiguration.xsd; do not edit. Regenerate with the target "generate".
#include "FrameworkDataContainers/JMXEventConfigurationType.h"

#include "Framework/FrameworkDataContainers/Walks/Lists.h"
#include "Framework/FrameworkDataContainers/Walks/Walks.h"
#include "FrameworkDataContainers/JMXCallBackDefinitionType.h"

// clang-format off
constinit const Framework::FieldRow JMXEventConfigurationType::s_Rows[] = {
    Framework::Child<&JMXEventConfigurationType::m_JMXCallBackDefinition>("JMXCallBackDefinition", "JMXCallBackDefinitionType"),
};

constinit const Framework::FieldTable JMXEventConfigurationType::s_Table = {
    .className = "JMXEventConfigurationType",
    .elementName = "JMXEventConfiguration",
    .parent = nullptr,
    .isStructuralConfigLoader = true,
    .isRoot = true,
    .rows = s_Rows,
    .create = &Framework::CreateContainer<JMXEventConfigurationType>,
    .type = &typeid(JMXEventConfigurationType),
    .autoFill = Framework::ToBase(&JMXEventConfigurationType::m_bAutoFillTypeInfo),
};
// clang-format on

JMXEventConfigurationType::JMXEventConfigurationType(bool bBuildFromScratch)
    : StructuralConfigLoader(bBuildFromScratch) {
    Framework::NameByClass(*this, s_Table);
}

JMXEventConfigurationType::~JMXEventConfigurationType() {
    delete m_JMXCallBackDefinition;
}

zelString JMXEventConfigurationType::GetBaseType() {
    return "JMXEventConfigurationType";
}

void JMXEventConfigurationType::GetProperties(ParameterList& pList) {
    Framework::Properties(*this, s_Table, pList);
}

bool JMXEventConfigurationType::MergeDataMembers(XMLDataWrapper* pMergeData, zelString sFeatureID) {
    return Framework::Merge(*this, s_Table, pMergeData, sFeatureID, __LINE__);
}

zelString JMXEventConfigurationType::GetAttributeList() {
    return Framework::AttributePredicate(*this, s_Table);
}

ParameterList* JMXEventConfigurationType::GetPLAttributeList() {
    return Framework::AttributeParameters(*this, s_Table);
}

TypedDataContainer* JMXEventConfigurationType::Clone() {
    return Framework::Clone(*this, s_Table);
}

bool JMXEventConfigurationType::DumpMergeContents(const zelString& sParentQuery, FullFunctionXMLDataWrapper* pOutput,
                                                  int QueryPos, bool bIncludeMergeAttributes) {
    return Framework::DumpByQuery(*this, s_Table, sParentQuery, pOutput, QueryPos, bIncludeMergeAttributes);
}

bool JMXEventConfigurationType::DumpMergeContentsII(DOMNode* pParentNode, FullFunctionXMLDataWrapper* pOutput,
                                                    DOMNode*& pPassedCurrent, bool bIncludeMergeAttributes) {
    return Framework::DumpByNode(*this, s_Table, pParentNode, pOutput, pPassedCurrent, bIncludeMergeAttributes);
}

bool JMXEventConfigurationType::UpdateContainedData() {
    return Framework::Update(*this, s_Table);
}

bool JMXEventConfigurationType::PopulateDataMembers(XalanNode* pNode) {
    return Framework::Populate(*this, s_Table, pNode);
}

void JMXEventConfigurationType::ResetDataMembers() {
    Framework::Reset(*this, s_Table);
}

JMXCallBackDefinitionType* JMXEventConfigurationType::GetJMXCallBackDefinition() {
    return m_JMXCallBackDefinition;
}

void JMXEventConfigurationType::SetJMXCallBackDefinition(JMXCallBackDefinitionType* szNew) {
    Framework::ReplaceChild(m_JMXCallBackDefinition, szNew);
}

bool JMXEventConfigurationType::AutoFillTypeInfo() {
    return true;
}
