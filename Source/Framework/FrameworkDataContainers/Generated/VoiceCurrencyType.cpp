// Generated from AudioLookupConfig.xsd; do not edit. Regenerate with the target "generate".
#include "FrameworkDataContainers/VoiceCurrencyType.h"

#include "Framework/FrameworkDataContainers/Walks/Lists.h"
#include "Framework/FrameworkDataContainers/Walks/Walks.h"

// clang-format off
constinit const Framework::FieldRow VoiceCurrencyType::s_Rows[] = {
    Framework::Element("Key", &VoiceCurrencyType::m_Key),
    Framework::Attribute("index", &VoiceCurrencyType::m_index),
    Framework::Attribute("type", &VoiceCurrencyType::m_type),
    Framework::Attribute("plural", &VoiceCurrencyType::m_plural),
};

constinit const Framework::FieldTable VoiceCurrencyType::s_Table = {
    .className = "VoiceCurrencyType",
    .elementName = "VoiceCurrency",
    .parent = nullptr,
    .isStructuralConfigLoader = false,
    .isRoot = false,
    .rows = s_Rows,
    .create = &Framework::CreateContainer<VoiceCurrencyType>,
    .type = &typeid(VoiceCurrencyType),
    .autoFill = Framework::ToBase(&VoiceCurrencyType::m_bAutoFillTypeInfo),
};
// clang-format on

VoiceCurrencyType::VoiceCurrencyType(bool bBuildFromScratch) : TypedDataContainer(bBuildFromScratch) {
    Framework::NameByClass(*this, s_Table);
}

VoiceCurrencyType::~VoiceCurrencyType() {}

zelString VoiceCurrencyType::GetBaseType() {
    return "VoiceCurrencyType";
}

void VoiceCurrencyType::GetProperties(ParameterList& pList) {
    Framework::Properties(*this, s_Table, pList);
}

bool VoiceCurrencyType::MergeDataMembers(XMLDataWrapper* pMergeData, zelString sFeatureID) {
    return Framework::Merge(*this, s_Table, pMergeData, sFeatureID, __LINE__);
}

zelString VoiceCurrencyType::GetAttributeList() {
    return Framework::AttributePredicate(*this, s_Table);
}

ParameterList* VoiceCurrencyType::GetPLAttributeList() {
    return Framework::AttributeParameters(*this, s_Table);
}

TypedDataContainer* VoiceCurrencyType::Clone() {
    return Framework::Clone(*this, s_Table);
}

bool VoiceCurrencyType::DumpMergeContents(const zelString& sParentQuery, FullFunctionXMLDataWrapper* pOutput,
                                          int QueryPos, bool bIncludeMergeAttributes) {
    return Framework::DumpByQuery(*this, s_Table, sParentQuery, pOutput, QueryPos, bIncludeMergeAttributes);
}

bool VoiceCurrencyType::DumpMergeContentsII(DOMNode* pParentNode, FullFunctionXMLDataWrapper* pOutput,
                                            DOMNode*& pPassedCurrent, bool bIncludeMergeAttributes) {
    return Framework::DumpByNode(*this, s_Table, pParentNode, pOutput, pPassedCurrent, bIncludeMergeAttributes);
}

bool VoiceCurrencyType::UpdateContainedData() {
    return Framework::Update(*this, s_Table);
}

bool VoiceCurrencyType::PopulateDataMembers(XalanNode* pNode) {
    return Framework::Populate(*this, s_Table, pNode);
}

void VoiceCurrencyType::ResetDataMembers() {
    Framework::Reset(*this, s_Table);
}

zelString VoiceCurrencyType::GetKey() {
    return m_Key;
}

void VoiceCurrencyType::SetKey(LPCTSTR szNew) {
    m_Key = szNew;
}

zelString VoiceCurrencyType::Getindex() {
    return m_index;
}

void VoiceCurrencyType::Setindex(LPCTSTR szNew) {
    m_index = szNew;
}

zelString VoiceCurrencyType::Gettype() {
    return m_type;
}

void VoiceCurrencyType::Settype(LPCTSTR szNew) {
    m_type = szNew;
}

int VoiceCurrencyType::Getplural() {
    return m_plural;
}

void VoiceCurrencyType::Setplural(int szNew) {
    m_plural = szNew;
}

bool VoiceCurrencyType::AutoFillTypeInfo() {
    return true;
}
