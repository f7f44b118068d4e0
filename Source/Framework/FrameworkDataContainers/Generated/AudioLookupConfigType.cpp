// Generated from AudioLookupConfig.xsd; do not edit. Regenerate with the target "generate".
#include "FrameworkDataContainers/AudioLookupConfigType.h"

#include "Framework/FrameworkDataContainers/Walks/Lists.h"
#include "Framework/FrameworkDataContainers/Walks/Walks.h"
#include "FrameworkDataContainers/AudioGlobalParamsType.h"
#include "FrameworkDataContainers/AudioKeyMapType.h"
#include "FrameworkDataContainers/CurrencyAudioMapType.h"
#include "FrameworkDataContainers/FunctionHandlerMapType.h"

// clang-format off
constinit const Framework::FieldRow AudioLookupConfigType::s_Rows[] = {
    Framework::Child<&AudioLookupConfigType::m_GlobalParams>("GlobalParams", "AudioGlobalParamsType"),
    Framework::Child<&AudioLookupConfigType::m_FunctionHandlerMap>("FunctionHandlerMap", "FunctionHandlerMapType"),
    Framework::KeyedList<CurrencyAudioMapType, &CurrencyAudioMapType::Getlanguage, &AudioLookupConfigType::AddCurrencyAudioMap, &AudioLookupConfigType::ClearCurrencyAudioMap>("CurrencyAudioMap", "CurrencyAudioMapType", "language", &AudioLookupConfigType::m_MapCurrencyAudioMapList, &AudioLookupConfigType::m_CurrencyAudioMapList),
    Framework::KeyedList<AudioKeyMapType, &AudioKeyMapType::Getlanguage, &AudioLookupConfigType::AddAudioKeyMap, &AudioLookupConfigType::ClearAudioKeyMap>("AudioKeyMap", "AudioKeyMapType", "language", &AudioLookupConfigType::m_MapAudioKeyMapList, &AudioLookupConfigType::m_AudioKeyMapList),
};

constinit const Framework::FieldTable AudioLookupConfigType::s_Table = {
    .className = "AudioLookupConfigType",
    .elementName = "AudioLookupConfig",
    .parent = nullptr,
    .isStructuralConfigLoader = true,
    .isRoot = true,
    .rows = s_Rows,
    .create = &Framework::CreateContainer<AudioLookupConfigType>,
    .type = &typeid(AudioLookupConfigType),
    .autoFill = Framework::ToBase(&AudioLookupConfigType::m_bAutoFillTypeInfo),
};
// clang-format on

AudioLookupConfigType::AudioLookupConfigType(bool bBuildFromScratch) : StructuralConfigLoader(bBuildFromScratch) {
    Framework::NameByClass(*this, s_Table);
}

AudioLookupConfigType::~AudioLookupConfigType() {
    delete m_GlobalParams;
    delete m_FunctionHandlerMap;
    AudioLookupConfigType::ClearCurrencyAudioMap();
    AudioLookupConfigType::ClearAudioKeyMap();
}

zelString AudioLookupConfigType::GetBaseType() {
    return "AudioLookupConfigType";
}

void AudioLookupConfigType::GetProperties(ParameterList& pList) {
    Framework::Properties(*this, s_Table, pList);
}

bool AudioLookupConfigType::MergeDataMembers(XMLDataWrapper* pMergeData, zelString sFeatureID) {
    return Framework::Merge(*this, s_Table, pMergeData, sFeatureID, __LINE__);
}

zelString AudioLookupConfigType::GetAttributeList() {
    return Framework::AttributePredicate(*this, s_Table);
}

ParameterList* AudioLookupConfigType::GetPLAttributeList() {
    return Framework::AttributeParameters(*this, s_Table);
}

TypedDataContainer* AudioLookupConfigType::Clone() {
    return Framework::Clone(*this, s_Table);
}

bool AudioLookupConfigType::DumpMergeContents(const zelString& sParentQuery, FullFunctionXMLDataWrapper* pOutput,
                                              int QueryPos, bool bIncludeMergeAttributes) {
    return Framework::DumpByQuery(*this, s_Table, sParentQuery, pOutput, QueryPos, bIncludeMergeAttributes);
}

