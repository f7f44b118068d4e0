// Generated from ConfigDefRoot.xsd; do not edit. Regenerate with the target "generate".
#include "FrameworkDataContainers/ReferenceListConstraintType.h"

#include "Framework/FrameworkDataContainers/Walks/Lists.h"
#include "Framework/FrameworkDataContainers/Walks/Walks.h"
#include "FrameworkDataContainers/ReferenceListType.h"

// clang-format off
constinit const Framework::FieldRow ReferenceListConstraintType::s_Rows[] = {
    Framework::Element("Value", &ReferenceListConstraintType::m_Value),
    Framework::Element("Display", &ReferenceListConstraintType::m_Display),
    Framework::Child<&ReferenceListConstraintType::m_ReferenceList>("ReferenceList", "ReferenceListType"),
};

constinit const Framework::FieldTable ReferenceListConstraintType::s_Table = {
    .className = "ReferenceListConstraintType",
    .elementName = "ReferenceListConstraint",
    .parent = nullptr,
    .isStructuralConfigLoader = false,
    .isRoot = false,
    .rows = s_Rows,
    .create = &Framework::CreateContainer<ReferenceListConstraintType>,
    .type = &typeid(ReferenceListConstraintType),
    .autoFill = Framework::ToBase(&ReferenceListConstraintType::m_bAutoFillTypeInfo),
};
// clang-format on

ReferenceListConstraintType::ReferenceListConstraintType(bool bBuildFromScratch)
    : TypedDataContainer(bBuildFromScratch) {
    Framework::NameByClass(*this, s_Table);
}

ReferenceListConstraintType::~ReferenceListConstraintType() {
    delete m_ReferenceList;
}

zelString ReferenceListConstraintType::GetBaseType() {
    return "ReferenceListConstraintType";
}

void ReferenceListConstraintType::GetProperties(ParameterList& pList) {
    Framework::Properties(*this, s_Table, pList);
}

bool ReferenceListConstraintType::MergeDataMembers(XMLDataWrapper* pMergeData, zelString sFeatureID) {
    return Framework::Merge(*this, s_Table, pMergeData, sFeatureID, __LINE__);
}

zelString ReferenceListConstraintType::GetAttributeList() {
    return Framework::AttributePredicate(*this, s_Table);
}

ParameterList* ReferenceListConstraintType::GetPLAttributeList() {
    return Framework::AttributeParameters(*this, s_Table);
}

TypedDataContainer* ReferenceListConstraintType::Clone() {
    return Framework::Clone(*this, s_Table);
}

bool ReferenceListConstraintType::DumpMergeContents(const zelString& sParentQuery, FullFunctionXMLDataWrapper* pOutput,
                                                    int QueryPos, bool bIncludeMergeAttributes) {
    return Framework::DumpByQuery(*this, s_Table, sParentQuery, pOutput, QueryPos, bIncludeMergeAttributes);
}

bool ReferenceListConstraintType::DumpMergeContentsII(DOMNode* pParentNode, FullFunctionXMLDataWrapper* pOutput,
                                                      DOMNode*& pPassedCurrent, bool bIncludeMergeAttributes) {
    return Framework::DumpByNode(*this, s_Table, pParentNode, pOutput, pPassedCurrent, bIncludeMergeAttributes);
}

bool ReferenceListConstraintType::UpdateContainedData() {
    return Framework::Update(*this, s_Table);
}

bool ReferenceListConstraintType::PopulateDataMembers(XalanNode* pNode) {
    return Framework::Populate(*this, s_Table, pNode);
}

void ReferenceListConstraintType::ResetDataMembers() {
    Framework::Reset(*this, s_Table);
}

zelString ReferenceListConstraintType::GetValue() {
    return m_Value;
}

void ReferenceListConstraintType::SetValue(LPCTSTR szNew) {
    m_Value = szNew;
}

zelString ReferenceListConstraintType::GetDisplay() {
    return m_Display;
}

void ReferenceListConstraintType::SetDisplay(LPCTSTR szNew) {
    m_Display = szNew;
}

ReferenceListType* ReferenceListConstraintType::GetReferenceList() {
    return m_ReferenceList;
}

void ReferenceListConstraintType::SetReferenceList(ReferenceListType* szNew) {
    Framework::ReplaceChild(m_ReferenceList, szNew);
}

bool ReferenceListConstraintType::AutoFillTypeInfo() {
    return true;
}
