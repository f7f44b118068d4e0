// Generated from Parents.xsd; do not edit. Regenerate with the target "generate".
#include "FrameworkDataContainers/BasicType.h"

#include "Framework/FrameworkDataContainers/Walks/Lists.h"
#include "Framework/FrameworkDataContainers/Walks/Walks.h"

#include <utility>

// clang-format off
constinit const Framework::FieldRow BasicType::s_Rows[] = {
    Framework::PlainStrings<&BasicType::AddNote, &BasicType::ClearNote>("Note", &BasicType::m_NoteList),
    Framework::Attribute("Name", &BasicType::m_Name),
};

constinit const Framework::FieldTable BasicType::s_Table = {
    .className = "BasicType",
    .elementName = "Basic",
    .parent = nullptr,
    .isStructuralConfigLoader = true,
    .isRoot = false,
    .rows = s_Rows,
    .create = &Framework::CreateContainer<BasicType>,
    .type = &typeid(BasicType),
    .autoFill = Framework::ToBase(&BasicType::m_bAutoFillTypeInfo),
};
// clang-format on

BasicType::BasicType(bool bBuildFromScratch) : StructuralConfigLoader(bBuildFromScratch) {
    Framework::NameByClass(*this, s_Table);
}

BasicType::~BasicType() {
    BasicType::ClearNote();
}

zelString BasicType::GetBaseType() {
    return "BasicType";
}

void BasicType::GetProperties(ParameterList& pList) {
    Framework::Properties(*this, s_Table, pList);
}

bool BasicType::MergeDataMembers(XMLDataWrapper* pMergeData, zelString sFeatureID) {
    return Framework::Merge(*this, s_Table, pMergeData, sFeatureID, __LINE__);
}

zelString BasicType::GetAttributeList() {
    return Framework::AttributePredicate(*this, s_Table);
}

ParameterList* BasicType::GetPLAttributeList() {
    return Framework::AttributeParameters(*this, s_Table);
}

TypedDataContainer* BasicType::Clone() {
    return Framework::Clone(*this, s_Table);
}

bool BasicType::DumpMergeContents(const zelString& sParentQuery, FullFunctionXMLDataWrapper* pOutput, int QueryPos,
                                  bool bIncludeMergeAttributes) {
    return Framework::DumpByQuery(*this, s_Table, sParentQuery, pOutput, QueryPos, bIncludeMergeAttributes);
}

bool BasicType::DumpMergeContentsII(DOMNode* pParentNode, FullFunctionXMLDataWrapper* pOutput, DOMNode*& pPassedCurrent,
                                    bool bIncludeMergeAttributes) {
    return Framework::DumpByNode(*this, s_Table, pParentNode, pOutput, pPassedCurrent, bIncludeMergeAttributes);
}

bool BasicType::UpdateContainedData() {
    return Framework::Update(*this, s_Table);
}

bool BasicType::PopulateDataMembers(XalanNode* pNode) {
    return Framework::Populate(*this, s_Table, pNode);
}

void BasicType::ResetDataMembers() {
    Framework::Reset(*this, s_Table);
}

int BasicType::GetNoteLength() {
    return Framework::ListLength(m_NoteList);
}

zelString BasicType::GetNote(int Index) {
    return Framework::GrowTo(m_NoteList, Index);
}

void BasicType::AddNewNote(LPCTSTR szNew) {
    m_NoteList.emplace_back(szNew);
}

zelString BasicType::GetName() {
    return m_Name;
}

void BasicType::SetName(LPCTSTR szNew) {
    m_Name = szNew;
}

bool BasicType::AutoFillTypeInfo() {
    return true;
}

void BasicType::AddNote(zelString pData) {
    m_NoteList.push_back(std::move(pData));
}

void BasicType::ClearNote() {
    m_NoteList.clear();
}
