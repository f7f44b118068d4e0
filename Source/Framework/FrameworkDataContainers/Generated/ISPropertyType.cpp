// Generated from StructureTransformDef.xsd; do not edit. Regenerate with the target "generate".
#include "FrameworkDataContainers/ISPropertyType.h"

#include "Framework/FrameworkDataContainers/Walks/Lists.h"
#include "Framework/FrameworkDataContainers/Walks/Walks.h"

// clang-format off
constinit const Framework::FieldRow ISPropertyType::s_Rows[] = {
    Framework::Element("Value", &ISPropertyType::m_Value),
    Framework::Attribute("Name", &ISPropertyType::m_Name),
};

constinit const Framework::FieldTable ISPropertyType::s_Table = {
    .className = "ISPropertyType",
    .elementName = "ISProperty",
    .parent = nullptr,
    .isStructuralConfigLoader = false,
    .isRoot = false,
    .rows = s_Rows,
    .create = &Framework::CreateContainer<ISPropertyType>,
    .type = &typeid(ISPropertyType),
    .autoFill = Framework::ToBase(&ISPropertyType::m_bAutoFillTypeInfo),
};
// clang-format on

ISPropertyType::ISPropertyType(bool bBuildFromScratch) : TypedDataContainer(bBuildFromScratch) {
    Framework::NameByClass(*this, s_Table);
}

ISPropertyType::~ISPropertyType() {}

zelString ISPropertyType::GetBaseType() {
    return "ISPropertyType";
}

void ISPropertyType::GetProperties(ParameterList& pList) {
    Framework::Properties(*this, s_Table, pList);
}

bool ISPropertyType::MergeDataMembers(XMLDataWrapper* pMergeData, zelString sFeatureID) {
    return Framework::Merge(*this, s_Table, pMergeData, sFeatureID, __LINE__);
}

zelString ISPropertyType::GetAttributeList() {
    return Framework::AttributePredicate(*this, s_Table);
}

ParameterList* ISPropertyType::GetPLAttributeList() {
    return Framework::AttributeParameters(*this, s_Table);
}

TypedDataContainer* ISPropertyType::Clone() {
    return Framework::Clone(*this, s_Table);
}

bool ISPropertyType::DumpMergeContents(const zelString& sParentQuery, FullFunctionXMLDataWrapper* pOutput, int QueryPos,
                                       bool bIncludeMergeAttributes) {
    return Framework::DumpByQuery(*this, s_Table, sParentQuery, pOutput, QueryPos, bIncludeMergeAttributes);
}

bool ISPropertyType::DumpMergeContentsII(DOMNode* pParentNode, FullFunctionXMLDataWrapper* pOutput,
                                         DOMNode*& pPassedCurrent, bool bIncludeMergeAttributes) {
    return Framework::DumpByNode(*this, s_Table, pParentNode, pOutput, pPassedCurrent, bIncludeMergeAttributes);
}

bool ISPropertyType::UpdateContainedData() {
    return Framework::Update(*this, s_Table);
}

bool ISPropertyType::PopulateDataMembers(XalanNode* pNode) {
    return Framework::Populate(*this, s_Table, pNode);
}

void ISPropertyType::ResetDataMembers() {
    Framework::Reset(*this, s_Table);
}

zelString ISPropertyType::GetValue() {
    return m_Value;
}

void ISPropertyType::SetValue(LPCTSTR szNew) {
    m_Value = szNew;
}

zelString ISPropertyType::GetName() {
    return m_Name;
}

void ISPropertyType::SetName(LPCTSTR szNew) {
    m_Name = szNew;
}

bool ISPropertyType::AutoFillTypeInfo() {
    return true;
}
