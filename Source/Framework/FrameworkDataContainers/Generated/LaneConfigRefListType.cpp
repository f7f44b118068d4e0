// Generated from GUIConfigurations.xsd; do not edit. Regenerate with the target "generate".
#include "FrameworkDataContainers/LaneConfigRefListType.h"

#include "Framework/FrameworkDataContainers/Walks/Lists.h"
#include "Framework/FrameworkDataContainers/Walks/Walks.h"

#include <utility>

// clang-format off
constinit const Framework::FieldRow LaneConfigRefListType::s_Rows[] = {
    Framework::PlainStrings<&LaneConfigRefListType::AddLaneConfigRef, &LaneConfigRefListType::ClearLaneConfigRef>("LaneConfigRef", &LaneConfigRefListType::m_LaneConfigRefList),
};

constinit const Framework::FieldTable LaneConfigRefListType::s_Table = {
    .className = "LaneConfigRefListType",
    .elementName = "LaneConfigRefList",
    .parent = nullptr,
    .isStructuralConfigLoader = false,
    .isRoot = false,
    .rows = s_Rows,
    .create = &Framework::CreateContainer<LaneConfigRefListType>,
    .type = &typeid(LaneConfigRefListType),
    .autoFill = Framework::ToBase(&LaneConfigRefListType::m_bAutoFillTypeInfo),
};
// clang-format on

LaneConfigRefListType::LaneConfigRefListType(bool bBuildFromScratch) : TypedDataContainer(bBuildFromScratch) {
    Framework::NameByClass(*this, s_Table);
}

LaneConfigRefListType::~LaneConfigRefListType() {
    LaneConfigRefListType::ClearLaneConfigRef();
}

zelString LaneConfigRefListType::GetBaseType() {
    return "LaneConfigRefListType";
}

void LaneConfigRefListType::GetProperties(ParameterList& pList) {
    Framework::Properties(*this, s_Table, pList);
}

bool LaneConfigRefListType::MergeDataMembers(XMLDataWrapper* pMergeData, zelString sFeatureID) {
    return Framework::Merge(*this, s_Table, pMergeData, sFeatureID, __LINE__);
}

zelString LaneConfigRefListType::GetAttributeList() {
    return Framework::AttributePredicate(*this, s_Table);
}

ParameterList* LaneConfigRefListType::GetPLAttributeList() {
    return Framework::AttributeParameters(*this, s_Table);
}

TypedDataContainer* LaneConfigRefListType::Clone() {
    return Framework::Clone(*this, s_Table);
}

bool LaneConfigRefListType::DumpMergeContents(const zelString& sParentQuery, FullFunctionXMLDataWrapper* pOutput,
                                              int QueryPos, bool bIncludeMergeAttributes) {
    return Framework::DumpByQuery(*this, s_Table, sParentQuery, pOutput, QueryPos, bIncludeMergeAttributes);
}

bool LaneConfigRefListType::DumpMergeContentsII(DOMNode* pParentNode, FullFunctionXMLDataWrapper* pOutput,
                                                DOMNode*& pPassedCurrent, bool bIncludeMergeAttributes) {
    return Framework::DumpByNode(*this, s_Table, pParentNode, pOutput, pPassedCurrent, bIncludeMergeAttributes);
}

bool LaneConfigRefListType::UpdateContainedData() {
    return Framework::Update(*this, s_Table);
}

bool LaneConfigRefListType::PopulateDataMembers(XalanNode* pNode) {
    return Framework::Populate(*this, s_Table, pNode);
}

void LaneConfigRefListType::ResetDataMembers() {
    Framework::Reset(*this, s_Table);
}

int LaneConfigRefListType::GetLaneConfigRefLength() {
    return Framework::ListLength(m_LaneConfigRefList);
}

zelString LaneConfigRefListType::GetLaneConfigRef(int Index) {
    return Framework::GrowTo(m_LaneConfigRefList, Index);
}

void LaneConfigRefListType::AddNewLaneConfigRef(LPCTSTR szNew) {
    m_LaneConfigRefList.emplace_back(szNew);
}

bool LaneConfigRefListType::AutoFillTypeInfo() {
    return true;
}

void LaneConfigRefListType::AddLaneConfigRef(zelString pData) {
    m_LaneConfigRefList.push_back(std::move(pData));
}

void LaneConfigRefListType::ClearLaneConfigRef() {
    m_LaneConfigRefList.clear();
}
