// Generated from CaptureConfig.xsd; do not edit. Regenerate with the target "generate".
#include "FrameworkDataContainers/FilesListType.h"

#include "Framework/FrameworkDataContainers/Walks/Lists.h"
#include "Framework/FrameworkDataContainers/Walks/Walks.h"
#include "FrameworkDataContainers/CaptureFileConfigType.h"

// clang-format off
constinit const Framework::FieldRow FilesListType::s_Rows[] = {
    Framework::PlainList<CaptureFileConfigType, &FilesListType::AddFile, &FilesListType::ClearFile>("File", "CaptureFileConfigType", &FilesListType::m_FileList),
};

constinit const Framework::FieldTable FilesListType::s_Table = {
    .className = "FilesListType",
    .elementName = "Files",
    .parent = nullptr,
    .isStructuralConfigLoader = false,
    .isRoot = false,
    .rows = s_Rows,
    .create = &Framework::CreateContainer<FilesListType>,
    .type = &typeid(FilesListType),
    .autoFill = Framework::ToBase(&FilesListType::m_bAutoFillTypeInfo),
};
// clang-format on

FilesListType::FilesListType(bool bBuildFromScratch) : TypedDataContainer(bBuildFromScratch) {
    Framework::NameByClass(*this, s_Table);
}

FilesListType::~FilesListType() {
    FilesListType::ClearFile();
}

zelString FilesListType::GetBaseType() {
    return "FilesListType";
}

void FilesListType::GetProperties(ParameterList& pList) {
    Framework::Properties(*this, s_Table, pList);
}

bool FilesListType::MergeDataMembers(XMLDataWrapper* pMergeData, zelString sFeatureID) {
    return Framework::Merge(*this, s_Table, pMergeData, sFeatureID, __LINE__);
}

zelString FilesListType::GetAttributeList() {
    return Framework::AttributePredicate(*this, s_Table);
}

ParameterList* FilesListType::GetPLAttributeList() {
    return Framework::AttributeParameters(*this, s_Table);
}

TypedDataContainer* FilesListType::Clone() {
    return Framework::Clone(*this, s_Table);
}

bool FilesListType::DumpMergeContents(const zelString& sParentQuery, FullFunctionXMLDataWrapper* pOutput, int QueryPos,
                                      bool bIncludeMergeAttributes) {
    return Framework::DumpByQuery(*this, s_Table, sParentQuery, pOutput, QueryPos, bIncludeMergeAttributes);
}

bool FilesListType::DumpMergeContentsII(DOMNode* pParentNode, FullFunctionXMLDataWrapper* pOutput,
                                        DOMNode*& pPassedCurrent, bool bIncludeMergeAttributes) {
    return Framework::DumpByNode(*this, s_Table, pParentNode, pOutput, pPassedCurrent, bIncludeMergeAttributes);
}

bool FilesListType::UpdateContainedData() {
    return Framework::Update(*this, s_Table);
}

bool FilesListType::PopulateDataMembers(XalanNode* pNode) {
    return Framework::Populate(*this, s_Table, pNode);
}

void FilesListType::ResetDataMembers() {
    Framework::Reset(*this, s_Table);
}

int FilesListType::GetFileLength() {
    return Framework::ListLength(m_FileList);
}

CaptureFileConfigType* FilesListType::GetFile(int Index) {
    return static_cast<CaptureFileConfigType*>(Framework::GrowTo(*this, s_Rows[0], Index));
}

void FilesListType::AddNewFile(CaptureFileConfigType* szNew) {
    Framework::AddNewPlain(m_FileList, szNew);
}

bool FilesListType::AutoFillTypeInfo() {
    return true;
}

void FilesListType::AddFile(XMLDataWrapper* pData, XalanNode* spNode) {
    Framework::AddPlain(*this, s_Rows[0], pData, spNode);
}

void FilesListType::ClearFile() {
    Framework::ClearPlain(m_FileList);
}
