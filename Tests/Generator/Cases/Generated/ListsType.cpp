// Generated from Lists.xsd; do not edit. Regenerate with the target "generate".
#include "FrameworkDataContainers/ListsType.h"

#include "Framework/FrameworkDataContainers/Walks/Lists.h"
#include "Framework/FrameworkDataContainers/Walks/Walks.h"
#include "FrameworkDataContainers/BasicType.h"
#include "FrameworkDataContainers/DerivedType.h"
#include "FrameworkDataContainers/EmptyType.h"

#include <utility>

// clang-format off
constinit const Framework::FieldRow ListsType::s_Rows[] = {
    Framework::KeyedStrings<&ListsType::AddNote, &ListsType::ClearNote>("Note", "Index", false, &ListsType::m_MapNoteList, &ListsType::m_NoteList),
    Framework::KeyedStrings<&ListsType::AddLine, &ListsType::ClearLine>("Line", "Index", true, &ListsType::m_MapLineList, &ListsType::m_LineList),
    Framework::KeyedList<DerivedType, &DerivedType::GetName, &ListsType::AddByName, &ListsType::ClearByName>("ByName", "DerivedType", "Name", &ListsType::m_MapByNameList, &ListsType::m_ByNameList),
    Framework::Child<&ListsType::m_Child>("Child", "BasicType"),
    Framework::KeyedList<DerivedType, &DerivedType::GetNumber, &ListsType::AddByNumber, &ListsType::ClearByNumber>("ByNumber", "DerivedType", "Number", &ListsType::m_MapByNumberList, &ListsType::m_ByNumberList),
    Framework::PlainStrings<&ListsType::AddWord, &ListsType::ClearWord>("Word", &ListsType::m_WordList),
    Framework::PlainEnums<ShadeType, &ListsType::AddShade, &ListsType::ClearShade>("Shade", "ShadeType", &ListsType::m_ShadeList),
    Framework::PlainList<EmptyType, &ListsType::AddItem, &ListsType::ClearItem>("Item", "EmptyType", &ListsType::m_ItemList),
};

constinit const Framework::FieldTable ListsType::s_Table = {
    .className = "ListsType",
    .elementName = "Lists",
    .parent = nullptr,
    .isStructuralConfigLoader = false,
    .isRoot = true,
    .rows = s_Rows,
    .create = &Framework::CreateContainer<ListsType>,
    .type = &typeid(ListsType),
    .autoFill = Framework::ToBase(&ListsType::m_bAutoFillTypeInfo),
};
// clang-format on

ListsType::ListsType(bool bBuildFromScratch) : TypedDataContainer(bBuildFromScratch) {
    Framework::NameByClass(*this, s_Table);
}

ListsType::~ListsType() {
    ListsType::ClearNote();
    ListsType::ClearLine();
    ListsType::ClearByName();
    delete m_Child;
    ListsType::ClearByNumber();
    ListsType::ClearWord();
    ListsType::ClearShade();
    ListsType::ClearItem();
}

zelString ListsType::GetBaseType() {
    return "ListsType";
}

void ListsType::GetProperties(ParameterList& pList) {
    Framework::Properties(*this, s_Table, pList);
}

bool ListsType::MergeDataMembers(XMLDataWrapper* pMergeData, zelString sFeatureID) {
    return Framework::Merge(*this, s_Table, pMergeData, sFeatureID, __LINE__);
}

zelString ListsType::GetAttributeList() {
    return Framework::AttributePredicate(*this, s_Table);
}

ParameterList* ListsType::GetPLAttributeList() {
    return Framework::AttributeParameters(*this, s_Table);
}

TypedDataContainer* ListsType::Clone() {
    return Framework::Clone(*this, s_Table);
}

bool ListsType::DumpMergeContents(const zelString& sParentQuery, FullFunctionXMLDataWrapper* pOutput, int QueryPos,
                                  bool bIncludeMergeAttributes) {
    return Framework::DumpByQuery(*this, s_Table, sParentQuery, pOutput, QueryPos, bIncludeMergeAttributes);
}

bool ListsType::DumpMergeContentsII(DOMNode* pParentNode, FullFunctionXMLDataWrapper* pOutput, DOMNode*& pPassedCurrent,
                                    bool bIncludeMergeAttributes) {
    return Framework::DumpByNode(*this, s_Table, pParentNode, pOutput, pPassedCurrent, bIncludeMergeAttributes);
}

bool ListsType::UpdateContainedData() {
    return Framework::Update(*this, s_Table);
}

bool ListsType::PopulateDataMembers(XalanNode* pNode) {
    return Framework::Populate(*this, s_Table, pNode);
}

void ListsType::ResetDataMembers() {
    Framework::Reset(*this, s_Table);
}

int ListsType::GetNoteLength() {
    return Framework::ListLength(m_NoteList);
}

zelString ListsType::GetNote(int Index) {
    return Framework::TextAt(m_NoteList, Index);
}

zelString ListsType::GetNote(const zelString& sName) {
    return Framework::TextByKey(m_MapNoteList, sName);
}

int ListsType::GetLineLength() {
    return Framework::ListLength(m_LineList);
}

