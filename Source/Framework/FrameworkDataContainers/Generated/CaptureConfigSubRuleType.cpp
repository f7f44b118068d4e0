// Generated from CaptureConfig.xsd; do not edit. Regenerate with the target "generate".
#include "FrameworkDataContainers/CaptureConfigSubRuleType.h"

#include "Framework/FrameworkDataContainers/Walks/Lists.h"
#include "Framework/FrameworkDataContainers/Walks/Walks.h"

// clang-format off
constinit const Framework::FieldRow CaptureConfigSubRuleType::s_Rows[] = {
    Framework::Element("IsKindOf", &CaptureConfigSubRuleType::m_IsKindOf),
    Framework::Element("IsExactKindOf", &CaptureConfigSubRuleType::m_IsExactKindOf),
    Framework::Element("SubSystem", &CaptureConfigSubRuleType::m_SubSystem),
    Framework::Element("UniqueName", &CaptureConfigSubRuleType::m_UniqueName),
    Framework::PlainEnums<CaptureLevelType, &CaptureConfigSubRuleType::AddCaptureLevel, &CaptureConfigSubRuleType::ClearCaptureLevel>("CaptureLevel", "CaptureLevelType", &CaptureConfigSubRuleType::m_CaptureLevelList),
    Framework::Element("AddTrace", &CaptureConfigSubRuleType::m_AddTrace),
    Framework::Element("ShowErrorMessageBox", &CaptureConfigSubRuleType::m_ShowErrorMessageBox),
    Framework::Element("Output", &CaptureConfigSubRuleType::m_Output),
};

constinit const Framework::FieldTable CaptureConfigSubRuleType::s_Table = {
    .className = "CaptureConfigSubRuleType",
    .elementName = "CaptureConfigSubRule",
    .parent = nullptr,
    .isStructuralConfigLoader = false,
    .isRoot = false,
    .rows = s_Rows,
    .create = &Framework::CreateContainer<CaptureConfigSubRuleType>,
    .type = &typeid(CaptureConfigSubRuleType),
    .autoFill = Framework::ToBase(&CaptureConfigSubRuleType::m_bAutoFillTypeInfo),
};
// clang-format on

CaptureConfigSubRuleType::CaptureConfigSubRuleType(bool bBuildFromScratch) : TypedDataContainer(bBuildFromScratch) {
    Framework::NameByClass(*this, s_Table);
}

CaptureConfigSubRuleType::~CaptureConfigSubRuleType() {
    CaptureConfigSubRuleType::ClearCaptureLevel();
}

zelString CaptureConfigSubRuleType::GetBaseType() {
    return "CaptureConfigSubRuleType";
}

void CaptureConfigSubRuleType::GetProperties(ParameterList& pList) {
    Framework::Properties(*this, s_Table, pList);
}

bool CaptureConfigSubRuleType::MergeDataMembers(XMLDataWrapper* pMergeData, zelString sFeatureID) {
    return Framework::Merge(*this, s_Table, pMergeData, sFeatureID, __LINE__);
}

zelString CaptureConfigSubRuleType::GetAttributeList() {
    return Framework::AttributePredicate(*this, s_Table);
}

ParameterList* CaptureConfigSubRuleType::GetPLAttributeList() {
    return Framework::AttributeParameters(*this, s_Table);
}

TypedDataContainer* CaptureConfigSubRuleType::Clone() {
    return Framework::Clone(*this, s_Table);
}

bool CaptureConfigSubRuleType::DumpMergeContents(const zelString& sParentQuery, FullFunctionXMLDataWrapper* pOutput,
                                                 int QueryPos, bool bIncludeMergeAttributes) {
    return Framework::DumpByQuery(*this, s_Table, sParentQuery, pOutput, QueryPos, bIncludeMergeAttributes);
}

bool CaptureConfigSubRuleType::DumpMergeContentsII(DOMNode* pParentNode, FullFunctionXMLDataWrapper* pOutput,
                                                   DOMNode*& pPassedCurrent, bool bIncludeMergeAttributes) {
    return Framework::DumpByNode(*this, s_Table, pParentNode, pOutput, pPassedCurrent, bIncludeMergeAttributes);
}

bool CaptureConfigSubRuleType::UpdateContainedData() {
    return Framework::Update(*this, s_Table);
}

bool CaptureConfigSubRuleType::PopulateDataMembers(XalanNode* pNode) {
    return Framework::Populate(*this, s_Table, pNode);
}

void CaptureConfigSubRuleType::ResetDataMembers() {
    Framework::Reset(*this, s_Table);
}

zelString CaptureConfigSubRuleType::GetIsKindOf() {
    return m_IsKindOf;
}

void CaptureConfigSubRuleType::SetIsKindOf(LPCTSTR szNew) {
    m_IsKindOf = szNew;
}

zelString CaptureConfigSubRuleType::GetIsExactKindOf() {
    return m_IsExactKindOf;
}

void CaptureConfigSubRuleType::SetIsExactKindOf(LPCTSTR szNew) {
    m_IsExactKindOf = szNew;
}

zelString CaptureConfigSubRuleType::GetSubSystem() {
    return m_SubSystem;
}

void CaptureConfigSubRuleType::SetSubSystem(LPCTSTR szNew) {
    m_SubSystem = szNew;
}

zelString CaptureConfigSubRuleType::GetUniqueName() {
    return m_UniqueName;
}

void CaptureConfigSubRuleType::SetUniqueName(LPCTSTR szNew) {
    m_UniqueName = szNew;
}

int CaptureConfigSubRuleType::GetCaptureLevelLength() {
    return Framework::ListLength(m_CaptureLevelList);
}

CaptureLevelType* CaptureConfigSubRuleType::GetCaptureLevel(int Index) {
    return static_cast<CaptureLevelType*>(Framework::GrowTo(m_CaptureLevelList, s_Rows[4], Index));
}

void CaptureConfigSubRuleType::AddNewCaptureLevel(CaptureLevelType* szNew) {
    Framework::AddNewWord(m_CaptureLevelList, szNew);
}

bool CaptureConfigSubRuleType::GetAddTrace() {
    return m_AddTrace;
}

void CaptureConfigSubRuleType::SetAddTrace(bool szNew) {
    m_AddTrace = szNew;
}

bool CaptureConfigSubRuleType::GetShowErrorMessageBox() {
    return m_ShowErrorMessageBox;
}

void CaptureConfigSubRuleType::SetShowErrorMessageBox(bool szNew) {
    m_ShowErrorMessageBox = szNew;
}

zelString CaptureConfigSubRuleType::GetOutput() {
    return m_Output;
}

void CaptureConfigSubRuleType::SetOutput(LPCTSTR szNew) {
    m_Output = szNew;
}

bool CaptureConfigSubRuleType::AutoFillTypeInfo() {
    return true;
}

void CaptureConfigSubRuleType::AddCaptureLevel(zelString pData) {
    Framework::AddWord(m_CaptureLevelList, s_Rows[4], pData);
}

void CaptureConfigSubRuleType::ClearCaptureLevel() {
    Framework::ClearWords(m_CaptureLevelList);
}
