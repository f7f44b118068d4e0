// Generated from StructureTransformDef.xsd; do not edit. Regenerate with the target "generate".
#include "FrameworkDataContainers/StructureDataMappingType.h"

#include "Framework/FrameworkDataContainers/Walks/Lists.h"
#include "Framework/FrameworkDataContainers/Walks/Walks.h"

// clang-format off
constinit const Framework::FieldRow StructureDataMappingType::s_Rows[] = {
    Framework::Element("StructureElement", &StructureDataMappingType::m_StructureElement),
    Framework::Element("DataElement", &StructureDataMappingType::m_DataElement),
    Framework::Attribute("Index", &StructureDataMappingType::m_Index),
};

constinit const Framework::FieldTable StructureDataMappingType::s_Table = {
    .className = "StructureDataMappingType",
    .elementName = "StructureDataMapping",
    .parent = nullptr,
    .isStructuralConfigLoader = false,
    .isRoot = false,
    .rows = s_Rows,
    .create = &Framework::CreateContainer<StructureDataMappingType>,
    .type = &typeid(StructureDataMappingType),
    .autoFill = Framework::ToBase(&StructureDataMappingType::m_bAutoFillTypeInfo),
};
// clang-format on

StructureDataMappingType::StructureDataMappingType(bool bBuildFromScratch) : TypedDataContainer(bBuildFromScratch) {
    Framework::NameByClass(*this, s_Table);
}

StructureDataMappingType::~StructureDataMappingType() {}

zelString StructureDataMappingType::GetBaseType() {
    return "StructureDataMappingType";
}

void StructureDataMappingType::GetProperties(ParameterList& pList) {
    Framework::Properties(*this, s_Table, pList);
}

bool StructureDataMappingType::MergeDataMembers(XMLDataWrapper* pMergeData, zelString sFeatureID) {
    return Framework::Merge(*this, s_Table, pMergeData, sFeatureID, __LINE__);
}

zelString StructureDataMappingType::GetAttributeList() {
    return Framework::AttributePredicate(*this, s_Table);
}

ParameterList* StructureDataMappingType::GetPLAttributeList() {
    return Framework::AttributeParameters(*this, s_Table);
}

TypedDataContainer* StructureDataMappingType::Clone() {
    return Framework::Clone(*this, s_Table);
}

bool StructureDataMappingType::DumpMergeContents(const zelString& sParentQuery, FullFunctionXMLDataWrapper* pOutput,
                                                 int QueryPos, bool bIncludeMergeAttributes) {
    return Framework::DumpByQuery(*this, s_Table, sParentQuery, pOutput, QueryPos, bIncludeMergeAttributes);
}

bool StructureDataMappingType::DumpMergeContentsII(DOMNode* pParentNode, FullFunctionXMLDataWrapper* pOutput,
                                                   DOMNode*& pPassedCurrent, bool bIncludeMergeAttributes) {
    return Framework::DumpByNode(*this, s_Table, pParentNode, pOutput, pPassedCurrent, bIncludeMergeAttributes);
}

bool StructureDataMappingType::UpdateContainedData() {
    return Framework::Update(*this, s_Table);
}

bool StructureDataMappingType::PopulateDataMembers(XalanNode* pNode) {
    return Framework::Populate(*this, s_Table, pNode);
}

void StructureDataMappingType::ResetDataMembers() {
    Framework::Reset(*this, s_Table);
}

zelString StructureDataMappingType::GetStructureElement() {
    return m_StructureElement;
}

void StructureDataMappingType::SetStructureElement(LPCTSTR szNew) {
    m_StructureElement = szNew;
}

zelString StructureDataMappingType::GetDataElement() {
    return m_DataElement;
}

void StructureDataMappingType::SetDataElement(LPCTSTR szNew) {
    m_DataElement = szNew;
}

zelString StructureDataMappingType::GetIndex() {
    return m_Index;
}

void StructureDataMappingType::SetIndex(LPCTSTR szNew) {
    m_Index = szNew;
}

bool StructureDataMappingType::AutoFillTypeInfo() {
    return true;
}
