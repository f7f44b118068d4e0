// Generated from CommConfig.xsd; do not edit. Regenerate with the target "generate".
#include "FrameworkDataContainers/CommEntryType.h"

#include "Framework/FrameworkDataContainers/Walks/Lists.h"
#include "Framework/FrameworkDataContainers/Walks/Walks.h"
#include "FrameworkDataContainers/CommEventTransformerListType.h"
#include "FrameworkDataContainers/CommParametersType.h"
#include "FrameworkDataContainers/CommTransformerType.h"

// clang-format off
constinit const Framework::FieldRow CommEntryType::s_Rows[] = {
    Framework::Child<&CommEntryType::m_BinaryTransformer>("BinaryTransformer", "CommTransformerType"),
    Framework::Child<&CommEntryType::m_EventTransformerList>("EventTransformerList", "CommEventTransformerListType"),
    Framework::Element("CommHandlerFactoryName", &CommEntryType::m_CommHandlerFactoryName),
    Framework::Element("CommHandlerFactoryMethod", &CommEntryType::m_CommHandlerFactoryMethod),
    Framework::Child<&CommEntryType::m_Parameters>("Parameters", "CommParametersType"),
    Framework::Attribute("name", &CommEntryType::m_name),
};

constinit const Framework::FieldTable CommEntryType::s_Table = {
    .className = "CommEntryType",
    .elementName = "CommEntry",
    .parent = nullptr,
    .isStructuralConfigLoader = false,
    .isRoot = false,
    .rows = s_Rows,
    .create = &Framework::CreateContainer<CommEntryType>,
    .type = &typeid(CommEntryType),
    .autoFill = Framework::ToBase(&CommEntryType::m_bAutoFillTypeInfo),
};
// clang-format on

CommEntryType::CommEntryType(bool bBuildFromScratch) : TypedDataContainer(bBuildFromScratch) {
    Framework::NameByClass(*this, s_Table);
}

CommEntryType::~CommEntryType() {
    delete m_BinaryTransformer;
    delete m_EventTransformerList;
    delete m_Parameters;
}

zelString CommEntryType::GetBaseType() {
    return "CommEntryType";
}

void CommEntryType::GetProperties(ParameterList& pList) {
    Framework::Properties(*this, s_Table, pList);
}

bool CommEntryType::MergeDataMembers(XMLDataWrapper* pMergeData, zelString sFeatureID) {
    return Framework::Merge(*this, s_Table, pMergeData, sFeatureID, __LINE__);
}

zelString CommEntryType::GetAttributeList() {
    return Framework::AttributePredicate(*this, s_Table);
}

ParameterList* CommEntryType::GetPLAttributeList() {
    return Framework::AttributeParameters(*this, s_Table);
}

TypedDataContainer* CommEntryType::Clone() {
    return Framework::Clone(*this, s_Table);
}

bool CommEntryType::DumpMergeContents(const zelString& sParentQuery, FullFunctionXMLDataWrapper* pOutput, int QueryPos,
                                      bool bIncludeMergeAttributes) {
    return Framework::DumpByQuery(*this, s_Table, sParentQuery, pOutput, QueryPos, bIncludeMergeAttributes);
}

bool CommEntryType::DumpMergeContentsII(DOMNode* pParentNode, FullFunctionXMLDataWrapper* pOutput,
                                        DOMNode*& pPassedCurrent, bool bIncludeMergeAttributes) {
    return Framework::DumpByNode(*this, s_Table, pParentNode, pOutput, pPassedCurrent, bIncludeMergeAttributes);
}

bool CommEntryType::UpdateContainedData() {
    return Framework::Update(*this, s_Table);
}

bool CommEntryType::PopulateDataMembers(XalanNode* pNode) {
    return Framework::Populate(*this, s_Table, pNode);
}

void CommEntryType::ResetDataMembers() {
    Framework::Reset(*this, s_Table);
}

CommTransformerType* CommEntryType::GetBinaryTransformer() {
    return m_BinaryTransformer;
}

void CommEntryType::SetBinaryTransformer(CommTransformerType* szNew) {
    Framework::ReplaceChild(m_BinaryTransformer, szNew);
}

CommEventTransformerListType* CommEntryType::GetEventTransformerList() {
    return m_EventTransformerList;
}

void CommEntryType::SetEventTransformerList(CommEventTransformerListType* szNew) {
    Framework::ReplaceChild(m_EventTransformerList, szNew);
}

zelString CommEntryType::GetCommHandlerFactoryName() {
    return m_CommHandlerFactoryName;
}

void CommEntryType::SetCommHandlerFactoryName(LPCTSTR szNew) {
    m_CommHandlerFactoryName = szNew;
}

zelString CommEntryType::GetCommHandlerFactoryMethod() {
    return m_CommHandlerFactoryMethod;
}

void CommEntryType::SetCommHandlerFactoryMethod(LPCTSTR szNew) {
    m_CommHandlerFactoryMethod = szNew;
}

CommParametersType* CommEntryType::GetParameters() {
    return m_Parameters;
}

void CommEntryType::SetParameters(CommParametersType* szNew) {
    Framework::ReplaceChild(m_Parameters, szNew);
}

zelString CommEntryType::Getname() {
    return m_name;
}

void CommEntryType::Setname(LPCTSTR szNew) {
    m_name = szNew;
}

bool CommEntryType::AutoFillTypeInfo() {
    return true;
}
