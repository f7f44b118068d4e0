// Generated from ConfigDefRoot.xsd; do not edit. Regenerate with the target "generate".
#include "FrameworkDataContainers/XMLDataListDefType.h"

#include "Framework/FrameworkDataContainers/Walks/Lists.h"
#include "Framework/FrameworkDataContainers/Walks/Walks.h"

// clang-format off
constinit const Framework::FieldRow XMLDataListDefType::s_Rows[] = {
    Framework::Element("OptionName", &XMLDataListDefType::m_OptionName),
    Framework::Element("ParentQuery", &XMLDataListDefType::m_ParentQuery),
    Framework::Element("ValueElement", &XMLDataListDefType::m_ValueElement),
    Framework::Element("DisplayElement", &XMLDataListDefType::m_DisplayElement),
};

constinit const Framework::FieldTable XMLDataListDefType::s_Table = {
    .className = "XMLDataListDefType",
    .elementName = "XMLDataListDef",
    .parent = nullptr,
    .isStructuralConfigLoader = false,
    .isRoot = false,
    .rows = s_Rows,
    .create = &Framework::CreateContainer<XMLDataListDefType>,
    .type = &typeid(XMLDataListDefType),
    .autoFill = Framework::ToBase(&XMLDataListDefType::m_bAutoFillTypeInfo),
};
// clang-format on

XMLDataListDefType::XMLDataListDefType(bool bBuildFromScratch) : TypedDataContainer(bBuildFromScratch) {
    Framework::NameByClass(*this, s_Table);
}

XMLDataListDefType::~XMLDataListDefType() {}

zelString XMLDataListDefType::GetBaseType() {
    return "XMLDataListDefType";
}

void XMLDataListDefType::GetProperties(ParameterList& pList) {
    Framework::Properties(*this, s_Table, pList);
}

bool XMLDataListDefType::MergeDataMembers(XMLDataWrapper* pMergeData, zelString sFeatureID) {
    return Framework::Merge(*this, s_Table, pMergeData, sFeatureID, __LINE__);
}

zelString XMLDataListDefType::GetAttributeList() {
    return Framework::AttributePredicate(*this, s_Table);
}

ParameterList* XMLDataListDefType::GetPLAttributeList() {
    return Framework::AttributeParameters(*this, s_Table);
}

TypedDataContainer* XMLDataListDefType::Clone() {
    return Framework::Clone(*this, s_Table);
}

bool XMLDataListDefType::DumpMergeContents(const zelString& sParentQuery, FullFunctionXMLDataWrapper* pOutput,
                                           int QueryPos, bool bIncludeMergeAttributes) {
    return Framework::DumpByQuery(*this, s_Table, sParentQuery, pOutput, QueryPos, bIncludeMergeAttributes);
}

bool XMLDataListDefType::DumpMergeContentsII(DOMNode* pParentNode, FullFunctionXMLDataWrapper* pOutput,
                                             DOMNode*& pPassedCurrent, bool bIncludeMergeAttributes) {
    return Framework::DumpByNode(*this, s_Table, pParentNode, pOutput, pPassedCurrent, bIncludeMergeAttributes);
}

bool XMLDataListDefType::UpdateContainedData() {
    return Framework::Update(*this, s_Table);
}

bool XMLDataListDefType::PopulateDataMembers(XalanNode* pNode) {
    return Framework::Populate(*this, s_Table, pNode);
}

void XMLDataListDefType::ResetDataMembers() {
    Framework::Reset(*this, s_Table);
}

zelString XMLDataListDefType::GetOptionName() {
    return m_OptionName;
}

void XMLDataListDefType::SetOptionName(LPCTSTR szNew) {
    m_OptionName = szNew;
}

zelString XMLDataListDefType::GetParentQuery() {
    return m_ParentQuery;
}

void XMLDataListDefType::SetParentQuery(LPCTSTR szNew) {
    m_ParentQuery = szNew;
}

zelString XMLDataListDefType::GetValueElement() {
    return m_ValueElement;
}

void XMLDataListDefType::SetValueElement(LPCTSTR szNew) {
    m_ValueElement = szNew;
}

zelString XMLDataListDefType::GetDisplayElement() {
    return m_DisplayElement;
}

void XMLDataListDefType::SetDisplayElement(LPCTSTR szNew) {
    m_DisplayElement = szNew;
}

bool XMLDataListDefType::AutoFillTypeInfo() {
    return true;
}
