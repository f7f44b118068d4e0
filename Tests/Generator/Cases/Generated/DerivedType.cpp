// Generated from Parents.xsd; do not edit. Regenerate with the target "generate".
#include "FrameworkDataContainers/DerivedType.h"

#include "Framework/FrameworkDataContainers/Walks/Lists.h"
#include "Framework/FrameworkDataContainers/Walks/Walks.h"

// clang-format off
constinit const Framework::FieldRow DerivedType::s_Rows[] = {
    Framework::Element("Extra", &DerivedType::m_Extra),
    Framework::Attribute("Number", &DerivedType::m_Number),
};

constinit const Framework::FieldTable DerivedType::s_Table = {
    .className = "DerivedType",
    .elementName = "Derived",
    .parent = &BasicType::s_Table,
    .isStructuralConfigLoader = true,
    .isRoot = false,
    .rows = s_Rows,
    .create = &Framework::CreateContainer<DerivedType>,
    .type = &typeid(DerivedType),
    .autoFill = Framework::ToBase(&DerivedType::m_bAutoFillTypeInfo),
};
// clang-format on

DerivedType::DerivedType(bool bBuildFromScratch) : BasicType(bBuildFromScratch) {
    Framework::NameByClass(*this, s_Table);
}

DerivedType::~DerivedType() {}

zelString DerivedType::GetBaseType() {
    return "DerivedType";
}

void DerivedType::GetProperties(ParameterList& pList) {
    Framework::Properties(*this, s_Table, pList);
}

bool DerivedType::MergeDataMembers(XMLDataWrapper* pMergeData, zelString sFeatureID) {
    return Framework::Merge(*this, s_Table, pMergeData, sFeatureID, __LINE__);
}

zelString DerivedType::GetAttributeList() {
    return Framework::AttributePredicate(*this, s_Table);
}

ParameterList* DerivedType::GetPLAttributeList() {
    return Framework::AttributeParameters(*this, s_Table);
}

TypedDataContainer* DerivedType::Clone() {
    return Framework::Clone(*this, s_Table);
}

bool DerivedType::DumpMergeContents(const zelString& sParentQuery, FullFunctionXMLDataWrapper* pOutput, int QueryPos,
                                    bool bIncludeMergeAttributes) {
    return Framework::DumpByQuery(*this, s_Table, sParentQuery, pOutput, QueryPos, bIncludeMergeAttributes);
}

bool DerivedType::DumpMergeContentsII(DOMNode* pParentNode, FullFunctionXMLDataWrapper* pOutput,
                                      DOMNode*& pPassedCurrent, bool bIncludeMergeAttributes) {
    return Framework::DumpByNode(*this, s_Table, pParentNode, pOutput, pPassedCurrent, bIncludeMergeAttributes);
}

bool DerivedType::UpdateContainedData() {
    return Framework::Update(*this, s_Table);
}

bool DerivedType::PopulateDataMembers(XalanNode* pNode) {
    return Framework::Populate(*this, s_Table, pNode);
}

void DerivedType::ResetDataMembers() {
    Framework::Reset(*this, s_Table);
}

bool DerivedType::AutoFillTypeInfo() {
    return true;
}

zelString DerivedType::GetExtra() {
    return m_Extra;
}

void DerivedType::SetExtra(LPCTSTR szNew) {
    m_Extra = szNew;
}

int DerivedType::GetNumber() {
    return m_Number;
}

void DerivedType::SetNumber(int szNew) {
    m_Number = szNew;
}
