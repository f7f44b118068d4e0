// Generated from CommConfig.xsd; do not edit. Regenerate with the target "generate".
#include "FrameworkDataContainers/CommTransformerType.h"

#include "Framework/FrameworkDataContainers/Walks/Lists.h"
#include "Framework/FrameworkDataContainers/Walks/Walks.h"

// clang-format off
constinit const Framework::FieldRow CommTransformerType::s_Rows[] = {
    Framework::Element("FactoryName", &CommTransformerType::m_FactoryName),
    Framework::Element("TransformerName", &CommTransformerType::m_TransformerName),
    Framework::Element("InitializeString", &CommTransformerType::m_InitializeString),
};

constinit const Framework::FieldTable CommTransformerType::s_Table = {
    .className = "CommTransformerType",
    .elementName = "CommTransformer",
    .parent = nullptr,
    .isStructuralConfigLoader = false,
    .isRoot = false,
    .rows = s_Rows,
    .create = &Framework::CreateContainer<CommTransformerType>,
    .type = &typeid(CommTransformerType),
    .autoFill = Framework::ToBase(&CommTransformerType::m_bAutoFillTypeInfo),
};
// clang-format on

CommTransformerType::CommTransformerType(bool bBuildFromScratch) : TypedDataContainer(bBuildFromScratch) {
    Framework::NameByClass(*this, s_Table);
}

CommTransformerType::~CommTransformerType() {}

zelString CommTransformerType::GetBaseType() {
    return "CommTransformerType";
}

void CommTransformerType::GetProperties(ParameterList& pList) {
    Framework::Properties(*this, s_Table, pList);
}

bool CommTransformerType::MergeDataMembers(XMLDataWrapper* pMergeData, zelString sFeatureID) {
    return Framework::Merge(*this, s_Table, pMergeData, sFeatureID, __LINE__);
}

zelString CommTransformerType::GetAttributeList() {
    return Framework::AttributePredicate(*this, s_Table);
}

ParameterList* CommTransformerType::GetPLAttributeList() {
    return Framework::AttributeParameters(*this, s_Table);
}

TypedDataContainer* CommTransformerType::Clone() {
    return Framework::Clone(*this, s_Table);
}

bool CommTransformerType::DumpMergeContents(const zelString& sParentQuery, FullFunctionXMLDataWrapper* pOutput,
                                            int QueryPos, bool bIncludeMergeAttributes) {
    return Framework::DumpByQuery(*this, s_Table, sParentQuery, pOutput, QueryPos, bIncludeMergeAttributes);
}

bool CommTransformerType::DumpMergeContentsII(DOMNode* pParentNode, FullFunctionXMLDataWrapper* pOutput,
                                              DOMNode*& pPassedCurrent, bool bIncludeMergeAttributes) {
    return Framework::DumpByNode(*this, s_Table, pParentNode, pOutput, pPassedCurrent, bIncludeMergeAttributes);
}

bool CommTransformerType::UpdateContainedData() {
    return Framework::Update(*this, s_Table);
}

bool CommTransformerType::PopulateDataMembers(XalanNode* pNode) {
    return Framework::Populate(*this, s_Table, pNode);
}

void CommTransformerType::ResetDataMembers() {
    Framework::Reset(*this, s_Table);
}

zelString CommTransformerType::GetFactoryName() {
    return m_FactoryName;
}

void CommTransformerType::SetFactoryName(LPCTSTR szNew) {
    m_FactoryName = szNew;
}

zelString CommTransformerType::GetTransformerName() {
    return m_TransformerName;
}

void CommTransformerType::SetTransformerName(LPCTSTR szNew) {
    m_TransformerName = szNew;
}

zelString CommTransformerType::GetInitializeString() {
    return m_InitializeString;
}

void CommTransformerType::SetInitializeString(LPCTSTR szNew) {
    m_InitializeString = szNew;
}

bool CommTransformerType::AutoFillTypeInfo() {
    return true;
}
