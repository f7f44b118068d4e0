// Generated from ConfigDefRoot.xsd; do not edit. Regenerate with the target "generate".
#include "FrameworkDataContainers/LinkedOptionType.h"

#include "Framework/FrameworkDataContainers/Walks/Lists.h"
#include "Framework/FrameworkDataContainers/Walks/Walks.h"

// clang-format off
constinit const Framework::FieldRow LinkedOptionType::s_Rows[] = {
    Framework::Element("OptionName", &LinkedOptionType::m_OptionName),
    Framework::Element("CrossReferenceList", &LinkedOptionType::m_CrossReferenceList),
    Framework::Element("SourceValueQuery", &LinkedOptionType::m_SourceValueQuery),
    Framework::Element("TargetValueQuery", &LinkedOptionType::m_TargetValueQuery),
    Framework::Attribute("Index", &LinkedOptionType::m_Index),
};

constinit const Framework::FieldTable LinkedOptionType::s_Table = {
    .className = "LinkedOptionType",
    .elementName = "LinkedOption",
    .parent = nullptr,
    .isStructuralConfigLoader = false,
    .isRoot = false,
    .rows = s_Rows,
    .create = &Framework::CreateContainer<LinkedOptionType>,
    .type = &typeid(LinkedOptionType),
    .autoFill = Framework::ToBase(&LinkedOptionType::m_bAutoFillTypeInfo),
};
// clang-format on

LinkedOptionType::LinkedOptionType(bool bBuildFromScratch) : TypedDataContainer(bBuildFromScratch) {
    Framework::NameByClass(*this, s_Table);
}

LinkedOptionType::~LinkedOptionType() {}

zelString LinkedOptionType::GetBaseType() {
    return "LinkedOptionType";
}

void LinkedOptionType::GetProperties(ParameterList& pList) {
    Framework::Properties(*this, s_Table, pList);
}

bool LinkedOptionType::MergeDataMembers(XMLDataWrapper* pMergeData, zelString sFeatureID) {
    return Framework::Merge(*this, s_Table, pMergeData, sFeatureID, __LINE__);
}

zelString LinkedOptionType::GetAttributeList() {
    return Framework::AttributePredicate(*this, s_Table);
}

ParameterList* LinkedOptionType::GetPLAttributeList() {
    return Framework::AttributeParameters(*this, s_Table);
}

TypedDataContainer* LinkedOptionType::Clone() {
    return Framework::Clone(*this, s_Table);
}

bool LinkedOptionType::DumpMergeContents(const zelString& sParentQuery, FullFunctionXMLDataWrapper* pOutput,
                                         int QueryPos, bool bIncludeMergeAttributes) {
    return Framework::DumpByQuery(*this, s_Table, sParentQuery, pOutput, QueryPos, bIncludeMergeAttributes);
}

bool LinkedOptionType::DumpMergeContentsII(DOMNode* pParentNode, FullFunctionXMLDataWrapper* pOutput,
                                           DOMNode*& pPassedCurrent, bool bIncludeMergeAttributes) {
    return Framework::DumpByNode(*this, s_Table, pParentNode, pOutput, pPassedCurrent, bIncludeMergeAttributes);
}

bool LinkedOptionType::UpdateContainedData() {
    return Framework::Update(*this, s_Table);
}

bool LinkedOptionType::PopulateDataMembers(XalanNode* pNode) {
    return Framework::Populate(*this, s_Table, pNode);
}

void LinkedOptionType::ResetDataMembers() {
    Framework::Reset(*this, s_Table);
}

zelString LinkedOptionType::GetOptionName() {
    return m_OptionName;
}

void LinkedOptionType::SetOptionName(LPCTSTR szNew) {
    m_OptionName = szNew;
}

zelString LinkedOptionType::GetCrossReferenceList() {
    return m_CrossReferenceList;
}

void LinkedOptionType::SetCrossReferenceList(LPCTSTR szNew) {
    m_CrossReferenceList = szNew;
}

zelString LinkedOptionType::GetSourceValueQuery() {
    return m_SourceValueQuery;
}

void LinkedOptionType::SetSourceValueQuery(LPCTSTR szNew) {
    m_SourceValueQuery = szNew;
}

zelString LinkedOptionType::GetTargetValueQuery() {
    return m_TargetValueQuery;
}

void LinkedOptionType::SetTargetValueQuery(LPCTSTR szNew) {
    m_TargetValueQuery = szNew;
}

zelString LinkedOptionType::GetIndex() {
    return m_Index;
}

void LinkedOptionType::SetIndex(LPCTSTR szNew) {
    m_Index = szNew;
}

bool LinkedOptionType::AutoFillTypeInfo() {
    return true;
}
