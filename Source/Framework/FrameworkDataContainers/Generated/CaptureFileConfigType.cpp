// Generated from CaptureConfig.xsd; do not edit. Regenerate with the target "generate".
#include "FrameworkDataContainers/CaptureFileConfigType.h"

#include "Framework/FrameworkDataContainers/Walks/Lists.h"
#include "Framework/FrameworkDataContainers/Walks/Walks.h"

// clang-format off
constinit const Framework::FieldRow CaptureFileConfigType::s_Rows[] = {
    Framework::Element("Name", &CaptureFileConfigType::m_Name),
    Framework::Element("Output", &CaptureFileConfigType::m_Output),
    Framework::Element("MaxLines", &CaptureFileConfigType::m_MaxLines, 10000),
    Framework::Element("MaxFilesPerTransaction", &CaptureFileConfigType::m_MaxFilesPerTransaction, 100),
    Framework::Element("TransactionsOnDisk", &CaptureFileConfigType::m_TransactionsOnDisk, 5),
    Framework::Element("XmlOutputFormat", &CaptureFileConfigType::m_XmlOutputFormat, true),
    Framework::Element("RootElement", &CaptureFileConfigType::m_RootElement, "CaptureDoc"),
};

constinit const Framework::FieldTable CaptureFileConfigType::s_Table = {
    .className = "CaptureFileConfigType",
    .elementName = "File",
    .parent = nullptr,
    .isStructuralConfigLoader = false,
    .isRoot = false,
    .rows = s_Rows,
    .create = &Framework::CreateContainer<CaptureFileConfigType>,
    .type = &typeid(CaptureFileConfigType),
    .autoFill = Framework::ToBase(&CaptureFileConfigType::m_bAutoFillTypeInfo),
};
// clang-format on

CaptureFileConfigType::CaptureFileConfigType(bool bBuildFromScratch) : TypedDataContainer(bBuildFromScratch) {
    Framework::NameByClass(*this, s_Table);
}

CaptureFileConfigType::~CaptureFileConfigType() {}

zelString CaptureFileConfigType::GetBaseType() {
    return "CaptureFileConfigType";
}

void CaptureFileConfigType::GetProperties(ParameterList& pList) {
    Framework::Properties(*this, s_Table, pList);
}

bool CaptureFileConfigType::MergeDataMembers(XMLDataWrapper* pMergeData, zelString sFeatureID) {
    return Framework::Merge(*this, s_Table, pMergeData, sFeatureID, __LINE__);
}

zelString CaptureFileConfigType::GetAttributeList() {
    return Framework::AttributePredicate(*this, s_Table);
}

ParameterList* CaptureFileConfigType::GetPLAttributeList() {
    return Framework::AttributeParameters(*this, s_Table);
}

TypedDataContainer* CaptureFileConfigType::Clone() {
    return Framework::Clone(*this, s_Table);
}

bool CaptureFileConfigType::DumpMergeContents(const zelString& sParentQuery, FullFunctionXMLDataWrapper* pOutput,
                                              int QueryPos, bool bIncludeMergeAttributes) {
    return Framework::DumpByQuery(*this, s_Table, sParentQuery, pOutput, QueryPos, bIncludeMergeAttributes);
}

bool CaptureFileConfigType::DumpMergeContentsII(DOMNode* pParentNode, FullFunctionXMLDataWrapper* pOutput,
                                                DOMNode*& pPassedCurrent, bool bIncludeMergeAttributes) {
    return Framework::DumpByNode(*this, s_Table, pParentNode, pOutput, pPassedCurrent, bIncludeMergeAttributes);
}

bool CaptureFileConfigType::UpdateContainedData() {
    return Framework::Update(*this, s_Table);
}

bool CaptureFileConfigType::PopulateDataMembers(XalanNode* pNode) {
    return Framework::Populate(*this, s_Table, pNode);
}

void CaptureFileConfigType::ResetDataMembers() {
    Framework::Reset(*this, s_Table);
}

zelString CaptureFileConfigType::GetName() {
    return m_Name;
}

void CaptureFileConfigType::SetName(LPCTSTR szNew) {
    m_Name = szNew;
}

zelString CaptureFileConfigType::GetOutput() {
    return m_Output;
}

void CaptureFileConfigType::SetOutput(LPCTSTR szNew) {
    m_Output = szNew;
}

int CaptureFileConfigType::GetMaxLines() {
    return m_MaxLines;
}

void CaptureFileConfigType::SetMaxLines(int szNew) {
    m_MaxLines = szNew;
}

int CaptureFileConfigType::GetMaxFilesPerTransaction() {
    return m_MaxFilesPerTransaction;
}

void CaptureFileConfigType::SetMaxFilesPerTransaction(int szNew) {
    m_MaxFilesPerTransaction = szNew;
}

int CaptureFileConfigType::GetTransactionsOnDisk() {
    return m_TransactionsOnDisk;
}

void CaptureFileConfigType::SetTransactionsOnDisk(int szNew) {
    m_TransactionsOnDisk = szNew;
}

bool CaptureFileConfigType::GetXmlOutputFormat() {
    return m_XmlOutputFormat;
}

void CaptureFileConfigType::SetXmlOutputFormat(bool szNew) {
    m_XmlOutputFormat = szNew;
}

zelString CaptureFileConfigType::GetRootElement() {
    return m_RootElement;
}

void CaptureFileConfigType::SetRootElement(LPCTSTR szNew) {
    m_RootElement = szNew;
}

bool CaptureFileConfigType::AutoFillTypeInfo() {
    return true;
}