zelString ListsType::GetLine(int Index) {
    return Framework::TextAt(m_LineList, Index);
}

zelString ListsType::GetLine(const zelString& sName) {
    return Framework::TextByKey(m_MapLineList, sName);
}

int ListsType::GetByNameLength() {
    return Framework::ListLength(m_ByNameList);
}

DerivedType* ListsType::GetByName(int Index) {
    return static_cast<DerivedType*>(Framework::EntryAt(m_ByNameList, Index));
}

DerivedType* ListsType::GetByName(const zelString& sName) {
    return static_cast<DerivedType*>(Framework::EntryByKey(m_MapByNameList, sName));
}

void ListsType::AddNewByName(DerivedType* szNew, const zelString& sName) {
    Framework::AddNewKeyed(m_MapByNameList, m_ByNameList, szNew, sName);
}

void ListsType::RemoveByName(const zelString& sName, const zelString& sFeatureId) {
    Framework::RemoveKeyed(*this, s_Rows[2], sName, sFeatureId);
}

BasicType* ListsType::GetChild() {
    return m_Child;
}

void ListsType::SetChild(BasicType* szNew) {
    Framework::ReplaceChild(m_Child, szNew);
}

int ListsType::GetByNumberLength() {
    return Framework::ListLength(m_ByNumberList);
}

DerivedType* ListsType::GetByNumber(int Index) {
    return static_cast<DerivedType*>(Framework::EntryAt(m_ByNumberList, Index));
}

DerivedType* ListsType::GetByNumber(const zelString& sName) {
    return static_cast<DerivedType*>(Framework::EntryByKey(m_MapByNumberList, sName));
}

void ListsType::AddNewByNumber(DerivedType* szNew, const zelString& sName) {
    Framework::AddNewKeyed(m_MapByNumberList, m_ByNumberList, szNew, sName);
}

void ListsType::RemoveByNumber(const zelString& sName, const zelString& sFeatureId) {
    Framework::RemoveKeyed(*this, s_Rows[4], sName, sFeatureId);
}

int ListsType::GetWordLength() {
    return Framework::ListLength(m_WordList);
}

zelString ListsType::GetWord(int Index) {
    return Framework::GrowTo(m_WordList, Index);
}

void ListsType::AddNewWord(LPCTSTR szNew) {
    m_WordList.emplace_back(szNew);
}

int ListsType::GetShadeLength() {
    return Framework::ListLength(m_ShadeList);
}

ShadeType* ListsType::GetShade(int Index) {
    return static_cast<ShadeType*>(Framework::GrowTo(m_ShadeList, s_Rows[6], Index));
}

void ListsType::AddNewShade(ShadeType* szNew) {
    Framework::AddNewWord(m_ShadeList, szNew);
}

int ListsType::GetItemLength() {
    return Framework::ListLength(m_ItemList);
}

EmptyType* ListsType::GetItem(int Index) {
    return static_cast<EmptyType*>(Framework::GrowTo(*this, s_Rows[7], Index));
}

void ListsType::AddNewItem(EmptyType* szNew) {
    Framework::AddNewPlain(m_ItemList, szNew);
}

bool ListsType::AutoFillTypeInfo() {
    return true;
}

void ListsType::AddNote(const zelString& pData, const zelString& sName) {
    Framework::AddKeyedText(*this, s_Rows[0], pData, sName, __LINE__);
}

void ListsType::ClearNote() {
    Framework::ClearKeyedTexts(m_MapNoteList, m_NoteList);
}

void ListsType::AddLine(const zelString& pData, const zelString& sName) {
    Framework::AddKeyedText(*this, s_Rows[1], pData, sName, __LINE__);
}

void ListsType::ClearLine() {
    Framework::ClearKeyedTexts(m_MapLineList, m_LineList);
}

void ListsType::AddByName(XMLDataWrapper* pData, XalanNode* spNode, const zelString& sName) {
    Framework::AddKeyed(*this, s_Rows[2], pData, spNode, sName, __LINE__);
}

void ListsType::ClearByName() {
    Framework::ClearKeyed(m_MapByNameList, m_ByNameList);
}

void ListsType::AddByNumber(XMLDataWrapper* pData, XalanNode* spNode, const zelString& sName) {
    Framework::AddKeyed(*this, s_Rows[4], pData, spNode, sName, __LINE__);
}

void ListsType::ClearByNumber() {
    Framework::ClearKeyed(m_MapByNumberList, m_ByNumberList);
}

void ListsType::AddWord(zelString pData) {
    m_WordList.push_back(std::move(pData));
}

void ListsType::ClearWord() {
    m_WordList.clear();
}

void ListsType::AddShade(zelString pData) {
    Framework::AddWord(m_ShadeList, s_Rows[6], pData);
}

void ListsType::ClearShade() {
    Framework::ClearWords(m_ShadeList);
}

void ListsType::AddItem(XMLDataWrapper* pData, XalanNode* spNode) {
    Framework::AddPlain(*this, s_Rows[7], pData, spNode);
}

void ListsType::ClearItem() {
    Framework::ClearPlain(m_ItemList);
}
