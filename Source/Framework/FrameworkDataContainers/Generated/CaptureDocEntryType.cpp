// Generated from CaptureDoc.xsd; do not edit. Regenerate with the target "generate".
#include "FrameworkDataContainers/CaptureDocEntryType.h"

#include "Framework/FrameworkDataContainers/Walks/Lists.h"
#include "Framework/FrameworkDataContainers/Walks/Walks.h"

// clang-format off
constinit const Framework::FieldRow CaptureDocEntryType::s_Rows[] = {
    Framework::Element("Msg", &CaptureDocEntryType::m_Msg),
    Framework::Element("Time", &CaptureDocEntryType::m_Time),
    Framework::Element("File", &CaptureDocEntryType::m_File),
    Framework::Element("SubSystem", &CaptureDocEntryType::m_SubSystem),
    Framework::Element("UniqueName", &CaptureDocEntryType::m_UniqueName),
    Framework::Element("Class", &CaptureDocEntryType::m_Class),
    Framework::Element("Line", &CaptureDocEntryType::m_Line),
    Framework::EnumElement<&CaptureDocEntryType::m_Level>("Level", "CaptureLevelType"),
};

constinit const Framework::FieldTable CaptureDocEntryType::s_Table = {
    .className = "CaptureDocEntryType",
    .elementName = "CaptureDoc",
    .parent = nullptr,
    .isStructuralConfigLoader = false,
    .isRoot = false,
    .rows = s_Rows,
    .create = &Framework::CreateContainer<CaptureDocEntryType>,
    .type = &typeid(CaptureDocEntryType),
    .autoFill = Framework::ToBase(&CaptureDocEntryType::m_bAutoFillTypeInfo),
};
// clang-format on

CaptureDocEntryType::CaptureDocEntryType(bool bBuildFromScratch) : TypedDataContainer(bBuildFromScratch) {
    Framework::NameByClass(*this, s_Table);
}

CaptureDocEntryType::~CaptureDocEntryType() {}

zelString CaptureDocEntryType::GetBaseType() {
    return "CaptureDocEntryType";
}

void CaptureDocEntryType::GetProperties(ParameterList& pList) {
    Framework::Properties(*this, s_Table, pList);
}

bool CaptureDocEntryType::MergeDataMembers(XMLDataWrapper* pMergeData, zelString sFeatureID) {
    return Framework::Merge(*this, s_Table, pMergeData, sFeatureID, __LINE__);
}

zelString CaptureDocEntryType::GetAttributeList() {
    return Framework::AttributePredicate(*this, s_Table);
}

ParameterList* CaptureDocEntryType::GetPLAttributeList() {
    return Framework::AttributeParameters(*this, s_Table);
}

TypedDataContainer* CaptureDocEntryType::Clone() {
    return Framework::Clone(*this, s_Table);
}

bool CaptureDocEntryType::DumpMergeContents(const zelString& sParentQuery, FullFunctionXMLDataWrapper* pOutput,
                                            int QueryPos, bool bIncludeMergeAttributes) {
    return Framework::DumpByQuery(*this, s_Table, sParentQuery, pOutput, QueryPos, bIncludeMergeAttributes);
}

bool CaptureDocEntryType::DumpMergeContentsII(DOMNode* pParentNode, FullFunctionXMLDataWrapper* pOutput,
                                              DOMNode*& pPassedCurrent, bool bIncludeMergeAttributes) {
    return Framework::DumpByNode(*this, s_Table, pParentNode, pOutput, pPassedCurrent, bIncludeMergeAttributes);
}

bool CaptureDocEntryType::UpdateContainedData() {
    return Framework::Update(*this, s_Table);
}

bool CaptureDocEntryType::PopulateDataMembers(XalanNode* pNode) {
    return Framework::Populate(*this, s_Table, pNode);
}

void CaptureDocEntryType::ResetDataMembers() {
    Framework::Reset(*this, s_Table);
}

zelString CaptureDocEntryType::GetMsg() {
    return m_Msg;
}

void CaptureDocEntryType::SetMsg(LPCTSTR szNew) {
    m_Msg = szNew;
}

zelString CaptureDocEntryType::GetTime() {
    return m_Time;
}

void CaptureDocEntryType::SetTime(LPCTSTR szNew) {
    m_Time = szNew;
}

zelString CaptureDocEntryType::GetFile() {
    return m_File;
}

void CaptureDocEntryType::SetFile(LPCTSTR szNew) {
    m_File = szNew;
}

zelString CaptureDocEntryType::GetSubSystem() {
    return m_SubSystem;
}

void CaptureDocEntryType::SetSubSystem(LPCTSTR szNew) {
    m_SubSystem = szNew;
}

zelString CaptureDocEntryType::GetUniqueName() {
    return m_UniqueName;
}

void CaptureDocEntryType::SetUniqueName(LPCTSTR szNew) {
    m_UniqueName = szNew;
}

zelString CaptureDocEntryType::GetClass() {
    return m_Class;
}

void CaptureDocEntryType::SetClass(LPCTSTR szNew) {
    m_Class = szNew;
}

zelString CaptureDocEntryType::GetLine() {
    return m_Line;
}

void CaptureDocEntryType::SetLine(LPCTSTR szNew) {
    m_Line = szNew;
}

CaptureLevelType CaptureDocEntryType::GetLevel() {
    return m_Level;
}

void CaptureDocEntryType::SetLevel(CaptureLevelType szNew) {
    m_Level = szNew;
}

bool CaptureDocEntryType::AutoFillTypeInfo() {
    return true;
}
