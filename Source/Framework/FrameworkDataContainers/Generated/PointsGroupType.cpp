// Generated from ItemPurchase.xsd; do not edit. Regenerate with the target "generate".
#include "FrameworkDataContainers/PointsGroupType.h"

#include "Framework/FrameworkDataContainers/Walks/Lists.h"
#include "Framework/FrameworkDataContainers/Walks/Walks.h"

// clang-format off
constinit const Framework::FieldRow PointsGroupType::s_Rows[] = {
    Framework::Element("GroupType", &PointsGroupType::m_GroupType),
    Framework::Element("Description", &PointsGroupType::m_Description),
    Framework::Element("PointsTotal", &PointsGroupType::m_PointsTotal),
};

constinit const Framework::FieldTable PointsGroupType::s_Table = {
    .className = "PointsGroupType",
    .elementName = "PointsGroup",
    .parent = nullptr,
    .isStructuralConfigLoader = false,
    .isRoot = false,
    .rows = s_Rows,
    .create = &Framework::CreateContainer<PointsGroupType>,
    .type = &typeid(PointsGroupType),
    .autoFill = Framework::ToBase(&PointsGroupType::m_bAutoFillTypeInfo),
};
// clang-format on

PointsGroupType::PointsGroupType(bool bBuildFromScratch) : TypedDataContainer(bBuildFromScratch) {
    Framework::NameByClass(*this, s_Table);
}

PointsGroupType::~PointsGroupType() {}

zelString PointsGroupType::GetBaseType() {
    return "PointsGroupType";
}

void PointsGroupType::GetProperties(ParameterList& pList) {
    Framework::Properties(*this, s_Table, pList);
}

bool PointsGroupType::MergeDataMembers(XMLDataWrapper* pMergeData, zelString sFeatureID) {
    return Framework::Merge(*this, s_Table, pMergeData, sFeatureID, __LINE__);
}

zelString PointsGroupType::GetAttributeList() {
    return Framework::AttributePredicate(*this, s_Table);
}

ParameterList* PointsGroupType::GetPLAttributeList() {
    return Framework::AttributeParameters(*this, s_Table);
}

TypedDataContainer* PointsGroupType::Clone() {
    return Framework::Clone(*this, s_Table);
}

bool PointsGroupType::DumpMergeContents(const zelString& sParentQuery, FullFunctionXMLDataWrapper* pOutput,
                                        int QueryPos, bool bIncludeMergeAttributes) {
    return Framework::DumpByQuery(*this, s_Table, sParentQuery, pOutput, QueryPos, bIncludeMergeAttributes);
}

bool PointsGroupType::DumpMergeContentsII(DOMNode* pParentNode, FullFunctionXMLDataWrapper* pOutput,
                                          DOMNode*& pPassedCurrent, bool bIncludeMergeAttributes) {
    return Framework::DumpByNode(*this, s_Table, pParentNode, pOutput, pPassedCurrent, bIncludeMergeAttributes);
}

bool PointsGroupType::UpdateContainedData() {
    return Framework::Update(*this, s_Table);
}

bool PointsGroupType::PopulateDataMembers(XalanNode* pNode) {
    return Framework::Populate(*this, s_Table, pNode);
}

void PointsGroupType::ResetDataMembers() {
    Framework::Reset(*this, s_Table);
}

zelString PointsGroupType::GetGroupType() {
    return m_GroupType;
}

void PointsGroupType::SetGroupType(LPCTSTR szNew) {
    m_GroupType = szNew;
}

zelString PointsGroupType::GetDescription() {
    return m_Description;
}

void PointsGroupType::SetDescription(LPCTSTR szNew) {
    m_Description = szNew;
}

zelString PointsGroupType::GetPointsTotal() {
    return m_PointsTotal;
}

void PointsGroupType::SetPointsTotal(LPCTSTR szNew) {
    m_PointsTotal = szNew;
}

bool PointsGroupType::AutoFillTypeInfo() {
    return true;
}