bool AudioLookupConfigType::DumpMergeContentsII(DOMNode* pParentNode, FullFunctionXMLDataWrapper* pOutput,
                                                DOMNode*& pPassedCurrent, bool bIncludeMergeAttributes) {
    return Framework::DumpByNode(*this, s_Table, pParentNode, pOutput, pPassedCurrent, bIncludeMergeAttributes);
}

bool AudioLookupConfigType::UpdateContainedData() {
    return Framework::Update(*this, s_Table);
}

bool AudioLookupConfigType::PopulateDataMembers(XalanNode* pNode) {
    return Framework::Populate(*this, s_Table, pNode);
}

void AudioLookupConfigType::ResetDataMembers() {
    Framework::Reset(*this, s_Table);
}

AudioGlobalParamsType* AudioLookupConfigType::GetGlobalParams() {
    return m_GlobalParams;
}

void AudioLookupConfigType::SetGlobalParams(AudioGlobalParamsType* szNew) {
    Framework::ReplaceChild(m_GlobalParams, szNew);
}

FunctionHandlerMapType* AudioLookupConfigType::GetFunctionHandlerMap() {
    return m_FunctionHandlerMap;
}

void AudioLookupConfigType::SetFunctionHandlerMap(FunctionHandlerMapType* szNew) {
    Framework::ReplaceChild(m_FunctionHandlerMap, szNew);
}

int AudioLookupConfigType::GetCurrencyAudioMapLength() {
    return Framework::ListLength(m_CurrencyAudioMapList);
}

CurrencyAudioMapType* AudioLookupConfigType::GetCurrencyAudioMap(int Index) {
    return static_cast<CurrencyAudioMapType*>(Framework::EntryAt(m_CurrencyAudioMapList, Index));
}

CurrencyAudioMapType* AudioLookupConfigType::GetCurrencyAudioMap(const zelString& sName) {
    return static_cast<CurrencyAudioMapType*>(Framework::EntryByKey(m_MapCurrencyAudioMapList, sName));
}

void AudioLookupConfigType::AddNewCurrencyAudioMap(CurrencyAudioMapType* szNew, const zelString& sName) {
    Framework::AddNewKeyed(m_MapCurrencyAudioMapList, m_CurrencyAudioMapList, szNew, sName);
}

void AudioLookupConfigType::RemoveCurrencyAudioMap(const zelString& sName, const zelString& sFeatureId) {
    Framework::RemoveKeyed(*this, s_Rows[2], sName, sFeatureId);
}

int AudioLookupConfigType::GetAudioKeyMapLength() {
    return Framework::ListLength(m_AudioKeyMapList);
}

AudioKeyMapType* AudioLookupConfigType::GetAudioKeyMap(int Index) {
    return static_cast<AudioKeyMapType*>(Framework::EntryAt(m_AudioKeyMapList, Index));
}

AudioKeyMapType* AudioLookupConfigType::GetAudioKeyMap(const zelString& sName) {
    return static_cast<AudioKeyMapType*>(Framework::EntryByKey(m_MapAudioKeyMapList, sName));
}

void AudioLookupConfigType::AddNewAudioKeyMap(AudioKeyMapType* szNew, const zelString& sName) {
    Framework::AddNewKeyed(m_MapAudioKeyMapList, m_AudioKeyMapList, szNew, sName);
}

void AudioLookupConfigType::RemoveAudioKeyMap(const zelString& sName, const zelString& sFeatureId) {
    Framework::RemoveKeyed(*this, s_Rows[3], sName, sFeatureId);
}

bool AudioLookupConfigType::AutoFillTypeInfo() {
    return true;
}

void AudioLookupConfigType::AddCurrencyAudioMap(XMLDataWrapper* pData, XalanNode* spNode, const zelString& sName) {
    Framework::AddKeyed(*this, s_Rows[2], pData, spNode, sName, __LINE__);
}

void AudioLookupConfigType::ClearCurrencyAudioMap() {
    Framework::ClearKeyed(m_MapCurrencyAudioMapList, m_CurrencyAudioMapList);
}

void AudioLookupConfigType::AddAudioKeyMap(XMLDataWrapper* pData, XalanNode* spNode, const zelString& sName) {
    Framework::AddKeyed(*this, s_Rows[3], pData, spNode, sName, __LINE__);
}

void AudioLookupConfigType::ClearAudioKeyMap() {
    Framework::ClearKeyed(m_MapAudioKeyMapList, m_AudioKeyMapList);
}
