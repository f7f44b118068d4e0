// Generated from StructureTransformDef.xsd; do not edit. Regenerate with the target "generate".
#include "FrameworkDataContainers/StructConditionType.h"

#include "Framework/FrameworkDataContainers/Walks/Lists.h"
#include "Framework/FrameworkDataContainers/Walks/Walks.h"

// clang-format off
constinit const Framework::FieldRow StructConditionType::s_Rows[] = {
    Framework::Element("Query", &StructConditionType::m_Query),
    Framework::Element("Exists", &StructConditionType::m_Exists),
    Framework::Element("Value", &StructConditionType::m_Value),
};

constinit const Framework::FieldTable StructConditionType::s_Table = {
    .className = "StructConditionType",
    .elementName = "Condition",
    .parent = nullptr,
    .isStructuralConfigLoader = false,
    .isRoot = false,
    .rows = s_Rows,
    .create = &Framework::CreateContainer<StructConditionType>,
    .type = &typeid(StructConditionType),
    .autoFill = Framework::ToBase(&StructConditionType::m_bAutoFillTypeInfo),
};
// clang-format on

StructConditionType::StructConditionType(bool bBuildFromScratch) : TypedDataContainer(bBuildFromScratch) {
    Framework::NameByClass(*this, s_Table);
}

StructConditionType::~StructConditionType() {}

zelString StructConditionType::GetBaseType() {
    return "StructConditionType";
}

void StructConditionType::GetProperties(ParameterList& pList) {
    Framework::Properties(*this, s_Table, pList);
}

bool StructConditionType::MergeDataMembers(XMLDataWrapper* pMergeData, zelString sFeatureID) {
    return Framework::Merge(*this, s_Table, pMergeData, sFeatureID, __LINE__);
}

zelString StructConditionType::GetAttributeList() {
    return Framework::AttributePredicate(*this, s_Table);
}

ParameterList* StructConditionType::GetPLAttributeList() {
    return Framework::AttributeParameters(*this, s_Table);
}

TypedDataContainer* StructConditionType::Clone() {
    return Framework::Clone(*this, s_Table);
}

bool StructConditionType::DumpMergeContents(const zelString& sParentQuery, FullFunctionXMLDataWrapper* pOutput,
                                            int QueryPos, bool bIncludeMergeAttributes) {
    return Framework::DumpByQuery(*this, s_Table, sParentQuery, pOutput, QueryPos, bIncludeMergeAttributes);
}

bool StructConditionType::DumpMergeContentsII(DOMNode* pParentNode, FullFunctionXMLDataWrapper* pOutput,
                                              DOMNode*& pPassedCurrent, bool bIncludeMergeAttributes) {
    return Framework::DumpByNode(*this, s_Table, pParentNode, pOutput, pPassedCurrent, bIncludeMergeAttributes);
}

bool StructConditionType::UpdateContainedData() {
    return Framework::Update(*this, s_Table);
}

bool StructConditionType::PopulateDataMembers(XalanNode* pNode) {
    return Framework::Populate(*this, s_Table, pNode);
}

void StructConditionType::ResetDataMembers() {
    Framework::Reset(*this, s_Table);
}

zelString StructConditionType::GetQuery() {
    return m_Query;
}

void StructConditionType::SetQuery(LPCTSTR szNew) {
    m_Query = szNew;
}

zelString StructConditionType::GetExists() {
    return m_Exists;
}

void StructConditionType::SetExists(LPCTSTR szNew) {
    m_Exists = szNew;
}

zelString StructConditionType::GetValue() {
    return m_Value;
}

void StructConditionType::SetValue(LPCTSTR szNew) {
    m_Value = szNew;
}

bool StructConditionType::AutoFillTypeInfo() {
    return true;
}
