// Generated from JMXEventConfiguration.xsd; do not edit. Regenerate with the target "generate".
#include "FrameworkDataContainers/JMXCallBackDefinitionType.h"

#include "Framework/FrameworkDataContainers/Walks/Lists.h"
#include "Framework/FrameworkDataContainers/Walks/Walks.h"
#include "FrameworkDataContainers/JMXCallBackType.h"

// clang-format off
constinit const Framework::FieldRow JMXCallBackDefinitionType::s_Rows[] = {
    Framework::PlainList<JMXCallBackType, &JMXCallBackDefinitionType::AddJMXCallBack, &JMXCallBackDefinitionType::ClearJMXCallBack>("JMXCallBack", "JMXCallBackType", &JMXCallBackDefinitionType::m_JMXCallBackList),
};

constinit const Framework::FieldTable JMXCallBackDefinitionType::s_Table = {
    .className = "JMXCallBackDefinitionType",
    .elementName = "JMXCallBackDefinition",
    .parent = nullptr,
    .isStructuralConfigLoader = false,
    .isRoot = false,
    .rows = s_Rows,
    .create = &Framework::CreateContainer<JMXCallBackDefinitionType>,
    .type = &typeid(JMXCallBackDefinitionType),
    .autoFill = Framework::ToBase(&JMXCallBackDefinitionType::m_bAutoFillTypeInfo),
};
// clang-format on

JMXCallBackDefinitionType::JMXCallBackDefinitionType(bool bBuildFromScratch) : TypedDataContainer(bBuildFromScratch) {
    Framework::NameByClass(*this, s_Table);
}

JMXCallBackDefinitionType::~JMXCallBackDefinitionType() {
    JMXCallBackDefinitionType::ClearJMXCallBack();
}

zelString JMXCallBackDefinitionType::GetBaseType() {
    return "JMXCallBackDefinitionType";
}

void JMXCallBackDefinitionType::GetProperties(ParameterList& pList) {
    Framework::Properties(*this, s_Table, pList);
}

bool JMXCallBackDefinitionType::MergeDataMembers(XMLDataWrapper* pMergeData, zelString sFeatureID) {
    return Framework::Merge(*this, s_Table, pMergeData, sFeatureID, __LINE__);
}

zelString JMXCallBackDefinitionType::GetAttributeList() {
    return Framework::AttributePredicate(*this, s_Table);
}

ParameterList* JMXCallBackDefinitionType::GetPLAttributeList() {
    return Framework::AttributeParameters(*this, s_Table);
}

TypedDataContainer* JMXCallBackDefinitionType::Clone() {
    return Framework::Clone(*this, s_Table);
}

bool JMXCallBackDefinitionType::DumpMergeContents(const zelString& sParentQuery, FullFunctionXMLDataWrapper* pOutput,
                                                  int QueryPos, bool bIncludeMergeAttributes) {
    return Framework::DumpByQuery(*this, s_Table, sParentQuery, pOutput, QueryPos, bIncludeMergeAttributes);
}

bool JMXCallBackDefinitionType::DumpMergeContentsII(DOMNode* pParentNode, FullFunctionXMLDataWrapper* pOutput,
                                                    DOMNode*& pPassedCurrent, bool bIncludeMergeAttributes) {
    return Framework::DumpByNode(*this, s_Table, pParentNode, pOutput, pPassedCurrent, bIncludeMergeAttributes);
}

bool JMXCallBackDefinitionType::UpdateContainedData() {
    return Framework::Update(*this, s_Table);
}

bool JMXCallBackDefinitionType::PopulateDataMembers(XalanNode* pNode) {
    return Framework::Populate(*this, s_Table, pNode);
}

void JMXCallBackDefinitionType::ResetDataMembers() {
    Framework::Reset(*this, s_Table);
}

int JMXCallBackDefinitionType::GetJMXCallBackLength() {
    return Framework::ListLength(m_JMXCallBackList);
}

JMXCallBackType* JMXCallBackDefinitionType::GetJMXCallBack(int Index) {
    return static_cast<JMXCallBackType*>(Framework::GrowTo(*this, s_Rows[0], Index));
}

void JMXCallBackDefinitionType::AddNewJMXCallBack(JMXCallBackType* szNew) {
    Framework::AddNewPlain(m_JMXCallBackList, szNew);
}

bool JMXCallBackDefinitionType::AutoFillTypeInfo() {
    return true;
}

void JMXCallBackDefinitionType::AddJMXCallBack(XMLDataWrapper* pData, XalanNode* spNode) {
    Framework::AddPlain(*this, s_Rows[0], pData, spNode);
}

void JMXCallBackDefinitionType::ClearJMXCallBack() {
    Framework::ClearPlain(m_JMXCallBackList);
}
