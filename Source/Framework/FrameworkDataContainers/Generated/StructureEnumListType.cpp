// Generated from StructureTransformDef.xsd; do not edit. Regenerate with the target "generate".
#include "FrameworkDataContainers/StructureEnumListType.h"

#include "Framework/FrameworkDataContainers/Walks/Lists.h"
#include "Framework/FrameworkDataContainers/Walks/Walks.h"
#include "FrameworkDataContainers/StructureEnumType.h"

// clang-format off
constinit const Framework::FieldRow StructureEnumListType::s_Rows[] = {
    Framework::KeyedStrings<&StructureEnumListType::AddDoc, &StructureEnumListType::ClearDoc>("Doc", "Index", true, &StructureEnumListType::m_MapDocList, &StructureEnumListType::m_DocList),
    Framework::KeyedList<StructureEnumType, &StructureEnumType::GetName, &StructureEnumListType::AddStructureEnum, &StructureEnumListType::ClearStructureEnum>("StructureEnum", "StructureEnumType", "Name", &StructureEnumListType::m_MapStructureEnumList, &StructureEnumListType::m_StructureEnumList),
};

constinit const Framework::FieldTable StructureEnumListType::s_Table = {
    .className = "StructureEnumListType",
    .elementName = "StructureEnumList",
    .parent = nullptr,
    .isStructuralConfigLoader = false,
    .isRoot = false,
    .rows = s_Rows,
    .create = &Framework::CreateContainer<StructureEnumListType>,
    .type = &typeid(StructureEnumListType),
    .autoFill = Framework::ToBase(&StructureEnumListType::m_bAutoFillTypeInfo),
};
// clang-format on

StructureEnumListType::StructureEnumListType(bool bBuildFromScratch) : TypedDataContainer(bBuildFromScratch) {
    Framework::NameByClass(*this, s_Table);
}

StructureEnumListType::~StructureEnumListType() {
    StructureEnumListType::ClearDoc();
    StructureEnumListType::ClearStructureEnum();
}

zelString StructureEnumListType::GetBaseType() {
    return "StructureEnumListType";
}

void StructureEnumListType::GetProperties(ParameterList& pList) {
    Framework::Properties(*this, s_Table, pList);
}

bool StructureEnumListType::MergeDataMembers(XMLDataWrapper* pMergeData, zelString sFeatureID) {
    return Framework::Merge(*this, s_Table, pMergeData, sFeatureID, __LINE__);
}

zelString StructureEnumListType::GetAttributeList() {
    return Framework::AttributePredicate(*this, s_Table);
}

ParameterList* StructureEnumListType::GetPLAttributeList() {
    return Framework::AttributeParameters(*this, s_Table);
}

TypedDataContainer* StructureEnumListType::Clone() {
    return Framework::Clone(*this, s_Table);
}

bool StructureEnumListType::DumpMergeContents(const zelString& sParentQuery, FullFunctionXMLDataWrapper* pOutput,
                                              int QueryPos, bool bIncludeMergeAttributes) {
    return Framework::DumpByQuery(*this, s_Table, sParentQuery, pOutput, QueryPos, bIncludeMergeAttributes);
}

bool StructureEnumListType::DumpMergeContentsII(DOMNode* pParentNode, FullFunctionXMLDataWrapper* pOutput,
                                                DOMNode*& pPassedCurrent, bool bIncludeMergeAttributes) {
    return Framework::DumpByNode(*this, s_Table, pParentNode, pOutput, pPassedCurrent, bIncludeMergeAttributes);
}

bool StructureEnumListType::UpdateContainedData() {
    return Framework::Update(*this, s_Table);
}

bool StructureEnumListType::PopulateDataMembers(XalanNode* pNode) {
    return Framework::Populate(*this, s_Table, pNode);
}

void StructureEnumListType::ResetDataMembers() {
    Framework::Reset(*this, s_Table);
}

int StructureEnumListType::GetDocLength() {
    return Framework::ListLength(m_DocList);
}

zelString StructureEnumListType::GetDoc(int Index) {
    return Framework::TextAt(m_DocList, Index);
}

zelString StructureEnumListType::GetDoc(const zelString& sName) {
    return Framework::TextByKey(m_MapDocList, sName);
}

int StructureEnumListType::GetStructureEnumLength() {
    return Framework::ListLength(m_StructureEnumList);
}

StructureEnumType* StructureEnumListType::GetStructureEnum(int Index) {
    return static_cast<StructureEnumType*>(Framework::EntryAt(m_StructureEnumList, Index));
}

StructureEnumType* StructureEnumListType::GetStructureEnum(const zelString& sName) {
    return static_cast<StructureEnumType*>(Framework::EntryByKey(m_MapStructureEnumList, sName));
}

void StructureEnumListType::AddNewStructureEnum(StructureEnumType* szNew, const zelString& sName) {
    Framework::AddNewKeyed(m_MapStructureEnumList, m_StructureEnumList, szNew, sName);
}

void StructureEnumListType::RemoveStructureEnum(const zelString& sName, const zelString& sFeatureId) {
    Framework::RemoveKeyed(*this, s_Rows[1], sName, sFeatureId);
}

bool StructureEnumListType::AutoFillTypeInfo() {
    return true;
}

void StructureEnumListType::AddDoc(const zelString& pData, const zelString& sName) {
    Framework::AddKeyedText(*this, s_Rows[0], pData, sName, __LINE__);
}

void StructureEnumListType::ClearDoc() {
    Framework::ClearKeyedTexts(m_MapDocList, m_DocList);
}

void StructureEnumListType::AddStructureEnum(XMLDataWrapper* pData, XalanNode* spNode, const zelString& sName) {
    Framework::AddKeyed(*this, s_Rows[1], pData, spNode, sName, __LINE__);
}

void StructureEnumListType::ClearStructureEnum() {
    Framework::ClearKeyed(m_MapStructureEnumList, m_StructureEnumList);
}
