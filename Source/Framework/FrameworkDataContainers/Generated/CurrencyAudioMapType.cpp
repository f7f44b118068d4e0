// Generated from AudioLookupConfig.xsd; do not edit. Regenerate with the target "generate".
#include "FrameworkDataContainers/CurrencyAudioMapType.h"

#include "Framework/FrameworkDataContainers/Walks/Lists.h"
#include "Framework/FrameworkDataContainers/Walks/Walks.h"
#include "FrameworkDataContainers/CurrencyAudioKeysType.h"

// clang-format off
constinit const Framework::FieldRow CurrencyAudioMapType::s_Rows[] = {
    Framework::KeyedList<CurrencyAudioKeysType, &CurrencyAudioKeysType::GetcurrencyCode, &CurrencyAudioMapType::AddCurrencyAudioKeys, &CurrencyAudioMapType::ClearCurrencyAudioKeys>("CurrencyAudioKeys", "CurrencyAudioKeysType", "currencyCode", &CurrencyAudioMapType::m_MapCurrencyAudioKeysList, &CurrencyAudioMapType::m_CurrencyAudioKeysList),
    Framework::Attribute("language", &CurrencyAudioMapType::m_language),
};

constinit const Framework::FieldTable CurrencyAudioMapType::s_Table = {
    .className = "CurrencyAudioMapType",
    .elementName = "CurrencyAudioMap",
    .parent = nullptr,
    .isStructuralConfigLoader = false,
    .isRoot = false,
    .rows = s_Rows,
    .create = &Framework::CreateContainer<CurrencyAudioMapType>,
    .type = &typeid(CurrencyAudioMapType),
    .autoFill = Framework::ToBase(&CurrencyAudioMapType::m_bAutoFillTypeInfo),
};
// clang-format on

CurrencyAudioMapType::CurrencyAudioMapType(bool bBuildFromScratch) : TypedDataContainer(bBuildFromScratch) {
    Framework::NameByClass(*this, s_Table);
}

CurrencyAudioMapType::~CurrencyAudioMapType() {
    CurrencyAudioMapType::ClearCurrencyAudioKeys();
}

zelString CurrencyAudioMapType::GetBaseType() {
    return "CurrencyAudioMapType";
}

void CurrencyAudioMapType::GetProperties(ParameterList& pList) {
    Framework::Properties(*this, s_Table, pList);
}

bool CurrencyAudioMapType::MergeDataMembers(XMLDataWrapper* pMergeData, zelString sFeatureID) {
    return Framework::Merge(*this, s_Table, pMergeData, sFeatureID, __LINE__);
}

zelString CurrencyAudioMapType::GetAttributeList() {
    return Framework::AttributePredicate(*this, s_Table);
}

ParameterList* CurrencyAudioMapType::GetPLAttributeList() {
    return Framework::AttributeParameters(*this, s_Table);
}

TypedDataContainer* CurrencyAudioMapType::Clone() {
    return Framework::Clone(*this, s_Table);
}

bool CurrencyAudioMapType::DumpMergeContents(const zelString& sParentQuery, FullFunctionXMLDataWrapper* pOutput,
                                             int QueryPos, bool bIncludeMergeAttributes) {
    return Framework::DumpByQuery(*this, s_Table, sParentQuery, pOutput, QueryPos, bIncludeMergeAttributes);
}

bool CurrencyAudioMapType::DumpMergeContentsII(DOMNode* pParentNode, FullFunctionXMLDataWrapper* pOutput,
                                               DOMNode*& pPassedCurrent, bool bIncludeMergeAttributes) {
    return Framework::DumpByNode(*this, s_Table, pParentNode, pOutput, pPassedCurrent, bIncludeMergeAttributes);
}

bool CurrencyAudioMapType::UpdateContainedData() {
    return Framework::Update(*this, s_Table);
}

bool CurrencyAudioMapType::PopulateDataMembers(XalanNode* pNode) {
    return Framework::Populate(*this, s_Table, pNode);
}

void CurrencyAudioMapType::ResetDataMembers() {
    Framework::Reset(*this, s_Table);
}

int CurrencyAudioMapType::GetCurrencyAudioKeysLength() {
    return Framework::ListLength(m_CurrencyAudioKeysList);
}

CurrencyAudioKeysType* CurrencyAudioMapType::GetCurrencyAudioKeys(int Index) {
    return static_cast<CurrencyAudioKeysType*>(Framework::EntryAt(m_CurrencyAudioKeysList, Index));
}

CurrencyAudioKeysType* CurrencyAudioMapType::GetCurrencyAudioKeys(const zelString& sName) {
    return static_cast<CurrencyAudioKeysType*>(Framework::EntryByKey(m_MapCurrencyAudioKeysList, sName));
}

void CurrencyAudioMapType::AddNewCurrencyAudioKeys(CurrencyAudioKeysType* szNew, const zelString& sName) {
    Framework::AddNewKeyed(m_MapCurrencyAudioKeysList, m_CurrencyAudioKeysList, szNew, sName);
}

void CurrencyAudioMapType::RemoveCurrencyAudioKeys(const zelString& sName, const zelString& sFeatureId) {
    Framework::RemoveKeyed(*this, s_Rows[0], sName, sFeatureId);
}

zelString CurrencyAudioMapType::Getlanguage() {
    return m_language;
}

void CurrencyAudioMapType::Setlanguage(LPCTSTR szNew) {
    m_language = szNew;
}

bool CurrencyAudioMapType::AutoFillTypeInfo() {
    return true;
}

void CurrencyAudioMapType::AddCurrencyAudioKeys(XMLDataWrapper* pData, XalanNode* spNode, const zelString& sName) {
    Framework::AddKeyed(*this, s_Rows[0], pData, spNode, sName, __LINE__);
}

void CurrencyAudioMapType::ClearCurrencyAudioKeys() {
    Framework::ClearKeyed(m_MapCurrencyAudioKeysList, m_CurrencyAudioKeysList);
}
