// Generated from ItemPurchase.xsd; do not edit. Regenerate with the target "generate".
#include "FrameworkDataContainers/PointsInfoType.h"

#include "Framework/FrameworkDataContainers/Walks/Lists.h"
#include "Framework/FrameworkDataContainers/Walks/Walks.h"
#include "FrameworkDataContainers/PointsGroupType.h"

// clang-format off
constinit const Framework::FieldRow PointsInfoType::s_Rows[] = {
    Framework::PlainList<PointsGroupType, &PointsInfoType::AddPointsTotals, &PointsInfoType::ClearPointsTotals>("PointsTotals", "PointsGroupType", &PointsInfoType::m_PointsTotalsList),
    Framework::Element("Type", &PointsInfoType::m_Type),
    Framework::Element("IsRedeemed", &PointsInfoType::m_IsRedeemed),
    Framework::Element("Points", &PointsInfoType::m_Points),
};

constinit const Framework::FieldTable PointsInfoType::s_Table = {
    .className = "PointsInfoType",
    .elementName = "PointsInfo",
    .parent = &LineItemInfoType::s_Table,
    .isStructuralConfigLoader = false,
    .isRoot = false,
    .rows = s_Rows,
    .create = &Framework::CreateContainer<PointsInfoType>,
    .type = &typeid(PointsInfoType),
    .autoFill = Framework::ToBase(&PointsInfoType::m_bAutoFillTypeInfo),
};
// clang-format on

PointsInfoType::PointsInfoType(bool bBuildFromScratch) : LineItemInfoType(bBuildFromScratch) {
    Framework::NameByClass(*this, s_Table);
}

PointsInfoType::~PointsInfoType() {
    PointsInfoType::ClearPointsTotals();
}

zelString PointsInfoType::GetBaseType() {
    return "PointsInfoType";
}

void PointsInfoType::GetProperties(ParameterList& pList) {
    Framework::Properties(*this, s_Table, pList);
}

bool PointsInfoType::MergeDataMembers(XMLDataWrapper* pMergeData, zelString sFeatureID) {
    return Framework::Merge(*this, s_Table, pMergeData, sFeatureID, __LINE__);
}

zelString PointsInfoType::GetAttributeList() {
    return Framework::AttributePredicate(*this, s_Table);
}

ParameterList* PointsInfoType::GetPLAttributeList() {
    return Framework::AttributeParameters(*this, s_Table);
}

TypedDataContainer* PointsInfoType::Clone() {
    return Framework::Clone(*this, s_Table);
}

bool PointsInfoType::DumpMergeContents(const zelString& sParentQuery, FullFunctionXMLDataWrapper* pOutput, int QueryPos,
                                       bool bIncludeMergeAttributes) {
    return Framework::DumpByQuery(*this, s_Table, sParentQuery, pOutput, QueryPos, bIncludeMergeAttributes);
}

bool PointsInfoType::DumpMergeContentsII(DOMNode* pParentNode, FullFunctionXMLDataWrapper* pOutput,
                                         DOMNode*& pPassedCurrent, bool bIncludeMergeAttributes) {
    return Framework::DumpByNode(*this, s_Table, pParentNode, pOutput, pPassedCurrent, bIncludeMergeAttributes);
}

bool PointsInfoType::UpdateContainedData() {
    return Framework::Update(*this, s_Table);
}

bool PointsInfoType::PopulateDataMembers(XalanNode* pNode) {
    return Framework::Populate(*this, s_Table, pNode);
}

void PointsInfoType::ResetDataMembers() {
    Framework::Reset(*this, s_Table);
}

bool PointsInfoType::AutoFillTypeInfo() {
    return true;
}

int PointsInfoType::GetPointsTotalsLength() {
    return Framework::ListLength(m_PointsTotalsList);
}

PointsGroupType* PointsInfoType::GetPointsTotals(int Index) {
    return static_cast<PointsGroupType*>(Framework::GrowTo(*this, s_Rows[0], Index));
}

void PointsInfoType::AddNewPointsTotals(PointsGroupType* szNew) {
    Framework::AddNewPlain(m_PointsTotalsList, szNew);
}

zelString PointsInfoType::GetType() {
    return m_Type;
}

void PointsInfoType::SetType(LPCTSTR szNew) {
    m_Type = szNew;
}

bool PointsInfoType::GetIsRedeemed() {
    return m_IsRedeemed;
}

void PointsInfoType::SetIsRedeemed(bool szNew) {
    m_IsRedeemed = szNew;
}

zelString PointsInfoType::GetPoints() {
    return m_Points;
}

void PointsInfoType::SetPoints(LPCTSTR szNew) {
    m_Points = szNew;
}

void PointsInfoType::AddPointsTotals(XMLDataWrapper* pData, XalanNode* spNode) {
    Framework::AddPlain(*this, s_Rows[0], pData, spNode);
}

void PointsInfoType::ClearPointsTotals() {
    Framework::ClearPlain(m_PointsTotalsList);
}
