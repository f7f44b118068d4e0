// Generated from CaptureConfig.xsd; do not edit. Regenerate with the target "generate".
#include "FrameworkDataContainers/CaptureHandlerType.h"

#include "Framework/FrameworkDataContainers/Walks/Lists.h"
#include "Framework/FrameworkDataContainers/Walks/Walks.h"

// clang-format off
constinit const Framework::FieldRow CaptureHandlerType::s_Rows[] = {
    Framework::Element("ClassFactoryMethod", &CaptureHandlerType::m_ClassFactoryMethod),
    Framework::Element("ReleaseDLL", &CaptureHandlerType::m_ReleaseDLL),
    Framework::Element("DebugDLL", &CaptureHandlerType::m_DebugDLL),
};

constinit const Framework::FieldTable CaptureHandlerType::s_Table = {
    .className = "CaptureHandlerType",
    .elementName = "CaptureHandler",
    .parent = nullptr,
    .isStructuralConfigLoader = false,
    .isRoot = false,
    .rows = s_Rows,
    .create = &Framework::CreateContainer<CaptureHandlerType>,
    .type = &typeid(CaptureHandlerType),
    .autoFill = Framework::ToBase(&CaptureHandlerType::m_bAutoFillTypeInfo),
};
// clang-format on

CaptureHandlerType::CaptureHandlerType(bool bBuildFromScratch) : TypedDataContainer(bBuildFromScratch) {
    Framework::NameByClass(*this, s_Table);
}

CaptureHandlerType::~CaptureHandlerType() {}

zelString CaptureHandlerType::GetBaseType() {
    return "CaptureHandlerType";
}

void CaptureHandlerType::GetProperties(ParameterList& pList) {
    Framework::Properties(*this, s_Table, pList);
}

bool CaptureHandlerType::MergeDataMembers(XMLDataWrapper* pMergeData, zelString sFeatureID) {
    return Framework::Merge(*this, s_Table, pMergeData, sFeatureID, __LINE__);
}

zelString CaptureHandlerType::GetAttributeList() {
    return Framework::AttributePredicate(*this, s_Table);
}

ParameterList* CaptureHandlerType::GetPLAttributeList() {
    return Framework::AttributeParameters(*this, s_Table);
}

TypedDataContainer* CaptureHandlerType::Clone() {
    return Framework::Clone(*this, s_Table);
}

bool CaptureHandlerType::DumpMergeContents(const zelString& sParentQuery, FullFunctionXMLDataWrapper* pOutput,
                                           int QueryPos, bool bIncludeMergeAttributes) {
    return Framework::DumpByQuery(*this, s_Table, sParentQuery, pOutput, QueryPos, bIncludeMergeAttributes);
}

bool CaptureHandlerType::DumpMergeContentsII(DOMNode* pParentNode, FullFunctionXMLDataWrapper* pOutput,
                                             DOMNode*& pPassedCurrent, bool bIncludeMergeAttributes) {
    return Framework::DumpByNode(*this, s_Table, pParentNode, pOutput, pPassedCurrent, bIncludeMergeAttributes);
}

bool CaptureHandlerType::UpdateContainedData() {
    return Framework::Update(*this, s_Table);
}

bool CaptureHandlerType::PopulateDataMembers(XalanNode* pNode) {
    return Framework::Populate(*this, s_Table, pNode);
}

void CaptureHandlerType::ResetDataMembers() {
    Framework::Reset(*this, s_Table);
}

zelString CaptureHandlerType::GetClassFactoryMethod() {
    return m_ClassFactoryMethod;
}

void CaptureHandlerType::SetClassFactoryMethod(LPCTSTR szNew) {
    m_ClassFactoryMethod = szNew;
}

zelString CaptureHandlerType::GetReleaseDLL() {
    return m_ReleaseDLL;
}

void CaptureHandlerType::SetReleaseDLL(LPCTSTR szNew) {
    m_ReleaseDLL = szNew;
}

zelString CaptureHandlerType::GetDebugDLL() {
    return m_DebugDLL;
}

void CaptureHandlerType::SetDebugDLL(LPCTSTR szNew) {
    m_DebugDLL = szNew;
}

bool CaptureHandlerType::AutoFillTypeInfo() {
    return true;
}
