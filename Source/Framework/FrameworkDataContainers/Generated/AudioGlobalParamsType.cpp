// Generated from AudioLookupConfig.xsd; do not edit. Regenerate with the target "generate".
#include "FrameworkDataContainers/AudioGlobalParamsType.h"

#include "Framework/FrameworkDataContainers/Walks/Lists.h"
#include "Framework/FrameworkDataContainers/Walks/Walks.h"
#include "FrameworkDataContainers/AudioExtensionSearchOrderType.h"
#include "FrameworkDataContainers/AudioPathSearchOrderType.h"

// clang-format off
constinit const Framework::FieldRow AudioGlobalParamsType::s_Rows[] = {
    Framework::Child<&AudioGlobalParamsType::m_PathSearchOrder>("PathSearchOrder", "AudioPathSearchOrderType"),
    Framework::Child<&AudioGlobalParamsType::m_ExtensionSearchOrder>("ExtensionSearchOrder", "AudioExtensionSearchOrderType"),
};

constinit const Framework::FieldTable AudioGlobalParamsType::s_Table = {
    .className = "AudioGlobalParamsType",
    .elementName = "AudioGlobalParams",
    .parent = nullptr,
    .isStructuralConfigLoader = false,
    .isRoot = false,
    .rows = s_Rows,
    .create = &Framework::CreateContainer<AudioGlobalParamsType>,
    .type = &typeid(AudioGlobalParamsType),
    .autoFill = Framework::ToBase(&AudioGlobalParamsType::m_bAutoFillTypeInfo),
};
// clang-format on

AudioGlobalParamsType::AudioGlobalParamsType(bool bBuildFromScratch) : TypedDataContainer(bBuildFromScratch) {
    Framework::NameByClass(*this, s_Table);
}

AudioGlobalParamsType::~AudioGlobalParamsType() {
    delete m_PathSearchOrder;
    delete m_ExtensionSearchOrder;
}

zelString AudioGlobalParamsType::GetBaseType() {
    return "AudioGlobalParamsType";
}

void AudioGlobalParamsType::GetProperties(ParameterList& pList) {
    Framework::Properties(*this, s_Table, pList);
}

bool AudioGlobalParamsType::MergeDataMembers(XMLDataWrapper* pMergeData, zelString sFeatureID) {
    return Framework::Merge(*this, s_Table, pMergeData, sFeatureID, __LINE__);
}

zelString AudioGlobalParamsType::GetAttributeList() {
    return Framework::AttributePredicate(*this, s_Table);
}

ParameterList* AudioGlobalParamsType::GetPLAttributeList() {
    return Framework::AttributeParameters(*this, s_Table);
}

TypedDataContainer* AudioGlobalParamsType::Clone() {
    return Framework::Clone(*this, s_Table);
}

bool AudioGlobalParamsType::DumpMergeContents(const zelString& sParentQuery, FullFunctionXMLDataWrapper* pOutput,
                                              int QueryPos, bool bIncludeMergeAttributes) {
    return Framework::DumpByQuery(*this, s_Table, sParentQuery, pOutput, QueryPos, bIncludeMergeAttributes);
}

bool AudioGlobalParamsType::DumpMergeContentsII(DOMNode* pParentNode, FullFunctionXMLDataWrapper* pOutput,
                                                DOMNode*& pPassedCurrent, bool bIncludeMergeAttributes) {
    return Framework::DumpByNode(*this, s_Table, pParentNode, pOutput, pPassedCurrent, bIncludeMergeAttributes);
}

bool AudioGlobalParamsType::UpdateContainedData() {
    return Framework::Update(*this, s_Table);
}

bool AudioGlobalParamsType::PopulateDataMembers(XalanNode* pNode) {
    return Framework::Populate(*this, s_Table, pNode);
}

void AudioGlobalParamsType::ResetDataMembers() {
    Framework::Reset(*this, s_Table);
}

AudioPathSearchOrderType* AudioGlobalParamsType::GetPathSearchOrder() {
    return m_PathSearchOrder;
}

void AudioGlobalParamsType::SetPathSearchOrder(AudioPathSearchOrderType* szNew) {
    Framework::ReplaceChild(m_PathSearchOrder, szNew);
}

AudioExtensionSearchOrderType* AudioGlobalParamsType::GetExtensionSearchOrder() {
    return m_ExtensionSearchOrder;
}

void AudioGlobalParamsType::SetExtensionSearchOrder(AudioExtensionSearchOrderType* szNew) {
    Framework::ReplaceChild(m_ExtensionSearchOrder, szNew);
}

bool AudioGlobalParamsType::AutoFillTypeInfo() {
    return true;
}
