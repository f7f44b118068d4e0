// Generated from LongNames.xsd; do not edit. Regenerate with the target "generate".
#include "FrameworkDataContainers/AContainerWithANameOfSomeLengthType.h"

#include "Framework/FrameworkDataContainers/Walks/Lists.h"
#include "Framework/FrameworkDataContainers/Walks/Walks.h"

// clang-format off
constinit const Framework::FieldRow AContainerWithANameOfSomeLengthType::s_Rows[] = {
    Framework::KeyedList<AContainerWithANameOfSomeLengthType, &AContainerWithANameOfSomeLengthType::GetName, &AContainerWithANameOfSomeLengthType::AddAnEntryWithANameOfSomeLength, &AContainerWithANameOfSomeLengthType::ClearAnEntryWithANameOfSomeLength>("AnEntryWithANameOfSomeLength", "AContainerWithANameOfSomeLengthType", "Name", &AContainerWithANameOfSomeLengthType::m_MapAnEntryWithANameOfSomeLengthList, &AContainerWithANameOfSomeLengthType::m_AnEntryWithANameOfSomeLengthList),
    Framework::PlainList<AContainerWithANameOfSomeLengthType, &AContainerWithANameOfSomeLengthType::AddAlsoLong, &AContainerWithANameOfSomeLengthType::ClearAlsoLong>("AlsoLong", "AContainerWithANameOfSomeLengthType", &AContainerWithANameOfSomeLengthType::m_AlsoLongList),
    Framework::Attribute("Name", &AContainerWithANameOfSomeLengthType::m_Name),
};

constinit const Framework::FieldTable AContainerWithANameOfSomeLengthType::s_Table = {
    .className = "AContainerWithANameOfSomeLengthType",
    .elementName = "Long",
    .parent = nullptr,
    .isStructuralConfigLoader = false,
    .isRoot = false,
    .rows = s_Rows,
    .create = &Framework::CreateContainer<AContainerWithANameOfSomeLengthType>,
    .type = &typeid(AContainerWithANameOfSomeLengthType),
    .autoFill = Framework::ToBase(&AContainerWithANameOfSomeLengthType::m_bAutoFillTypeInfo),
};
// clang-format on

AContainerWithANameOfSomeLengthType::AContainerWithANameOfSomeLengthType(bool bBuildFromScratch)
    : TypedDataContainer(bBuildFromScratch) {
    Framework::NameByClass(*this, s_Table);
}

AContainerWithANameOfSomeLengthType::~AContainerWithANameOfSomeLengthType() {
    AContainerWithANameOfSomeLengthType::ClearAnEntryWithANameOfSomeLength();
    AContainerWithANameOfSomeLengthType::ClearAlsoLong();
}

zelString AContainerWithANameOfSomeLengthType::GetBaseType() {
    return "AContainerWithANameOfSomeLengthType";
}

void AContainerWithANameOfSomeLengthType::GetProperties(ParameterList& pList) {
    Framework::Properties(*this, s_Table, pList);
}

bool AContainerWithANameOfSomeLengthType::MergeDataMembers(XMLDataWrapper* pMergeData, zelString sFeatureID) {
    return Framework::Merge(*this, s_Table, pMergeData, sFeatureID, __LINE__);
}

zelString AContainerWithANameOfSomeLengthType::GetAttributeList() {
    return Framework::AttributePredicate(*this, s_Table);
}

ParameterList* AContainerWithANameOfSomeLengthType::GetPLAttributeList() {
    return Framework::AttributeParameters(*this, s_Table);
}

TypedDataContainer* AContainerWithANameOfSomeLengthType::Clone() {
    return Framework::Clone(*this, s_Table);
}

bool AContainerWithANameOfSomeLengthType::DumpMergeContents(const zelString& sParentQuery,
                                                            FullFunctionXMLDataWrapper* pOutput, int QueryPos,
                                                            bool bIncludeMergeAttributes) {
    return Framework::DumpByQuery(*this, s_Table, sParentQuery, pOutput, QueryPos, bIncludeMergeAttributes);
}

