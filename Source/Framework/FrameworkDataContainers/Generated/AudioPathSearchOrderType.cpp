// Generated from AudioLookupConfig.xsd; do not edit. Regenerate with the target "generate".
#include "FrameworkDataContainers/AudioPathSearchOrderType.h"

#include "Framework/FrameworkDataContainers/Walks/Lists.h"
#include "Framework/FrameworkDataContainers/Walks/Walks.h"

// clang-format off
constinit const Framework::FieldRow AudioPathSearchOrderType::s_Rows[] = {
    Framework::KeyedStrings<&AudioPathSearchOrderType::AddPath, &AudioPathSearchOrderType::ClearPath>("Path", "Index", false, &AudioPathSearchOrderType::m_MapPathList, &AudioPathSearchOrderType::m_PathList),
};

constinit const Framework::FieldTable AudioPathSearchOrderType::s_Table = {
    .className = "AudioPathSearchOrderType",
    .elementName = "AudioPathSearchOrder",
    .parent = nullptr,
    .isStructuralConfigLoader = false,
    .isRoot = false,
    .rows = s_Rows,
    .create = &Framework::CreateContainer<AudioPathSearchOrderType>,
    .type = &typeid(AudioPathSearchOrderType),
    .autoFill = Framework::ToBase(&AudioPathSearchOrderType::m_bAutoFillTypeInfo),
};
// clang-format on

AudioPathSearchOrderType::AudioPathSearchOrderType(bool bBuildFromScratch) : TypedDataContainer(bBuildFromScratch) {
    Framework::NameByClass(*this, s_Table);
}

AudioPathSearchOrderType::~AudioPathSearchOrderType() {
    AudioPathSearchOrderType::ClearPath();
}

zelString AudioPathSearchOrderType::GetBaseType() {
    return "AudioPathSearchOrderType";
}

void AudioPathSearchOrderType::GetProperties(ParameterList& pList) {
    Framework::Properties(*this, s_Table, pList);
}

bool AudioPathSearchOrderType::MergeDataMembers(XMLDataWrapper* pMergeData, zelString sFeatureID) {
    return Framework::Merge(*this, s_Table, pMergeData, sFeatureID, __LINE__);
}

zelString AudioPathSearchOrderType::GetAttributeList() {
    return Framework::AttributePredicate(*this, s_Table);
}

ParameterList* AudioPathSearchOrderType::GetPLAttributeList() {
    return Framework::AttributeParameters(*this, s_Table);
}

TypedDataContainer* AudioPathSearchOrderType::Clone() {
    return Framework::Clone(*this, s_Table);
}

bool AudioPathSearchOrderType::DumpMergeContents(const zelString& sParentQuery, FullFunctionXMLDataWrapper* pOutput,
                                                 int QueryPos, bool bIncludeMergeAttributes) {
    return Framework::DumpByQuery(*this, s_Table, sParentQuery, pOutput, QueryPos, bIncludeMergeAttributes);
}

bool AudioPathSearchOrderType::DumpMergeContentsII(DOMNode* pParentNode, FullFunctionXMLDataWrapper* pOutput,
                                                   DOMNode*& pPassedCurrent, bool bIncludeMergeAttributes) {
    return Framework::DumpByNode(*this, s_Table, pParentNode, pOutput, pPassedCurrent, bIncludeMergeAttributes);
}

bool AudioPathSearchOrderType::UpdateContainedData() {
    return Framework::Update(*this, s_Table);
}

bool AudioPathSearchOrderType::PopulateDataMembers(XalanNode* pNode) {
    return Framework::Populate(*this, s_Table, pNode);
}

void AudioPathSearchOrderType::ResetDataMembers() {
    Framework::Reset(*this, s_Table);
}

int AudioPathSearchOrderType::GetPathLength() {
    return Framework::ListLength(m_PathList);
}

zelString AudioPathSearchOrderType::GetPath(int Index) {
    return Framework::TextAt(m_PathList, Index);
}

zelString AudioPathSearchOrderType::GetPath(const zelString& sName) {
    return Framework::TextByKey(m_MapPathList, sName);
}

bool AudioPathSearchOrderType::AutoFillTypeInfo() {
    return true;
}

void AudioPathSearchOrderType::AddPath(const zelString& pData, const zelString& sName) {
    Framework::AddKeyedText(*this, s_Rows[0], pData, sName, __LINE__);
}

void AudioPathSearchOrderType::ClearPath() {
    Framework::ClearKeyedTexts(m_MapPathList, m_PathList);
}
