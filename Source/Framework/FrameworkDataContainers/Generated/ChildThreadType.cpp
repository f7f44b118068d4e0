// Generated from LoadConfig.xsd; do not edit. Regenerate with the target "generate".
#include "FrameworkDataContainers/ChildThreadType.h"

#include "Framework/FrameworkDataContainers/Walks/Lists.h"
#include "Framework/FrameworkDataContainers/Walks/Walks.h"

// clang-format off
constinit const Framework::FieldRow ChildThreadType::s_Rows[] = {
    Framework::Element("LibraryPath", &ChildThreadType::m_LibraryPath),
    Framework::Element("LibraryPathDebug", &ChildThreadType::m_LibraryPathDebug),
    Framework::Element("ComponentClassFactory", &ChildThreadType::m_ComponentClassFactory),
    Framework::Element("InitializeString", &ChildThreadType::m_InitializeString),
    Framework::Element("SubSystemName", &ChildThreadType::m_SubSystemName),
    Framework::EnumElement<&ChildThreadType::m_ThreadPriority>("ThreadPriority", "ThreadPriorityType"),
    Framework::Attribute("UniqueName", &ChildThreadType::m_UniqueName),
    Framework::Attribute("ConfigValue", &ChildThreadType::m_ConfigValue),
    Framework::Attribute("ConfigLogic", &ChildThreadType::m_ConfigLogic),
};

constinit const Framework::FieldTable ChildThreadType::s_Table = {
    .className = "ChildThreadType",
    .elementName = "ChildThread",
    .parent = nullptr,
    .isStructuralConfigLoader = false,
    .isRoot = false,
    .rows = s_Rows,
    .create = &Framework::CreateContainer<ChildThreadType>,
    .type = &typeid(ChildThreadType),
    .autoFill = Framework::ToBase(&ChildThreadType::m_bAutoFillTypeInfo),
};
// clang-format on

ChildThreadType::ChildThreadType(bool bBuildFromScratch) : TypedDataContainer(bBuildFromScratch) {
    Framework::NameByClass(*this, s_Table);
}

ChildThreadType::~ChildThreadType() {}

zelString ChildThreadType::GetBaseType() {
    return "ChildThreadType";
}

void ChildThreadType::GetProperties(ParameterList& pList) {
    Framework::Properties(*this, s_Table, pList);
}

bool ChildThreadType::MergeDataMembers(XMLDataWrapper* pMergeData, zelString sFeatureID) {
    return Framework::Merge(*this, s_Table, pMergeData, sFeatureID, __LINE__);
}

zelString ChildThreadType::GetAttributeList() {
    return Framework::AttributePredicate(*this, s_Table);
}

ParameterList* ChildThreadType::GetPLAttributeList() {
    return Framework::AttributeParameters(*this, s_Table);
}

TypedDataContainer* ChildThreadType::Clone() {
    return Framework::Clone(*this, s_Table);
}

bool ChildThreadType::DumpMergeContents(const zelString& sParentQuery, FullFunctionXMLDataWrapper* pOutput,
                                        int QueryPos, bool bIncludeMergeAttributes) {
    return Framework::DumpByQuery(*this, s_Table, sParentQuery, pOutput, QueryPos, bIncludeMergeAttributes);
}

bool ChildThreadType::DumpMergeContentsII(DOMNode* pParentNode, FullFunctionXMLDataWrapper* pOutput,
                                          DOMNode*& pPassedCurrent, bool bIncludeMergeAttributes) {
    return Framework::DumpByNode(*this, s_Table, pParentNode, pOutput, pPassedCurrent, bIncludeMergeAttributes);
}

bool ChildThreadType::UpdateContainedData() {
    return Framework::Update(*this, s_Table);
}

bool ChildThreadType::PopulateDataMembers(XalanNode* pNode) {
    return Framework::Populate(*this, s_Table, pNode);
}

void ChildThreadType::ResetDataMembers() {
    Framework::Reset(*this, s_Table);
}

zelString ChildThreadType::GetLibraryPath() {
    return m_LibraryPath;
}

void ChildThreadType::SetLibraryPath(LPCTSTR szNew) {
    m_LibraryPath = szNew;
}

zelString ChildThreadType::GetLibraryPathDebug() {
    return m_LibraryPathDebug;
}

void ChildThreadType::SetLibraryPathDebug(LPCTSTR szNew) {
    m_LibraryPathDebug = szNew;
}

zelString ChildThreadType::GetComponentClassFactory() {
    return m_ComponentClassFactory;
}

void ChildThreadType::SetComponentClassFactory(LPCTSTR szNew) {
    m_ComponentClassFactory = szNew;
}

zelString ChildThreadType::GetInitializeString() {
    return m_InitializeString;
}

void ChildThreadType::SetInitializeString(LPCTSTR szNew) {
    m_InitializeString = szNew;
}

zelString ChildThreadType::GetSubSystemName() {
    return m_SubSystemName;
}

void ChildThreadType::SetSubSystemName(LPCTSTR szNew) {
    m_SubSystemName = szNew;
}

ThreadPriorityType ChildThreadType::GetThreadPriority() {
    return m_ThreadPriority;
}

void ChildThreadType::SetThreadPriority(ThreadPriorityType szNew) {
    m_ThreadPriority = szNew;
}

zelString ChildThreadType::GetUniqueName() {
    return m_UniqueName;
}

void ChildThreadType::SetUniqueName(LPCTSTR szNew) {
    m_UniqueName = szNew;
}

zelString ChildThreadType::GetConfigValue() {
    return m_ConfigValue;
}

void ChildThreadType::SetConfigValue(LPCTSTR szNew) {
    m_ConfigValue = szNew;
}

zelString ChildThreadType::GetConfigLogic() {
    return m_ConfigLogic;
}

void ChildThreadType::SetConfigLogic(LPCTSTR szNew) {
    m_ConfigLogic = szNew;
}

bool ChildThreadType::AutoFillTypeInfo() {
    return true;
}
