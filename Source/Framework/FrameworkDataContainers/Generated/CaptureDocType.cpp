// Generated from CaptureDoc.xsd; do not edit. Regenerate with the target "generate".
#include "FrameworkDataContainers/CaptureDocType.h"

#include "Framework/FrameworkDataContainers/Walks/Lists.h"
#include "Framework/FrameworkDataContainers/Walks/Walks.h"
#include "FrameworkDataContainers/CaptureDocEntryType.h"

// clang-format off
constinit const Framework::FieldRow CaptureDocType::s_Rows[] = {
    Framework::PlainList<CaptureDocEntryType, &CaptureDocType::AddCapture, &CaptureDocType::ClearCapture>("Capture", "CaptureDocEntryType", &CaptureDocType::m_CaptureList),
};

constinit const Framework::FieldTable CaptureDocType::s_Table = {
    .className = "CaptureDocType",
    .elementName = "CaptureDoc",
    .parent = nullptr,
    .isStructuralConfigLoader = false,
    .isRoot = true,
    .rows = s_Rows,
    .create = &Framework::CreateContainer<CaptureDocType>,
    .type = &typeid(CaptureDocType),
    .autoFill = Framework::ToBase(&CaptureDocType::m_bAutoFillTypeInfo),
};
// clang-format on

CaptureDocType::CaptureDocType(bool bBuildFromScratch) : TypedDataContainer(bBuildFromScratch) {
    Framework::NameByClass(*this, s_Table);
}

CaptureDocType::~CaptureDocType() {
    CaptureDocType::ClearCapture();
}

zelString CaptureDocType::GetBaseType() {
    return "CaptureDocType";
}

void CaptureDocType::GetProperties(ParameterList& pList) {
    Framework::Properties(*this, s_Table, pList);
}

bool CaptureDocType::MergeDataMembers(XMLDataWrapper* pMergeData, zelString sFeatureID) {
    return Framework::Merge(*this, s_Table, pMergeData, sFeatureID, __LINE__);
}

zelString CaptureDocType::GetAttributeList() {
    return Framework::AttributePredicate(*this, s_Table);
}

ParameterList* CaptureDocType::GetPLAttributeList() {
    return Framework::AttributeParameters(*this, s_Table);
}

TypedDataContainer* CaptureDocType::Clone() {
    return Framework::Clone(*this, s_Table);
}

bool CaptureDocType::DumpMergeContents(const zelString& sParentQuery, FullFunctionXMLDataWrapper* pOutput, int QueryPos,
                                       bool bIncludeMergeAttributes) {
    return Framework::DumpByQuery(*this, s_Table, sParentQuery, pOutput, QueryPos, bIncludeMergeAttributes);
}

bool CaptureDocType::DumpMergeContentsII(DOMNode* pParentNode, FullFunctionXMLDataWrapper* pOutput,
                                         DOMNode*& pPassedCurrent, bool bIncludeMergeAttributes) {
    return Framework::DumpByNode(*this, s_Table, pParentNode, pOutput, pPassedCurrent, bIncludeMergeAttributes);
}

bool CaptureDocType::UpdateContainedData() {
    return Framework::Update(*this, s_Table);
}

bool CaptureDocType::PopulateDataMembers(XalanNode* pNode) {
    return Framework::Populate(*this, s_Table, pNode);
}

void CaptureDocType::ResetDataMembers() {
    Framework::Reset(*this, s_Table);
}

int CaptureDocType::GetCaptureLength() {
    return Framework::ListLength(m_CaptureList);
}

CaptureDocEntryType* CaptureDocType::GetCapture(int Index) {
    return static_cast<CaptureDocEntryType*>(Framework::GrowTo(*this, s_Rows[0], Index));
}

void CaptureDocType::AddNewCapture(CaptureDocEntryType* szNew) {
    Framework::AddNewPlain(m_CaptureList, szNew);
}

bool CaptureDocType::AutoFillTypeInfo() {
    return true;
}

void CaptureDocType::AddCapture(XMLDataWrapper* pData, XalanNode* spNode) {
    Framework::AddPlain(*this, s_Rows[0], pData, spNode);
}

void CaptureDocType::ClearCapture() {
    Framework::ClearPlain(m_CaptureList);
}
