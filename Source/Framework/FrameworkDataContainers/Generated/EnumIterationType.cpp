// Generated from StructureTransformDef.xsd; do not edit. Regenerate with the target "generate".
#include "FrameworkDataContainers/EnumIterationType.h"

#include "Framework/FrameworkDataContainers/Walks/Lists.h"
#include "Framework/FrameworkDataContainers/Walks/Walks.h"

// clang-format off
constinit const Framework::FieldRow EnumIterationType::s_Rows[] = {
    Framework::Element("Value", &EnumIterationType::m_Value),
    Framework::Element("RefId", &EnumIterationType::m_RefId),
    Framework::Attribute("Id", &EnumIterationType::m_Id),
};

constinit const Framework::FieldTable EnumIterationType::s_Table = {
    .className = "EnumIterationType",
    .elementName = "EnumIteration",
    .parent = nullptr,
    .isStructuralConfigLoader = false,
    .isRoot = false,
    .rows = s_Rows,
    .create = &Framework::CreateContainer<EnumIterationType>,
    .type = &typeid(EnumIterationType),
    .autoFill = Framework::ToBase(&EnumIterationType::m_bAutoFillTypeInfo),
};
// clang-format on

EnumIterationType::EnumIterationType(bool bBuildFromScratch) : TypedDataContainer(bBuildFromScratch) {
    Framework::NameByClass(*this, s_Table);
}

EnumIterationType::~EnumIterationType() {}

zelString EnumIterationType::GetBaseType() {
    return "EnumIterationType";
}

void EnumIterationType::GetProperties(ParameterList& pList) {
    Framework::Properties(*this, s_Table, pList);
}

bool EnumIterationType::MergeDataMembers(XMLDataWrapper* pMergeData, zelString sFeatureID) {
    return Framework::Merge(*this, s_Table, pMergeData, sFeatureID, __LINE__);
}

zelString EnumIterationType::GetAttributeList() {
    return Framework::AttributePredicate(*this, s_Table);
}

ParameterList* EnumIterationType::GetPLAttributeList() {
    return Framework::AttributeParameters(*this, s_Table);
}

TypedDataContainer* EnumIterationType::Clone() {
    return Framework::Clone(*this, s_Table);
}

bool EnumIterationType::DumpMergeContents(const zelString& sParentQuery, FullFunctionXMLDataWrapper* pOutput,
                                          int QueryPos, bool bIncludeMergeAttributes) {
    return Framework::DumpByQuery(*this, s_Table, sParentQuery, pOutput, QueryPos, bIncludeMergeAttributes);
}

bool EnumIterationType::DumpMergeContentsII(DOMNode* pParentNode, FullFunctionXMLDataWrapper* pOutput,
                                            DOMNode*& pPassedCurrent, bool bIncludeMergeAttributes) {
    return Framework::DumpByNode(*this, s_Table, pParentNode, pOutput, pPassedCurrent, bIncludeMergeAttributes);
}

bool EnumIterationType::UpdateContainedData() {
    return Framework::Update(*this, s_Table);
}

bool EnumIterationType::PopulateDataMembers(XalanNode* pNode) {
    return Framework::Populate(*this, s_Table, pNode);
}

void EnumIterationType::ResetDataMembers() {
    Framework::Reset(*this, s_Table);
}

int EnumIterationType::GetValue() {
    return m_Value;
}

void EnumIterationType::SetValue(int szNew) {
    m_Value = szNew;
}

zelString EnumIterationType::GetRefId() {
    return m_RefId;
}

void EnumIterationType::SetRefId(LPCTSTR szNew) {
    m_RefId = szNew;
}

zelString EnumIterationType::GetId() {
    return m_Id;
}

void EnumIterationType::SetId(LPCTSTR szNew) {
    m_Id = szNew;
}

bool EnumIterationType::AutoFillTypeInfo() {
    return true;
}
