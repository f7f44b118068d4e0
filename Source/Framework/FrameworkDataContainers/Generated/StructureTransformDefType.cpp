// Generated from StructureTransformDef.xsd; do not edit. Regenerate with the target "generate".
#include "FrameworkDataContainers/StructureTransformDefType.h"

#include "Framework/FrameworkDataContainers/Walks/Lists.h"
#include "Framework/FrameworkDataContainers/Walks/Walks.h"
#include "FrameworkDataContainers/StructureDataMapType.h"
#include "FrameworkDataContainers/StructureEnumListType.h"
#include "FrameworkDataContainers/StructureReferenceMapType.h"

// clang-format off
constinit const Framework::FieldRow StructureTransformDefType::s_Rows[] = {
    Framework::Element("CharBooleanTrue", &StructureTransformDefType::m_CharBooleanTrue, "Y"),
    Framework::Element("CharBooleanFalse", &StructureTransformDefType::m_CharBooleanFalse, "N"),
    Framework::Child<&StructureTransformDefType::m_StructureDataMap>("StructureDataMap", "StructureDataMapType"),
    Framework::Child<&StructureTransformDefType::m_StructureEnumList>("StructureEnumList", "StructureEnumListType"),
    Framework::Child<&StructureTransformDefType::m_StructureReferenceMap>("StructureReferenceMap", "StructureReferenceMapType"),
};

constinit const Framework::FieldTable StructureTransformDefType::s_Table = {
    .className = "StructureTransformDefType",
    .elementName = "StructureTransformDef",
    .parent = nullptr,
    .isStructuralConfigLoader = true,
    .isRoot = true,
    .rows = s_Rows,
    .create = &Framework::CreateContainer<StructureTransformDefType>,
    .type = &typeid(StructureTransformDefType),
    .autoFill = Framework::ToBase(&StructureTransformDefType::m_bAutoFillTypeInfo),
};
// clang-format on

StructureTransformDefType::StructureTransformDefType(bool bBuildFromScratch)
    : StructuralConfigLoader(bBuildFromScratch) {
    Framework::NameByClass(*this, s_Table);
}

StructureTransformDefType::~StructureTransformDefType() {
    delete m_StructureDataMap;
    delete m_StructureEnumList;
    delete m_StructureReferenceMap;
}

zelString StructureTransformDefType::GetBaseType() {
    return "StructureTransformDefType";
}

void StructureTransformDefType::GetProperties(ParameterList& pList) {
    Framework::Properties(*this, s_Table, pList);
}

bool StructureTransformDefType::MergeDataMembers(XMLDataWrapper* pMergeData, zelString sFeatureID) {
    return Framework::Merge(*this, s_Table, pMergeData, sFeatureID, __LINE__);
}

zelString StructureTransformDefType::GetAttributeList() {
    return Framework::AttributePredicate(*this, s_Table);
}

ParameterList* StructureTransformDefType::GetPLAttributeList() {
    return Framework::AttributeParameters(*this, s_Table);
}

TypedDataContainer* StructureTransformDefType::Clone() {
    return Framework::Clone(*this, s_Table);
}

bool StructureTransformDefType::DumpMergeContents(const zelString& sParentQuery, FullFunctionXMLDataWrapper* pOutput,
                                                  int QueryPos, bool bIncludeMergeAttributes) {
    return Framework::DumpByQuery(*this, s_Table, sParentQuery, pOutput, QueryPos, bIncludeMergeAttributes);
}

bool StructureTransformDefType::DumpMergeContentsII(DOMNode* pParentNode, FullFunctionXMLDataWrapper* pOutput,
                                                    DOMNode*& pPassedCurrent, bool bIncludeMergeAttributes) {
    return Framework::DumpByNode(*this, s_Table, pParentNode, pOutput, pPassedCurrent, bIncludeMergeAttributes);
}

bool StructureTransformDefType::UpdateContainedData() {
    return Framework::Update(*this, s_Table);
}

bool StructureTransformDefType::PopulateDataMembers(XalanNode* pNode) {
    return Framework::Populate(*this, s_Table, pNode);
}

void StructureTransformDefType::ResetDataMembers() {
    Framework::Reset(*this, s_Table);
}

zelString StructureTransformDefType::GetCharBooleanTrue() {
    return m_CharBooleanTrue;
}

void StructureTransformDefType::SetCharBooleanTrue(LPCTSTR szNew) {
    m_CharBooleanTrue = szNew;
}

zelString StructureTransformDefType::GetCharBooleanFalse() {
    return m_CharBooleanFalse;
}

void StructureTransformDefType::SetCharBooleanFalse(LPCTSTR szNew) {
    m_CharBooleanFalse = szNew;
}

StructureDataMapType* StructureTransformDefType::GetStructureDataMap() {
    return m_StructureDataMap;
}

void StructureTransformDefType::SetStructureDataMap(StructureDataMapType* szNew) {
    Framework::ReplaceChild(m_StructureDataMap, szNew);
}

StructureEnumListType* StructureTransformDefType::GetStructureEnumList() {
    return m_StructureEnumList;
}

void StructureTransformDefType::SetStructureEnumList(StructureEnumListType* szNew) {
    Framework::ReplaceChild(m_StructureEnumList, szNew);
}

StructureReferenceMapType* StructureTransformDefType::GetStructureReferenceMap() {
    return m_StructureReferenceMap;
}

void StructureTransformDefType::SetStructureReferenceMap(StructureReferenceMapType* szNew) {
    Framework::ReplaceChild(m_StructureReferenceMap, szNew);
}

bool StructureTransformDefType::AutoFillTypeInfo() {
    return true;
}
