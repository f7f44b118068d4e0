// Generated from DBManagerThreadConfig.xsd; do not edit. Regenerate with the target "generate".
#include "FrameworkDataContainers/DataProcessorClassFactoryListType.h"

#include "Framework/FrameworkDataContainers/Walks/Lists.h"
#include "Framework/FrameworkDataContainers/Walks/Walks.h"
#include "FrameworkDataContainers/BasicClassFactoryType.h"

// clang-format off
constinit const Framework::FieldRow DataProcessorClassFactoryListType::s_Rows[] = {
    Framework::PlainList<BasicClassFactoryType, &DataProcessorClassFactoryListType::AddDataProcessorClassFactory, &DataProcessorClassFactoryListType::ClearDataProcessorClassFactory>("DataProcessorClassFactory", "BasicClassFactoryType", &DataProcessorClassFactoryListType::m_DataProcessorClassFactoryList),
};

constinit const Framework::FieldTable DataProcessorClassFactoryListType::s_Table = {
    .className = "DataProcessorClassFactoryListType",
    .elementName = "DataProcessorClassFactoryList",
    .parent = nullptr,
    .isStructuralConfigLoader = false,
    .isRoot = false,
    .rows = s_Rows,
    .create = &Framework::CreateContainer<DataProcessorClassFactoryListType>,
    .type = &typeid(DataProcessorClassFactoryListType),
    .autoFill = Framework::ToBase(&DataProcessorClassFactoryListType::m_bAutoFillTypeInfo),
};
// clang-format on

DataProcessorClassFactoryListType::DataProcessorClassFactoryListType(bool bBuildFromScratch)
    : TypedDataContainer(bBuildFromScratch) {
    Framework::NameByClass(*this, s_Table);
}

DataProcessorClassFactoryListType::~DataProcessorClassFactoryListType() {
    DataProcessorClassFactoryListType::ClearDataProcessorClassFactory();
}

zelString DataProcessorClassFactoryListType::GetBaseType() {
    return "DataProcessorClassFactoryListType";
}

void DataProcessorClassFactoryListType::GetProperties(ParameterList& pList) {
    Framework::Properties(*this, s_Table, pList);
}

bool DataProcessorClassFactoryListType::MergeDataMembers(XMLDataWrapper* pMergeData, zelString sFeatureID) {
    return Framework::Merge(*this, s_Table, pMergeData, sFeatureID, __LINE__);
}

zelString DataProcessorClassFactoryListType::GetAttributeList() {
    return Framework::AttributePredicate(*this, s_Table);
}

ParameterList* DataProcessorClassFactoryListType::GetPLAttributeList() {
    return Framework::AttributeParameters(*this, s_Table);
}

TypedDataContainer* DataProcessorClassFactoryListType::Clone() {
    return Framework::Clone(*this, s_Table);
}

bool DataProcessorClassFactoryListType::DumpMergeContents(const zelString& sParentQuery,
                                                          FullFunctionXMLDataWrapper* pOutput, int QueryPos,
                                                          bool bIncludeMergeAttributes) {
    return Framework::DumpByQuery(*this, s_Table, sParentQuery, pOutput, QueryPos, bIncludeMergeAttributes);
}

bool DataProcessorClassFactoryListType::DumpMergeContentsII(DOMNode* pParentNode, FullFunctionXMLDataWrapper* pOutput,
                                                            DOMNode*& pPassedCurrent, bool bIncludeMergeAttributes) {
    return Framework::DumpByNode(*this, s_Table, pParentNode, pOutput, pPassedCurrent, bIncludeMergeAttributes);
}

bool DataProcessorClassFactoryListType::UpdateContainedData() {
    return Framework::Update(*this, s_Table);
}

bool DataProcessorClassFactoryListType::PopulateDataMembers(XalanNode* pNode) {
    return Framework::Populate(*this, s_Table, pNode);
}

void DataProcessorClassFactoryListType::ResetDataMembers() {
    Framework::Reset(*this, s_Table);
}

int DataProcessorClassFactoryListType::GetDataProcessorClassFactoryLength() {
    return Framework::ListLength(m_DataProcessorClassFactoryList);
}

BasicClassFactoryType* DataProcessorClassFactoryListType::GetDataProcessorClassFactory(int Index) {
    return static_cast<BasicClassFactoryType*>(Framework::GrowTo(*this, s_Rows[0], Index));
}

void DataProcessorClassFactoryListType::AddNewDataProcessorClassFactory(BasicClassFactoryType* szNew) {
    Framework::AddNewPlain(m_DataProcessorClassFactoryList, szNew);
}

bool DataProcessorClassFactoryListType::AutoFillTypeInfo() {
    return true;
}

void DataProcessorClassFactoryListType::AddDataProcessorClassFactory(XMLDataWrapper* pData, XalanNode* spNode) {
    Framework::AddPlain(*this, s_Rows[0], pData, spNode);
}

void DataProcessorClassFactoryListType::ClearDataProcessorClassFactory() {
    Framework::ClearPlain(m_DataProcessorClassFactoryList);
}
