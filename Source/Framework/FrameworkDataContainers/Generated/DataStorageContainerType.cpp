// Generated from LoadConfig.xsd; do not edit. Regenerate with the target "generate".
#include "FrameworkDataContainers/DataStorageContainerType.h"

#include "Framework/FrameworkDataContainers/Walks/Lists.h"
#include "Framework/FrameworkDataContainers/Walks/Walks.h"

#include <utility>

// clang-format off
constinit const Framework::FieldRow DataStorageContainerType::s_Rows[] = {
    Framework::Element("StorageName", &DataStorageContainerType::m_StorageName),
    Framework::Element("ListContainer", &DataStorageContainerType::m_ListContainer),
    Framework::Element("DBListContainer", &DataStorageContainerType::m_DBListContainer),
    Framework::Element("InitializeListContainer", &DataStorageContainerType::m_InitializeListContainer),
    Framework::Element("ReadOnly", &DataStorageContainerType::m_ReadOnly),
    Framework::PlainStrings<&DataStorageContainerType::AddLoadPath, &DataStorageContainerType::ClearLoadPath>("LoadPath", &DataStorageContainerType::m_LoadPathList),
    Framework::EnumElement<&DataStorageContainerType::m_PersistenceModel>("PersistenceModel", "PersistenceModelEnum", "Selective"),
    Framework::Element("AltLoadPath", &DataStorageContainerType::m_AltLoadPath),
};

constinit const Framework::FieldTable DataStorageContainerType::s_Table = {
    .className = "DataStorageContainerType",
    .elementName = "DataStorageContainer",
    .parent = nullptr,
    .isStructuralConfigLoader = false,
    .isRoot = false,
    .rows = s_Rows,
    .create = &Framework::CreateContainer<DataStorageContainerType>,
    .type = &typeid(DataStorageContainerType),
    .autoFill = Framework::ToBase(&DataStorageContainerType::m_bAutoFillTypeInfo),
};
// clang-format on

DataStorageContainerType::DataStorageContainerType(bool bBuildFromScratch) : TypedDataContainer(bBuildFromScratch) {
    Framework::NameByClass(*this, s_Table);
}

DataStorageContainerType::~DataStorageContainerType() {
    DataStorageContainerType::ClearLoadPath();
}

zelString DataStorageContainerType::GetBaseType() {
    return "DataStorageContainerType";
}

void DataStorageContainerType::GetProperties(ParameterList& pList) {
    Framework::Properties(*this, s_Table, pList);
}

bool DataStorageContainerType::MergeDataMembers(XMLDataWrapper* pMergeData, zelString sFeatureID) {
    return Framework::Merge(*this, s_Table, pMergeData, sFeatureID, __LINE__);
}

zelString DataStorageContainerType::GetAttributeList() {
    return Framework::AttributePredicate(*this, s_Table);
}

ParameterList* DataStorageContainerType::GetPLAttributeList() {
    return Framework::AttributeParameters(*this, s_Table);
}

TypedDataContainer* DataStorageContainerType::Clone() {
    return Framework::Clone(*this, s_Table);
}

bool DataStorageContainerType::DumpMergeContents(const zelString& sParentQuery, FullFunctionXMLDataWrapper* pOutput,
                                                 int QueryPos, bool bIncludeMergeAttributes) {
    return Framework::DumpByQuery(*this, s_Table, sParentQuery, pOutput, QueryPos, bIncludeMergeAttributes);
}

bool DataStorageContainerType::DumpMergeContentsII(DOMNode* pParentNode, FullFunctionXMLDataWrapper* pOutput,
                                                   DOMNode*& pPassedCurrent, bool bIncludeMergeAttributes) {
    return Framework::DumpByNode(*this, s_Table, pParentNode, pOutput, pPassedCurrent, bIncludeMergeAttributes);
}

bool DataStorageContainerType::UpdateContainedData() {
    return Framework::Update(*this, s_Table);
}

bool DataStorageContainerType::PopulateDataMembers(XalanNode* pNode) {
    return Framework::Populate(*this, s_Table, pNode);
}

void DataStorageContainerType::ResetDataMembers() {
    Framework::Reset(*this, s_Table);
}

zelString DataStorageContainerType::GetStorageName() {
    return m_StorageName;
}

void DataStorageContainerType::SetStorageName(LPCTSTR szNew) {
    m_StorageName = szNew;
}

bool DataStorageContainerType::GetListContainer() {
    return m_ListContainer;
}

void DataStorageContainerType::SetListContainer(bool szNew) {
    m_ListContainer = szNew;
}

bool DataStorageContainerType::GetDBListContainer() {
    return m_DBListContainer;
}

void DataStorageContainerType::SetDBListContainer(bool szNew) {
    m_DBListContainer = szNew;
}

zelString DataStorageContainerType::GetInitializeListContainer() {
    return m_InitializeListContainer;
}

void DataStorageContainerType::SetInitializeListContainer(LPCTSTR szNew) {
    m_InitializeListContainer = szNew;
}

bool DataStorageContainerType::GetReadOnly() {
    return m_ReadOnly;
}

void DataStorageContainerType::SetReadOnly(bool szNew) {
    m_ReadOnly = szNew;
}

int DataStorageContainerType::GetLoadPathLength() {
    return Framework::ListLength(m_LoadPathList);
}

zelString DataStorageContainerType::GetLoadPath(int Index) {
    return Framework::GrowTo(m_LoadPathList, Index);
}

void DataStorageContainerType::AddNewLoadPath(LPCTSTR szNew) {
    m_LoadPathList.emplace_back(szNew);
}

PersistenceModelEnum DataStorageContainerType::GetPersistenceModel() {
    return m_PersistenceModel;
}

void DataStorageContainerType::SetPersistenceModel(PersistenceModelEnum szNew) {
    m_PersistenceModel = szNew;
}

zelString DataStorageContainerType::GetAltLoadPath() {
    return m_AltLoadPath;
}

void DataStorageContainerType::SetAltLoadPath(LPCTSTR szNew) {
    m_AltLoadPath = szNew;
}

bool DataStorageContainerType::AutoFillTypeInfo() {
    return true;
}

void DataStorageContainerType::AddLoadPath(zelString pData) {
    m_LoadPathList.push_back(std::move(pData));
}

void DataStorageContainerType::ClearLoadPath() {
    m_LoadPathList.clear();
}
