// Generated from StructureTransformDef.xsd; do not edit. Regenerate with the target "generate".
#include "FrameworkDataContainers/StructConditionListType.h"

#include "Framework/FrameworkDataContainers/Walks/Lists.h"
#include "Framework/FrameworkDataContainers/Walks/Walks.h"
#include "FrameworkDataContainers/StructConditionType.h"

// clang-format off
constinit const Framework::FieldRow StructConditionListType::s_Rows[] = {
    Framework::Element("ReturnValue", &StructConditionListType::m_ReturnValue),
    Framework::Element("ReturnQuery", &StructConditionListType::m_ReturnQuery),
    Framework::PlainList<StructConditionType, &StructConditionListType::AddCondition, &StructConditionListType::ClearCondition>("Condition", "StructConditionType", &StructConditionListType::m_ConditionList),
    Framework::Attribute("index", &StructConditionListType::m_index),
};

constinit const Framework::FieldTable StructConditionListType::s_Table = {
    .className = "StructConditionListType",
    .elementName = "ConditionalValue",
    .parent = nullptr,
    .isStructuralConfigLoader = false,
    .isRoot = false,
    .rows = s_Rows,
    .create = &Framework::CreateContainer<StructConditionListType>,
    .type = &typeid(StructConditionListType),
    .autoFill = Framework::ToBase(&StructConditionListType::m_bAutoFillTypeInfo),
};
// clang-format on

StructConditionListType::StructConditionListType(bool bBuildFromScratch) : TypedDataContainer(bBuildFromScratch) {
    Framework::NameByClass(*this, s_Table);
}

StructConditionListType::~StructConditionListType() {
    StructConditionListType::ClearCondition();
}

zelString StructConditionListType::GetBaseType() {
    return "StructConditionListType";
}

void StructConditionListType::GetProperties(ParameterList& pList) {
    Framework::Properties(*this, s_Table, pList);
}

bool StructConditionListType::MergeDataMembers(XMLDataWrapper* pMergeData, zelString sFeatureID) {
    return Framework::Merge(*this, s_Table, pMergeData, sFeatureID, __LINE__);
}

zelString StructConditionListType::GetAttributeList() {
    return Framework::AttributePredicate(*this, s_Table);
}

ParameterList* StructConditionListType::GetPLAttributeList() {
    return Framework::AttributeParameters(*this, s_Table);
}

TypedDataContainer* StructConditionListType::Clone() {
    return Framework::Clone(*this, s_Table);
}

bool StructConditionListType::DumpMergeContents(const zelString& sParentQuery, FullFunctionXMLDataWrapper* pOutput,
                                                int QueryPos, bool bIncludeMergeAttributes) {
    return Framework::DumpByQuery(*this, s_Table, sParentQuery, pOutput, QueryPos, bIncludeMergeAttributes);
}

bool StructConditionListType::DumpMergeContentsII(DOMNode* pParentNode, FullFunctionXMLDataWrapper* pOutput,
                                                  DOMNode*& pPassedCurrent, bool bIncludeMergeAttributes) {
    return Framework::DumpByNode(*this, s_Table, pParentNode, pOutput, pPassedCurrent, bIncludeMergeAttributes);
}

bool StructConditionListType::UpdateContainedData() {
    return Framework::Update(*this, s_Table);
}

bool StructConditionListType::PopulateDataMembers(XalanNode* pNode) {
    return Framework::Populate(*this, s_Table, pNode);
}

void StructConditionListType::ResetDataMembers() {
    Framework::Reset(*this, s_Table);
}

zelString StructConditionListType::GetReturnValue() {
    return m_ReturnValue;
}

void StructConditionListType::SetReturnValue(LPCTSTR szNew) {
    m_ReturnValue = szNew;
}

zelString StructConditionListType::GetReturnQuery() {
    return m_ReturnQuery;
}

void StructConditionListType::SetReturnQuery(LPCTSTR szNew) {
    m_ReturnQuery = szNew;
}

int StructConditionListType::GetConditionLength() {
    return Framework::ListLength(m_ConditionList);
}

StructConditionType* StructConditionListType::GetCondition(int Index) {
    return static_cast<StructConditionType*>(Framework::GrowTo(*this, s_Rows[2], Index));
}

void StructConditionListType::AddNewCondition(StructConditionType* szNew) {
    Framework::AddNewPlain(m_ConditionList, szNew);
}

zelString StructConditionListType::Getindex() {
    return m_index;
}

void StructConditionListType::Setindex(LPCTSTR szNew) {
    m_index = szNew;
}

bool StructConditionListType::AutoFillTypeInfo() {
    return true;
}

void StructConditionListType::AddCondition(XMLDataWrapper* pData, XalanNode* spNode) {
    Framework::AddPlain(*this, s_Rows[2], pData, spNode);
}

void StructConditionListType::ClearCondition() {
    Framework::ClearPlain(m_ConditionList);
}
