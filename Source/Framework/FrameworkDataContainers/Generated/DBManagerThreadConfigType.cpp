// Generated from DBManagerThreadConfig.xsd; do not edit. Regenerate with the target "generate".
#include "FrameworkDataContainers/DBManagerThreadConfigType.h"

#include "Framework/FrameworkDataContainers/Walks/Lists.h"
#include "Framework/FrameworkDataContainers/Walks/Walks.h"
#include "FrameworkDataContainers/DBInterfaceListType.h"
#include "FrameworkDataContainers/DataProcessorClassFactoryListType.h"
#include "FrameworkDataContainers/DataProcessorMethodListType.h"

// clang-format off
constinit const Framework::FieldRow DBManagerThreadConfigType::s_Rows[] = {
    Framework::Child<&DBManagerThreadConfigType::m_DataProcessorClassFactoryList>("DataProcessorClassFactoryList", "DataProcessorClassFactoryListType"),
    Framework::Child<&DBManagerThreadConfigType::m_DataProcessorMethodList>("DataProcessorMethodList", "DataProcessorMethodListType"),
    Framework::Child<&DBManagerThreadConfigType::m_DBInterfaceList>("DBInterfaceList", "DBInterfaceListType"),
};

constinit const Framework::FieldTable DBManagerThreadConfigType::s_Table = {
    .className = "DBManagerThreadConfigType",
    .elementName = "DBManagerThreadConfig",
    .parent = nullptr,
    .isStructuralConfigLoader = true,
    .isRoot = true,
    .rows = s_Rows,
    .create = &Framework::CreateContainer<DBManagerThreadConfigType>,
    .type = &typeid(DBManagerThreadConfigType),
    .autoFill = Framework::ToBase(&DBManagerThreadConfigType::m_bAutoFillTypeInfo),
};
// clang-format on

DBManagerThreadConfigType::DBManagerThreadConfigType(bool bBuildFromScratch)
    : StructuralConfigLoader(bBuildFromScratch) {
    Framework::NameByClass(*this, s_Table);
}

DBManagerThreadConfigType::~DBManagerThreadConfigType() {
    delete m_DataProcessorClassFactoryList;
    delete m_DataProcessorMethodList;
    delete m_DBInterfaceList;
}

zelString DBManagerThreadConfigType::GetBaseType() {
    return "DBManagerThreadConfigType";
}

void DBManagerThreadConfigType::GetProperties(ParameterList& pList) {
    Framework::Properties(*this, s_Table, pList);
}

bool DBManagerThreadConfigType::MergeDataMembers(XMLDataWrapper* pMergeData, zelString sFeatureID) {
    return Framework::Merge(*this, s_Table, pMergeData, sFeatureID, __LINE__);
}

zelString DBManagerThreadConfigType::GetAttributeList() {
    return Framework::AttributePredicate(*this, s_Table);
}

ParameterList* DBManagerThreadConfigType::GetPLAttributeList() {
    return Framework::AttributeParameters(*this, s_Table);
}

TypedDataContainer* DBManagerThreadConfigType::Clone() {
    return Framework::Clone(*this, s_Table);
}

bool DBManagerThreadConfigType::DumpMergeContents(const zelString& sParentQuery, FullFunctionXMLDataWrapper* pOutput,
                                                  int QueryPos, bool bIncludeMergeAttributes) {
    return Framework::DumpByQuery(*this, s_Table, sParentQuery, pOutput, QueryPos, bIncludeMergeAttributes);
}

bool DBManagerThreadConfigType::DumpMergeContentsII(DOMNode* pParentNode, FullFunctionXMLDataWrapper* pOutput,
                                                    DOMNode*& pPassedCurrent, bool bIncludeMergeAttributes) {
    return Framework::DumpByNode(*this, s_Table, pParentNode, pOutput, pPassedCurrent, bIncludeMergeAttributes);
}

bool DBManagerThreadConfigType::UpdateContainedData() {
    return Framework::Update(*this, s_Table);
}

bool DBManagerThreadConfigType::PopulateDataMembers(XalanNode* pNode) {
    return Framework::Populate(*this, s_Table, pNode);
}

void DBManagerThreadConfigType::ResetDataMembers() {
    Framework::Reset(*this, s_Table);
}

DataProcessorClassFactoryListType* DBManagerThreadConfigType::GetDataProcessorClassFactoryList() {
    return m_DataProcessorClassFactoryList;
}

void DBManagerThreadConfigType::SetDataProcessorClassFactoryList(DataProcessorClassFactoryListType* szNew) {
    Framework::ReplaceChild(m_DataProcessorClassFactoryList, szNew);
}

DataProcessorMethodListType* DBManagerThreadConfigType::GetDataProcessorMethodList() {
    return m_DataProcessorMethodList;
}

void DBManagerThreadConfigType::SetDataProcessorMethodList(DataProcessorMethodListType* szNew) {
    Framework::ReplaceChild(m_DataProcessorMethodList, szNew);
}

DBInterfaceListType* DBManagerThreadConfigType::GetDBInterfaceList() {
    return m_DBInterfaceList;
}

void DBManagerThreadConfigType::SetDBInterfaceList(DBInterfaceListType* szNew) {
    Framework::ReplaceChild(m_DBInterfaceList, szNew);
}

bool DBManagerThreadConfigType::AutoFillTypeInfo() {
    return true;
}
