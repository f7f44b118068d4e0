// Generated from VendraDBConfig.xsd; do not edit. Regenerate with the target "generate".
#include "FrameworkDataContainers/VendraDBConfigType.h"

#include "Framework/FrameworkDataContainers/Walks/Lists.h"
#include "Framework/FrameworkDataContainers/Walks/Walks.h"
#include "FrameworkDataContainers/DBDataType.h"

// clang-format off
constinit const Framework::FieldRow VendraDBConfigType::s_Rows[] = {
    Framework::KeyedList<DBDataType, &DBDataType::GetName, &VendraDBConfigType::AddDBData, &VendraDBConfigType::ClearDBData>("DBData", "DBDataType", "Name", &VendraDBConfigType::m_MapDBDataList, &VendraDBConfigType::m_DBDataList),
};

constinit const Framework::FieldTable VendraDBConfigType::s_Table = {
    .className = "VendraDBConfigType",
    .elementName = "VendraDBConfig",
    .parent = nullptr,
    .isStructuralConfigLoader = true,
    .isRoot = true,
    .rows = s_Rows,
    .create = &Framework::CreateContainer<VendraDBConfigType>,
    .type = &typeid(VendraDBConfigType),
    .autoFill = Framework::ToBase(&VendraDBConfigType::m_bAutoFillTypeInfo),
};
// clang-format on

VendraDBConfigType::VendraDBConfigType(bool bBuildFromScratch) : StructuralConfigLoader(bBuildFromScratch) {
    Framework::NameByClass(*this, s_Table);
}

VendraDBConfigType::~VendraDBConfigType() {
    VendraDBConfigType::ClearDBData();
}

zelString VendraDBConfigType::GetBaseType() {
    return "VendraDBConfigType";
}

void VendraDBConfigType::GetProperties(ParameterList& pList) {
    Framework::Properties(*this, s_Table, pList);
}

bool VendraDBConfigType::MergeDataMembers(XMLDataWrapper* pMergeData, zelString sFeatureID) {
    return Framework::Merge(*this, s_Table, pMergeData, sFeatureID, __LINE__);
}

zelString VendraDBConfigType::GetAttributeList() {
    return Framework::AttributePredicate(*this, s_Table);
}

ParameterList* VendraDBConfigType::GetPLAttributeList() {
    return Framework::AttributeParameters(*this, s_Table);
}

TypedDataContainer* VendraDBConfigType::Clone() {
    return Framework::Clone(*this, s_Table);
}

bool VendraDBConfigType::DumpMergeContents(const zelString& sParentQuery, FullFunctionXMLDataWrapper* pOutput,
                                           int QueryPos, bool bIncludeMergeAttributes) {
    return Framework::DumpByQuery(*this, s_Table, sParentQuery, pOutput, QueryPos, bIncludeMergeAttributes);
}

bool VendraDBConfigType::DumpMergeContentsII(DOMNode* pParentNode, FullFunctionXMLDataWrapper* pOutput,
                                             DOMNode*& pPassedCurrent, bool bIncludeMergeAttributes) {
    return Framework::DumpByNode(*this, s_Table, pParentNode, pOutput, pPassedCurrent, bIncludeMergeAttributes);
}

bool VendraDBConfigType::UpdateContainedData() {
    return Framework::Update(*this, s_Table);
}

bool VendraDBConfigType::PopulateDataMembers(XalanNode* pNode) {
    return Framework::Populate(*this, s_Table, pNode);
}

void VendraDBConfigType::ResetDataMembers() {
    Framework::Reset(*this, s_Table);
}

int VendraDBConfigType::GetDBDataLength() {
    return Framework::ListLength(m_DBDataList);
}

DBDataType* VendraDBConfigType::GetDBData(int Index) {
    return static_cast<DBDataType*>(Framework::EntryAt(m_DBDataList, Index));
}

DBDataType* VendraDBConfigType::GetDBData(const zelString& sName) {
    return static_cast<DBDataType*>(Framework::EntryByKey(m_MapDBDataList, sName));
}

void VendraDBConfigType::AddNewDBData(DBDataType* szNew, const zelString& sName) {
    Framework::AddNewKeyed(m_MapDBDataList, m_DBDataList, szNew, sName);
}

void VendraDBConfigType::RemoveDBData(const zelString& sName, const zelString& sFeatureId) {
    Framework::RemoveKeyed(*this, s_Rows[0], sName, sFeatureId);
}

bool VendraDBConfigType::AutoFillTypeInfo() {
    return true;
}

void VendraDBConfigType::AddDBData(XMLDataWrapper* pData, XalanNode* spNode, const zelString& sName) {
    Framework::AddKeyed(*this, s_Rows[0], pData, spNode, sName, __LINE__);
}

void VendraDBConfigType::ClearDBData() {
    Framework::ClearKeyed(m_MapDBDataList, m_DBDataList);
}
