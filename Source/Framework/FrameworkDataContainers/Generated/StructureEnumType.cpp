// Generated from StructureTransformDef.xsd; do not edit. Regenerate with the target "generate".
#include "FrameworkDataContainers/StructureEnumType.h"

#include "Framework/FrameworkDataContainers/Walks/Lists.h"
#include "Framework/FrameworkDataContainers/Walks/Walks.h"
#include "FrameworkDataContainers/EnumIterationType.h"

// clang-format off
constinit const Framework::FieldRow StructureEnumType::s_Rows[] = {
    Framework::KeyedStrings<&StructureEnumType::AddDoc, &StructureEnumType::ClearDoc>("Doc", "Index", true, &StructureEnumType::m_MapDocList, &StructureEnumType::m_DocList),
    Framework::KeyedList<EnumIterationType, &EnumIterationType::GetId, &StructureEnumType::AddEnumIteration, &StructureEnumType::ClearEnumIteration>("EnumIteration", "EnumIterationType", "Id", &StructureEnumType::m_MapEnumIterationList, &StructureEnumType::m_EnumIterationList),
    Framework::Attribute("Name", &StructureEnumType::m_Name),
};

constinit const Framework::FieldTable StructureEnumType::s_Table = {
    .className = "StructureEnumType",
    .elementName = "StructureEnum",
    .parent = nullptr,
    .isStructuralConfigLoader = false,
    .isRoot = false,
    .rows = s_Rows,
    .create = &Framework::CreateContainer<StructureEnumType>,
    .type = &typeid(StructureEnumType),
    .autoFill = Framework::ToBase(&StructureEnumType::m_bAutoFillTypeInfo),
};
// clang-format on

StructureEnumType::StructureEnumType(bool bBuildFromScratch) : TypedDataContainer(bBuildFromScratch) {
    Framework::NameByClass(*this, s_Table);
}

StructureEnumType::~StructureEnumType() {
    StructureEnumType::ClearDoc();
    StructureEnumType::ClearEnumIteration();
}

zelString StructureEnumType::GetBaseType() {
    return "StructureEnumType";
}

void StructureEnumType::GetProperties(ParameterList& pList) {
    Framework::Properties(*this, s_Table, pList);
}

bool StructureEnumType::MergeDataMembers(XMLDataWrapper* pMergeData, zelString sFeatureID) {
    return Framework::Merge(*this, s_Table, pMergeData, sFeatureID, __LINE__);
}

zelString StructureEnumType::GetAttributeList() {
    return Framework::AttributePredicate(*this, s_Table);
}

ParameterList* StructureEnumType::GetPLAttributeList() {
    return Framework::AttributeParameters(*this, s_Table);
}

TypedDataContainer* StructureEnumType::Clone() {
    return Framework::Clone(*this, s_Table);
}

bool StructureEnumType::DumpMergeContents(const zelString& sParentQuery, FullFunctionXMLDataWrapper* pOutput,
                                          int QueryPos, bool bIncludeMergeAttributes) {
    return Framework::DumpByQuery(*this, s_Table, sParentQuery, pOutput, QueryPos, bIncludeMergeAttributes);
}

bool StructureEnumType::DumpMergeContentsII(DOMNode* pParentNode, FullFunctionXMLDataWrapper* pOutput,
                                            DOMNode*& pPassedCurrent, bool bIncludeMergeAttributes) {
    return Framework::DumpByNode(*this, s_Table, pParentNode, pOutput, pPassedCurrent, bIncludeMergeAttributes);
}

bool StructureEnumType::UpdateContainedData() {
    return Framework::Update(*this, s_Table);
}

bool StructureEnumType::PopulateDataMembers(XalanNode* pNode) {
    return Framework::Populate(*this, s_Table, pNode);
}

void StructureEnumType::ResetDataMembers() {
    Framework::Reset(*this, s_Table);
}

int StructureEnumType::GetDocLength() {
    return Framework::ListLength(m_DocList);
}

zelString StructureEnumType::GetDoc(int Index) {
    return Framework::TextAt(m_DocList, Index);
}

zelString StructureEnumType::GetDoc(const zelString& sName) {
    return Framework::TextByKey(m_MapDocList, sName);
}

int StructureEnumType::GetEnumIterationLength() {
    return Framework::ListLength(m_EnumIterationList);
}

EnumIterationType* StructureEnumType::GetEnumIteration(int Index) {
    return static_cast<EnumIterationType*>(Framework::EntryAt(m_EnumIterationList, Index));
}

EnumIterationType* StructureEnumType::GetEnumIteration(const zelString& sName) {
    return static_cast<EnumIterationType*>(Framework::EntryByKey(m_MapEnumIterationList, sName));
}

void StructureEnumType::AddNewEnumIteration(EnumIterationType* szNew, const zelString& sName) {
    Framework::AddNewKeyed(m_MapEnumIterationList, m_EnumIterationList, szNew, sName);
}

void StructureEnumType::RemoveEnumIteration(const zelString& sName, const zelString& sFeatureId) {
    Framework::RemoveKeyed(*this, s_Rows[1], sName, sFeatureId);
}

zelString StructureEnumType::GetName() {
    return m_Name;
}

void StructureEnumType::SetName(LPCTSTR szNew) {
    m_Name = szNew;
}

bool StructureEnumType::AutoFillTypeInfo() {
    return true;
}

void StructureEnumType::AddDoc(const zelString& pData, const zelString& sName) {
    Framework::AddKeyedText(*this, s_Rows[0], pData, sName, __LINE__);
}

void StructureEnumType::ClearDoc() {
    Framework::ClearKeyedTexts(m_MapDocList, m_DocList);
}

void StructureEnumType::AddEnumIteration(XMLDataWrapper* pData, XalanNode* spNode, const zelString& sName) {
    Framework::AddKeyed(*this, s_Rows[1], pData, spNode, sName, __LINE__);
}

void StructureEnumType::ClearEnumIteration() {
    Framework::ClearKeyed(m_MapEnumIterationList, m_EnumIterationList);
}
