// Generated from StructureTransformDef.xsd; do not edit. Regenerate with the target "generate".
#include "FrameworkDataContainers/StructureDataMappingListType.h"

#include "Framework/FrameworkDataContainers/Walks/Lists.h"
#include "Framework/FrameworkDataContainers/Walks/Walks.h"
#include "FrameworkDataContainers/StructureDataMappingType.h"

// clang-format off
constinit const Framework::FieldRow StructureDataMappingListType::s_Rows[] = {
    Framework::KeyedList<StructureDataMappingType, &StructureDataMappingType::GetIndex, &StructureDataMappingListType::AddDataMap, &StructureDataMappingListType::ClearDataMap>("DataMap", "StructureDataMappingType", "Index", &StructureDataMappingListType::m_MapDataMapList, &StructureDataMappingListType::m_DataMapList),
};

constinit const Framework::FieldTable StructureDataMappingListType::s_Table = {
    .className = "StructureDataMappingListType",
    .elementName = "StructureDataMappingList",
    .parent = nullptr,
    .isStructuralConfigLoader = false,
    .isRoot = false,
    .rows = s_Rows,
    .create = &Framework::CreateContainer<StructureDataMappingListType>,
    .type = &typeid(StructureDataMappingListType),
    .autoFill = Framework::ToBase(&StructureDataMappingListType::m_bAutoFillTypeInfo),
};
// clang-format on

StructureDataMappingListType::StructureDataMappingListType(bool bBuildFromScratch)
    : TypedDataContainer(bBuildFromScratch) {
    Framework::NameByClass(*this, s_Table);
}

StructureDataMappingListType::~StructureDataMappingListType() {
    StructureDataMappingListType::ClearDataMap();
}

zelString StructureDataMappingListType::GetBaseType() {
    return "StructureDataMappingListType";
}

void StructureDataMappingListType::GetProperties(ParameterList& pList) {
    Framework::Properties(*this, s_Table, pList);
}

bool StructureDataMappingListType::MergeDataMembers(XMLDataWrapper* pMergeData, zelString sFeatureID) {
    return Framework::Merge(*this, s_Table, pMergeData, sFeatureID, __LINE__);
}

zelString StructureDataMappingListType::GetAttributeList() {
    return Framework::AttributePredicate(*this, s_Table);
}

ParameterList* StructureDataMappingListType::GetPLAttributeList() {
    return Framework::AttributeParameters(*this, s_Table);
}

TypedDataContainer* StructureDataMappingListType::Clone() {
    return Framework::Clone(*this, s_Table);
}

bool StructureDataMappingListType::DumpMergeContents(const zelString& sParentQuery, FullFunctionXMLDataWrapper* pOutput,
                                                     int QueryPos, bool bIncludeMergeAttributes) {
    return Framework::DumpByQuery(*this, s_Table, sParentQuery, pOutput, QueryPos, bIncludeMergeAttributes);
}

bool StructureDataMappingListType::DumpMergeContentsII(DOMNode* pParentNode, FullFunctionXMLDataWrapper* pOutput,
                                                       DOMNode*& pPassedCurrent, bool bIncludeMergeAttributes) {
    return Framework::DumpByNode(*this, s_Table, pParentNode, pOutput, pPassedCurrent, bIncludeMergeAttributes);
}

bool StructureDataMappingListType::UpdateContainedData() {
    return Framework::Update(*this, s_Table);
}

bool StructureDataMappingListType::PopulateDataMembers(XalanNode* pNode) {
    return Framework::Populate(*this, s_Table, pNode);
}

void StructureDataMappingListType::ResetDataMembers() {
    Framework::Reset(*this, s_Table);
}

int StructureDataMappingListType::GetDataMapLength() {
    return Framework::ListLength(m_DataMapList);
}

StructureDataMappingType* StructureDataMappingListType::GetDataMap(int Index) {
    return static_cast<StructureDataMappingType*>(Framework::EntryAt(m_DataMapList, Index));
}

StructureDataMappingType* StructureDataMappingListType::GetDataMap(const zelString& sName) {
    return static_cast<StructureDataMappingType*>(Framework::EntryByKey(m_MapDataMapList, sName));
}

void StructureDataMappingListType::AddNewDataMap(StructureDataMappingType* szNew, const zelString& sName) {
    Framework::AddNewKeyed(m_MapDataMapList, m_DataMapList, szNew, sName);
}

void StructureDataMappingListType::RemoveDataMap(const zelString& sName, const zelString& sFeatureId) {
    Framework::RemoveKeyed(*this, s_Rows[0], sName, sFeatureId);
}

bool StructureDataMappingListType::AutoFillTypeInfo() {
    return true;
}

void StructureDataMappingListType::AddDataMap(XMLDataWrapper* pData, XalanNode* spNode, const zelString& sName) {
    Framework::AddKeyed(*this, s_Rows[0], pData, spNode, sName, __LINE__);
}

void StructureDataMappingListType::ClearDataMap() {
    Framework::ClearKeyed(m_MapDataMapList, m_DataMapList);
}
