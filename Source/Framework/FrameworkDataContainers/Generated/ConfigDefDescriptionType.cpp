// Generated from VendraConfig.xsd; do not edit. Regenerate with the target "generate".
#include "FrameworkDataContainers/ConfigDefDescriptionType.h"

#include "Framework/FrameworkDataContainers/Walks/Lists.h"
#include "Framework/FrameworkDataContainers/Walks/Walks.h"

#include <utility>

// clang-format off
constinit const Framework::FieldRow ConfigDefDescriptionType::s_Rows[] = {
    Framework::PlainStrings<&ConfigDefDescriptionType::AddDoc, &ConfigDefDescriptionType::ClearDoc>("Doc", &ConfigDefDescriptionType::m_DocList),
};

constinit const Framework::FieldTable ConfigDefDescriptionType::s_Table = {
    .className = "ConfigDefDescriptionType",
    .elementName = "Description",
    .parent = nullptr,
    .isStructuralConfigLoader = false,
    .isRoot = false,
    .rows = s_Rows,
    .create = &Framework::CreateContainer<ConfigDefDescriptionType>,
    .type = &typeid(ConfigDefDescriptionType),
    .autoFill = Framework::ToBase(&ConfigDefDescriptionType::m_bAutoFillTypeInfo),
};
// clang-format on

ConfigDefDescriptionType::ConfigDefDescriptionType(bool bBuildFromScratch) : TypedDataContainer(bBuildFromScratch) {
    Framework::NameByClass(*this, s_Table);
}

ConfigDefDescriptionType::~ConfigDefDescriptionType() {
    ConfigDefDescriptionType::ClearDoc();
}

zelString ConfigDefDescriptionType::GetBaseType() {
    return "ConfigDefDescriptionType";
}

void ConfigDefDescriptionType::GetProperties(ParameterList& pList) {
    Framework::Properties(*this, s_Table, pList);
}

bool ConfigDefDescriptionType::MergeDataMembers(XMLDataWrapper* pMergeData, zelString sFeatureID) {
    return Framework::Merge(*this, s_Table, pMergeData, sFeatureID, __LINE__);
}

zelString ConfigDefDescriptionType::GetAttributeList() {
    return Framework::AttributePredicate(*this, s_Table);
}

ParameterList* ConfigDefDescriptionType::GetPLAttributeList() {
    return Framework::AttributeParameters(*this, s_Table);
}

TypedDataContainer* ConfigDefDescriptionType::Clone() {
    return Framework::Clone(*this, s_Table);
}

bool ConfigDefDescriptionType::DumpMergeContents(const zelString& sParentQuery, FullFunctionXMLDataWrapper* pOutput,
                                                 int QueryPos, bool bIncludeMergeAttributes) {
    return Framework::DumpByQuery(*this, s_Table, sParentQuery, pOutput, QueryPos, bIncludeMergeAttributes);
}

bool ConfigDefDescriptionType::DumpMergeContentsII(DOMNode* pParentNode, FullFunctionXMLDataWrapper* pOutput,
                                                   DOMNode*& pPassedCurrent, bool bIncludeMergeAttributes) {
    return Framework::DumpByNode(*this, s_Table, pParentNode, pOutput, pPassedCurrent, bIncludeMergeAttributes);
}

bool ConfigDefDescriptionType::UpdateContainedData() {
    return Framework::Update(*this, s_Table);
}

bool ConfigDefDescriptionType::PopulateDataMembers(XalanNode* pNode) {
    return Framework::Populate(*this, s_Table, pNode);
}

void ConfigDefDescriptionType::ResetDataMembers() {
    Framework::Reset(*this, s_Table);
}

int ConfigDefDescriptionType::GetDocLength() {
    return Framework::ListLength(m_DocList);
}

zelString ConfigDefDescriptionType::GetDoc(int Index) {
    return Framework::GrowTo(m_DocList, Index);
}

void ConfigDefDescriptionType::AddNewDoc(LPCTSTR szNew) {
    m_DocList.emplace_back(szNew);
}

bool ConfigDefDescriptionType::AutoFillTypeInfo() {
    return true;
}

void ConfigDefDescriptionType::AddDoc(zelString pData) {
    m_DocList.push_back(std::move(pData));
}

void ConfigDefDescriptionType::ClearDoc() {
    m_DocList.clear();
}
