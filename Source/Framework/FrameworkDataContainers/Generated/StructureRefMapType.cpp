// Generated from StructureTransformDef.xsd; do not edit. Regenerate with the target "generate".
#include "FrameworkDataContainers/StructureRefMapType.h"

#include "Framework/FrameworkDataContainers/Walks/Lists.h"
#include "Framework/FrameworkDataContainers/Walks/Walks.h"
#include "FrameworkDataContainers/InterfaceSpecificPropertiesType.h"
#include "FrameworkDataContainers/PresetDefaultListType.h"
#include "FrameworkDataContainers/StructureDataMappingListType.h"

// clang-format off
constinit const Framework::FieldRow StructureRefMapType::s_Rows[] = {
    Framework::KeyedStrings<&StructureRefMapType::AddDoc, &StructureRefMapType::ClearDoc>("Doc", "Index", true, &StructureRefMapType::m_MapDocList, &StructureRefMapType::m_DocList),
    Framework::Element("RefType", &StructureRefMapType::m_RefType),
    Framework::Element("RootElement", &StructureRefMapType::m_RootElement),
    Framework::Element("StructurePacket", &StructureRefMapType::m_StructurePacket),
    Framework::Child<&StructureRefMapType::m_InterfaceSpecificProperties>("InterfaceSpecificProperties", "InterfaceSpecificPropertiesType"),
    Framework::Child<&StructureRefMapType::m_PresetDefaults>("PresetDefaults", "PresetDefaultListType"),
    Framework::Child<&StructureRefMapType::m_DataMappingList>("DataMappingList", "StructureDataMappingListType"),
    Framework::Attribute("Index", &StructureRefMapType::m_Index),
};

constinit const Framework::FieldTable StructureRefMapType::s_Table = {
    .className = "StructureRefMapType",
    .elementName = "StructureRefMap",
    .parent = nullptr,
    .isStructuralConfigLoader = false,
    .isRoot = false,
    .rows = s_Rows,
    .create = &Framework::CreateContainer<StructureRefMapType>,
    .type = &typeid(StructureRefMapType),
    .autoFill = Framework::ToBase(&StructureRefMapType::m_bAutoFillTypeInfo),
};
// clang-format on

StructureRefMapType::StructureRefMapType(bool bBuildFromScratch) : TypedDataContainer(bBuildFromScratch) {
    Framework::NameByClass(*this, s_Table);
}

StructureRefMapType::~StructureRefMapType() {
    StructureRefMapType::ClearDoc();
    delete m_InterfaceSpecificProperties;
    delete m_PresetDefaults;
    delete m_DataMappingList;
}

zelString StructureRefMapType::GetBaseType() {
    return "StructureRefMapType";
}

void StructureRefMapType::GetProperties(ParameterList& pList) {
    Framework::Properties(*this, s_Table, pList);
}

bool StructureRefMapType::MergeDataMembers(XMLDataWrapper* pMergeData, zelString sFeatureID) {
    return Framework::Merge(*this, s_Table, pMergeData, sFeatureID, __LINE__);
}

zelString StructureRefMapType::GetAttributeList() {
    return Framework::AttributePredicate(*this, s_Table);
}

ParameterList* StructureRefMapType::GetPLAttributeList() {
    return Framework::AttributeParameters(*this, s_Table);
}

TypedDataContainer* StructureRefMapType::Clone() {
    return Framework::Clone(*this, s_Table);
}

bool StructureRefMapType::DumpMergeContents(const zelString& sParentQuery, FullFunctionXMLDataWrapper* pOutput,
                                            int QueryPos, bool bIncludeMergeAttributes) {
    return Framework::DumpByQuery(*this, s_Table, sParentQuery, pOutput, QueryPos, bIncludeMergeAttributes);
}

bool StructureRefMapType::DumpMergeContentsII(DOMNode* pParentNode, FullFunctionXMLDataWrapper* pOutput,
                                              DOMNode*& pPassedCurrent, bool bIncludeMergeAttributes) {
    return Framework::DumpByNode(*this, s_Table, pParentNode, pOutput, pPassedCurrent, bIncludeMergeAttributes);
}

bool StructureRefMapType::UpdateContainedData() {
    return Framework::Update(*this, s_Table);
}

bool StructureRefMapType::PopulateDataMembers(XalanNode* pNode) {
    return Framework::Populate(*this, s_Table, pNode);
}

void StructureRefMapType::ResetDataMembers() {
    Framework::Reset(*this, s_Table);
}

int StructureRefMapType::GetDocLength() {
    return Framework::ListLength(m_DocList);
}

zelString StructureRefMapType::GetDoc(int Index) {
    return Framework::TextAt(m_DocList, Index);
}

zelString StructureRefMapType::GetDoc(const zelString& sName) {
    return Framework::TextByKey(m_MapDocList, sName);
}

zelString StructureRefMapType::GetRefType() {
    return m_RefType;
}

void StructureRefMapType::SetRefType(LPCTSTR szNew) {
    m_RefType = szNew;
}

zelString StructureRefMapType::GetRootElement() {
    return m_RootElement;
}

void StructureRefMapType::SetRootElement(LPCTSTR szNew) {
    m_RootElement = szNew;
}

zelString StructureRefMapType::GetStructurePacket() {
    return m_StructurePacket;
}

void StructureRefMapType::SetStructurePacket(LPCTSTR szNew) {
    m_StructurePacket = szNew;
}

InterfaceSpecificPropertiesType* StructureRefMapType::GetInterfaceSpecificProperties() {
    return m_InterfaceSpecificProperties;
}

void StructureRefMapType::SetInterfaceSpecificProperties(InterfaceSpecificPropertiesType* szNew) {
    Framework::ReplaceChild(m_InterfaceSpecificProperties, szNew);
}

PresetDefaultListType* StructureRefMapType::GetPresetDefaults() {
    return m_PresetDefaults;
}

void StructureRefMapType::SetPresetDefaults(PresetDefaultListType* szNew) {
    Framework::ReplaceChild(m_PresetDefaults, szNew);
}

StructureDataMappingListType* StructureRefMapType::GetDataMappingList() {
    return m_DataMappingList;
}

void StructureRefMapType::SetDataMappingList(StructureDataMappingListType* szNew) {
    Framework::ReplaceChild(m_DataMappingList, szNew);
}

zelString StructureRefMapType::GetIndex() {
    return m_Index;
}

void StructureRefMapType::SetIndex(LPCTSTR szNew) {
    m_Index = szNew;
}

bool StructureRefMapType::AutoFillTypeInfo() {
    return true;
}

void StructureRefMapType::AddDoc(const zelString& pData, const zelString& sName) {
    Framework::AddKeyedText(*this, s_Rows[0], pData, sName, __LINE__);
}

void StructureRefMapType::ClearDoc() {
    Framework::ClearKeyedTexts(m_MapDocList, m_DocList);
}
