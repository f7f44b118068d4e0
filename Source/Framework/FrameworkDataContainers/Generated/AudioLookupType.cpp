// Generated from AudioLookupConfig.xsd; do not edit. Regenerate with the target "generate".
#include "FrameworkDataContainers/AudioLookupType.h"

#include "Framework/FrameworkDataContainers/Walks/Lists.h"
#include "Framework/FrameworkDataContainers/Walks/Walks.h"
#include "FrameworkDataContainers/AudioExpandPhraseType.h"
#include "FrameworkDataContainers/AudioFunctionType.h"
#include "FrameworkDataContainers/AudioPathSearchOrderType.h"

// clang-format off
constinit const Framework::FieldRow AudioLookupType::s_Rows[] = {
    Framework::Child<&AudioLookupType::m_PathSearchOrder>("PathSearchOrder", "AudioPathSearchOrderType"),
    Framework::Element("FileName", &AudioLookupType::m_FileName),
    Framework::PlainList<AudioFunctionType, &AudioLookupType::AddFunction, &AudioLookupType::ClearFunction>("Function", "AudioFunctionType", &AudioLookupType::m_FunctionList),
    Framework::PlainList<AudioExpandPhraseType, &AudioLookupType::AddExpandPhrase, &AudioLookupType::ClearExpandPhrase>("ExpandPhrase", "AudioExpandPhraseType", &AudioLookupType::m_ExpandPhraseList),
    Framework::EnumElement<&AudioLookupType::m_Priority>("Priority", "AudioPriorityEnum", "low"),
    Framework::Element("AllowAbort", &AudioLookupType::m_AllowAbort, true),
    Framework::Element("AllowQueueing", &AudioLookupType::m_AllowQueueing),
    Framework::Attribute("key", &AudioLookupType::m_key),
};

constinit const Framework::FieldTable AudioLookupType::s_Table = {
    .className = "AudioLookupType",
    .elementName = "AudioLookup",
    .parent = nullptr,
    .isStructuralConfigLoader = false,
    .isRoot = false,
    .rows = s_Rows,
    .create = &Framework::CreateContainer<AudioLookupType>,
    .type = &typeid(AudioLookupType),
    .autoFill = Framework::ToBase(&AudioLookupType::m_bAutoFillTypeInfo),
};
// clang-format on

AudioLookupType::AudioLookupType(bool bBuildFromScratch) : TypedDataContainer(bBuildFromScratch) {
    Framework::NameByClass(*this, s_Table);
}

AudioLookupType::~AudioLookupType() {
    delete m_PathSearchOrder;
    AudioLookupType::ClearFunction();
    AudioLookupType::ClearExpandPhrase();
}

zelString AudioLookupType::GetBaseType() {
    return "AudioLookupType";
}

void AudioLookupType::GetProperties(ParameterList& pList) {
    Framework::Properties(*this, s_Table, pList);
}

bool AudioLookupType::MergeDataMembers(XMLDataWrapper* pMergeData, zelString sFeatureID) {
    return Framework::Merge(*this, s_Table, pMergeData, sFeatureID, __LINE__);
}

zelString AudioLookupType::GetAttributeList() {
    return Framework::AttributePredicate(*this, s_Table);
}

ParameterList* AudioLookupType::GetPLAttributeList() {
    return Framework::AttributeParameters(*this, s_Table);
}

TypedDataContainer* AudioLookupType::Clone() {
    return Framework::Clone(*this, s_Table);
}

bool AudioLookupType::DumpMergeContents(const zelString& sParentQuery, FullFunctionXMLDataWrapper* pOutput,
                                        int QueryPos, bool bIncludeMergeAttributes) {
    return Framework::DumpByQuery(*this, s_Table, sParentQuery, pOutput, QueryPos, bIncludeMergeAttributes);
}

bool AudioLookupType::DumpMergeContentsII(DOMNode* pParentNode, FullFunctionXMLDataWrapper* pOutput,
                                          DOMNode*& pPassedCurrent, bool bIncludeMergeAttributes) {
    return Framework::DumpByNode(*this, s_Table, pParentNode, pOutput, pPassedCurrent, bIncludeMergeAttributes);
}

bool AudioLookupType::UpdateContainedData() {
    return Framework::Update(*this, s_Table);
}

bool AudioLookupType::PopulateDataMembers(XalanNode* pNode) {
    return Framework::Populate(*this, s_Table, pNode);
}

void AudioLookupType::ResetDataMembers() {
    Framework::Reset(*this, s_Table);
}

AudioPathSearchOrderType* AudioLookupType::GetPathSearchOrder() {
    return m_PathSearchOrder;
}

void AudioLookupType::SetPathSearchOrder(AudioPathSearchOrderType* szNew) {
    Framework::ReplaceChild(m_PathSearchOrder, szNew);
}

zelString AudioLookupType::GetFileName() {
    return m_FileName;
}

void AudioLookupType::SetFileName(LPCTSTR szNew) {
    m_FileName = szNew;
}

int AudioLookupType::GetFunctionLength() {
    return Framework::ListLength(m_FunctionList);
}

AudioFunctionType* AudioLookupType::GetFunction(int Index) {
    return static_cast<AudioFunctionType*>(Framework::GrowTo(*this, s_Rows[2], Index));
}

void AudioLookupType::AddNewFunction(AudioFunctionType* szNew) {
    Framework::AddNewPlain(m_FunctionList, szNew);
}

int AudioLookupType::GetExpandPhraseLength() {
    return Framework::ListLength(m_ExpandPhraseList);
}

AudioExpandPhraseType* AudioLookupType::GetExpandPhrase(int Index) {
    return static_cast<AudioExpandPhraseType*>(Framework::GrowTo(*this, s_Rows[3], Index));
}

void AudioLookupType::AddNewExpandPhrase(AudioExpandPhraseType* szNew) {
    Framework::AddNewPlain(m_ExpandPhraseList, szNew);
}

AudioPriorityEnum AudioLookupType::GetPriority() {
    return m_Priority;
}

void AudioLookupType::SetPriority(AudioPriorityEnum szNew) {
    m_Priority = szNew;
}

bool AudioLookupType::GetAllowAbort() {
    return m_AllowAbort;
}

void AudioLookupType::SetAllowAbort(bool szNew) {
    m_AllowAbort = szNew;
}

bool AudioLookupType::GetAllowQueueing() {
    return m_AllowQueueing;
}

void AudioLookupType::SetAllowQueueing(bool szNew) {
    m_AllowQueueing = szNew;
}

zelString AudioLookupType::Getkey() {
    return m_key;
}

void AudioLookupType::Setkey(LPCTSTR szNew) {
    m_key = szNew;
}

bool AudioLookupType::AutoFillTypeInfo() {
    return true;
}

void AudioLookupType::AddFunction(XMLDataWrapper* pData, XalanNode* spNode) {
    Framework::AddPlain(*this, s_Rows[2], pData, spNode);
}

void AudioLookupType::ClearFunction() {
    Framework::ClearPlain(m_FunctionList);
}

void AudioLookupType::AddExpandPhrase(XMLDataWrapper* pData, XalanNode* spNode) {
    Framework::AddPlain(*this, s_Rows[3], pData, spNode);
}

void AudioLookupType::ClearExpandPhrase() {
    Framework::ClearPlain(m_ExpandPhraseList);
}
