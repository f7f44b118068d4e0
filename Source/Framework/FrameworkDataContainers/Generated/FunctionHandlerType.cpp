// Generated from AudioLookupConfig.xsd; do not edit. Regenerate with the target "generate".
#include "FrameworkDataContainers/FunctionHandlerType.h"

#include "Framework/FrameworkDataContainers/Walks/Lists.h"
#include "Framework/FrameworkDataContainers/Walks/Walks.h"

// clang-format off
constinit const Framework::FieldRow FunctionHandlerType::s_Rows[] = {
    Framework::Element("FactoryName", &FunctionHandlerType::m_FactoryName),
    Framework::Element("FactoryMethod", &FunctionHandlerType::m_FactoryMethod),
    Framework::Element("InitializeString", &FunctionHandlerType::m_InitializeString),
    Framework::Attribute("language", &FunctionHandlerType::m_language),
};

constinit const Framework::FieldTable FunctionHandlerType::s_Table = {
    .className = "FunctionHandlerType",
    .elementName = "FunctionHandler",
    .parent = nullptr,
    .isStructuralConfigLoader = false,
    .isRoot = false,
    .rows = s_Rows,
    .create = &Framework::CreateContainer<FunctionHandlerType>,
    .type = &typeid(FunctionHandlerType),
    .autoFill = Framework::ToBase(&FunctionHandlerType::m_bAutoFillTypeInfo),
};
// clang-format on

FunctionHandlerType::FunctionHandlerType(bool bBuildFromScratch) : TypedDataContainer(bBuildFromScratch) {
    Framework::NameByClass(*this, s_Table);
}

FunctionHandlerType::~FunctionHandlerType() {}

zelString FunctionHandlerType::GetBaseType() {
    return "FunctionHandlerType";
}

void FunctionHandlerType::GetProperties(ParameterList& pList) {
    Framework::Properties(*this, s_Table, pList);
}

bool FunctionHandlerType::MergeDataMembers(XMLDataWrapper* pMergeData, zelString sFeatureID) {
    return Framework::Merge(*this, s_Table, pMergeData, sFeatureID, __LINE__);
}

zelString FunctionHandlerType::GetAttributeList() {
    return Framework::AttributePredicate(*this, s_Table);
}

ParameterList* FunctionHandlerType::GetPLAttributeList() {
    return Framework::AttributeParameters(*this, s_Table);
}

TypedDataContainer* FunctionHandlerType::Clone() {
    return Framework::Clone(*this, s_Table);
}

bool FunctionHandlerType::DumpMergeContents(const zelString& sParentQuery, FullFunctionXMLDataWrapper* pOutput,
                                            int QueryPos, bool bIncludeMergeAttributes) {
    return Framework::DumpByQuery(*this, s_Table, sParentQuery, pOutput, QueryPos, bIncludeMergeAttributes);
}

bool FunctionHandlerType::DumpMergeContentsII(DOMNode* pParentNode, FullFunctionXMLDataWrapper* pOutput,
                                              DOMNode*& pPassedCurrent, bool bIncludeMergeAttributes) {
    return Framework::DumpByNode(*this, s_Table, pParentNode, pOutput, pPassedCurrent, bIncludeMergeAttributes);
}

bool FunctionHandlerType::UpdateContainedData() {
    return Framework::Update(*this, s_Table);
}

bool FunctionHandlerType::PopulateDataMembers(XalanNode* pNode) {
    return Framework::Populate(*this, s_Table, pNode);
}

void FunctionHandlerType::ResetDataMembers() {
    Framework::Reset(*this, s_Table);
}

zelString FunctionHandlerType::GetFactoryName() {
    return m_FactoryName;
}

void FunctionHandlerType::SetFactoryName(LPCTSTR szNew) {
    m_FactoryName = szNew;
}

zelString FunctionHandlerType::GetFactoryMethod() {
    return m_FactoryMethod;
}

void FunctionHandlerType::SetFactoryMethod(LPCTSTR szNew) {
    m_FactoryMethod = szNew;
}

zelString FunctionHandlerType::GetInitializeString() {
    return m_InitializeString;
}

void FunctionHandlerType::SetInitializeString(LPCTSTR szNew) {
    m_InitializeString = szNew;
}

zelString FunctionHandlerType::Getlanguage() {
    return m_language;
}

void FunctionHandlerType::Setlanguage(LPCTSTR szNew) {
    m_language = szNew;
}

bool FunctionHandlerType::AutoFillTypeInfo() {
    return true;
}
