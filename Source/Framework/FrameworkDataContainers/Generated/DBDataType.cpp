// Generated from VendraDBConfig.xsd; do not edit. Regenerate with the target "generate".
#include "FrameworkDataContainers/DBDataType.h"

#include "Framework/FrameworkDataContainers/Walks/Lists.h"
#include "Framework/FrameworkDataContainers/Walks/Walks.h"
#include "FrameworkDataContainers/DBConfigParametersType.h"

// clang-format off
constinit const Framework::FieldRow DBDataType::s_Rows[] = {
    Framework::Element("SQLQuery", &DBDataType::m_SQLQuery),
    Framework::Element("QueryType", &DBDataType::m_QueryType),
    Framework::Element("OutputDataSize", &DBDataType::m_OutputDataSize),
    Framework::Element("UseFullFunctionXMLDataWrapper", &DBDataType::m_UseFullFunctionXMLDataWrapper),
    Framework::KeyedList<DBConfigParametersType, &DBConfigParametersType::GetName, &DBDataType::AddParameters, &DBDataType::ClearParameters>("Parameters", "DBConfigParametersType", "Name", &DBDataType::m_MapParametersList, &DBDataType::m_ParametersList),
    Framework::Attribute("Name", &DBDataType::m_Name),
};

constinit const Framework::FieldTable DBDataType::s_Table = {
    .className = "DBDataType",
    .elementName = "DBData",
    .parent = nullptr,
    .isStructuralConfigLoader = false,
    .isRoot = false,
    .rows = s_Rows,
    .create = &Framework::CreateContainer<DBDataType>,
    .type = &typeid(DBDataType),
    .autoFill = Framework::ToBase(&DBDataType::m_bAutoFillTypeInfo),
};
// clang-format on

DBDataType::DBDataType(bool bBuildFromScratch) : TypedDataContainer(bBuildFromScratch) {
    Framework::NameByClass(*this, s_Table);
}

DBDataType::~DBDataType() {
    DBDataType::ClearParameters();
}

zelString DBDataType::GetBaseType() {
    return "DBDataType";
}

void DBDataType::GetProperties(ParameterList& pList) {
    Framework::Properties(*this, s_Table, pList);
}

bool DBDataType::MergeDataMembers(XMLDataWrapper* pMergeData, zelString sFeatureID) {
    return Framework::Merge(*this, s_Table, pMergeData, sFeatureID, __LINE__);
}

zelString DBDataType::GetAttributeList() {
    return Framework::AttributePredicate(*this, s_Table);
}

ParameterList* DBDataType::GetPLAttributeList() {
    return Framework::AttributeParameters(*this, s_Table);
}

TypedDataContainer* DBDataType::Clone() {
    return Framework::Clone(*this, s_Table);
}

bool DBDataType::DumpMergeContents(const zelString& sParentQuery, FullFunctionXMLDataWrapper* pOutput, int QueryPos,
                                   bool bIncludeMergeAttributes) {
    return Framework::DumpByQuery(*this, s_Table, sParentQuery, pOutput, QueryPos, bIncludeMergeAttributes);
}

bool DBDataType::DumpMergeContentsII(DOMNode* pParentNode, FullFunctionXMLDataWrapper* pOutput,
                                     DOMNode*& pPassedCurrent, bool bIncludeMergeAttributes) {
    return Framework::DumpByNode(*this, s_Table, pParentNode, pOutput, pPassedCurrent, bIncludeMergeAttributes);
}

bool DBDataType::UpdateContainedData() {
    return Framework::Update(*this, s_Table);
}

bool DBDataType::PopulateDataMembers(XalanNode* pNode) {
    return Framework::Populate(*this, s_Table, pNode);
}

void DBDataType::ResetDataMembers() {
    Framework::Reset(*this, s_Table);
}

zelString DBDataType::GetSQLQuery() {
    return m_SQLQuery;
}

void DBDataType::SetSQLQuery(LPCTSTR szNew) {
    m_SQLQuery = szNew;
}

zelString DBDataType::GetQueryType() {
    return m_QueryType;
}

void DBDataType::SetQueryType(LPCTSTR szNew) {
    m_QueryType = szNew;
}

int DBDataType::GetOutputDataSize() {
    return m_OutputDataSize;
}

void DBDataType::SetOutputDataSize(int szNew) {
    m_OutputDataSize = szNew;
}

bool DBDataType::GetUseFullFunctionXMLDataWrapper() {
    return m_UseFullFunctionXMLDataWrapper;
}

void DBDataType::SetUseFullFunctionXMLDataWrapper(bool szNew) {
    m_UseFullFunctionXMLDataWrapper = szNew;
}

int DBDataType::GetParametersLength() {
    return Framework::ListLength(m_ParametersList);
}

DBConfigParametersType* DBDataType::GetParameters(int Index) {
    return static_cast<DBConfigParametersType*>(Framework::EntryAt(m_ParametersList, Index));
}

DBConfigParametersType* DBDataType::GetParameters(const zelString& sName) {
    return static_cast<DBConfigParametersType*>(Framework::EntryByKey(m_MapParametersList, sName));
}

void DBDataType::AddNewParameters(DBConfigParametersType* szNew, const zelString& sName) {
    Framework::AddNewKeyed(m_MapParametersList, m_ParametersList, szNew, sName);
}

void DBDataType::RemoveParameters(const zelString& sName, const zelString& sFeatureId) {
    Framework::RemoveKeyed(*this, s_Rows[4], sName, sFeatureId);
}

zelString DBDataType::GetName() {
    return m_Name;
}

void DBDataType::SetName(LPCTSTR szNew) {
    m_Name = szNew;
}

bool DBDataType::AutoFillTypeInfo() {
    return true;
}

void DBDataType::AddParameters(XMLDataWrapper* pData, XalanNode* spNode, const zelString& sName) {
    Framework::AddKeyed(*this, s_Rows[4], pData, spNode, sName, __LINE__);
}

void DBDataType::ClearParameters() {
    Framework::ClearKeyed(m_MapParametersList, m_ParametersList);
}
