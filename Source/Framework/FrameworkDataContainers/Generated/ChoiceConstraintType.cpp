// Generated from ConfigDefRoot.xsd; do not edit. Regenerate with the target "generate".
#include "FrameworkDataContainers/ChoiceConstraintType.h"

#include "Framework/FrameworkDataContainers/Walks/Lists.h"
#include "Framework/FrameworkDataContainers/Walks/Walks.h"

// clang-format off
constinit const Framework::FieldRow ChoiceConstraintType::s_Rows[] = {
    Framework::Element("Value", &ChoiceConstraintType::m_Value),
    Framework::Element("Display", &ChoiceConstraintType::m_Display),
};

constinit const Framework::FieldTable ChoiceConstraintType::s_Table = {
    .className = "ChoiceConstraintType",
    .elementName = "ChoiceConstraint",
    .parent = nullptr,
    .isStructuralConfigLoader = false,
    .isRoot = false,
    .rows = s_Rows,
    .create = &Framework::CreateContainer<ChoiceConstraintType>,
    .type = &typeid(ChoiceConstraintType),
    .autoFill = Framework::ToBase(&ChoiceConstraintType::m_bAutoFillTypeInfo),
};
// clang-format on

ChoiceConstraintType::ChoiceConstraintType(bool bBuildFromScratch) : TypedDataContainer(bBuildFromScratch) {
    Framework::NameByClass(*this, s_Table);
}

ChoiceConstraintType::~ChoiceConstraintType() {}

zelString ChoiceConstraintType::GetBaseType() {
    return "ChoiceConstraintType";
}

void ChoiceConstraintType::GetProperties(ParameterList& pList) {
    Framework::Properties(*this, s_Table, pList);
}

bool ChoiceConstraintType::MergeDataMembers(XMLDataWrapper* pMergeData, zelString sFeatureID) {
    return Framework::Merge(*this, s_Table, pMergeData, sFeatureID, __LINE__);
}

zelString ChoiceConstraintType::GetAttributeList() {
    return Framework::AttributePredicate(*this, s_Table);
}

ParameterList* ChoiceConstraintType::GetPLAttributeList() {
    return Framework::AttributeParameters(*this, s_Table);
}

TypedDataContainer* ChoiceConstraintType::Clone() {
    return Framework::Clone(*this, s_Table);
}

bool ChoiceConstraintType::DumpMergeContents(const zelString& sParentQuery, FullFunctionXMLDataWrapper* pOutput,
                                             int QueryPos, bool bIncludeMergeAttributes) {
    return Framework::DumpByQuery(*this, s_Table, sParentQuery, pOutput, QueryPos, bIncludeMergeAttributes);
}

bool ChoiceConstraintType::DumpMergeContentsII(DOMNode* pParentNode, FullFunctionXMLDataWrapper* pOutput,
                                               DOMNode*& pPassedCurrent, bool bIncludeMergeAttributes) {
    return Framework::DumpByNode(*this, s_Table, pParentNode, pOutput, pPassedCurrent, bIncludeMergeAttributes);
}

bool ChoiceConstraintType::UpdateContainedData() {
    return Framework::Update(*this, s_Table);
}

bool ChoiceConstraintType::PopulateDataMembers(XalanNode* pNode) {
    return Framework::Populate(*this, s_Table, pNode);
}

void ChoiceConstraintType::ResetDataMembers() {
    Framework::Reset(*this, s_Table);
}

zelString ChoiceConstraintType::GetValue() {
    return m_Value;
}

void ChoiceConstraintType::SetValue(LPCTSTR szNew) {
    m_Value = szNew;
}

zelString ChoiceConstraintType::GetDisplay() {
    return m_Display;
}

void ChoiceConstraintType::SetDisplay(LPCTSTR szNew) {
    m_Display = szNew;
}

bool ChoiceConstraintType::AutoFillTypeInfo() {
    return true;
}
