// Generated from StructureTransformDef.xsd; do not edit. Regenerate with the target "generate".
#include "FrameworkDataContainers/StructureDataType.h"

#include "Framework/FrameworkDataContainers/Walks/Lists.h"
#include "Framework/FrameworkDataContainers/Walks/Walks.h"

// clang-format off
constinit const Framework::FieldRow StructureDataType::s_Rows[] = {
    Framework::KeyedStrings<&StructureDataType::AddDoc, &StructureDataType::ClearDoc>("Doc", "Index", true, &StructureDataType::m_MapDocList, &StructureDataType::m_DocList),
    Framework::Element("Type", &StructureDataType::m_Type),
    Framework::Element("Size", &StructureDataType::m_Size),
    Framework::Element("DataType", &StructureDataType::m_DataType),
    Framework::Element("Default", &StructureDataType::m_Default),
    Framework::Element("CodePage", &StructureDataType::m_CodePage),
    Framework::Attribute("Name", &StructureDataType::m_Name),
    Framework::Attribute("Complex", &StructureDataType::m_Complex),
    Framework::Attribute("Enum", &StructureDataType::m_Enum),
};

constinit const Framework::FieldTable StructureDataType::s_Table = {
    .className = "StructureDataType",
    .elementName = "StructureData",
    .parent = nullptr,
    .isStructuralConfigLoader = false,
    .isRoot = false,
    .rows = s_Rows,
    .create = &Framework::CreateContainer<StructureDataType>,
    .type = &typeid(StructureDataType),
    .autoFill = Framework::ToBase(&StructureDataType::m_bAutoFillTypeInfo),
};
// clang-format on

StructureDataType::StructureDataType(bool bBuildFromScratch) : TypedDataContainer(bBuildFromScratch) {
    Framework::NameByClass(*this, s_Table);
}

StructureDataType::~StructureDataType() {
    StructureDataType::ClearDoc();
}

zelString StructureDataType::GetBaseType() {
    return "StructureDataType";
}

void StructureDataType::GetProperties(ParameterList& pList) {
    Framework::Properties(*this, s_Table, pList);
}

bool StructureDataType::MergeDataMembers(XMLDataWrapper* pMergeData, zelString sFeatureID) {
    return Framework::Merge(*this, s_Table, pMergeData, sFeatureID, __LINE__);
}

zelString StructureDataType::GetAttributeList() {
    return Framework::AttributePredicate(*this, s_Table);
}

ParameterList* StructureDataType::GetPLAttributeList() {
    return Framework::AttributeParameters(*this, s_Table);
}

TypedDataContainer* StructureDataType::Clone() {
    return Framework::Clone(*this, s_Table);
}

bool StructureDataType::DumpMergeContents(const zelString& sParentQuery, FullFunctionXMLDataWrapper* pOutput,
                                          int QueryPos, bool bIncludeMergeAttributes) {
    return Framework::DumpByQuery(*this, s_Table, sParentQuery, pOutput, QueryPos, bIncludeMergeAttributes);
}

bool StructureDataType::DumpMergeContentsII(DOMNode* pParentNode, FullFunctionXMLDataWrapper* pOutput,
                                            DOMNode*& pPassedCurrent, bool bIncludeMergeAttributes) {
    return Framework::DumpByNode(*this, s_Table, pParentNode, pOutput, pPassedCurrent, bIncludeMergeAttributes);
}

bool StructureDataType::UpdateContainedData() {
    return Framework::Update(*this, s_Table);
}

bool StructureDataType::PopulateDataMembers(XalanNode* pNode) {
    return Framework::Populate(*this, s_Table, pNode);
}

void StructureDataType::ResetDataMembers() {
    Framework::Reset(*this, s_Table);
}

int StructureDataType::GetDocLength() {
    return Framework::ListLength(m_DocList);
}

zelString StructureDataType::GetDoc(int Index) {
    return Framework::TextAt(m_DocList, Index);
}

zelString StructureDataType::GetDoc(const zelString& sName) {
    return Framework::TextByKey(m_MapDocList, sName);
}

zelString StructureDataType::GetType() {
    return m_Type;
}

void StructureDataType::SetType(LPCTSTR szNew) {
    m_Type = szNew;
}

int StructureDataType::GetSize() {
    return m_Size;
}

void StructureDataType::SetSize(int szNew) {
    m_Size = szNew;
}

zelString StructureDataType::GetDataType() {
    return m_DataType;
}

void StructureDataType::SetDataType(LPCTSTR szNew) {
    m_DataType = szNew;
}

zelString StructureDataType::GetDefault() {
    return m_Default;
}

void StructureDataType::SetDefault(LPCTSTR szNew) {
    m_Default = szNew;
}

zelString StructureDataType::GetCodePage() {
    return m_CodePage;
}

void StructureDataType::SetCodePage(LPCTSTR szNew) {
    m_CodePage = szNew;
}

zelString StructureDataType::GetName() {
    return m_Name;
}

void StructureDataType::SetName(LPCTSTR szNew) {
    m_Name = szNew;
}

bool StructureDataType::GetComplex() {
    return m_Complex;
}

void StructureDataType::SetComplex(bool szNew) {
    m_Complex = szNew;
}

bool StructureDataType::GetEnum() {
    return m_Enum;
}

void StructureDataType::SetEnum(bool szNew) {
    m_Enum = szNew;
}

bool StructureDataType::AutoFillTypeInfo() {
    return true;
}

void StructureDataType::AddDoc(const zelString& pData, const zelString& sName) {
    Framework::AddKeyedText(*this, s_Rows[0], pData, sName, __LINE__);
}

void StructureDataType::ClearDoc() {
    Framework::ClearKeyedTexts(m_MapDocList, m_DocList);
}
