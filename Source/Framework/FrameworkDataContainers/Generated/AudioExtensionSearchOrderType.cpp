// Generated from AudioLookupConfig.xsd; do not edit. Regenerate with the target "generate".
#include "FrameworkDataContainers/AudioExtensionSearchOrderType.h"

#include "Framework/FrameworkDataContainers/Walks/Lists.h"
#include "Framework/FrameworkDataContainers/Walks/Walks.h"

#include <utility>

// clang-format off
constinit const Framework::FieldRow AudioExtensionSearchOrderType::s_Rows[] = {
    Framework::PlainStrings<&AudioExtensionSearchOrderType::AddExtension, &AudioExtensionSearchOrderType::ClearExtension>("Extension", &AudioExtensionSearchOrderType::m_ExtensionList),
};

constinit const Framework::FieldTable AudioExtensionSearchOrderType::s_Table = {
    .className = "AudioExtensionSearchOrderType",
    .elementName = "AudioExtensionSearchOrder",
    .parent = nullptr,
    .isStructuralConfigLoader = false,
    .isRoot = false,
    .rows = s_Rows,
    .create = &Framework::CreateContainer<AudioExtensionSearchOrderType>,
    .type = &typeid(AudioExtensionSearchOrderType),
    .autoFill = Framework::ToBase(&AudioExtensionSearchOrderType::m_bAutoFillTypeInfo),
};
// clang-format on

AudioExtensionSearchOrderType::AudioExtensionSearchOrderType(bool bBuildFromScratch)
    : TypedDataContainer(bBuildFromScratch) {
    Framework::NameByClass(*this, s_Table);
}

AudioExtensionSearchOrderType::~AudioExtensionSearchOrderType() {
    AudioExtensionSearchOrderType::ClearExtension();
}

zelString AudioExtensionSearchOrderType::GetBaseType() {
    return "AudioExtensionSearchOrderType";
}

void AudioExtensionSearchOrderType::GetProperties(ParameterList& pList) {
    Framework::Properties(*this, s_Table, pList);
}

bool AudioExtensionSearchOrderType::MergeDataMembers(XMLDataWrapper* pMergeData, zelString sFeatureID) {
    return Framework::Merge(*this, s_Table, pMergeData, sFeatureID, __LINE__);
}

zelString AudioExtensionSearchOrderType::GetAttributeList() {
    return Framework::AttributePredicate(*this, s_Table);
}

ParameterList* AudioExtensionSearchOrderType::GetPLAttributeList() {
    return Framework::AttributeParameters(*this, s_Table);
}

TypedDataContainer* AudioExtensionSearchOrderType::Clone() {
    return Framework::Clone(*this, s_Table);
}

bool AudioExtensionSearchOrderType::DumpMergeContents(const zelString& sParentQuery,
                                                      FullFunctionXMLDataWrapper* pOutput, int QueryPos,
                                                      bool bIncludeMergeAttributes) {
    return Framework::DumpByQuery(*this, s_Table, sParentQuery, pOutput, QueryPos, bIncludeMergeAttributes);
}

bool AudioExtensionSearchOrderType::DumpMergeContentsII(DOMNode* pParentNode, FullFunctionXMLDataWrapper* pOutput,
                                                        DOMNode*& pPassedCurrent, bool bIncludeMergeAttributes) {
    return Framework::DumpByNode(*this, s_Table, pParentNode, pOutput, pPassedCurrent, bIncludeMergeAttributes);
}

bool AudioExtensionSearchOrderType::UpdateContainedData() {
    return Framework::Update(*this, s_Table);
}

bool AudioExtensionSearchOrderType::PopulateDataMembers(XalanNode* pNode) {
    return Framework::Populate(*this, s_Table, pNode);
}

void AudioExtensionSearchOrderType::ResetDataMembers() {
    Framework::Reset(*this, s_Table);
}

int AudioExtensionSearchOrderType::GetExtensionLength() {
    return Framework::ListLength(m_ExtensionList);
}

zelString AudioExtensionSearchOrderType::GetExtension(int Index) {
    return Framework::GrowTo(m_ExtensionList, Index);
}

void AudioExtensionSearchOrderType::AddNewExtension(LPCTSTR szNew) {
    m_ExtensionList.emplace_back(szNew);
}

bool AudioExtensionSearchOrderType::AutoFillTypeInfo() {
    return true;
}

void AudioExtensionSearchOrderType::AddExtension(zelString pData) {
    m_ExtensionList.push_back(std::move(pData));
}

void AudioExtensionSearchOrderType::ClearExtension() {
    m_ExtensionList.clear();
}
