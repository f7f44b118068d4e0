// Generated from FactoryConfig.xsd; do not edit. Regenerate with the target "generate".
#include "FrameworkDataContainers/FactoryType.h"

#include "Framework/FrameworkDataContainers/Walks/Lists.h"
#include "Framework/FrameworkDataContainers/Walks/Walks.h"

// clang-format off
constinit const Framework::FieldRow FactoryType::s_Rows[] = {
    Framework::Element("LibraryPath", &FactoryType::m_LibraryPath),
    Framework::Element("LibraryPathDebug", &FactoryType::m_LibraryPathDebug),
    Framework::Element("ComponentClassFactory", &FactoryType::m_ComponentClassFactory),
    Framework::Attribute("name", &FactoryType::m_name),
};

constinit const Framework::FieldTable FactoryType::s_Table = {
    .className = "FactoryType",
    .elementName = "Factory",
    .parent = nullptr,
    .isStructuralConfigLoader = false,
    .isRoot = false,
    .rows = s_Rows,
    .create = &Framework::CreateContainer<FactoryType>,
    .type = &typeid(FactoryType),
    .autoFill = Framework::ToBase(&FactoryType::m_bAutoFillTypeInfo),
};
// clang-format on

FactoryType::FactoryType(bool bBuildFromScratch) : TypedDataContainer(bBuildFromScratch) {
    Framework::NameByClass(*this, s_Table);
}

FactoryType::~FactoryType() {}

zelString FactoryType::GetBaseType() {
    return "FactoryType";
}

void FactoryType::GetProperties(ParameterList& pList) {
    Framework::Properties(*this, s_Table, pList);
}

bool FactoryType::MergeDataMembers(XMLDataWrapper* pMergeData, zelString sFeatureID) {
    return Framework::Merge(*this, s_Table, pMergeData, sFeatureID, __LINE__);
}

zelString FactoryType::GetAttributeList() {
    return Framework::AttributePredicate(*this, s_Table);
}

ParameterList* FactoryType::GetPLAttributeList() {
    return Framework::AttributeParameters(*this, s_Table);
}

TypedDataContainer* FactoryType::Clone() {
    return Framework::Clone(*this, s_Table);
}

bool FactoryType::DumpMergeContents(const zelString& sParentQuery, FullFunctionXMLDataWrapper* pOutput, int QueryPos,
                                    bool bIncludeMergeAttributes) {
    return Framework::DumpByQuery(*this, s_Table, sParentQuery, pOutput, QueryPos, bIncludeMergeAttributes);
}

bool FactoryType::DumpMergeContentsII(DOMNode* pParentNode, FullFunctionXMLDataWrapper* pOutput,
                                      DOMNode*& pPassedCurrent, bool bIncludeMergeAttributes) {
    return Framework::DumpByNode(*this, s_Table, pParentNode, pOutput, pPassedCurrent, bIncludeMergeAttributes);
}

bool FactoryType::UpdateContainedData() {
    return Framework::Update(*this, s_Table);
}

bool FactoryType::PopulateDataMembers(XalanNode* pNode) {
    return Framework::Populate(*this, s_Table, pNode);
}

void FactoryType::ResetDataMembers() {
    Framework::Reset(*this, s_Table);
}

zelString FactoryType::GetLibraryPath() {
    return m_LibraryPath;
}

void FactoryType::SetLibraryPath(LPCTSTR szNew) {
    m_LibraryPath = szNew;
}

zelString FactoryType::GetLibraryPathDebug() {
    return m_LibraryPathDebug;
}

void FactoryType::SetLibraryPathDebug(LPCTSTR szNew) {
    m_LibraryPathDebug = szNew;
}

zelString FactoryType::GetComponentClassFactory() {
    return m_ComponentClassFactory;
}

void FactoryType::SetComponentClassFactory(LPCTSTR szNew) {
    m_ComponentClassFactory = szNew;
}

zelString FactoryType::Getname() {
    return m_name;
}

void FactoryType::Setname(LPCTSTR szNew) {
    m_name = szNew;
}

bool FactoryType::AutoFillTypeInfo() {
    return true;
}
