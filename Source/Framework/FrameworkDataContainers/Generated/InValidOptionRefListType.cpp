// Generated from ConfigDefRoot.xsd; do not edit. Regenerate with the target "generate".
#include "FrameworkDataContainers/InValidOptionRefListType.h"

#include "Framework/FrameworkDataContainers/Walks/Lists.h"
#include "Framework/FrameworkDataContainers/Walks/Walks.h"
#include "FrameworkDataContainers/InValidOptionRefType.h"

// clang-format off
constinit const Framework::FieldRow InValidOptionRefListType::s_Rows[] = {
    Framework::KeyedList<InValidOptionRefType, &InValidOptionRefType::GetValue, &InValidOptionRefListType::AddInValidOptionRef, &InValidOptionRefListType::ClearInValidOptionRef>("InValidOptionRef", "InValidOptionRefType", "Value", &InValidOptionRefListType::m_MapInValidOptionRefList, &InValidOptionRefListType::m_InValidOptionRefList),
};

constinit const Framework::FieldTable InValidOptionRefListType::s_Table = {
    .className = "InValidOptionRefListType",
    .elementName = "InValidOptionRefList",
    .parent = nullptr,
    .isStructuralConfigLoader = false,
    .isRoot = false,
    .rows = s_Rows,
    .create = &Framework::CreateContainer<InValidOptionRefListType>,
    .type = &typeid(InValidOptionRefListType),
    .autoFill = Framework::ToBase(&InValidOptionRefListType::m_bAutoFillTypeInfo),
};
// clang-format on

InValidOptionRefListType::InValidOptionRefListType(bool bBuildFromScratch) : TypedDataContainer(bBuildFromScratch) {
    Framework::NameByClass(*this, s_Table);
}

InValidOptionRefListType::~InValidOptionRefListType() {
    InValidOptionRefListType::ClearInValidOptionRef();
}

zelString InValidOptionRefListType::GetBaseType() {
    return "InValidOptionRefListType";
}

void InValidOptionRefListType::GetProperties(ParameterList& pList) {
    Framework::Properties(*this, s_Table, pList);
}

bool InValidOptionRefListType::MergeDataMembers(XMLDataWrapper* pMergeData, zelString sFeatureID) {
    return Framework::Merge(*this, s_Table, pMergeData, sFeatureID, __LINE__);
}

zelString InValidOptionRefListType::GetAttributeList() {
    return Framework::AttributePredicate(*this, s_Table);
}

ParameterList* InValidOptionRefListType::GetPLAttributeList() {
    return Framework::AttributeParameters(*this, s_Table);
}

TypedDataContainer* InValidOptionRefListType::Clone() {
    return Framework::Clone(*this, s_Table);
}

bool InValidOptionRefListType::DumpMergeContents(const zelString& sParentQuery, FullFunctionXMLDataWrapper* pOutput,
                                                 int QueryPos, bool bIncludeMergeAttributes) {
    return Framework::DumpByQuery(*this, s_Table, sParentQuery, pOutput, QueryPos, bIncludeMergeAttributes);
}

bool InValidOptionRefListType::DumpMergeContentsII(DOMNode* pParentNode, FullFunctionXMLDataWrapper* pOutput,
                                                   DOMNode*& pPassedCurrent, bool bIncludeMergeAttributes) {
    return Framework::DumpByNode(*this, s_Table, pParentNode, pOutput, pPassedCurrent, bIncludeMergeAttributes);
}

bool InValidOptionRefListType::UpdateContainedData() {
    return Framework::Update(*this, s_Table);
}

bool InValidOptionRefListType::PopulateDataMembers(XalanNode* pNode) {
    return Framework::Populate(*this, s_Table, pNode);
}

void InValidOptionRefListType::ResetDataMembers() {
    Framework::Reset(*this, s_Table);
}

int InValidOptionRefListType::GetInValidOptionRefLength() {
    return Framework::ListLength(m_InValidOptionRefList);
}

InValidOptionRefType* InValidOptionRefListType::GetInValidOptionRef(int Index) {
    return static_cast<InValidOptionRefType*>(Framework::EntryAt(m_InValidOptionRefList, Index));
}

InValidOptionRefType* InValidOptionRefListType::GetInValidOptionRef(const zelString& sName) {
    return static_cast<InValidOptionRefType*>(Framework::EntryByKey(m_MapInValidOptionRefList, sName));
}

void InValidOptionRefListType::AddNewInValidOptionRef(InValidOptionRefType* szNew, const zelString& sName) {
    Framework::AddNewKeyed(m_MapInValidOptionRefList, m_InValidOptionRefList, szNew, sName);
}

void InValidOptionRefListType::RemoveInValidOptionRef(const zelString& sName, const zelString& sFeatureId) {
    Framework::RemoveKeyed(*this, s_Rows[0], sName, sFeatureId);
}

bool InValidOptionRefListType::AutoFillTypeInfo() {
    return true;
}

void InValidOptionRefListType::AddInValidOptionRef(XMLDataWrapper* pData, XalanNode* spNode, const zelString& sName) {
    Framework::AddKeyed(*this, s_Rows[0], pData, spNode, sName, __LINE__);
}

void InValidOptionRefListType::ClearInValidOptionRef() {
    Framework::ClearKeyed(m_MapInValidOptionRefList, m_InValidOptionRefList);
}
