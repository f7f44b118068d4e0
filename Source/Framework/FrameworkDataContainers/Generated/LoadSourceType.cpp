// Generated from VendraConfig.xsd; do not edit. Regenerate with the target "generate".
#include "FrameworkDataContainers/LoadSourceType.h"

#include "Framework/FrameworkDataContainers/Walks/Lists.h"
#include "Framework/FrameworkDataContainers/Walks/Walks.h"
#include "FrameworkDataContainers/SourceLocationType.h"

// clang-format off
constinit const Framework::FieldRow LoadSourceType::s_Rows[] = {
    Framework::Element("SourceType", &LoadSourceType::m_SourceType),
    Framework::Child<&LoadSourceType::m_SourceLocations>("SourceLocations", "SourceLocationType"),
};

constinit const Framework::FieldTable LoadSourceType::s_Table = {
    .className = "LoadSourceType",
    .elementName = "LoadSource",
    .parent = nullptr,
    .isStructuralConfigLoader = false,
    .isRoot = false,
    .rows = s_Rows,
    .create = &Framework::CreateContainer<LoadSourceType>,
    .type = &typeid(LoadSourceType),
    .autoFill = Framework::ToBase(&LoadSourceType::m_bAutoFillTypeInfo),
};
// clang-format on

LoadSourceType::LoadSourceType(bool bBuildFromScratch) : TypedDataContainer(bBuildFromScratch) {
    Framework::NameByClass(*this, s_Table);
}

LoadSourceType::~LoadSourceType() {
    delete m_SourceLocations;
}

zelString LoadSourceType::GetBaseType() {
    return "LoadSourceType";
}

void LoadSourceType::GetProperties(ParameterList& pList) {
    Framework::Properties(*this, s_Table, pList);
}

bool LoadSourceType::MergeDataMembers(XMLDataWrapper* pMergeData, zelString sFeatureID) {
    return Framework::Merge(*this, s_Table, pMergeData, sFeatureID, __LINE__);
}

zelString LoadSourceType::GetAttributeList() {
    return Framework::AttributePredicate(*this, s_Table);
}

ParameterList* LoadSourceType::GetPLAttributeList() {
    return Framework::AttributeParameters(*this, s_Table);
}

TypedDataContainer* LoadSourceType::Clone() {
    return Framework::Clone(*this, s_Table);
}

bool LoadSourceType::DumpMergeContents(const zelString& sParentQuery, FullFunctionXMLDataWrapper* pOutput, int QueryPos,
                                       bool bIncludeMergeAttributes) {
    return Framework::DumpByQuery(*this, s_Table, sParentQuery, pOutput, QueryPos, bIncludeMergeAttributes);
}

bool LoadSourceType::DumpMergeContentsII(DOMNode* pParentNode, FullFunctionXMLDataWrapper* pOutput,
                                         DOMNode*& pPassedCurrent, bool bIncludeMergeAttributes) {
    return Framework::DumpByNode(*this, s_Table, pParentNode, pOutput, pPassedCurrent, bIncludeMergeAttributes);
}

bool LoadSourceType::UpdateContainedData() {
    return Framework::Update(*this, s_Table);
}

bool LoadSourceType::PopulateDataMembers(XalanNode* pNode) {
    return Framework::Populate(*this, s_Table, pNode);
}

void LoadSourceType::ResetDataMembers() {
    Framework::Reset(*this, s_Table);
}

zelString LoadSourceType::GetSourceType() {
    return m_SourceType;
}

void LoadSourceType::SetSourceType(LPCTSTR szNew) {
    m_SourceType = szNew;
}

SourceLocationType* LoadSourceType::GetSourceLocations() {
    return m_SourceLocations;
}

void LoadSourceType::SetSourceLocations(SourceLocationType* szNew) {
    Framework::ReplaceChild(m_SourceLocations, szNew);
}

bool LoadSourceType::AutoFillTypeInfo() {
    return true;
}
