// Generated from StructureTransformDef.xsd; do not edit. Regenerate with the target "generate".
#include "FrameworkDataContainers/StructurePacketDefType.h"

#include "Framework/FrameworkDataContainers/Walks/Lists.h"
#include "Framework/FrameworkDataContainers/Walks/Walks.h"
#include "FrameworkDataContainers/StructureDataType.h"

// clang-format off
constinit const Framework::FieldRow StructurePacketDefType::s_Rows[] = {
    Framework::KeyedStrings<&StructurePacketDefType::AddDoc, &StructurePacketDefType::ClearDoc>("Doc", "Index", true, &StructurePacketDefType::m_MapDocList, &StructurePacketDefType::m_DocList),
    Framework::KeyedList<StructureDataType, &StructureDataType::GetName, &StructurePacketDefType::AddStructureData, &StructurePacketDefType::ClearStructureData>("StructureData", "StructureDataType", "Name", &StructurePacketDefType::m_MapStructureDataList, &StructurePacketDefType::m_StructureDataList),
    Framework::Attribute("Name", &StructurePacketDefType::m_Name),
};

constinit const Framework::FieldTable StructurePacketDefType::s_Table = {
    .className = "StructurePacketDefType",
    .elementName = "StructurePacketDef",
    .parent = nullptr,
    .isStructuralConfigLoader = false,
    .isRoot = false,
    .rows = s_Rows,
    .create = &Framework::CreateContainer<StructurePacketDefType>,
    .type = &typeid(StructurePacketDefType),
    .autoFill = Framework::ToBase(&StructurePacketDefType::m_bAutoFillTypeInfo),
};
// clang-format on

StructurePacketDefType::StructurePacketDefType(bool bBuildFromScratch) : TypedDataContainer(bBuildFromScratch) {
    Framework::NameByClass(*this, s_Table);
}

StructurePacketDefType::~StructurePacketDefType() {
    StructurePacketDefType::ClearDoc();
    StructurePacketDefType::ClearStructureData();
}

zelString StructurePacketDefType::GetBaseType() {
    return "StructurePacketDefType";
}

void StructurePacketDefType::GetProperties(ParameterList& pList) {
    Framework::Properties(*this, s_Table, pList);
}

bool StructurePacketDefType::MergeDataMembers(XMLDataWrapper* pMergeData, zelString sFeatureID) {
    return Framework::Merge(*this, s_Table, pMergeData, sFeatureID, __LINE__);
}

zelString StructurePacketDefType::GetAttributeList() {
    return Framework::AttributePredicate(*this, s_Table);
}

ParameterList* StructurePacketDefType::GetPLAttributeList() {
    return Framework::AttributeParameters(*this, s_Table);
}

TypedDataContainer* StructurePacketDefType::Clone() {
    return Framework::Clone(*this, s_Table);
}

bool StructurePacketDefType::DumpMergeContents(const zelString& sParentQuery, FullFunctionXMLDataWrapper* pOutput,
                                               int QueryPos, bool bIncludeMergeAttributes) {
    return Framework::DumpByQuery(*this, s_Table, sParentQuery, pOutput, QueryPos, bIncludeMergeAttributes);
}

bool StructurePacketDefType::DumpMergeContentsII(DOMNode* pParentNode, FullFunctionXMLDataWrapper* pOutput,
                                                 DOMNode*& pPassedCurrent, bool bIncludeMergeAttributes) {
    return Framework::DumpByNode(*this, s_Table, pParentNode, pOutput, pPassedCurrent, bIncludeMergeAttributes);
}

bool StructurePacketDefType::UpdateContainedData() {
    return Framework::Update(*this, s_Table);
}

bool StructurePacketDefType::PopulateDataMembers(XalanNode* pNode) {
    return Framework::Populate(*this, s_Table, pNode);
}

void StructurePacketDefType::ResetDataMembers() {
    Framework::Reset(*this, s_Table);
}

int StructurePacketDefType::GetDocLength() {
    return Framework::ListLength(m_DocList);
}

zelString StructurePacketDefType::GetDoc(int Index) {
    return Framework::TextAt(m_DocList, Index);
}

zelString StructurePacketDefType::GetDoc(const zelString& sName) {
    return Framework::TextByKey(m_MapDocList, sName);
}

int StructurePacketDefType::GetStructureDataLength() {
    return Framework::ListLength(m_StructureDataList);
}

StructureDataType* StructurePacketDefType::GetStructureData(int Index) {
    return static_cast<StructureDataType*>(Framework::EntryAt(m_StructureDataList, Index));
}

StructureDataType* StructurePacketDefType::GetStructureData(const zelString& sName) {
    return static_cast<StructureDataType*>(Framework::EntryByKey(m_MapStructureDataList, sName));
}

void StructurePacketDefType::AddNewStructureData(StructureDataType* szNew, const zelString& sName) {
    Framework::AddNewKeyed(m_MapStructureDataList, m_StructureDataList, szNew, sName);
}

void StructurePacketDefType::RemoveStructureData(const zelString& sName, const zelString& sFeatureId) {
    Framework::RemoveKeyed(*this, s_Rows[1], sName, sFeatureId);
}

zelString StructurePacketDefType::GetName() {
    return m_Name;
}

void StructurePacketDefType::SetName(LPCTSTR szNew) {
    m_Name = szNew;
}

bool StructurePacketDefType::AutoFillTypeInfo() {
    return true;
}

void StructurePacketDefType::AddDoc(const zelString& pData, const zelString& sName) {
    Framework::AddKeyedText(*this, s_Rows[0], pData, sName, __LINE__);
}

void StructurePacketDefType::ClearDoc() {
    Framework::ClearKeyedTexts(m_MapDocList, m_DocList);
}

void StructurePacketDefType::AddStructureData(XMLDataWrapper* pData, XalanNode* spNode, const zelString& sName) {
    Framework::AddKeyed(*this, s_Rows[1], pData, spNode, sName, __LINE__);
}

void StructurePacketDefType::ClearStructureData() {
    Framework::ClearKeyed(m_MapStructureDataList, m_StructureDataList);
}
