// Generated from DBManagerThreadConfig.xsd; do not edit. Regenerate with the target "generate".
#include "FrameworkDataContainers/DBInterfaceListType.h"

#include "Framework/FrameworkDataContainers/Walks/Lists.h"
#include "Framework/FrameworkDataContainers/Walks/Walks.h"
#include "FrameworkDataContainers/DBInterfaceType.h"

// clang-format off
constinit const Framework::FieldRow DBInterfaceListType::s_Rows[] = {
    Framework::KeyedList<DBInterfaceType, &DBInterfaceType::GetName, &DBInterfaceListType::AddDBInterface, &DBInterfaceListType::ClearDBInterface>("DBInterface", "DBInterfaceType", "Name", &DBInterfaceListType::m_MapDBInterfaceList, &DBInterfaceListType::m_DBInterfaceList),
};

constinit const Framework::FieldTable DBInterfaceListType::s_Table = {
    .className = "DBInterfaceListType",
    .elementName = "DBInterfaceList",
    .parent = nullptr,
    .isStructuralConfigLoader = false,
    .isRoot = false,
    .rows = s_Rows,
    .create = &Framework::CreateContainer<DBInterfaceListType>,
    .type = &typeid(DBInterfaceListType),
    .autoFill = Framework::ToBase(&DBInterfaceListType::m_bAutoFillTypeInfo),
};
// clang-format on

DBInterfaceListType::DBInterfaceListType(bool bBuildFromScratch) : TypedDataContainer(bBuildFromScratch) {
    Framework::NameByClass(*this, s_Table);
}

DBInterfaceListType::~DBInterfaceListType() {
    DBInterfaceListType::ClearDBInterface();
}

zelString DBInterfaceListType::GetBaseType() {
    return "DBInterfaceListType";
}

void DBInterfaceListType::GetProperties(ParameterList& pList) {
    Framework::Properties(*this, s_Table, pList);
}

bool DBInterfaceListType::MergeDataMembers(XMLDataWrapper* pMergeData, zelString sFeatureID) {
    return Framework::Merge(*this, s_Table, pMergeData, sFeatureID, __LINE__);
}

zelString DBInterfaceListType::GetAttributeList() {
    return Framework::AttributePredicate(*this, s_Table);
}

ParameterList* DBInterfaceListType::GetPLAttributeList() {
    return Framework::AttributeParameters(*this, s_Table);
}

TypedDataContainer* DBInterfaceListType::Clone() {
    return Framework::Clone(*this, s_Table);
}

bool DBInterfaceListType::DumpMergeContents(const zelString& sParentQuery, FullFunctionXMLDataWrapper* pOutput,
                                            int QueryPos, bool bIncludeMergeAttributes) {
    return Framework::DumpByQuery(*this, s_Table, sParentQuery, pOutput, QueryPos, bIncludeMergeAttributes);
}

bool DBInterfaceListType::DumpMergeContentsII(DOMNode* pParentNode, FullFunctionXMLDataWrapper* pOutput,
                                              DOMNode*& pPassedCurrent, bool bIncludeMergeAttributes) {
    return Framework::DumpByNode(*this, s_Table, pParentNode, pOutput, pPassedCurrent, bIncludeMergeAttributes);
}

bool DBInterfaceListType::UpdateContainedData() {
    return Framework::Update(*this, s_Table);
}

bool DBInterfaceListType::PopulateDataMembers(XalanNode* pNode) {
    return Framework::Populate(*this, s_Table, pNode);
}

void DBInterfaceListType::ResetDataMembers() {
    Framework::Reset(*this, s_Table);
}

int DBInterfaceListType::GetDBInterfaceLength() {
    return Framework::ListLength(m_DBInterfaceList);
}

DBInterfaceType* DBInterfaceListType::GetDBInterface(int Index) {
    return static_cast<DBInterfaceType*>(Framework::EntryAt(m_DBInterfaceList, Index));
}

DBInterfaceType* DBInterfaceListType::GetDBInterface(const zelString& sName) {
    return static_cast<DBInterfaceType*>(Framework::EntryByKey(m_MapDBInterfaceList, sName));
}

void DBInterfaceListType::AddNewDBInterface(DBInterfaceType* szNew, const zelString& sName) {
    Framework::AddNewKeyed(m_MapDBInterfaceList, m_DBInterfaceList, szNew, sName);
}

void DBInterfaceListType::RemoveDBInterface(const zelString& sName, const zelString& sFeatureId) {
    Framework::RemoveKeyed(*this, s_Rows[0], sName, sFeatureId);
}

bool DBInterfaceListType::AutoFillTypeInfo() {
    return true;
}

void DBInterfaceListType::AddDBInterface(XMLDataWrapper* pData, XalanNode* spNode, const zelString& sName) {
    Framework::AddKeyed(*this, s_Rows[0], pData, spNode, sName, __LINE__);
}

void DBInterfaceListType::ClearDBInterface() {
    Framework::ClearKeyed(m_MapDBInterfaceList, m_DBInterfaceList);
}
