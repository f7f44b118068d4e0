// Generated from AudioLookupConfig.xsd; do not edit. Regenerate with the target "generate".
#include "FrameworkDataContainers/AudioKeyMapType.h"

#include "Framework/FrameworkDataContainers/Walks/Lists.h"
#include "Framework/FrameworkDataContainers/Walks/Walks.h"
#include "FrameworkDataContainers/AudioLookupType.h"

// clang-format off
constinit const Framework::FieldRow AudioKeyMapType::s_Rows[] = {
    Framework::KeyedList<AudioLookupType, &AudioLookupType::Getkey, &AudioKeyMapType::AddAudioLookup, &AudioKeyMapType::ClearAudioLookup>("AudioLookup", "AudioLookupType", "key", &AudioKeyMapType::m_MapAudioLookupList, &AudioKeyMapType::m_AudioLookupList),
    Framework::Attribute("language", &AudioKeyMapType::m_language),
};

constinit const Framework::FieldTable AudioKeyMapType::s_Table = {
    .className = "AudioKeyMapType",
    .elementName = "AudioKeyMap",
    .parent = nullptr,
    .isStructuralConfigLoader = false,
    .isRoot = false,
    .rows = s_Rows,
    .create = &Framework::CreateContainer<AudioKeyMapType>,
    .type = &typeid(AudioKeyMapType),
    .autoFill = Framework::ToBase(&AudioKeyMapType::m_bAutoFillTypeInfo),
};
// clang-format on

AudioKeyMapType::AudioKeyMapType(bool bBuildFromScratch) : TypedDataContainer(bBuildFromScratch) {
    Framework::NameByClass(*this, s_Table);
}

AudioKeyMapType::~AudioKeyMapType() {
    AudioKeyMapType::ClearAudioLookup();
}

zelString AudioKeyMapType::GetBaseType() {
    return "AudioKeyMapType";
}

void AudioKeyMapType::GetProperties(ParameterList& pList) {
    Framework::Properties(*this, s_Table, pList);
}

bool AudioKeyMapType::MergeDataMembers(XMLDataWrapper* pMergeData, zelString sFeatureID) {
    return Framework::Merge(*this, s_Table, pMergeData, sFeatureID, __LINE__);
}

zelString AudioKeyMapType::GetAttributeList() {
    return Framework::AttributePredicate(*this, s_Table);
}

ParameterList* AudioKeyMapType::GetPLAttributeList() {
    return Framework::AttributeParameters(*this, s_Table);
}

TypedDataContainer* AudioKeyMapType::Clone() {
    return Framework::Clone(*this, s_Table);
}

bool AudioKeyMapType::DumpMergeContents(const zelString& sParentQuery, FullFunctionXMLDataWrapper* pOutput,
                                        int QueryPos, bool bIncludeMergeAttributes) {
    return Framework::DumpByQuery(*this, s_Table, sParentQuery, pOutput, QueryPos, bIncludeMergeAttributes);
}

bool AudioKeyMapType::DumpMergeContentsII(DOMNode* pParentNode, FullFunctionXMLDataWrapper* pOutput,
                                          DOMNode*& pPassedCurrent, bool bIncludeMergeAttributes) {
    return Framework::DumpByNode(*this, s_Table, pParentNode, pOutput, pPassedCurrent, bIncludeMergeAttributes);
}

bool AudioKeyMapType::UpdateContainedData() {
    return Framework::Update(*this, s_Table);
}

bool AudioKeyMapType::PopulateDataMembers(XalanNode* pNode) {
    return Framework::Populate(*this, s_Table, pNode);
}

void AudioKeyMapType::ResetDataMembers() {
    Framework::Reset(*this, s_Table);
}

int AudioKeyMapType::GetAudioLookupLength() {
    return Framework::ListLength(m_AudioLookupList);
}

AudioLookupType* AudioKeyMapType::GetAudioLookup(int Index) {
    return static_cast<AudioLookupType*>(Framework::EntryAt(m_AudioLookupList, Index));
}

AudioLookupType* AudioKeyMapType::GetAudioLookup(const zelString& sName) {
    return static_cast<AudioLookupType*>(Framework::EntryByKey(m_MapAudioLookupList, sName));
}

void AudioKeyMapType::AddNewAudioLookup(AudioLookupType* szNew, const zelString& sName) {
    Framework::AddNewKeyed(m_MapAudioLookupList, m_AudioLookupList, szNew, sName);
}

void AudioKeyMapType::RemoveAudioLookup(const zelString& sName, const zelString& sFeatureId) {
    Framework::RemoveKeyed(*this, s_Rows[0], sName, sFeatureId);
}

zelString AudioKeyMapType::Getlanguage() {
    return m_language;
}

void AudioKeyMapType::Setlanguage(LPCTSTR szNew) {
    m_language = szNew;
}

bool AudioKeyMapType::AutoFillTypeInfo() {
    return true;
}

void AudioKeyMapType::AddAudioLookup(XMLDataWrapper* pData, XalanNode* spNode, const zelString& sName) {
    Framework::AddKeyed(*this, s_Rows[0], pData, spNode, sName, __LINE__);
}

void AudioKeyMapType::ClearAudioLookup() {
    Framework::ClearKeyed(m_MapAudioLookupList, m_AudioLookupList);
}
