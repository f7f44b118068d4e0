// Generated from LoadConfig.xsd; do not edit. Regenerate with the target "generate".
#include "FrameworkDataContainers/LoadConfigType.h"

#include "Framework/FrameworkDataContainers/Walks/Lists.h"
#include "Framework/FrameworkDataContainers/Walks/Walks.h"
#include "FrameworkDataContainers/ThreadChildListType.h"

// clang-format off
constinit const Framework::FieldRow LoadConfigType::s_Rows[] = {
    Framework::KeyedList<ThreadChildListType, &ThreadChildListType::GetUniqueName, &LoadConfigType::AddThreadChildList, &LoadConfigType::ClearThreadChildList>("ThreadChildList", "ThreadChildListType", "UniqueName", &LoadConfigType::m_MapThreadChildListList, &LoadConfigType::m_ThreadChildListList),
};

constinit const Framework::FieldTable LoadConfigType::s_Table = {
    .className = "LoadConfigType",
    .elementName = "LoadConfig",
    .parent = nullptr,
    .isStructuralConfigLoader = true,
    .isRoot = true,
    .rows = s_Rows,
    .create = &Framework::CreateContainer<LoadConfigType>,
    .type = &typeid(LoadConfigType),
    .autoFill = Framework::ToBase(&LoadConfigType::m_bAutoFillTypeInfo),
};
// clang-format on

LoadConfigType::LoadConfigType(bool bBuildFromScratch) : StructuralConfigLoader(bBuildFromScratch) {
    Framework::NameByClass(*this, s_Table);
}

LoadConfigType::~LoadConfigType() {
    LoadConfigType::ClearThreadChildList();
}

zelString LoadConfigType::GetBaseType() {
    return "LoadConfigType";
}

void LoadConfigType::GetProperties(ParameterList& pList) {
    Framework::Properties(*this, s_Table, pList);
}

bool LoadConfigType::MergeDataMembers(XMLDataWrapper* pMergeData, zelString sFeatureID) {
    return Framework::Merge(*this, s_Table, pMergeData, sFeatureID, __LINE__);
}

zelString LoadConfigType::GetAttributeList() {
    return Framework::AttributePredicate(*this, s_Table);
}

ParameterList* LoadConfigType::GetPLAttributeList() {
    return Framework::AttributeParameters(*this, s_Table);
}

TypedDataContainer* LoadConfigType::Clone() {
    return Framework::Clone(*this, s_Table);
}

bool LoadConfigType::DumpMergeContents(const zelString& sParentQuery, FullFunctionXMLDataWrapper* pOutput, int QueryPos,
                                       bool bIncludeMergeAttributes) {
    return Framework::DumpByQuery(*this, s_Table, sParentQuery, pOutput, QueryPos, bIncludeMergeAttributes);
}

bool LoadConfigType::DumpMergeContentsII(DOMNode* pParentNode, FullFunctionXMLDataWrapper* pOutput,
                                         DOMNode*& pPassedCurrent, bool bIncludeMergeAttributes) {
    return Framework::DumpByNode(*this, s_Table, pParentNode, pOutput, pPassedCurrent, bIncludeMergeAttributes);
}

bool LoadConfigType::UpdateContainedData() {
    return Framework::Update(*this, s_Table);
}

bool LoadConfigType::PopulateDataMembers(XalanNode* pNode) {
    return Framework::Populate(*this, s_Table, pNode);
}

void LoadConfigType::ResetDataMembers() {
    Framework::Reset(*this, s_Table);
}

int LoadConfigType::GetThreadChildListLength() {
    return Framework::ListLength(m_ThreadChildListList);
}

ThreadChildListType* LoadConfigType::GetThreadChildList(int Index) {
    return static_cast<ThreadChildListType*>(Framework::EntryAt(m_ThreadChildListList, Index));
}

ThreadChildListType* LoadConfigType::GetThreadChildList(const zelString& sName) {
    return static_cast<ThreadChildListType*>(Framework::EntryByKey(m_MapThreadChildListList, sName));
}

void LoadConfigType::AddNewThreadChildList(ThreadChildListType* szNew, const zelString& sName) {
    Framework::AddNewKeyed(m_MapThreadChildListList, m_ThreadChildListList, szNew, sName);
}

void LoadConfigType::RemoveThreadChildList(const zelString& sName, const zelString& sFeatureId) {
    Framework::RemoveKeyed(*this, s_Rows[0], sName, sFeatureId);
}

bool LoadConfigType::AutoFillTypeInfo() {
    return true;
}

void LoadConfigType::AddThreadChildList(XMLDataWrapper* pData, XalanNode* spNode, const zelString& sName) {
    Framework::AddKeyed(*this, s_Rows[0], pData, spNode, sName, __LINE__);
}

void LoadConfigType::ClearThreadChildList() {
    Framework::ClearKeyed(m_MapThreadChildListList, m_ThreadChildListList);
}
