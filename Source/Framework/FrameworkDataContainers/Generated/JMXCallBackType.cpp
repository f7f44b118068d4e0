// Generated from JMXEventConfiguration.xsd; do not edit. Regenerate with the target "generate".
#include "FrameworkDataContainers/JMXCallBackType.h"

#include "Framework/FrameworkDataContainers/Walks/Lists.h"
#include "Framework/FrameworkDataContainers/Walks/Walks.h"

// clang-format off
constinit const Framework::FieldRow JMXCallBackType::s_Rows[] = {
    Framework::Element("OpCode", &JMXCallBackType::m_OpCode),
    Framework::Element("CallBackType", &JMXCallBackType::m_CallBackType),
};

constinit const Framework::FieldTable JMXCallBackType::s_Table = {
    .className = "JMXCallBackType",
    .elementName = "JMXCallBack",
    .parent = nullptr,
    .isStructuralConfigLoader = false,
    .isRoot = false,
    .rows = s_Rows,
    .create = &Framework::CreateContainer<JMXCallBackType>,
    .type = &typeid(JMXCallBackType),
    .autoFill = Framework::ToBase(&JMXCallBackType::m_bAutoFillTypeInfo),
};
// clang-format on

JMXCallBackType::JMXCallBackType(bool bBuildFromScratch) : TypedDataContainer(bBuildFromScratch) {
    Framework::NameByClass(*this, s_Table);
}

JMXCallBackType::~JMXCallBackType() {}

zelString JMXCallBackType::GetBaseType() {
    return "JMXCallBackType";
}

void JMXCallBackType::GetProperties(ParameterList& pList) {
    Framework::Properties(*this, s_Table, pList);
}

bool JMXCallBackType::MergeDataMembers(XMLDataWrapper* pMergeData, zelString sFeatureID) {
    return Framework::Merge(*this, s_Table, pMergeData, sFeatureID, __LINE__);
}

zelString JMXCallBackType::GetAttributeList() {
    return Framework::AttributePredicate(*this, s_Table);
}

ParameterList* JMXCallBackType::GetPLAttributeList() {
    return Framework::AttributeParameters(*this, s_Table);
}

TypedDataContainer* JMXCallBackType::Clone() {
    return Framework::Clone(*this, s_Table);
}

bool JMXCallBackType::DumpMergeContents(const zelString& sParentQuery, FullFunctionXMLDataWrapper* pOutput,
                                        int QueryPos, bool bIncludeMergeAttributes) {
    return Framework::DumpByQuery(*this, s_Table, sParentQuery, pOutput, QueryPos, bIncludeMergeAttributes);
}

bool JMXCallBackType::DumpMergeContentsII(DOMNode* pParentNode, FullFunctionXMLDataWrapper* pOutput,
                                          DOMNode*& pPassedCurrent, bool bIncludeMergeAttributes) {
    return Framework::DumpByNode(*this, s_Table, pParentNode, pOutput, pPassedCurrent, bIncludeMergeAttributes);
}

bool JMXCallBackType::UpdateContainedData() {
    return Framework::Update(*this, s_Table);
}

bool JMXCallBackType::PopulateDataMembers(XalanNode* pNode) {
    return Framework::Populate(*this, s_Table, pNode);
}

void JMXCallBackType::ResetDataMembers() {
    Framework::Reset(*this, s_Table);
}

int JMXCallBackType::GetOpCode() {
    return m_OpCode;
}

void JMXCallBackType::SetOpCode(int szNew) {
    m_OpCode = szNew;
}

zelString JMXCallBackType::GetCallBackType() {
    return m_CallBackType;
}

void JMXCallBackType::SetCallBackType(LPCTSTR szNew) {
    m_CallBackType = szNew;
}

bool JMXCallBackType::AutoFillTypeInfo() {
    return true;
}
