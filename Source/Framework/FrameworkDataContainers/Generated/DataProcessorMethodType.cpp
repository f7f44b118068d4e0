// Generated from DBManagerThreadConfig.xsd; do not edit. Regenerate with the target "generate".
#include "FrameworkDataContainers/DataProcessorMethodType.h"

#include "Framework/FrameworkDataContainers/Walks/Lists.h"
#include "Framework/FrameworkDataContainers/Walks/Walks.h"

// clang-format off
constinit const Framework::FieldRow DataProcessorMethodType::s_Rows[] = {
    Framework::Element("Unused", &DataProcessorMethodType::m_Unused),
    Framework::Attribute("Name", &DataProcessorMethodType::m_Name),
};

constinit const Framework::FieldTable DataProcessorMethodType::s_Table = {
    .className = "DataProcessorMethodType",
    .elementName = "DataProcessorMethod",
    .parent = &AbstractMethodDefType::s_Table,
    .isStructuralConfigLoader = false,
    .isRoot = false,
    .rows = s_Rows,
    .create = &Framework::CreateContainer<DataProcessorMethodType>,
    .type = &typeid(DataProcessorMethodType),
    .autoFill = Framework::ToBase(&DataProcessorMethodType::m_bAutoFillTypeInfo),
};
// clang-format on

DataProcessorMethodType::DataProcessorMethodType(bool bBuildFromScratch) : AbstractMethodDefType(bBuildFromScratch) {
    Framework::NameByClass(*this, s_Table);
}

DataProcessorMethodType::~DataProcessorMethodType() {}

zelString DataProcessorMethodType::GetBaseType() {
    return "DataProcessorMethodType";
}

void DataProcessorMethodType::GetProperties(ParameterList& pList) {
    Framework::Properties(*this, s_Table, pList);
}

bool DataProcessorMethodType::MergeDataMembers(XMLDataWrapper* pMergeData, zelString sFeatureID) {
    return Framework::Merge(*this, s_Table, pMergeData, sFeatureID, __LINE__);
}

zelString DataProcessorMethodType::GetAttributeList() {
    return Framework::AttributePredicate(*this, s_Table);
}

ParameterList* DataProcessorMethodType::GetPLAttributeList() {
    return Framework::AttributeParameters(*this, s_Table);
}

TypedDataContainer* DataProcessorMethodType::Clone() {
    return Framework::Clone(*this, s_Table);
}

bool DataProcessorMethodType::DumpMergeContents(const zelString& sParentQuery, FullFunctionXMLDataWrapper* pOutput,
                                                int QueryPos, bool bIncludeMergeAttributes) {
    return Framework::DumpByQuery(*this, s_Table, sParentQuery, pOutput, QueryPos, bIncludeMergeAttributes);
}

bool DataProcessorMethodType::DumpMergeContentsII(DOMNode* pParentNode, FullFunctionXMLDataWrapper* pOutput,
                                                  DOMNode*& pPassedCurrent, bool bIncludeMergeAttributes) {
    return Framework::DumpByNode(*this, s_Table, pParentNode, pOutput, pPassedCurrent, bIncludeMergeAttributes);
}

bool DataProcessorMethodType::UpdateContainedData() {
    return Framework::Update(*this, s_Table);
}

bool DataProcessorMethodType::PopulateDataMembers(XalanNode* pNode) {
    return Framework::Populate(*this, s_Table, pNode);
}

void DataProcessorMethodType::ResetDataMembers() {
    Framework::Reset(*this, s_Table);
}

bool DataProcessorMethodType::AutoFillTypeInfo() {
    return true;
}

zelString DataProcessorMethodType::GetUnused() {
    return m_Unused;
}

void DataProcessorMethodType::SetUnused(LPCTSTR szNew) {
    m_Unused = szNew;
}

zelString DataProcessorMethodType::GetName() {
    return m_Name;
}

void DataProcessorMethodType::SetName(LPCTSTR szNew) {
    m_Name = szNew;
}
