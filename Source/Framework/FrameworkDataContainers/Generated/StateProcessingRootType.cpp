// Generated from StateProcessingRoot.xsd; do not edit. Regenerate with the target "generate".
#include "FrameworkDataContainers/StateProcessingRootType.h"

#include "Framework/FrameworkDataContainers/Walks/Lists.h"
#include "Framework/FrameworkDataContainers/Walks/Walks.h"
#include "FrameworkDataContainers/StateTableType.h"

// clang-format off
constinit const Framework::FieldRow StateProcessingRootType::s_Rows[] = {
    Framework::KeyedStrings<&StateProcessingRootType::AddRevisionHistory, &StateProcessingRootType::ClearRevisionHistory>("RevisionHistory", "fileName", false, &StateProcessingRootType::m_MapRevisionHistoryList, &StateProcessingRootType::m_RevisionHistoryList),
    Framework::Child<&StateProcessingRootType::m_StateTable>("StateTable", "StateTableType"),
    Framework::Attribute("Version", &StateProcessingRootType::m_Version),
};

constinit const Framework::FieldTable StateProcessingRootType::s_Table = {
    .className = "StateProcessingRootType",
    .elementName = "StateProcessingRoot",
    .parent = nullptr,
    .isStructuralConfigLoader = true,
    .isRoot = true,
    .rows = s_Rows,
    .create = &Framework::CreateContainer<StateProcessingRootType>,
    .type = &typeid(StateProcessingRootType),
    .autoFill = Framework::ToBase(&StateProcessingRootType::m_bAutoFillTypeInfo),
};
// clang-format on

StateProcessingRootType::StateProcessingRootType(bool bBuildFromScratch) : StructuralConfigLoader(bBuildFromScratch) {
    Framework::NameByClass(*this, s_Table);
}

StateProcessingRootType::~StateProcessingRootType() {
    StateProcessingRootType::ClearRevisionHistory();
    delete m_StateTable;
}

zelString StateProcessingRootType::GetBaseType() {
    return "StateProcessingRootType";
}

void StateProcessingRootType::GetProperties(ParameterList& pList) {
    Framework::Properties(*this, s_Table, pList);
}

bool StateProcessingRootType::MergeDataMembers(XMLDataWrapper* pMergeData, zelString sFeatureID) {
    return Framework::Merge(*this, s_Table, pMergeData, sFeatureID, __LINE__);
}

zelString StateProcessingRootType::GetAttributeList() {
    return Framework::AttributePredicate(*this, s_Table);
}

ParameterList* StateProcessingRootType::GetPLAttributeList() {
    return Framework::AttributeParameters(*this, s_Table);
}

TypedDataContainer* StateProcessingRootType::Clone() {
    return Framework::Clone(*this, s_Table);
}

bool StateProcessingRootType::DumpMergeContents(const zelString& sParentQuery, FullFunctionXMLDataWrapper* pOutput,
                                                int QueryPos, bool bIncludeMergeAttributes) {
    return Framework::DumpByQuery(*this, s_Table, sParentQuery, pOutput, QueryPos, bIncludeMergeAttributes);
}

bool StateProcessingRootType::DumpMergeContentsII(DOMNode* pParentNode, FullFunctionXMLDataWrapper* pOutput,
                                                  DOMNode*& pPassedCurrent, bool bIncludeMergeAttributes) {
    return Framework::DumpByNode(*this, s_Table, pParentNode, pOutput, pPassedCurrent, bIncludeMergeAttributes);
}

bool StateProcessingRootType::UpdateContainedData() {
    return Framework::Update(*this, s_Table);
}

bool StateProcessingRootType::PopulateDataMembers(XalanNode* pNode) {
    return Framework::Populate(*this, s_Table, pNode);
}

void StateProcessingRootType::ResetDataMembers() {
    Framework::Reset(*this, s_Table);
}

int StateProcessingRootType::GetRevisionHistoryLength() {
    return Framework::ListLength(m_RevisionHistoryList);
}

zelString StateProcessingRootType::GetRevisionHistory(int Index) {
    return Framework::TextAt(m_RevisionHistoryList, Index);
}

zelString StateProcessingRootType::GetRevisionHistory(const zelString& sName) {
    return Framework::TextByKey(m_MapRevisionHistoryList, sName);
}

StateTableType* StateProcessingRootType::GetStateTable() {
    return m_StateTable;
}

void StateProcessingRootType::SetStateTable(StateTableType* szNew) {
    Framework::ReplaceChild(m_StateTable, szNew);
}

zelString StateProcessingRootType::GetVersion() {
    return m_Version;
}

void StateProcessingRootType::SetVersion(LPCTSTR szNew) {
    m_Version = szNew;
}

bool StateProcessingRootType::AutoFillTypeInfo() {
    return true;
}

void StateProcessingRootType::AddRevisionHistory(const zelString& pData, const zelString& sName) {
    Framework::AddKeyedText(*this, s_Rows[0], pData, sName, __LINE__);
}

void StateProcessingRootType::ClearRevisionHistory() {
    Framework::ClearKeyedTexts(m_MapRevisionHistoryList, m_RevisionHistoryList);
}
