// Generated from ConfigDefRoot.xsd; do not edit. Regenerate with the target "generate".
#include "FrameworkDataContainers/ViewListType.h"

#include "Framework/FrameworkDataContainers/Walks/Lists.h"
#include "Framework/FrameworkDataContainers/Walks/Walks.h"
#include "FrameworkDataContainers/ViewMapType.h"

// clang-format off
constinit const Framework::FieldRow ViewListType::s_Rows[] = {
    Framework::KeyedList<ViewMapType, &ViewMapType::Getname, &ViewListType::AddView, &ViewListType::ClearView>("View", "ViewMapType", "name", &ViewListType::m_MapViewList, &ViewListType::m_ViewList),
};

constinit const Framework::FieldTable ViewListType::s_Table = {
    .className = "ViewListType",
    .elementName = "ViewList",
    .parent = nullptr,
    .isStructuralConfigLoader = false,
    .isRoot = false,
    .rows = s_Rows,
    .create = &Framework::CreateContainer<ViewListType>,
    .type = &typeid(ViewListType),
    .autoFill = Framework::ToBase(&ViewListType::m_bAutoFillTypeInfo),
};
// clang-format on

ViewListType::ViewListType(bool bBuildFromScratch) : TypedDataContainer(bBuildFromScratch) {
    Framework::NameByClass(*this, s_Table);
}

ViewListType::~ViewListType() {
    ViewListType::ClearView();
}

zelString ViewListType::GetBaseType() {
    return "ViewListType";
}

void ViewListType::GetProperties(ParameterList& pList) {
    Framework::Properties(*this, s_Table, pList);
}

bool ViewListType::MergeDataMembers(XMLDataWrapper* pMergeData, zelString sFeatureID) {
    return Framework::Merge(*this, s_Table, pMergeData, sFeatureID, __LINE__);
}

zelString ViewListType::GetAttributeList() {
    return Framework::AttributePredicate(*this, s_Table);
}

ParameterList* ViewListType::GetPLAttributeList() {
    return Framework::AttributeParameters(*this, s_Table);
}

TypedDataContainer* ViewListType::Clone() {
    return Framework::Clone(*this, s_Table);
}

bool ViewListType::DumpMergeContents(const zelString& sParentQuery, FullFunctionXMLDataWrapper* pOutput, int QueryPos,
                                     bool bIncludeMergeAttributes) {
    return Framework::DumpByQuery(*this, s_Table, sParentQuery, pOutput, QueryPos, bIncludeMergeAttributes);
}

bool ViewListType::DumpMergeContentsII(DOMNode* pParentNode, FullFunctionXMLDataWrapper* pOutput,
                                       DOMNode*& pPassedCurrent, bool bIncludeMergeAttributes) {
    return Framework::DumpByNode(*this, s_Table, pParentNode, pOutput, pPassedCurrent, bIncludeMergeAttributes);
}

bool ViewListType::UpdateContainedData() {
    return Framework::Update(*this, s_Table);
}

bool ViewListType::PopulateDataMembers(XalanNode* pNode) {
    return Framework::Populate(*this, s_Table, pNode);
}

void ViewListType::ResetDataMembers() {
    Framework::Reset(*this, s_Table);
}

int ViewListType::GetViewLength() {
    return Framework::ListLength(m_ViewList);
}

ViewMapType* ViewListType::GetView(int Index) {
    return static_cast<ViewMapType*>(Framework::EntryAt(m_ViewList, Index));
}

ViewMapType* ViewListType::GetView(const zelString& sName) {
    return static_cast<ViewMapType*>(Framework::EntryByKey(m_MapViewList, sName));
}

void ViewListType::AddNewView(ViewMapType* szNew, const zelString& sName) {
    Framework::AddNewKeyed(m_MapViewList, m_ViewList, szNew, sName);
}

void ViewListType::RemoveView(const zelString& sName, const zelString& sFeatureId) {
    Framework::RemoveKeyed(*this, s_Rows[0], sName, sFeatureId);
}

bool ViewListType::AutoFillTypeInfo() {
    return true;
}

void ViewListType::AddView(XMLDataWrapper* pData, XalanNode* spNode, const zelString& sName) {
    Framework::AddKeyed(*this, s_Rows[0], pData, spNode, sName, __LINE__);
}

void ViewListType::ClearView() {
    Framework::ClearKeyed(m_MapViewList, m_ViewList);
}
