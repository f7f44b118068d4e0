// Generated from CaptureConfig.xsd; do not edit. Regenerate with the target "generate".
#include "FrameworkDataContainers/CaptureConfigRuleType.h"

#include "Framework/FrameworkDataContainers/Walks/Lists.h"
#include "Framework/FrameworkDataContainers/Walks/Walks.h"
#include "FrameworkDataContainers/CaptureConfigSubRuleType.h"

// clang-format off
constinit const Framework::FieldRow CaptureConfigRuleType::s_Rows[] = {
    Framework::PlainList<CaptureConfigSubRuleType, &CaptureConfigRuleType::AddSubRule, &CaptureConfigRuleType::ClearSubRule>("SubRule", "CaptureConfigSubRuleType", &CaptureConfigRuleType::m_SubRuleList),
};

constinit const Framework::FieldTable CaptureConfigRuleType::s_Table = {
    .className = "CaptureConfigRuleType",
    .elementName = "CaptureConfigRule",
    .parent = nullptr,
    .isStructuralConfigLoader = false,
    .isRoot = false,
    .rows = s_Rows,
    .create = &Framework::CreateContainer<CaptureConfigRuleType>,
    .type = &typeid(CaptureConfigRuleType),
    .autoFill = Framework::ToBase(&CaptureConfigRuleType::m_bAutoFillTypeInfo),
};
// clang-format on

CaptureConfigRuleType::CaptureConfigRuleType(bool bBuildFromScratch) : TypedDataContainer(bBuildFromScratch) {
    Framework::NameByClass(*this, s_Table);
}

CaptureConfigRuleType::~CaptureConfigRuleType() {
    CaptureConfigRuleType::ClearSubRule();
}

zelString CaptureConfigRuleType::GetBaseType() {
    return "CaptureConfigRuleType";
}

void CaptureConfigRuleType::GetProperties(ParameterList& pList) {
    Framework::Properties(*this, s_Table, pList);
}

bool CaptureConfigRuleType::MergeDataMembers(XMLDataWrapper* pMergeData, zelString sFeatureID) {
    return Framework::Merge(*this, s_Table, pMergeData, sFeatureID, __LINE__);
}

zelString CaptureConfigRuleType::GetAttributeList() {
    return Framework::AttributePredicate(*this, s_Table);
}

ParameterList* CaptureConfigRuleType::GetPLAttributeList() {
    return Framework::AttributeParameters(*this, s_Table);
}

TypedDataContainer* CaptureConfigRuleType::Clone() {
    return Framework::Clone(*this, s_Table);
}

bool CaptureConfigRuleType::DumpMergeContents(const zelString& sParentQuery, FullFunctionXMLDataWrapper* pOutput,
                                              int QueryPos, bool bIncludeMergeAttributes) {
    return Framework::DumpByQuery(*this, s_Table, sParentQuery, pOutput, QueryPos, bIncludeMergeAttributes);
}

bool CaptureConfigRuleType::DumpMergeContentsII(DOMNode* pParentNode, FullFunctionXMLDataWrapper* pOutput,
                                                DOMNode*& pPassedCurrent, bool bIncludeMergeAttributes) {
    return Framework::DumpByNode(*this, s_Table, pParentNode, pOutput, pPassedCurrent, bIncludeMergeAttributes);
}

bool CaptureConfigRuleType::UpdateContainedData() {
    return Framework::Update(*this, s_Table);
}

bool CaptureConfigRuleType::PopulateDataMembers(XalanNode* pNode) {
    return Framework::Populate(*this, s_Table, pNode);
}

void CaptureConfigRuleType::ResetDataMembers() {
    Framework::Reset(*this, s_Table);
}

int CaptureConfigRuleType::GetSubRuleLength() {
    return Framework::ListLength(m_SubRuleList);
}

CaptureConfigSubRuleType* CaptureConfigRuleType::GetSubRule(int Index) {
    return static_cast<CaptureConfigSubRuleType*>(Framework::GrowTo(*this, s_Rows[0], Index));
}

void CaptureConfigRuleType::AddNewSubRule(CaptureConfigSubRuleType* szNew) {
    Framework::AddNewPlain(m_SubRuleList, szNew);
}

bool CaptureConfigRuleType::AutoFillTypeInfo() {
    return true;
}

void CaptureConfigRuleType::AddSubRule(XMLDataWrapper* pData, XalanNode* spNode) {
    Framework::AddPlain(*this, s_Rows[0], pData, spNode);
}

void CaptureConfigRuleType::ClearSubRule() {
    Framework::ClearPlain(m_SubRuleList);
}
