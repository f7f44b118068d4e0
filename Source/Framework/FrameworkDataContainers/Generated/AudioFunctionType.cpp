// Generated from AudioLookupConfig.xsd; do not edit. Regenerate with the target "generate".
#include "FrameworkDataContainers/AudioFunctionType.h"

#include "Framework/FrameworkDataContainers/Walks/Lists.h"
#include "Framework/FrameworkDataContainers/Walks/Walks.h"

#include <utility>

// clang-format off
constinit const Framework::FieldRow AudioFunctionType::s_Rows[] = {
    Framework::Element("Name", &AudioFunctionType::m_Name),
    Framework::PlainStrings<&AudioFunctionType::AddParmRef, &AudioFunctionType::ClearParmRef>("ParmRef", &AudioFunctionType::m_ParmRefList),
};

constinit const Framework::FieldTable AudioFunctionType::s_Table = {
    .className = "AudioFunctionType",
    .elementName = "AudioFunction",
    .parent = nullptr,
    .isStructuralConfigLoader = false,
    .isRoot = false,
    .rows = s_Rows,
    .create = &Framework::CreateContainer<AudioFunctionType>,
    .type = &typeid(AudioFunctionType),
    .autoFill = Framework::ToBase(&AudioFunctionType::m_bAutoFillTypeInfo),
};
// clang-format on

AudioFunctionType::AudioFunctionType(bool bBuildFromScratch) : TypedDataContainer(bBuildFromScratch) {
    Framework::NameByClass(*this, s_Table);
}

AudioFunctionType::~AudioFunctionType() {
    AudioFunctionType::ClearParmRef();
}

zelString AudioFunctionType::GetBaseType() {
    return "AudioFunctionType";
}

void AudioFunctionType::GetProperties(ParameterList& pList) {
    Framework::Properties(*this, s_Table, pList);
}

bool AudioFunctionType::MergeDataMembers(XMLDataWrapper* pMergeData, zelString sFeatureID) {
    return Framework::Merge(*this, s_Table, pMergeData, sFeatureID, __LINE__);
}

zelString AudioFunctionType::GetAttributeList() {
    return Framework::AttributePredicate(*this, s_Table);
}

ParameterList* AudioFunctionType::GetPLAttributeList() {
    return Framework::AttributeParameters(*this, s_Table);
}

TypedDataContainer* AudioFunctionType::Clone() {
    return Framework::Clone(*this, s_Table);
}

bool AudioFunctionType::DumpMergeContents(const zelString& sParentQuery, FullFunctionXMLDataWrapper* pOutput,
                                          int QueryPos, bool bIncludeMergeAttributes) {
    return Framework::DumpByQuery(*this, s_Table, sParentQuery, pOutput, QueryPos, bIncludeMergeAttributes);
}

bool AudioFunctionType::DumpMergeContentsII(DOMNode* pParentNode, FullFunctionXMLDataWrapper* pOutput,
                                            DOMNode*& pPassedCurrent, bool bIncludeMergeAttributes) {
    return Framework::DumpByNode(*this, s_Table, pParentNode, pOutput, pPassedCurrent, bIncludeMergeAttributes);
}

bool AudioFunctionType::UpdateContainedData() {
    return Framework::Update(*this, s_Table);
}

bool AudioFunctionType::PopulateDataMembers(XalanNode* pNode) {
    return Framework::Populate(*this, s_Table, pNode);
}

void AudioFunctionType::ResetDataMembers() {
    Framework::Reset(*this, s_Table);
}

zelString AudioFunctionType::GetName() {
    return m_Name;
}

void AudioFunctionType::SetName(LPCTSTR szNew) {
    m_Name = szNew;
}

int AudioFunctionType::GetParmRefLength() {
    return Framework::ListLength(m_ParmRefList);
}

zelString AudioFunctionType::GetParmRef(int Index) {
    return Framework::GrowTo(m_ParmRefList, Index);
}

void AudioFunctionType::AddNewParmRef(LPCTSTR szNew) {
    m_ParmRefList.emplace_back(szNew);
}

bool AudioFunctionType::AutoFillTypeInfo() {
    return true;
}

void AudioFunctionType::AddParmRef(zelString pData) {
    m_ParmRefList.push_back(std::move(pData));
}

void AudioFunctionType::ClearParmRef() {
    m_ParmRefList.clear();
}