bool AContainerWithANameOfSomeLengthType::DumpMergeContentsII(DOMNode* pParentNode, FullFunctionXMLDataWrapper* pOutput,
                                                              DOMNode*& pPassedCurrent, bool bIncludeMergeAttributes) {
    return Framework::DumpByNode(*this, s_Table, pParentNode, pOutput, pPassedCurrent, bIncludeMergeAttributes);
}

bool AContainerWithANameOfSomeLengthType::UpdateContainedData() {
    return Framework::Update(*this, s_Table);
}

bool AContainerWithANameOfSomeLengthType::PopulateDataMembers(XalanNode* pNode) {
    return Framework::Populate(*this, s_Table, pNode);
}

void AContainerWithANameOfSomeLengthType::ResetDataMembers() {
    Framework::Reset(*this, s_Table);
}

int AContainerWithANameOfSomeLengthType::GetAnEntryWithANameOfSomeLengthLength() {
    return Framework::ListLength(m_AnEntryWithANameOfSomeLengthList);
}

AContainerWithANameOfSomeLengthType* AContainerWithANameOfSomeLengthType::GetAnEntryWithANameOfSomeLength(int Index) {
    return static_cast<AContainerWithANameOfSomeLengthType*>(
        Framework::EntryAt(m_AnEntryWithANameOfSomeLengthList, Index));
}

AContainerWithANameOfSomeLengthType*
AContainerWithANameOfSomeLengthType::GetAnEntryWithANameOfSomeLength(const zelString& sName) {
    return static_cast<AContainerWithANameOfSomeLengthType*>(
        Framework::EntryByKey(m_MapAnEntryWithANameOfSomeLengthList, sName));
}

void AContainerWithANameOfSomeLengthType::AddNewAnEntryWithANameOfSomeLength(AContainerWithANameOfSomeLengthType* szNew,
                                                                             const zelString& sName) {
    Framework::AddNewKeyed(m_MapAnEntryWithANameOfSomeLengthList, m_AnEntryWithANameOfSomeLengthList, szNew, sName);
}

void AContainerWithANameOfSomeLengthType::RemoveAnEntryWithANameOfSomeLength(const zelString& sName,
                                                                             const zelString& sFeatureId) {
    Framework::RemoveKeyed(*this, s_Rows[0], sName, sFeatureId);
}

int AContainerWithANameOfSomeLengthType::GetAlsoLongLength() {
    return Framework::ListLength(m_AlsoLongList);
}

AContainerWithANameOfSomeLengthType* AContainerWithANameOfSomeLengthType::GetAlsoLong(int Index) {
    return static_cast<AContainerWithANameOfSomeLengthType*>(Framework::GrowTo(*this, s_Rows[1], Index));
}

void AContainerWithANameOfSomeLengthType::AddNewAlsoLong(AContainerWithANameOfSomeLengthType* szNew) {
    Framework::AddNewPlain(m_AlsoLongList, szNew);
}

zelString AContainerWithANameOfSomeLengthType::GetName() {
    return m_Name;
}

void AContainerWithANameOfSomeLengthType::SetName(LPCTSTR szNew) {
    m_Name = szNew;
}

bool AContainerWithANameOfSomeLengthType::AutoFillTypeInfo() {
    return true;
}

void AContainerWithANameOfSomeLengthType::AddAnEntryWithANameOfSomeLength(XMLDataWrapper* pData, XalanNode* spNode,
                                                                          const zelString& sName) {
    Framework::AddKeyed(*this, s_Rows[0], pData, spNode, sName, __LINE__);
}

void AContainerWithANameOfSomeLengthType::ClearAnEntryWithANameOfSomeLength() {
    Framework::ClearKeyed(m_MapAnEntryWithANameOfSomeLengthList, m_AnEntryWithANameOfSomeLengthList);
}

void AContainerWithANameOfSomeLengthType::AddAlsoLong(XMLDataWrapper* pData, XalanNode* spNode) {
    Framework::AddPlain(*this, s_Rows[1], pData, spNode);
}

void AContainerWithANameOfSomeLengthType::ClearAlsoLong() {
    Framework::ClearPlain(m_AlsoLongList);
}
