// Generated from DBManagerThreadConfig.xsd; do not edit. Regenerate with the target "generate".
#include "FrameworkDataContainers/DBInterfaceType.h"

#include "Framework/FrameworkDataContainers/Walks/Lists.h"
#include "Framework/FrameworkDataContainers/Walks/Walks.h"

// clang-format off
constinit const Framework::FieldRow DBInterfaceType::s_Rows[] = {
    Framework::Element("DBConfig", &DBInterfaceType::m_DBConfig),
    Framework::Element("DataResultProcessor", &DBInterfaceType::m_DataResultProcessor),
    Framework::Attribute("Name", &DBInterfaceType::m_Name),
};

constinit const Framework::FieldTable DBInterfaceType::s_Table = {
    .className = "DBInterfaceType",
    .elementName = "DBInterface",
    .parent = nullptr,
    .isStructuralConfigLoader = false,
    .isRoot = false,
    .rows = s_Rows,
    .create = &Framework::CreateContainer<DBInterfaceType>,
    .type = &typeid(DBInterfaceType),
    .autoFill = Framework::ToBase(&DBInterfaceType::m_bAutoFillTypeInfo),
};
// clang-format on

DBInterfaceType::DBInterfaceType(bool bBuildFromScratch) : TypedDataContainer(bBuildFromScratch) {
    Framework::NameByClass(*this, s_Table);
}

DBInterfaceType::~DBInterfaceType() {}

zelString DBInterfaceType::GetBaseType() {
    return "DBInterfaceType";
}

void DBInterfaceType::GetProperties(ParameterList& pList) {
    Framework::Properties(*this, s_Table, pList);
}

bool DBInterfaceType::MergeDataMembers(XMLDataWrapper* pMergeData, zelString sFeatureID) {
    return Framework::Merge(*this, s_Table, pMergeData, sFeatureID, __LINE__);
}

zelString DBInterfaceType::GetAttributeList() {
    return Framework::AttributePredicate(*this, s_Table);
}

ParameterList* DBInterfaceType::GetPLAttributeList() {
    return Framework::AttributeParameters(*this, s_Table);
}

TypedDataContainer* DBInterfaceType::Clone() {
    return Framework::Clone(*this, s_Table);
}

bool DBInterfaceType::DumpMergeContents(const zelString& sParentQuery, FullFunctionXMLDataWrapper* pOutput,
                                        int QueryPos, bool bIncludeMergeAttributes) {
    return Framework::DumpByQuery(*this, s_Table, sParentQuery, pOutput, QueryPos, bIncludeMergeAttributes);
}

bool DBInterfaceType::DumpMergeContentsII(DOMNode* pParentNode, FullFunctionXMLDataWrapper* pOutput,
                                          DOMNode*& pPassedCurrent, bool bIncludeMergeAttributes) {
    return Framework::DumpByNode(*this, s_Table, pParentNode, pOutput, pPassedCurrent, bIncludeMergeAttributes);
}

bool DBInterfaceType::UpdateContainedData() {
    return Framework::Update(*this, s_Table);
}

bool DBInterfaceType::PopulateDataMembers(XalanNode* pNode) {
    return Framework::Populate(*this, s_Table, pNode);
}

void DBInterfaceType::ResetDataMembers() {
    Framework::Reset(*this, s_Table);
}

zelString DBInterfaceType::GetDBConfig() {
    return m_DBConfig;
}

void DBInterfaceType::SetDBConfig(LPCTSTR szNew) {
    m_DBConfig = szNew;
}

zelString DBInterfaceType::GetDataResultProcessor() {
    return m_DataResultProcessor;
}

void DBInterfaceType::SetDataResultProcessor(LPCTSTR szNew) {
    m_DataResultProcessor = szNew;
}

zelString DBInterfaceType::GetName() {
    return m_Name;
}

void DBInterfaceType::SetName(LPCTSTR szNew) {
    m_Name = szNew;
}

bool DBInterfaceType::AutoFillTypeInfo() {
    return true;
}
