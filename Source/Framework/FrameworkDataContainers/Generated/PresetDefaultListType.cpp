// Generated from StructureTransformDef.xsd; do not edit. Regenerate with the target "generate".
#include "FrameworkDataContainers/PresetDefaultListType.h"

#include "Framework/FrameworkDataContainers/Walks/Lists.h"
#include "Framework/FrameworkDataContainers/Walks/Walks.h"
#include "FrameworkDataContainers/StructDefaultType.h"

// clang-format off
constinit const Framework::FieldRow PresetDefaultListType::s_Rows[] = {
    Framework::KeyedList<StructDefaultType, &StructDefaultType::Getindex, &PresetDefaultListType::AddDefaultValue, &PresetDefaultListType::ClearDefaultValue>("DefaultValue", "StructDefaultType", "index", &PresetDefaultListType::m_MapDefaultValueList, &PresetDefaultListType::m_DefaultValueList),
};

constinit const Framework::FieldTable PresetDefaultListType::s_Table = {
    .className = "PresetDefaultListType",
    .elementName = "PresetDefaults",
    .parent = nullptr,
    .isStructuralConfigLoader = false,
    .isRoot = false,
    .rows = s_Rows,
    .create = &Framework::CreateContainer<PresetDefaultListType>,
    .type = &typeid(PresetDefaultListType),
    .autoFill = Framework::ToBase(&PresetDefaultListType::m_bAutoFillTypeInfo),
};
// clang-format on

PresetDefaultListType::PresetDefaultListType(bool bBuildFromScratch) : TypedDataContainer(bBuildFromScratch) {
    Framework::NameByClass(*this, s_Table);
}

PresetDefaultListType::~PresetDefaultListType() {
    PresetDefaultListType::ClearDefaultValue();
}

zelString PresetDefaultListType::GetBaseType() {
    return "PresetDefaultListType";
}

void PresetDefaultListType::GetProperties(ParameterList& pList) {
    Framework::Properties(*this, s_Table, pList);
}

bool PresetDefaultListType::MergeDataMembers(XMLDataWrapper* pMergeData, zelString sFeatureID) {
    return Framework::Merge(*this, s_Table, pMergeData, sFeatureID, __LINE__);
}

zelString PresetDefaultListType::GetAttributeList() {
    return Framework::AttributePredicate(*this, s_Table);
}

ParameterList* PresetDefaultListType::GetPLAttributeList() {
    return Framework::AttributeParameters(*this, s_Table);
}

TypedDataContainer* PresetDefaultListType::Clone() {
    return Framework::Clone(*this, s_Table);
}

bool PresetDefaultListType::DumpMergeContents(const zelString& sParentQuery, FullFunctionXMLDataWrapper* pOutput,
                                              int QueryPos, bool bIncludeMergeAttributes) {
    return Framework::DumpByQuery(*this, s_Table, sParentQuery, pOutput, QueryPos, bIncludeMergeAttributes);
}

bool PresetDefaultListType::DumpMergeContentsII(DOMNode* pParentNode, FullFunctionXMLDataWrapper* pOutput,
                                                DOMNode*& pPassedCurrent, bool bIncludeMergeAttributes) {
    return Framework::DumpByNode(*this, s_Table, pParentNode, pOutput, pPassedCurrent, bIncludeMergeAttributes);
}

bool PresetDefaultListType::UpdateContainedData() {
    return Framework::Update(*this, s_Table);
}

bool PresetDefaultListType::PopulateDataMembers(XalanNode* pNode) {
    return Framework::Populate(*this, s_Table, pNode);
}

void PresetDefaultListType::ResetDataMembers() {
    Framework::Reset(*this, s_Table);
}

int PresetDefaultListType::GetDefaultValueLength() {
    return Framework::ListLength(m_DefaultValueList);
}

StructDefaultType* PresetDefaultListType::GetDefaultValue(int Index) {
    return static_cast<StructDefaultType*>(Framework::EntryAt(m_DefaultValueList, Index));
}

StructDefaultType* PresetDefaultListType::GetDefaultValue(const zelString& sName) {
    return static_cast<StructDefaultType*>(Framework::EntryByKey(m_MapDefaultValueList, sName));
}

void PresetDefaultListType::AddNewDefaultValue(StructDefaultType* szNew, const zelString& sName) {
    Framework::AddNewKeyed(m_MapDefaultValueList, m_DefaultValueList, szNew, sName);
}

void PresetDefaultListType::RemoveDefaultValue(const zelString& sName, const zelString& sFeatureId) {
    Framework::RemoveKeyed(*this, s_Rows[0], sName, sFeatureId);
}

bool PresetDefaultListType::AutoFillTypeInfo() {
    return true;
}

void PresetDefaultListType::AddDefaultValue(XMLDataWrapper* pData, XalanNode* spNode, const zelString& sName) {
    Framework::AddKeyed(*this, s_Rows[0], pData, spNode, sName, __LINE__);
}

void PresetDefaultListType::ClearDefaultValue() {
    Framework::ClearKeyed(m_MapDefaultValueList, m_DefaultValueList);
}
