// Generated from VendraConfig.xsd; do not edit. Regenerate with the target "generate".
#include "FrameworkDataContainers/SourceLocationType.h"

#include "Framework/FrameworkDataContainers/Walks/Lists.h"
#include "Framework/FrameworkDataContainers/Walks/Walks.h"

#include <utility>

// clang-format off
constinit const Framework::FieldRow SourceLocationType::s_Rows[] = {
    Framework::PlainStrings<&SourceLocationType::AddSrcPath, &SourceLocationType::ClearSrcPath>("SrcPath", &SourceLocationType::m_SrcPathList),
};

constinit const Framework::FieldTable SourceLocationType::s_Table = {
    .className = "SourceLocationType",
    .elementName = "SourceLocations",
    .parent = nullptr,
    .isStructuralConfigLoader = false,
    .isRoot = false,
    .rows = s_Rows,
    .create = &Framework::CreateContainer<SourceLocationType>,
    .type = &typeid(SourceLocationType),
    .autoFill = Framework::ToBase(&SourceLocationType::m_bAutoFillTypeInfo),
};
// clang-format on

SourceLocationType::SourceLocationType(bool bBuildFromScratch) : TypedDataContainer(bBuildFromScratch) {
    Framework::NameByClass(*this, s_Table);
}

SourceLocationType::~SourceLocationType() {
    SourceLocationType::ClearSrcPath();
}

zelString SourceLocationType::GetBaseType() {
    return "SourceLocationType";
}

void SourceLocationType::GetProperties(ParameterList& pList) {
    Framework::Properties(*this, s_Table, pList);
}

bool SourceLocationType::MergeDataMembers(XMLDataWrapper* pMergeData, zelString sFeatureID) {
    return Framework::Merge(*this, s_Table, pMergeData, sFeatureID, __LINE__);
}

zelString SourceLocationType::GetAttributeList() {
    return Framework::AttributePredicate(*this, s_Table);
}

ParameterList* SourceLocationType::GetPLAttributeList() {
    return Framework::AttributeParameters(*this, s_Table);
}

TypedDataContainer* SourceLocationType::Clone() {
    return Framework::Clone(*this, s_Table);
}

bool SourceLocationType::DumpMergeContents(const zelString& sParentQuery, FullFunctionXMLDataWrapper* pOutput,
                                           int QueryPos, bool bIncludeMergeAttributes) {
    return Framework::DumpByQuery(*this, s_Table, sParentQuery, pOutput, QueryPos, bIncludeMergeAttributes);
}

bool SourceLocationType::DumpMergeContentsII(DOMNode* pParentNode, FullFunctionXMLDataWrapper* pOutput,
                                             DOMNode*& pPassedCurrent, bool bIncludeMergeAttributes) {
    return Framework::DumpByNode(*this, s_Table, pParentNode, pOutput, pPassedCurrent, bIncludeMergeAttributes);
}

bool SourceLocationType::UpdateContainedData() {
    return Framework::Update(*this, s_Table);
}

bool SourceLocationType::PopulateDataMembers(XalanNode* pNode) {
    return Framework::Populate(*this, s_Table, pNode);
}

void SourceLocationType::ResetDataMembers() {
    Framework::Reset(*this, s_Table);
}

int SourceLocationType::GetSrcPathLength() {
    return Framework::ListLength(m_SrcPathList);
}

zelString SourceLocationType::GetSrcPath(int Index) {
    return Framework::GrowTo(m_SrcPathList, Index);
}

void SourceLocationType::AddNewSrcPath(LPCTSTR szNew) {
    m_SrcPathList.emplace_back(szNew);
}

bool SourceLocationType::AutoFillTypeInfo() {
    return true;
}

void SourceLocationType::AddSrcPath(zelString pData) {
    m_SrcPathList.push_back(std::move(pData));
}

void SourceLocationType::ClearSrcPath() {
    m_SrcPathList.clear();
}
