// Generated from StructureTransformDef.xsd; do not edit. Regenerate with the target "generate".
#include "FrameworkDataContainers/StructDefaultType.h"

#include "Framework/FrameworkDataContainers/Walks/Lists.h"
#include "Framework/FrameworkDataContainers/Walks/Walks.h"
#include "FrameworkDataContainers/StructConditionListType.h"

// clang-format off
constinit const Framework::FieldRow StructDefaultType::s_Rows[] = {
    Framework::Element("StructureElement", &StructDefaultType::m_StructureElement),
    Framework::KeyedList<StructConditionListType, &StructConditionListType::Getindex, &StructDefaultType::AddConditionalValue, &StructDefaultType::ClearConditionalValue>("ConditionalValue", "StructConditionListType", "index", &StructDefaultType::m_MapConditionalValueList, &StructDefaultType::m_ConditionalValueList),
    Framework::Attribute("index", &StructDefaultType::m_index),
};

constinit const Framework::FieldTable StructDefaultType::s_Table = {
    .className = "StructDefaultType",
    .elementName = "DefaultValue",
    .parent = nullptr,
    .isStructuralConfigLoader = false,
    .isRoot = false,
    .rows = s_Rows,
    .create = &Framework::CreateContainer<StructDefaultType>,
    .type = &typeid(StructDefaultType),
    .autoFill = Framework::ToBase(&StructDefaultType::m_bAutoFillTypeInfo),
};
// clang-format on

StructDefaultType::StructDefaultType(bool bBuildFromScratch) : TypedDataContainer(bBuildFromScratch) {
    Framework::NameByClass(*this, s_Table);
}

StructDefaultType::~StructDefaultType() {
    StructDefaultType::ClearConditionalValue();
}

zelString StructDefaultType::GetBaseType() {
    return "StructDefaultType";
}

void StructDefaultType::GetProperties(ParameterList& pList) {
    Framework::Properties(*this, s_Table, pList);
}

bool StructDefaultType::MergeDataMembers(XMLDataWrapper* pMergeData, zelString sFeatureID) {
    return Framework::Merge(*this, s_Table, pMergeData, sFeatureID, __LINE__);
}

zelString StructDefaultType::GetAttributeList() {
    return Framework::AttributePredicate(*this, s_Table);
}

ParameterList* StructDefaultType::GetPLAttributeList() {
    return Framework::AttributeParameters(*this, s_Table);
}

TypedDataContainer* StructDefaultType::Clone() {
    return Framework::Clone(*this, s_Table);
}

bool StructDefaultType::DumpMergeContents(const zelString& sParentQuery, FullFunctionXMLDataWrapper* pOutput,
                                          int QueryPos, bool bIncludeMergeAttributes) {
    return Framework::DumpByQuery(*this, s_Table, sParentQuery, pOutput, QueryPos, bIncludeMergeAttributes);
}

bool StructDefaultType::DumpMergeContentsII(DOMNode* pParentNode, FullFunctionXMLDataWrapper* pOutput,
                                            DOMNode*& pPassedCurrent, bool bIncludeMergeAttributes) {
    return Framework::DumpByNode(*this, s_Table, pParentNode, pOutput, pPassedCurrent, bIncludeMergeAttributes);
}

bool StructDefaultType::UpdateContainedData() {
    return Framework::Update(*this, s_Table);
}

bool StructDefaultType::PopulateDataMembers(XalanNode* pNode) {
    return Framework::Populate(*this, s_Table, pNode);
}

void StructDefaultType::ResetDataMembers() {
    Framework::Reset(*this, s_Table);
}

zelString StructDefaultType::GetStructureElement() {
    return m_StructureElement;
}

void StructDefaultType::SetStructureElement(LPCTSTR szNew) {
    m_StructureElement = szNew;
}

int StructDefaultType::GetConditionalValueLength() {
    return Framework::ListLength(m_ConditionalValueList);
}

StructConditionListType* StructDefaultType::GetConditionalValue(int Index) {
    return static_cast<StructConditionListType*>(Framework::EntryAt(m_ConditionalValueList, Index));
}

StructConditionListType* StructDefaultType::GetConditionalValue(const zelString& sName) {
    return static_cast<StructConditionListType*>(Framework::EntryByKey(m_MapConditionalValueList, sName));
}

void StructDefaultType::AddNewConditionalValue(StructConditionListType* szNew, const zelString& sName) {
    Framework::AddNewKeyed(m_MapConditionalValueList, m_ConditionalValueList, szNew, sName);
}

void StructDefaultType::RemoveConditionalValue(const zelString& sName, const zelString& sFeatureId) {
    Framework::RemoveKeyed(*this, s_Rows[1], sName, sFeatureId);
}

zelString StructDefaultType::Getindex() {
    return m_index;
}

void StructDefaultType::Setindex(LPCTSTR szNew) {
    m_index = szNew;
}

bool StructDefaultType::AutoFillTypeInfo() {
    return true;
}

void StructDefaultType::AddConditionalValue(XMLDataWrapper* pData, XalanNode* spNode, const zelString& sName) {
    Framework::AddKeyed(*this, s_Rows[1], pData, spNode, sName, __LINE__);
}

void StructDefaultType::ClearConditionalValue() {
    Framework::ClearKeyed(m_MapConditionalValueList, m_ConditionalValueList);
}
