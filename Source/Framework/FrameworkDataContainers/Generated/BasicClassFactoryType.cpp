// Generated from Methods.xsd; do not edit. Regenerate with the target "generate".
#include "FrameworkDataContainers/BasicClassFactoryType.h"

#include "Framework/FrameworkDataContainers/Walks/Lists.h"
#include "Framework/FrameworkDataContainers/Walks/Walks.h"

// clang-format off
constinit const Framework::FieldRow BasicClassFactoryType::s_Rows[] = {
    Framework::Element("ClassName", &BasicClassFactoryType::m_ClassName),
    Framework::Element("ClassFactoryName", &BasicClassFactoryType::m_ClassFactoryName),
    Framework::Element("FactoryLoaderName", &BasicClassFactoryType::m_FactoryLoaderName),
    Framework::Element("InitializationString", &BasicClassFactoryType::m_InitializationString),
};

constinit const Framework::FieldTable BasicClassFactoryType::s_Table = {
    .className = "BasicClassFactoryType",
    .elementName = "Class",
    .parent = nullptr,
    .isStructuralConfigLoader = false,
    .isRoot = false,
    .rows = s_Rows,
    .create = &Framework::CreateContainer<BasicClassFactoryType>,
    .type = &typeid(BasicClassFactoryType),
    .autoFill = Framework::ToBase(&BasicClassFactoryType::m_bAutoFillTypeInfo),
};
// clang-format on

BasicClassFactoryType::BasicClassFactoryType(bool bBuildFromScratch) : TypedDataContainer(bBuildFromScratch) {
    Framework::NameByClass(*this, s_Table);
}

BasicClassFactoryType::~BasicClassFactoryType() {}

zelString BasicClassFactoryType::GetBaseType() {
    return "BasicClassFactoryType";
}

void BasicClassFactoryType::GetProperties(ParameterList& pList) {
    Framework::Properties(*this, s_Table, pList);
}

bool BasicClassFactoryType::MergeDataMembers(XMLDataWrapper* pMergeData, zelString sFeatureID) {
    return Framework::Merge(*this, s_Table, pMergeData, sFeatureID, __LINE__);
}

zelString BasicClassFactoryType::GetAttributeList() {
    return Framework::AttributePredicate(*this, s_Table);
}

ParameterList* BasicClassFactoryType::GetPLAttributeList() {
    return Framework::AttributeParameters(*this, s_Table);
}

TypedDataContainer* BasicClassFactoryType::Clone() {
    return Framework::Clone(*this, s_Table);
}

bool BasicClassFactoryType::DumpMergeContents(const zelString& sParentQuery, FullFunctionXMLDataWrapper* pOutput,
                                              int QueryPos, bool bIncludeMergeAttributes) {
    return Framework::DumpByQuery(*this, s_Table, sParentQuery, pOutput, QueryPos, bIncludeMergeAttributes);
}

bool BasicClassFactoryType::DumpMergeContentsII(DOMNode* pParentNode, FullFunctionXMLDataWrapper* pOutput,
                                                DOMNode*& pPassedCurrent, bool bIncludeMergeAttributes) {
    return Framework::DumpByNode(*this, s_Table, pParentNode, pOutput, pPassedCurrent, bIncludeMergeAttributes);
}

bool BasicClassFactoryType::UpdateContainedData() {
    return Framework::Update(*this, s_Table);
}

bool BasicClassFactoryType::PopulateDataMembers(XalanNode* pNode) {
    return Framework::Populate(*this, s_Table, pNode);
}

void BasicClassFactoryType::ResetDataMembers() {
    Framework::Reset(*this, s_Table);
}

zelString BasicClassFactoryType::GetClassName() {
    return m_ClassName;
}

void BasicClassFactoryType::SetClassName(LPCTSTR szNew) {
    m_ClassName = szNew;
}

zelString BasicClassFactoryType::GetClassFactoryName() {
    return m_ClassFactoryName;
}

void BasicClassFactoryType::SetClassFactoryName(LPCTSTR szNew) {
    m_ClassFactoryName = szNew;
}

zelString BasicClassFactoryType::GetFactoryLoaderName() {
    return m_FactoryLoaderName;
}

void BasicClassFactoryType::SetFactoryLoaderName(LPCTSTR szNew) {
    m_FactoryLoaderName = szNew;
}

zelString BasicClassFactoryType::GetInitializationString() {
    return m_InitializationString;
}

void BasicClassFactoryType::SetInitializationString(LPCTSTR szNew) {
    m_InitializationString = szNew;
}

bool BasicClassFactoryType::AutoFillTypeInfo() {
    return true;
}
