// Generated from FactoryConfig.xsd; do not edit. Regenerate with the target "generate".
#include "FrameworkDataContainers/FactoryConfigType.h"

#include "Framework/FrameworkDataContainers/Walks/Lists.h"
#include "Framework/FrameworkDataContainers/Walks/Walks.h"
#include "FrameworkDataContainers/FactoryType.h"

// clang-format off
constinit const Framework::FieldRow FactoryConfigType::s_Rows[] = {
    Framework::KeyedList<FactoryType, &FactoryType::Getname, &FactoryConfigType::AddFactory, &FactoryConfigType::ClearFactory>("Factory", "FactoryType", "name", &FactoryConfigType::m_MapFactoryList, &FactoryConfigType::m_FactoryList),
};

constinit const Framework::FieldTable FactoryConfigType::s_Table = {
    .className = "FactoryConfigType",
    .elementName = "FactoryConfig",
    .parent = nullptr,
    .isStructuralConfigLoader = true,
    .isRoot = true,
    .rows = s_Rows,
    .create = &Framework::CreateContainer<FactoryConfigType>,
    .type = &typeid(FactoryConfigType),
    .autoFill = Framework::ToBase(&FactoryConfigType::m_bAutoFillTypeInfo),
};
// clang-format on

FactoryConfigType::FactoryConfigType(bool bBuildFromScratch) : StructuralConfigLoader(bBuildFromScratch) {
    Framework::NameByClass(*this, s_Table);
}

FactoryConfigType::~FactoryConfigType() {
    FactoryConfigType::ClearFactory();
}

zelString FactoryConfigType::GetBaseType() {
    return "FactoryConfigType";
}

void FactoryConfigType::GetProperties(ParameterList& pList) {
    Framework::Properties(*this, s_Table, pList);
}

bool FactoryConfigType::MergeDataMembers(XMLDataWrapper* pMergeData, zelString sFeatureID) {
    return Framework::Merge(*this, s_Table, pMergeData, sFeatureID, __LINE__);
}

zelString FactoryConfigType::GetAttributeList() {
    return Framework::AttributePredicate(*this, s_Table);
}

ParameterList* FactoryConfigType::GetPLAttributeList() {
    return Framework::AttributeParameters(*this, s_Table);
}

TypedDataContainer* FactoryConfigType::Clone() {
    return Framework::Clone(*this, s_Table);
}

bool FactoryConfigType::DumpMergeContents(const zelString& sParentQuery, FullFunctionXMLDataWrapper* pOutput,
                                          int QueryPos, bool bIncludeMergeAttributes) {
    return Framework::DumpByQuery(*this, s_Table, sParentQuery, pOutput, QueryPos, bIncludeMergeAttributes);
}

bool FactoryConfigType::DumpMergeContentsII(DOMNode* pParentNode, FullFunctionXMLDataWrapper* pOutput,
                                            DOMNode*& pPassedCurrent, bool bIncludeMergeAttributes) {
    return Framework::DumpByNode(*this, s_Table, pParentNode, pOutput, pPassedCurrent, bIncludeMergeAttributes);
}

bool FactoryConfigType::UpdateContainedData() {
    return Framework::Update(*this, s_Table);
}

bool FactoryConfigType::PopulateDataMembers(XalanNode* pNode) {
    return Framework::Populate(*this, s_Table, pNode);
}

void FactoryConfigType::ResetDataMembers() {
    Framework::Reset(*this, s_Table);
}

int FactoryConfigType::GetFactoryLength() {
    return Framework::ListLength(m_FactoryList);
}

FactoryType* FactoryConfigType::GetFactory(int Index) {
    return static_cast<FactoryType*>(Framework::EntryAt(m_FactoryList, Index));
}

FactoryType* FactoryConfigType::GetFactory(const zelString& sName) {
    return static_cast<FactoryType*>(Framework::EntryByKey(m_MapFactoryList, sName));
}

void FactoryConfigType::AddNewFactory(FactoryType* szNew, const zelString& sName) {
    Framework::AddNewKeyed(m_MapFactoryList, m_FactoryList, szNew, sName);
}

void FactoryConfigType::RemoveFactory(const zelString& sName, const zelString& sFeatureId) {
    Framework::RemoveKeyed(*this, s_Rows[0], sName, sFeatureId);
}

bool FactoryConfigType::AutoFillTypeInfo() {
    return true;
}

void FactoryConfigType::AddFactory(XMLDataWrapper* pData, XalanNode* spNode, const zelString& sName) {
    Framework::AddKeyed(*this, s_Rows[0], pData, spNode, sName, __LINE__);
}

void FactoryConfigType::ClearFactory() {
    Framework::ClearKeyed(m_MapFactoryList, m_FactoryList);
}
