// Generated from ConfigDefRoot.xsd; do not edit. Regenerate with the target "generate".
#include "FrameworkDataContainers/ReferenceType.h"

#include "Framework/FrameworkDataContainers/Walks/Lists.h"
#include "Framework/FrameworkDataContainers/Walks/Walks.h"

// clang-format off
constinit const Framework::FieldRow ReferenceType::s_Rows[] = {
    Framework::Element("OptionName", &ReferenceType::m_OptionName),
    Framework::Element("Value", &ReferenceType::m_Value),
    Framework::Element("ForceOverride", &ReferenceType::m_ForceOverride),
};

constinit const Framework::FieldTable ReferenceType::s_Table = {
    .className = "ReferenceType",
    .elementName = "Reference",
    .parent = nullptr,
    .isStructuralConfigLoader = false,
    .isRoot = false,
    .rows = s_Rows,
    .create = &Framework::CreateContainer<ReferenceType>,
    .type = &typeid(ReferenceType),
    .autoFill = Framework::ToBase(&ReferenceType::m_bAutoFillTypeInfo),
};
// clang-format on

ReferenceType::ReferenceType(bool bBuildFromScratch) : TypedDataContainer(bBuildFromScratch) {
    Framework::NameByClass(*this, s_Table);
}

ReferenceType::~ReferenceType() {}

zelString ReferenceType::GetBaseType() {
    return "ReferenceType";
}

void ReferenceType::GetProperties(ParameterList& pList) {
    Framework::Properties(*this, s_Table, pList);
}

bool ReferenceType::MergeDataMembers(XMLDataWrapper* pMergeData, zelString sFeatureID) {
    return Framework::Merge(*this, s_Table, pMergeData, sFeatureID, __LINE__);
}

zelString ReferenceType::GetAttributeList() {
    return Framework::AttributePredicate(*this, s_Table);
}

ParameterList* ReferenceType::GetPLAttributeList() {
    return Framework::AttributeParameters(*this, s_Table);
}

TypedDataContainer* ReferenceType::Clone() {
    return Framework::Clone(*this, s_Table);
}

bool ReferenceType::DumpMergeContents(const zelString& sParentQuery, FullFunctionXMLDataWrapper* pOutput, int QueryPos,
                                      bool bIncludeMergeAttributes) {
    return Framework::DumpByQuery(*this, s_Table, sParentQuery, pOutput, QueryPos, bIncludeMergeAttributes);
}

bool ReferenceType::DumpMergeContentsII(DOMNode* pParentNode, FullFunctionXMLDataWrapper* pOutput,
                                        DOMNode*& pPassedCurrent, bool bIncludeMergeAttributes) {
    return Framework::DumpByNode(*this, s_Table, pParentNode, pOutput, pPassedCurrent, bIncludeMergeAttributes);
}

bool ReferenceType::UpdateContainedData() {
    return Framework::Update(*this, s_Table);
}

bool ReferenceType::PopulateDataMembers(XalanNode* pNode) {
    return Framework::Populate(*this, s_Table, pNode);
}

void ReferenceType::ResetDataMembers() {
    Framework::Reset(*this, s_Table);
}

zelString ReferenceType::GetOptionName() {
    return m_OptionName;
}

void ReferenceType::SetOptionName(LPCTSTR szNew) {
    m_OptionName = szNew;
}

zelString ReferenceType::GetValue() {
    return m_Value;
}

void ReferenceType::SetValue(LPCTSTR szNew) {
    m_Value = szNew;
}

bool ReferenceType::GetForceOverride() {
    return m_ForceOverride;
}

void ReferenceType::SetForceOverride(bool szNew) {
    m_ForceOverride = szNew;
}

bool ReferenceType::AutoFillTypeInfo() {
    return true;
}
