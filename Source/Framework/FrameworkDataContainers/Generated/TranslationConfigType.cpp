// Generated from TranslationConfig.xsd; do not edit. Regenerate with the target "generate".
#include "FrameworkDataContainers/TranslationConfigType.h"

#include "Framework/FrameworkDataContainers/Walks/Lists.h"
#include "Framework/FrameworkDataContainers/Walks/Walks.h"
#include "FrameworkDataContainers/TranslationTextType.h"

// clang-format off
constinit const Framework::FieldRow TranslationConfigType::s_Rows[] = {
    Framework::Child<&TranslationConfigType::m_TranslationText>("TranslationText", "TranslationTextType"),
};

constinit const Framework::FieldTable TranslationConfigType::s_Table = {
    .className = "TranslationConfigType",
    .elementName = "TranslationConfig",
    .parent = nullptr,
    .isStructuralConfigLoader = true,
    .isRoot = true,
    .rows = s_Rows,
    .create = &Framework::CreateContainer<TranslationConfigType>,
    .type = &typeid(TranslationConfigType),
    .autoFill = Framework::ToBase(&TranslationConfigType::m_bAutoFillTypeInfo),
};
// clang-format on

TranslationConfigType::TranslationConfigType(bool bBuildFromScratch) : StructuralConfigLoader(bBuildFromScratch) {
    Framework::NameByClass(*this, s_Table);
}

TranslationConfigType::~TranslationConfigType() {
    delete m_TranslationText;
}

zelString TranslationConfigType::GetBaseType() {
    return "TranslationConfigType";
}

void TranslationConfigType::GetProperties(ParameterList& pList) {
    Framework::Properties(*this, s_Table, pList);
}

bool TranslationConfigType::MergeDataMembers(XMLDataWrapper* pMergeData, zelString sFeatureID) {
    return Framework::Merge(*this, s_Table, pMergeData, sFeatureID, __LINE__);
}

zelString TranslationConfigType::GetAttributeList() {
    return Framework::AttributePredicate(*this, s_Table);
}

ParameterList* TranslationConfigType::GetPLAttributeList() {
    return Framework::AttributeParameters(*this, s_Table);
}

TypedDataContainer* TranslationConfigType::Clone() {
    return Framework::Clone(*this, s_Table);
}

bool TranslationConfigType::DumpMergeContents(const zelString& sParentQuery, FullFunctionXMLDataWrapper* pOutput,
                                              int QueryPos, bool bIncludeMergeAttributes) {
    return Framework::DumpByQuery(*this, s_Table, sParentQuery, pOutput, QueryPos, bIncludeMergeAttributes);
}

bool TranslationConfigType::DumpMergeContentsII(DOMNode* pParentNode, FullFunctionXMLDataWrapper* pOutput,
                                                DOMNode*& pPassedCurrent, bool bIncludeMergeAttributes) {
    return Framework::DumpByNode(*this, s_Table, pParentNode, pOutput, pPassedCurrent, bIncludeMergeAttributes);
}

bool TranslationConfigType::UpdateContainedData() {
    return Framework::Update(*this, s_Table);
}

bool TranslationConfigType::PopulateDataMembers(XalanNode* pNode) {
    return Framework::Populate(*this, s_Table, pNode);
}

void TranslationConfigType::ResetDataMembers() {
    Framework::Reset(*this, s_Table);
}

TranslationTextType* TranslationConfigType::GetTranslationText() {
    return m_TranslationText;
}

void TranslationConfigType::SetTranslationText(TranslationTextType* szNew) {
    Framework::ReplaceChild(m_TranslationText, szNew);
}

bool TranslationConfigType::AutoFillTypeInfo() {
    return true;
}
