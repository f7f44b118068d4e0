// Generated from AudioLookupConfig.xsd; do not edit. Regenerate with the target "generate".
#include "FrameworkDataContainers/AudioExpandPhraseConditionType.h"

#include "Framework/FrameworkDataContainers/Walks/Lists.h"
#include "Framework/FrameworkDataContainers/Walks/Walks.h"

// clang-format off
constinit const Framework::FieldRow AudioExpandPhraseConditionType::s_Rows[] = {
    Framework::Element("Unused", &AudioExpandPhraseConditionType::m_Unused),
    Framework::Attribute("description", &AudioExpandPhraseConditionType::m_description),
    Framework::Attribute("parmRef", &AudioExpandPhraseConditionType::m_parmRef),
    Framework::Attribute("type", &AudioExpandPhraseConditionType::m_type),
    Framework::Attribute("compareTo", &AudioExpandPhraseConditionType::m_compareTo),
};

constinit const Framework::FieldTable AudioExpandPhraseConditionType::s_Table = {
    .className = "AudioExpandPhraseConditionType",
    .elementName = "AudioExpandPhraseCondition",
    .parent = nullptr,
    .isStructuralConfigLoader = false,
    .isRoot = false,
    .rows = s_Rows,
    .create = &Framework::CreateContainer<AudioExpandPhraseConditionType>,
    .type = &typeid(AudioExpandPhraseConditionType),
    .autoFill = Framework::ToBase(&AudioExpandPhraseConditionType::m_bAutoFillTypeInfo),
};
// clang-format on

AudioExpandPhraseConditionType::AudioExpandPhraseConditionType(bool bBuildFromScratch)
    : TypedDataContainer(bBuildFromScratch) {
    Framework::NameByClass(*this, s_Table);
}

AudioExpandPhraseConditionType::~AudioExpandPhraseConditionType() {}

zelString AudioExpandPhraseConditionType::GetBaseType() {
    return "AudioExpandPhraseConditionType";
}

void AudioExpandPhraseConditionType::GetProperties(ParameterList& pList) {
    Framework::Properties(*this, s_Table, pList);
}

bool AudioExpandPhraseConditionType::MergeDataMembers(XMLDataWrapper* pMergeData, zelString sFeatureID) {
    return Framework::Merge(*this, s_Table, pMergeData, sFeatureID, __LINE__);
}

zelString AudioExpandPhraseConditionType::GetAttributeList() {
    return Framework::AttributePredicate(*this, s_Table);
}

ParameterList* AudioExpandPhraseConditionType::GetPLAttributeList() {
    return Framework::AttributeParameters(*this, s_Table);
}

TypedDataContainer* AudioExpandPhraseConditionType::Clone() {
    return Framework::Clone(*this, s_Table);
}

bool AudioExpandPhraseConditionType::DumpMergeContents(const zelString& sParentQuery,
                                                       FullFunctionXMLDataWrapper* pOutput, int QueryPos,
                                                       bool bIncludeMergeAttributes) {
    return Framework::DumpByQuery(*this, s_Table, sParentQuery, pOutput, QueryPos, bIncludeMergeAttributes);
}

bool AudioExpandPhraseConditionType::DumpMergeContentsII(DOMNode* pParentNode, FullFunctionXMLDataWrapper* pOutput,
                                                         DOMNode*& pPassedCurrent, bool bIncludeMergeAttributes) {
    return Framework::DumpByNode(*this, s_Table, pParentNode, pOutput, pPassedCurrent, bIncludeMergeAttributes);
}

bool AudioExpandPhraseConditionType::UpdateContainedData() {
    return Framework::Update(*this, s_Table);
}

bool AudioExpandPhraseConditionType::PopulateDataMembers(XalanNode* pNode) {
    return Framework::Populate(*this, s_Table, pNode);
}

void AudioExpandPhraseConditionType::ResetDataMembers() {
    Framework::Reset(*this, s_Table);
}

zelString AudioExpandPhraseConditionType::GetUnused() {
    return m_Unused;
}

void AudioExpandPhraseConditionType::SetUnused(LPCTSTR szNew) {
    m_Unused = szNew;
}

zelString AudioExpandPhraseConditionType::Getdescription() {
    return m_description;
}

void AudioExpandPhraseConditionType::Setdescription(LPCTSTR szNew) {
    m_description = szNew;
}

zelString AudioExpandPhraseConditionType::GetparmRef() {
    return m_parmRef;
}

void AudioExpandPhraseConditionType::SetparmRef(LPCTSTR szNew) {
    m_parmRef = szNew;
}

zelString AudioExpandPhraseConditionType::Gettype() {
    return m_type;
}

void AudioExpandPhraseConditionType::Settype(LPCTSTR szNew) {
    m_type = szNew;
}

zelString AudioExpandPhraseConditionType::GetcompareTo() {
    return m_compareTo;
}

void AudioExpandPhraseConditionType::SetcompareTo(LPCTSTR szNew) {
    m_compareTo = szNew;
}

bool AudioExpandPhraseConditionType::AutoFillTypeInfo() {
    return true;
}
