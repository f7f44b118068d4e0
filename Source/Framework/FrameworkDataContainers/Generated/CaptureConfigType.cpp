// Generated from CaptureConfig.xsd; do not edit. Regenerate with the target "generate".
#include "FrameworkDataContainers/CaptureConfigType.h"

#include "Framework/FrameworkDataContainers/Walks/Lists.h"
#include "Framework/FrameworkDataContainers/Walks/Walks.h"
#include "FrameworkDataContainers/CaptureHandlerType.h"
#include "FrameworkDataContainers/FilesListType.h"
#include "FrameworkDataContainers/RulesListType.h"

// clang-format off
constinit const Framework::FieldRow CaptureConfigType::s_Rows[] = {
    Framework::Element("WriteBufferSize", &CaptureConfigType::m_WriteBufferSize, 100),
    Framework::Element("FlushTimerDelay", &CaptureConfigType::m_FlushTimerDelay, 3000),
    Framework::Element("MaxTransactions", &CaptureConfigType::m_MaxTransactions, 100),
    Framework::Element("DuplicateExtractTimeout", &CaptureConfigType::m_DuplicateExtractTimeout, 60000),
    Framework::Element("ExtractOnErrorOptional", &CaptureConfigType::m_ExtractOnErrorOptional),
    Framework::Element("AlternateCaptureFileName", &CaptureConfigType::m_AlternateCaptureFileName),
    Framework::Child<&CaptureConfigType::m_CaptureHandler>("CaptureHandler", "CaptureHandlerType"),
    Framework::Child<&CaptureConfigType::m_Files>("Files", "FilesListType"),
    Framework::Child<&CaptureConfigType::m_Rules>("Rules", "RulesListType"),
};

constinit const Framework::FieldTable CaptureConfigType::s_Table = {
    .className = "CaptureConfigType",
    .elementName = "CaptureConfig",
    .parent = nullptr,
    .isStructuralConfigLoader = true,
    .isRoot = true,
    .rows = s_Rows,
    .create = &Framework::CreateContainer<CaptureConfigType>,
    .type = &typeid(CaptureConfigType),
    .autoFill = Framework::ToBase(&CaptureConfigType::m_bAutoFillTypeInfo),
};
// clang-format on

CaptureConfigType::CaptureConfigType(bool bBuildFromScratch) : StructuralConfigLoader(bBuildFromScratch) {
    Framework::NameByClass(*this, s_Table);
}

CaptureConfigType::~CaptureConfigType() {
    delete m_CaptureHandler;
    delete m_Files;
    delete m_Rules;
}

zelString CaptureConfigType::GetBaseType() {
    return "CaptureConfigType";
}

void CaptureConfigType::GetProperties(ParameterList& pList) {
    Framework::Properties(*this, s_Table, pList);
}

bool CaptureConfigType::MergeDataMembers(XMLDataWrapper* pMergeData, zelString sFeatureID) {
    return Framework::Merge(*this, s_Table, pMergeData, sFeatureID, __LINE__);
}

zelString CaptureConfigType::GetAttributeList() {
    return Framework::AttributePredicate(*this, s_Table);
}

ParameterList* CaptureConfigType::GetPLAttributeList() {
    return Framework::AttributeParameters(*this, s_Table);
}

TypedDataContainer* CaptureConfigType::Clone() {
    return Framework::Clone(*this, s_Table);
}

bool CaptureConfigType::DumpMergeContents(const zelString& sParentQuery, FullFunctionXMLDataWrapper* pOutput,
                                          int QueryPos, bool bIncludeMergeAttributes) {
    return Framework::DumpByQuery(*this, s_Table, sParentQuery, pOutput, QueryPos, bIncludeMergeAttributes);
}

bool CaptureConfigType::DumpMergeContentsII(DOMNode* pParentNode, FullFunctionXMLDataWrapper* pOutput,
                                            DOMNode*& pPassedCurrent, bool bIncludeMergeAttributes) {
    return Framework::DumpByNode(*this, s_Table, pParentNode, pOutput, pPassedCurrent, bIncludeMergeAttributes);
}

bool CaptureConfigType::UpdateContainedData() {
    return Framework::Update(*this, s_Table);
}

bool CaptureConfigType::PopulateDataMembers(XalanNode* pNode) {
    return Framework::Populate(*this, s_Table, pNode);
}

void CaptureConfigType::ResetDataMembers() {
    Framework::Reset(*this, s_Table);
}

int CaptureConfigType::GetWriteBufferSize() {
    return m_WriteBufferSize;
}

void CaptureConfigType::SetWriteBufferSize(int szNew) {
    m_WriteBufferSize = szNew;
}

int CaptureConfigType::GetFlushTimerDelay() {
    return m_FlushTimerDelay;
}

void CaptureConfigType::SetFlushTimerDelay(int szNew) {
    m_FlushTimerDelay = szNew;
}

int CaptureConfigType::GetMaxTransactions() {
    return m_MaxTransactions;
}

void CaptureConfigType::SetMaxTransactions(int szNew) {
    m_MaxTransactions = szNew;
}

int CaptureConfigType::GetDuplicateExtractTimeout() {
    return m_DuplicateExtractTimeout;
}

void CaptureConfigType::SetDuplicateExtractTimeout(int szNew) {
    m_DuplicateExtractTimeout = szNew;
}

bool CaptureConfigType::GetExtractOnErrorOptional() {
    return m_ExtractOnErrorOptional;
}

void CaptureConfigType::SetExtractOnErrorOptional(bool szNew) {
    m_ExtractOnErrorOptional = szNew;
}

zelString CaptureConfigType::GetAlternateCaptureFileName() {
    return m_AlternateCaptureFileName;
}

void CaptureConfigType::SetAlternateCaptureFileName(LPCTSTR szNew) {
    m_AlternateCaptureFileName = szNew;
}

CaptureHandlerType* CaptureConfigType::GetCaptureHandler() {
    return m_CaptureHandler;
}

void CaptureConfigType::SetCaptureHandler(CaptureHandlerType* szNew) {
    Framework::ReplaceChild(m_CaptureHandler, szNew);
}

FilesListType* CaptureConfigType::GetFiles() {
    return m_Files;
}

void CaptureConfigType::SetFiles(FilesListType* szNew) {
    Framework::ReplaceChild(m_Files, szNew);
}

RulesListType* CaptureConfigType::GetRules() {
    return m_Rules;
}

void CaptureConfigType::SetRules(RulesListType* szNew) {
    Framework::ReplaceChild(m_Rules, szNew);
}

bool CaptureConfigType::AutoFillTypeInfo() {
    return true;
}
