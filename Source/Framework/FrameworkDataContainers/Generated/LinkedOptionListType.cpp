// Generated from ConfigDefRoot.xsd; do not edit. Regenerate with the target "generate".
#include "FrameworkDataContainers/LinkedOptionListType.h"

#include "Framework/FrameworkDataContainers/Walks/Lists.h"
#include "Framework/FrameworkDataContainers/Walks/Walks.h"
#include "FrameworkDataContainers/LinkedOptionType.h"

// clang-format off
constinit const Framework::FieldRow LinkedOptionListType::s_Rows[] = {
    Framework::KeyedList<LinkedOptionType, &LinkedOptionType::GetIndex, &LinkedOptionListType::AddLinkedOption, &LinkedOptionListType::ClearLinkedOption>("LinkedOption", "LinkedOptionType", "Index", &LinkedOptionListType::m_MapLinkedOptionList, &LinkedOptionListType::m_LinkedOptionList),
};

constinit const Framework::FieldTable LinkedOptionListType::s_Table = {
    .className = "LinkedOptionListType",
    .elementName = "LinkedOptionList",
    .parent = nullptr,
    .isStructuralConfigLoader = false,
    .isRoot = false,
    .rows = s_Rows,
    .create = &Framework::CreateContainer<LinkedOptionListType>,
    .type = &typeid(LinkedOptionListType),
    .autoFill = Framework::ToBase(&LinkedOptionListType::m_bAutoFillTypeInfo),
};
// clang-format on

LinkedOptionListType::LinkedOptionListType(bool bBuildFromScratch) : TypedDataContainer(bBuildFromScratch) {
    Framework::NameByClass(*this, s_Table);
}

LinkedOptionListType::~LinkedOptionListType() {
    LinkedOptionListType::ClearLinkedOption();
}

zelString LinkedOptionListType::GetBaseType() {
    return "LinkedOptionListType";
}

void LinkedOptionListType::GetProperties(ParameterList& pList) {
    Framework::Properties(*this, s_Table, pList);
}

bool LinkedOptionListType::MergeDataMembers(XMLDataWrapper* pMergeData, zelString sFeatureID) {
    return Framework::Merge(*this, s_Table, pMergeData, sFeatureID, __LINE__);
}

zelString LinkedOptionListType::GetAttributeList() {
    return Framework::AttributePredicate(*this, s_Table);
}

ParameterList* LinkedOptionListType::GetPLAttributeList() {
    return Framework::AttributeParameters(*this, s_Table);
}

TypedDataContainer* LinkedOptionListType::Clone() {
    return Framework::Clone(*this, s_Table);
}

bool LinkedOptionListType::DumpMergeContents(const zelString& sParentQuery, FullFunctionXMLDataWrapper* pOutput,
                                             int QueryPos, bool bIncludeMergeAttributes) {
    return Framework::DumpByQuery(*this, s_Table, sParentQuery, pOutput, QueryPos, bIncludeMergeAttributes);
}

bool LinkedOptionListType::DumpMergeContentsII(DOMNode* pParentNode, FullFunctionXMLDataWrapper* pOutput,
                                               DOMNode*& pPassedCurrent, bool bIncludeMergeAttributes) {
    return Framework::DumpByNode(*this, s_Table, pParentNode, pOutput, pPassedCurrent, bIncludeMergeAttributes);
}

bool LinkedOptionListType::UpdateContainedData() {
    return Framework::Update(*this, s_Table);
}

bool LinkedOptionListType::PopulateDataMembers(XalanNode* pNode) {
    return Framework::Populate(*this, s_Table, pNode);
}

void LinkedOptionListType::ResetDataMembers() {
    Framework::Reset(*this, s_Table);
}

int LinkedOptionListType::GetLinkedOptionLength() {
    return Framework::ListLength(m_LinkedOptionList);
}

LinkedOptionType* LinkedOptionListType::GetLinkedOption(int Index) {
    return static_cast<LinkedOptionType*>(Framework::EntryAt(m_LinkedOptionList, Index));
}

LinkedOptionType* LinkedOptionListType::GetLinkedOption(const zelString& sName) {
    return static_cast<LinkedOptionType*>(Framework::EntryByKey(m_MapLinkedOptionList, sName));
}

void LinkedOptionListType::AddNewLinkedOption(LinkedOptionType* szNew, const zelString& sName) {
    Framework::AddNewKeyed(m_MapLinkedOptionList, m_LinkedOptionList, szNew, sName);
}

void LinkedOptionListType::RemoveLinkedOption(const zelString& sName, const zelString& sFeatureId) {
    Framework::RemoveKeyed(*this, s_Rows[0], sName, sFeatureId);
}

bool LinkedOptionListType::AutoFillTypeInfo() {
    return true;
}

void LinkedOptionListType::AddLinkedOption(XMLDataWrapper* pData, XalanNode* spNode, const zelString& sName) {
    Framework::AddKeyed(*this, s_Rows[0], pData, spNode, sName, __LINE__);
}

void LinkedOptionListType::ClearLinkedOption() {
    Framework::ClearKeyed(m_MapLinkedOptionList, m_LinkedOptionList);
}
