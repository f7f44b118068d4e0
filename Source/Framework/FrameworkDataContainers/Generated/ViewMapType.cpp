// Generated from ConfigDefRoot.xsd; do not edit. Regenerate with the target "generate".
#include "FrameworkDataContainers/ViewMapType.h"

#include "Framework/FrameworkDataContainers/Walks/Lists.h"
#include "Framework/FrameworkDataContainers/Walks/Walks.h"

// clang-format off
constinit const Framework::FieldRow ViewMapType::s_Rows[] = {
    Framework::Element("Lookup", &ViewMapType::m_Lookup),
    Framework::Element("Visible", &ViewMapType::m_Visible),
    Framework::Attribute("name", &ViewMapType::m_name),
};

constinit const Framework::FieldTable ViewMapType::s_Table = {
    .className = "ViewMapType",
    .elementName = "View",
    .parent = nullptr,
    .isStructuralConfigLoader = false,
    .isRoot = false,
    .rows = s_Rows,
    .create = &Framework::CreateContainer<ViewMapType>,
    .type = &typeid(ViewMapType),
    .autoFill = Framework::ToBase(&ViewMapType::m_bAutoFillTypeInfo),
};
// clang-format on

ViewMapType::ViewMapType(bool bBuildFromScratch) : TypedDataContainer(bBuildFromScratch) {
    Framework::NameByClass(*this, s_Table);
}

ViewMapType::~ViewMapType() {}

zelString ViewMapType::GetBaseType() {
    return "ViewMapType";
}

void ViewMapType::GetProperties(ParameterList& pList) {
    Framework::Properties(*this, s_Table, pList);
}

bool ViewMapType::MergeDataMembers(XMLDataWrapper* pMergeData, zelString sFeatureID) {
    return Framework::Merge(*this, s_Table, pMergeData, sFeatureID, __LINE__);
}

zelString ViewMapType::GetAttributeList() {
    return Framework::AttributePredicate(*this, s_Table);
}

ParameterList* ViewMapType::GetPLAttributeList() {
    return Framework::AttributeParameters(*this, s_Table);
}

TypedDataContainer* ViewMapType::Clone() {
    return Framework::Clone(*this, s_Table);
}

bool ViewMapType::DumpMergeContents(const zelString& sParentQuery, FullFunctionXMLDataWrapper* pOutput, int QueryPos,
                                    bool bIncludeMergeAttributes) {
    return Framework::DumpByQuery(*this, s_Table, sParentQuery, pOutput, QueryPos, bIncludeMergeAttributes);
}

bool ViewMapType::DumpMergeContentsII(DOMNode* pParentNode, FullFunctionXMLDataWrapper* pOutput,
                                      DOMNode*& pPassedCurrent, bool bIncludeMergeAttributes) {
    return Framework::DumpByNode(*this, s_Table, pParentNode, pOutput, pPassedCurrent, bIncludeMergeAttributes);
}

bool ViewMapType::UpdateContainedData() {
    return Framework::Update(*this, s_Table);
}

bool ViewMapType::PopulateDataMembers(XalanNode* pNode) {
    return Framework::Populate(*this, s_Table, pNode);
}

void ViewMapType::ResetDataMembers() {
    Framework::Reset(*this, s_Table);
}

zelString ViewMapType::GetLookup() {
    return m_Lookup;
}

void ViewMapType::SetLookup(LPCTSTR szNew) {
    m_Lookup = szNew;
}

bool ViewMapType::GetVisible() {
    return m_Visible;
}

void ViewMapType::SetVisible(bool szNew) {
    m_Visible = szNew;
}

zelString ViewMapType::Getname() {
    return m_name;
}

void ViewMapType::Setname(LPCTSTR szNew) {
    m_name = szNew;
}

bool ViewMapType::AutoFillTypeInfo() {
    return true;
}
