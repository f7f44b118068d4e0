// Generated from StructureTransformDef.xsd; do not edit. Regenerate with the target "generate".
#include "FrameworkDataContainers/StructureReferenceMapType.h"

#include "Framework/FrameworkDataContainers/Walks/Lists.h"
#include "Framework/FrameworkDataContainers/Walks/Walks.h"
#include "FrameworkDataContainers/StructureRefMapType.h"

// clang-format off
constinit const Framework::FieldRow StructureReferenceMapType::s_Rows[] = {
    Framework::KeyedList<StructureRefMapType, &StructureRefMapType::GetIndex, &StructureReferenceMapType::AddReferenceMap, &StructureReferenceMapType::ClearReferenceMap>("ReferenceMap", "StructureRefMapType", "Index", &StructureReferenceMapType::m_MapReferenceMapList, &StructureReferenceMapType::m_ReferenceMapList),
};

constinit const Framework::FieldTable StructureReferenceMapType::s_Table = {
    .className = "StructureReferenceMapType",
    .elementName = "StructureReferenceMap",
    .parent = nullptr,
    .isStructuralConfigLoader = false,
    .isRoot = false,
    .rows = s_Rows,
    .create = &Framework::CreateContainer<StructureReferenceMapType>,
    .type = &typeid(StructureReferenceMapType),
    .autoFill = Framework::ToBase(&StructureReferenceMapType::m_bAutoFillTypeInfo),
};
// clang-format on

StructureReferenceMapType::StructureReferenceMapType(bool bBuildFromScratch) : TypedDataContainer(bBuildFromScratch) {
    Framework::NameByClass(*this, s_Table);
}

StructureReferenceMapType::~StructureReferenceMapType() {
    StructureReferenceMapType::ClearReferenceMap();
}

zelString StructureReferenceMapType::GetBaseType() {
    return "StructureReferenceMapType";
}

void StructureReferenceMapType::GetProperties(ParameterList& pList) {
    Framework::Properties(*this, s_Table, pList);
}

bool StructureReferenceMapType::MergeDataMembers(XMLDataWrapper* pMergeData, zelString sFeatureID) {
    return Framework::Merge(*this, s_Table, pMergeData, sFeatureID, __LINE__);
}

zelString StructureReferenceMapType::GetAttributeList() {
    return Framework::AttributePredicate(*this, s_Table);
}

ParameterList* StructureReferenceMapType::GetPLAttributeList() {
    return Framework::AttributeParameters(*this, s_Table);
}

TypedDataContainer* StructureReferenceMapType::Clone() {
    return Framework::Clone(*this, s_Table);
}

bool StructureReferenceMapType::DumpMergeContents(const zelString& sParentQuery, FullFunctionXMLDataWrapper* pOutput,
                                                  int QueryPos, bool bIncludeMergeAttributes) {
    return Framework::DumpByQuery(*this, s_Table, sParentQuery, pOutput, QueryPos, bIncludeMergeAttributes);
}

bool StructureReferenceMapType::DumpMergeContentsII(DOMNode* pParentNode, FullFunctionXMLDataWrapper* pOutput,
                                                    DOMNode*& pPassedCurrent, bool bIncludeMergeAttributes) {
    return Framework::DumpByNode(*this, s_Table, pParentNode, pOutput, pPassedCurrent, bIncludeMergeAttributes);
}

bool StructureReferenceMapType::UpdateContainedData() {
    return Framework::Update(*this, s_Table);
}

bool StructureReferenceMapType::PopulateDataMembers(XalanNode* pNode) {
    return Framework::Populate(*this, s_Table, pNode);
}

void StructureReferenceMapType::ResetDataMembers() {
    Framework::Reset(*this, s_Table);
}

int StructureReferenceMapType::GetReferenceMapLength() {
    return Framework::ListLength(m_ReferenceMapList);
}

StructureRefMapType* StructureReferenceMapType::GetReferenceMap(int Index) {
    return static_cast<StructureRefMapType*>(Framework::EntryAt(m_ReferenceMapList, Index));
}

StructureRefMapType* StructureReferenceMapType::GetReferenceMap(const zelString& sName) {
    return static_cast<StructureRefMapType*>(Framework::EntryByKey(m_MapReferenceMapList, sName));
}

void StructureReferenceMapType::AddNewReferenceMap(StructureRefMapType* szNew, const zelString& sName) {
    Framework::AddNewKeyed(m_MapReferenceMapList, m_ReferenceMapList, szNew, sName);
}

void StructureReferenceMapType::RemoveReferenceMap(const zelString& sName, const zelString& sFeatureId) {
    Framework::RemoveKeyed(*this, s_Rows[0], sName, sFeatureId);
}

bool StructureReferenceMapType::AutoFillTypeInfo() {
    return true;
}

void StructureReferenceMapType::AddReferenceMap(XMLDataWrapper* pData, XalanNode* spNode, const zelString& sName) {
    Framework::AddKeyed(*this, s_Rows[0], pData, spNode, sName, __LINE__);
}

void StructureReferenceMapType::ClearReferenceMap() {
    Framework::ClearKeyed(m_MapReferenceMapList, m_ReferenceMapList);
}
