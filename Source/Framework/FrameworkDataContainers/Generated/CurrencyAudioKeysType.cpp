// Generated from AudioLookupConfig.xsd; do not edit. Regenerate with the target "generate".
#include "FrameworkDataContainers/CurrencyAudioKeysType.h"

#include "Framework/FrameworkDataContainers/Walks/Lists.h"
#include "Framework/FrameworkDataContainers/Walks/Walks.h"
#include "FrameworkDataContainers/VoiceCurrencyType.h"

// clang-format off
constinit const Framework::FieldRow CurrencyAudioKeysType::s_Rows[] = {
    Framework::KeyedList<VoiceCurrencyType, &VoiceCurrencyType::Getindex, &CurrencyAudioKeysType::AddVoiceCurrency, &CurrencyAudioKeysType::ClearVoiceCurrency>("VoiceCurrency", "VoiceCurrencyType", "index", &CurrencyAudioKeysType::m_MapVoiceCurrencyList, &CurrencyAudioKeysType::m_VoiceCurrencyList),
    Framework::Attribute("currencyCode", &CurrencyAudioKeysType::m_currencyCode),
};

constinit const Framework::FieldTable CurrencyAudioKeysType::s_Table = {
    .className = "CurrencyAudioKeysType",
    .elementName = "CurrencyAudioKeys",
    .parent = nullptr,
    .isStructuralConfigLoader = false,
    .isRoot = false,
    .rows = s_Rows,
    .create = &Framework::CreateContainer<CurrencyAudioKeysType>,
    .type = &typeid(CurrencyAudioKeysType),
    .autoFill = Framework::ToBase(&CurrencyAudioKeysType::m_bAutoFillTypeInfo),
};
// clang-format on

CurrencyAudioKeysType::CurrencyAudioKeysType(bool bBuildFromScratch) : TypedDataContainer(bBuildFromScratch) {
    Framework::NameByClass(*this, s_Table);
}

CurrencyAudioKeysType::~CurrencyAudioKeysType() {
    CurrencyAudioKeysType::ClearVoiceCurrency();
}

zelString CurrencyAudioKeysType::GetBaseType() {
    return "CurrencyAudioKeysType";
}

void CurrencyAudioKeysType::GetProperties(ParameterList& pList) {
    Framework::Properties(*this, s_Table, pList);
}

bool CurrencyAudioKeysType::MergeDataMembers(XMLDataWrapper* pMergeData, zelString sFeatureID) {
    return Framework::Merge(*this, s_Table, pMergeData, sFeatureID, __LINE__);
}

zelString CurrencyAudioKeysType::GetAttributeList() {
    return Framework::AttributePredicate(*this, s_Table);
}

ParameterList* CurrencyAudioKeysType::GetPLAttributeList() {
    return Framework::AttributeParameters(*this, s_Table);
}

TypedDataContainer* CurrencyAudioKeysType::Clone() {
    return Framework::Clone(*this, s_Table);
}

bool CurrencyAudioKeysType::DumpMergeContents(const zelString& sParentQuery, FullFunctionXMLDataWrapper* pOutput,
                                              int QueryPos, bool bIncludeMergeAttributes) {
    return Framework::DumpByQuery(*this, s_Table, sParentQuery, pOutput, QueryPos, bIncludeMergeAttributes);
}

bool CurrencyAudioKeysType::DumpMergeContentsII(DOMNode* pParentNode, FullFunctionXMLDataWrapper* pOutput,
                                                DOMNode*& pPassedCurrent, bool bIncludeMergeAttributes) {
    return Framework::DumpByNode(*this, s_Table, pParentNode, pOutput, pPassedCurrent, bIncludeMergeAttributes);
}

bool CurrencyAudioKeysType::UpdateContainedData() {
    return Framework::Update(*this, s_Table);
}

bool CurrencyAudioKeysType::PopulateDataMembers(XalanNode* pNode) {
    return Framework::Populate(*this, s_Table, pNode);
}

void CurrencyAudioKeysType::ResetDataMembers() {
    Framework::Reset(*this, s_Table);
}

int CurrencyAudioKeysType::GetVoiceCurrencyLength() {
    return Framework::ListLength(m_VoiceCurrencyList);
}

VoiceCurrencyType* CurrencyAudioKeysType::GetVoiceCurrency(int Index) {
    return static_cast<VoiceCurrencyType*>(Framework::EntryAt(m_VoiceCurrencyList, Index));
}

VoiceCurrencyType* CurrencyAudioKeysType::GetVoiceCurrency(const zelString& sName) {
    return static_cast<VoiceCurrencyType*>(Framework::EntryByKey(m_MapVoiceCurrencyList, sName));
}

void CurrencyAudioKeysType::AddNewVoiceCurrency(VoiceCurrencyType* szNew, const zelString& sName) {
    Framework::AddNewKeyed(m_MapVoiceCurrencyList, m_VoiceCurrencyList, szNew, sName);
}

void CurrencyAudioKeysType::RemoveVoiceCurrency(const zelString& sName, const zelString& sFeatureId) {
    Framework::RemoveKeyed(*this, s_Rows[0], sName, sFeatureId);
}

zelString CurrencyAudioKeysType::GetcurrencyCode() {
    return m_currencyCode;
}

void CurrencyAudioKeysType::SetcurrencyCode(LPCTSTR szNew) {
    m_currencyCode = szNew;
}

bool CurrencyAudioKeysType::AutoFillTypeInfo() {
    return true;
}

void CurrencyAudioKeysType::AddVoiceCurrency(XMLDataWrapper* pData, XalanNode* spNode, const zelString& sName) {
    Framework::AddKeyed(*this, s_Rows[0], pData, spNode, sName, __LINE__);
}

void CurrencyAudioKeysType::ClearVoiceCurrency() {
    Framework::ClearKeyed(m_MapVoiceCurrencyList, m_VoiceCurrencyList);
}
