// Generated from ActionData.xsd; do not edit. Regenerate with the target "generate".
#include "FrameworkDataContainers/PreProcessDataEntryType.h"

#include "Framework/FrameworkDataContainers/Walks/Lists.h"
#include "Framework/FrameworkDataContainers/Walks/Walks.h"

// clang-format off
constinit const Framework::FieldRow PreProcessDataEntryType::s_Rows[] = {
    Framework::Element("Unused", &PreProcessDataEntryType::m_Unused),
    Framework::Attribute("Name", &PreProcessDataEntryType::m_Name),
};

constinit const Framework::FieldTable PreProcessDataEntryType::s_Table = {
    .className = "PreProcessDataEntryType",
    .elementName = "PreProcessDataEntry",
    .parent = &SimpleDataEntryType::s_Table,
    .isStructuralConfigLoader = false,
    .isRoot = false,
    .rows = s_Rows,
    .create = &Framework::CreateContainer<PreProcessDataEntryType>,
    .type = &typeid(PreProcessDataEntryType),
    .autoFill = Framework::ToBase(&PreProcessDataEntryType::m_bAutoFillTypeInfo),
};
// clang-format on

PreProcessDataEntryType::PreProcessDataEntryType(bool bBuildFromScratch) : SimpleDataEntryType(bBuildFromScratch) {
    Framework::NameByClass(*this, s_Table);
}

PreProcessDataEntryType::~PreProcessDataEntryType() {}

zelString PreProcessDataEntryType::GetBaseType() {
    return "PreProcessDataEntryType";
}

void PreProcessDataEntryType::GetProperties(ParameterList& pList) {
    Framework::Properties(*this, s_Table, pList);
}

bool PreProcessDataEntryType::MergeDataMembers(XMLDataWrapper* pMergeData, zelString sFeatureID) {
    return Framework::Merge(*this, s_Table, pMergeData, sFeatureID, __LINE__);
}

zelString PreProcessDataEntryType::GetAttributeList() {
    return Framework::AttributePredicate(*this, s_Table);
}

ParameterList* PreProcessDataEntryType::GetPLAttributeList() {
    return Framework::AttributeParameters(*this, s_Table);
}

TypedDataContainer* PreProcessDataEntryType::Clone() {
    return Framework::Clone(*this, s_Table);
}

bool PreProcessDataEntryType::DumpMergeContents(const zelString& sParentQuery, FullFunctionXMLDataWrapper* pOutput,
                                                int QueryPos, bool bIncludeMergeAttributes) {
    return Framework::DumpByQuery(*this, s_Table, sParentQuery, pOutput, QueryPos, bIncludeMergeAttributes);
}

bool PreProcessDataEntryType::DumpMergeContentsII(DOMNode* pParentNode, FullFunctionXMLDataWrapper* pOutput,
                                                  DOMNode*& pPassedCurrent, bool bIncludeMergeAttributes) {
    return Framework::DumpByNode(*this, s_Table, pParentNode, pOutput, pPassedCurrent, bIncludeMergeAttributes);
}

bool PreProcessDataEntryType::UpdateContainedData() {
    return Framework::Update(*this, s_Table);
}

bool PreProcessDataEntryType::PopulateDataMembers(XalanNode* pNode) {
    return Framework::Populate(*this, s_Table, pNode);
}

void PreProcessDataEntryType::ResetDataMembers() {
    Framework::Reset(*this, s_Table);
}

bool PreProcessDataEntryType::AutoFillTypeInfo() {
    return true;
}

zelString PreProcessDataEntryType::GetUnused() {
    return m_Unused;
}

void PreProcessDataEntryType::SetUnused(LPCTSTR szNew) {
    m_Unused = szNew;
}

zelString PreProcessDataEntryType::GetName() {
    return m_Name;
}

void PreProcessDataEntryType::SetName(LPCTSTR szNew) {
    m_Name = szNew;
}
