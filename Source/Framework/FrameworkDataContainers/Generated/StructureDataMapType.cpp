// Generated from StructureTransformDef.xsd; do not edit. Regenerate with the target "generate".
#include "FrameworkDataContainers/StructureDataMapType.h"

#include "Framework/FrameworkDataContainers/Walks/Lists.h"
#include "Framework/FrameworkDataContainers/Walks/Walks.h"
#include "FrameworkDataContainers/StructurePacketDefType.h"

// clang-format off
constinit const Framework::FieldRow StructureDataMapType::s_Rows[] = {
    Framework::KeyedStrings<&StructureDataMapType::AddDoc, &StructureDataMapType::ClearDoc>("Doc", "Index", true, &StructureDataMapType::m_MapDocList, &StructureDataMapType::m_DocList),
    Framework::KeyedList<StructurePacketDefType, &StructurePacketDefType::GetName, &StructureDataMapType::AddStructurePacketDef, &StructureDataMapType::ClearStructurePacketDef>("StructurePacketDef", "StructurePacketDefType", "Name", &StructureDataMapType::m_MapStructurePacketDefList, &StructureDataMapType::m_StructurePacketDefList),
};

constinit const Framework::FieldTable StructureDataMapType::s_Table = {
    .className = "StructureDataMapType",
    .elementName = "StructureDataMap",
    .parent = nullptr,
    .isStructuralConfigLoader = false,
    .isRoot = false,
    .rows = s_Rows,
    .create = &Framework::CreateContainer<StructureDataMapType>,
    .type = &typeid(StructureDataMapType),
    .autoFill = Framework::ToBase(&StructureDataMapType::m_bAutoFillTypeInfo),
};
// clang-format on

StructureDataMapType::StructureDataMapType(bool bBuildFromScratch) : TypedDataContainer(bBuildFromScratch) {
    Framework::NameByClass(*this, s_Table);
}

StructureDataMapType::~StructureDataMapType() {
    StructureDataMapType::ClearDoc();
    StructureDataMapType::ClearStructurePacketDef();
}

zelString StructureDataMapType::GetBaseType() {
    return "StructureDataMapType";
}

void StructureDataMapType::GetProperties(ParameterList& pList) {
    Framework::Properties(*this, s_Table, pList);
}

bool StructureDataMapType::MergeDataMembers(XMLDataWrapper* pMergeData, zelString sFeatureID) {
    return Framework::Merge(*this, s_Table, pMergeData, sFeatureID, __LINE__);
}

zelString StructureDataMapType::GetAttributeList() {
    return Framework::AttributePredicate(*this, s_Table);
}

ParameterList* StructureDataMapType::GetPLAttributeList() {
    return Framework::AttributeParameters(*this, s_Table);
}

TypedDataContainer* StructureDataMapType::Clone() {
    return Framework::Clone(*this, s_Table);
}

bool StructureDataMapType::DumpMergeContents(const zelString& sParentQuery, FullFunctionXMLDataWrapper* pOutput,
                                             int QueryPos, bool bIncludeMergeAttributes) {
    return Framework::DumpByQuery(*this, s_Table, sParentQuery, pOutput, QueryPos, bIncludeMergeAttributes);
}

bool StructureDataMapType::DumpMergeContentsII(DOMNode* pParentNode, FullFunctionXMLDataWrapper* pOutput,
                                               DOMNode*& pPassedCurrent, bool bIncludeMergeAttributes) {
    return Framework::DumpByNode(*this, s_Table, pParentNode, pOutput, pPassedCurrent, bIncludeMergeAttributes);
}

bool StructureDataMapType::UpdateContainedData() {
    return Framework::Update(*this, s_Table);
}

bool StructureDataMapType::PopulateDataMembers(XalanNode* pNode) {
    return Framework::Populate(*this, s_Table, pNode);
}

void StructureDataMapType::ResetDataMembers() {
    Framework::Reset(*this, s_Table);
}

int StructureDataMapType::GetDocLength() {
    return Framework::ListLength(m_DocList);
}

zelString StructureDataMapType::GetDoc(int Index) {
    return Framework::TextAt(m_DocList, Index);
}

zelString StructureDataMapType::GetDoc(const zelString& sName) {
    return Framework::TextByKey(m_MapDocList, sName);
}

int StructureDataMapType::GetStructurePacketDefLength() {
    return Framework::ListLength(m_StructurePacketDefList);
}

StructurePacketDefType* StructureDataMapType::GetStructurePacketDef(int Index) {
    return static_cast<StructurePacketDefType*>(Framework::EntryAt(m_StructurePacketDefList, Index));
}

StructurePacketDefType* StructureDataMapType::GetStructurePacketDef(const zelString& sName) {
    return static_cast<StructurePacketDefType*>(Framework::EntryByKey(m_MapStructurePacketDefList, sName));
}

void StructureDataMapType::AddNewStructurePacketDef(StructurePacketDefType* szNew, const zelString& sName) {
    Framework::AddNewKeyed(m_MapStructurePacketDefList, m_StructurePacketDefList, szNew, sName);
}

void StructureDataMapType::RemoveStructurePacketDef(const zelString& sName, const zelString& sFeatureId) {
    Framework::RemoveKeyed(*this, s_Rows[1], sName, sFeatureId);
}

bool StructureDataMapType::AutoFillTypeInfo() {
    return true;
}

void StructureDataMapType::AddDoc(const zelString& pData, const zelString& sName) {
    Framework::AddKeyedText(*this, s_Rows[0], pData, sName, __LINE__);
}

void StructureDataMapType::ClearDoc() {
    Framework::ClearKeyedTexts(m_MapDocList, m_DocList);
}

void StructureDataMapType::AddStructurePacketDef(XMLDataWrapper* pData, XalanNode* spNode, const zelString& sName) {
    Framework::AddKeyed(*this, s_Rows[1], pData, spNode, sName, __LINE__);
}

void StructureDataMapType::ClearStructurePacketDef() {
    Framework::ClearKeyed(m_MapStructurePacketDefList, m_StructurePacketDefList);
}
