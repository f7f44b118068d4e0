// Generated from VendraDBConfig.xsd; do not edit. Regenerate with the target "generate".
#include "FrameworkDataContainers/DBConfigParametersType.h"

#include "Framework/FrameworkDataContainers/Walks/Lists.h"
#include "Framework/FrameworkDataContainers/Walks/Walks.h"

// clang-format off
constinit const Framework::FieldRow DBConfigParametersType::s_Rows[] = {
    Framework::Element("Type", &DBConfigParametersType::m_Type),
    Framework::Element("Direction", &DBConfigParametersType::m_Direction),
    Framework::Element("DataSize", &DBConfigParametersType::m_DataSize),
    Framework::Element("Index", &DBConfigParametersType::m_Index),
    Framework::Attribute("Name", &DBConfigParametersType::m_Name),
};

constinit const Framework::FieldTable DBConfigParametersType::s_Table = {
    .className = "DBConfigParametersType",
    .elementName = "Parameters",
    .parent = nullptr,
    .isStructuralConfigLoader = false,
    .isRoot = false,
    .rows = s_Rows,
    .create = &Framework::CreateContainer<DBConfigParametersType>,
    .type = &typeid(DBConfigParametersType),
    .autoFill = Framework::ToBase(&DBConfigParametersType::m_bAutoFillTypeInfo),
};
// clang-format on

DBConfigParametersType::DBConfigParametersType(bool bBuildFromScratch) : TypedDataContainer(bBuildFromScratch) {
    Framework::NameByClass(*this, s_Table);
}

DBConfigParametersType::~DBConfigParametersType() {}

zelString DBConfigParametersType::GetBaseType() {
    return "DBConfigParametersType";
}

void DBConfigParametersType::GetProperties(ParameterList& pList) {
    Framework::Properties(*this, s_Table, pList);
}

bool DBConfigParametersType::MergeDataMembers(XMLDataWrapper* pMergeData, zelString sFeatureID) {
    return Framework::Merge(*this, s_Table, pMergeData, sFeatureID, __LINE__);
}

zelString DBConfigParametersType::GetAttributeList() {
    return Framework::AttributePredicate(*this, s_Table);
}

ParameterList* DBConfigParametersType::GetPLAttributeList() {
    return Framework::AttributeParameters(*this, s_Table);
}

TypedDataContainer* DBConfigParametersType::Clone() {
    return Framework::Clone(*this, s_Table);
}

bool DBConfigParametersType::DumpMergeContents(const zelString& sParentQuery, FullFunctionXMLDataWrapper* pOutput,
                                               int QueryPos, bool bIncludeMergeAttributes) {
    return Framework::DumpByQuery(*this, s_Table, sParentQuery, pOutput, QueryPos, bIncludeMergeAttributes);
}

bool DBConfigParametersType::DumpMergeContentsII(DOMNode* pParentNode, FullFunctionXMLDataWrapper* pOutput,
                                                 DOMNode*& pPassedCurrent, bool bIncludeMergeAttributes) {
    return Framework::DumpByNode(*this, s_Table, pParentNode, pOutput, pPassedCurrent, bIncludeMergeAttributes);
}

bool DBConfigParametersType::UpdateContainedData() {
    return Framework::Update(*this, s_Table);
}

bool DBConfigParametersType::PopulateDataMembers(XalanNode* pNode) {
    return Framework::Populate(*this, s_Table, pNode);
}

void DBConfigParametersType::ResetDataMembers() {
    Framework::Reset(*this, s_Table);
}

zelString DBConfigParametersType::GetType() {
    return m_Type;
}

void DBConfigParametersType::SetType(LPCTSTR szNew) {
    m_Type = szNew;
}

zelString DBConfigParametersType::GetDirection() {
    return m_Direction;
}

void DBConfigParametersType::SetDirection(LPCTSTR szNew) {
    m_Direction = szNew;
}

int DBConfigParametersType::GetDataSize() {
    return m_DataSize;
}

void DBConfigParametersType::SetDataSize(int szNew) {
    m_DataSize = szNew;
}

int DBConfigParametersType::GetIndex() {
    return m_Index;
}

void DBConfigParametersType::SetIndex(int szNew) {
    m_Index = szNew;
}

zelString DBConfigParametersType::GetName() {
    return m_Name;
}

void DBConfigParametersType::SetName(LPCTSTR szNew) {
    m_Name = szNew;
}

bool DBConfigParametersType::AutoFillTypeInfo() {
    return true;
}
