// Generated from AudioLookupConfig.xsd; do not edit. Regenerate with the target "generate".
#include "FrameworkDataContainers/AudioExpandPhraseType.h"

#include "Framework/FrameworkDataContainers/Walks/Lists.h"
#include "Framework/FrameworkDataContainers/Walks/Walks.h"
#include "FrameworkDataContainers/AudioExpandPhraseConditionType.h"

#include <utility>

// clang-format off
constinit const Framework::FieldRow AudioExpandPhraseType::s_Rows[] = {
    Framework::KeyedList<AudioExpandPhraseConditionType, &AudioExpandPhraseConditionType::Getdescription, &AudioExpandPhraseType::AddCondition, &AudioExpandPhraseType::ClearCondition>("Condition", "AudioExpandPhraseConditionType", "description", &AudioExpandPhraseType::m_MapConditionList, &AudioExpandPhraseType::m_ConditionList),
    Framework::PlainStrings<&AudioExpandPhraseType::AddKey, &AudioExpandPhraseType::ClearKey>("Key", &AudioExpandPhraseType::m_KeyList),
};

constinit const Framework::FieldTable AudioExpandPhraseType::s_Table = {
    .className = "AudioExpandPhraseType",
    .elementName = "AudioExpandPhrase",
    .parent = nullptr,
    .isStructuralConfigLoader = false,
    .isRoot = false,
    .rows = s_Rows,
    .create = &Framework::CreateContainer<AudioExpandPhraseType>,
    .type = &typeid(AudioExpandPhraseType),
    .autoFill = Framework::ToBase(&AudioExpandPhraseType::m_bAutoFillTypeInfo),
};
// clang-format on

AudioExpandPhraseType::AudioExpandPhraseType(bool bBuildFromScratch) : TypedDataContainer(bBuildFromScratch) {
    Framework::NameByClass(*this, s_Table);
}

AudioExpandPhraseType::~AudioExpandPhraseType() {
    AudioExpandPhraseType::ClearCondition();
    AudioExpandPhraseType::ClearKey();
}

zelString AudioExpandPhraseType::GetBaseType() {
    return "AudioExpandPhraseType";
}

void AudioExpandPhraseType::GetProperties(ParameterList& pList) {
    Framework::Properties(*this, s_Table, pList);
}

bool AudioExpandPhraseType::MergeDataMembers(XMLDataWrapper* pMergeData, zelString sFeatureID) {
    return Framework::Merge(*this, s_Table, pMergeData, sFeatureID, __LINE__);
}

zelString AudioExpandPhraseType::GetAttributeList() {
    return Framework::AttributePredicate(*this, s_Table);
}

ParameterList* AudioExpandPhraseType::GetPLAttributeList() {
    return Framework::AttributeParameters(*this, s_Table);
}

TypedDataContainer* AudioExpandPhraseType::Clone() {
    return Framework::Clone(*this, s_Table);
}

bool AudioExpandPhraseType::DumpMergeContents(const zelString& sParentQuery, FullFunctionXMLDataWrapper* pOutput,
                                              int QueryPos, bool bIncludeMergeAttributes) {
    return Framework::DumpByQuery(*this, s_Table, sParentQuery, pOutput, QueryPos, bIncludeMergeAttributes);
}

bool AudioExpandPhraseType::DumpMergeContentsII(DOMNode* pParentNode, FullFunctionXMLDataWrapper* pOutput,
                                                DOMNode*& pPassedCurrent, bool bIncludeMergeAttributes) {
    return Framework::DumpByNode(*this, s_Table, pParentNode, pOutput, pPassedCurrent, bIncludeMergeAttributes);
}

bool AudioExpandPhraseType::UpdateContainedData() {
    return Framework::Update(*this, s_Table);
}

bool AudioExpandPhraseType::PopulateDataMembers(XalanNode* pNode) {
    return Framework::Populate(*this, s_Table, pNode);
}

void AudioExpandPhraseType::ResetDataMembers() {
    Framework::Reset(*this, s_Table);
}

int AudioExpandPhraseType::GetConditionLength() {
    return Framework::ListLength(m_ConditionList);
}

AudioExpandPhraseConditionType* AudioExpandPhraseType::GetCondition(int Index) {
    return static_cast<AudioExpandPhraseConditionType*>(Framework::EntryAt(m_ConditionList, Index));
}

AudioExpandPhraseConditionType* AudioExpandPhraseType::GetCondition(const zelString& sName) {
    return static_cast<AudioExpandPhraseConditionType*>(Framework::EntryByKey(m_MapConditionList, sName));
}

void AudioExpandPhraseType::AddNewCondition(AudioExpandPhraseConditionType* szNew, const zelString& sName) {
    Framework::AddNewKeyed(m_MapConditionList, m_ConditionList, szNew, sName);
}

void AudioExpandPhraseType::RemoveCondition(const zelString& sName, const zelString& sFeatureId) {
    Framework::RemoveKeyed(*this, s_Rows[0], sName, sFeatureId);
}

int AudioExpandPhraseType::GetKeyLength() {
    return Framework::ListLength(m_KeyList);
}

zelString AudioExpandPhraseType::GetKey(int Index) {
    return Framework::GrowTo(m_KeyList, Index);
}

void AudioExpandPhraseType::AddNewKey(LPCTSTR szNew) {
    m_KeyList.emplace_back(szNew);
}

bool AudioExpandPhraseType::AutoFillTypeInfo() {
    return true;
}

void AudioExpandPhraseType::AddCondition(XMLDataWrapper* pData, XalanNode* spNode, const zelString& sName) {
    Framework::AddKeyed(*this, s_Rows[0], pData, spNode, sName, __LINE__);
}

void AudioExpandPhraseType::ClearCondition() {
    Framework::ClearKeyed(m_MapConditionList, m_ConditionList);
}

void AudioExpandPhraseType::AddKey(zelString pData) {
    m_KeyList.push_back(std::move(pData));
}

void AudioExpandPhraseType::ClearKey() {
    m_KeyList.clear();
}
