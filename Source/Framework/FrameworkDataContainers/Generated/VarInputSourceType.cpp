// Generated from ActionData.xsd; do not edit. Regenerate with the target "generate".
#include "FrameworkDataContainers/VarInputSourceType.h"

#include "Framework/FrameworkDataContainers/Walks/Lists.h"
#include "Framework/FrameworkDataContainers/Walks/Walks.h"
#include "FrameworkDataContainers/PreProcessDataType.h"

// clang-format off
constinit const Framework::FieldRow VarInputSourceType::s_Rows[] = {
    Framework::KeyedStrings<&VarInputSourceType::AddDoc, &VarInputSourceType::ClearDoc>("Doc", "Index", true, &VarInputSourceType::m_MapDocList, &VarInputSourceType::m_DocList),
    Framework::Element("PreProcessRef", &VarInputSourceType::m_PreProcessRef),
    Framework::Child<&VarInputSourceType::m_PreProcessData>("PreProcessData", "PreProcessDataType"),
};

constinit const Framework::FieldTable VarInputSourceType::s_Table = {
    .className = "VarInputSourceType",
    .elementName = "VarInputSource",
    .parent = nullptr,
    .isStructuralConfigLoader = false,
    .isRoot = false,
    .rows = s_Rows,
    .create = &Framework::CreateContainer<VarInputSourceType>,
    .type = &typeid(VarInputSourceType),
    .autoFill = Framework::ToBase(&VarInputSourceType::m_bAutoFillTypeInfo),
};
// clang-format on

VarInputSourceType::VarInputSourceType(bool bBuildFromScratch) : TypedDataContainer(bBuildFromScratch) {
    Framework::NameByClass(*this, s_Table);
}

VarInputSourceType::~VarInputSourceType() {
    VarInputSourceType::ClearDoc();
    delete m_PreProcessData;
}

zelString VarInputSourceType::GetBaseType() {
    return "VarInputSourceType";
}

void VarInputSourceType::GetProperties(ParameterList& pList) {
    Framework::Properties(*this, s_Table, pList);
}

bool VarInputSourceType::MergeDataMembers(XMLDataWrapper* pMergeData, zelString sFeatureID) {
    return Framework::Merge(*this, s_Table, pMergeData, sFeatureID, __LINE__);
}

zelString VarInputSourceType::GetAttributeList() {
    return Framework::AttributePredicate(*this, s_Table);
}

ParameterList* VarInputSourceType::GetPLAttributeList() {
    return Framework::AttributeParameters(*this, s_Table);
}

TypedDataContainer* VarInputSourceType::Clone() {
    return Framework::Clone(*this, s_Table);
}

bool VarInputSourceType::DumpMergeContents(const zelString& sParentQuery, FullFunctionXMLDataWrapper* pOutput,
                                           int QueryPos, bool bIncludeMergeAttributes) {
    return Framework::DumpByQuery(*this, s_Table, sParentQuery, pOutput, QueryPos, bIncludeMergeAttributes);
}

bool VarInputSourceType::DumpMergeContentsII(DOMNode* pParentNode, FullFunctionXMLDataWrapper* pOutput,
                                             DOMNode*& pPassedCurrent, bool bIncludeMergeAttributes) {
    return Framework::DumpByNode(*this, s_Table, pParentNode, pOutput, pPassedCurrent, bIncludeMergeAttributes);
}

bool VarInputSourceType::UpdateContainedData() {
    return Framework::Update(*this, s_Table);
}

bool VarInputSourceType::PopulateDataMembers(XalanNode* pNode) {
    return Framework::Populate(*this, s_Table, pNode);
}

void VarInputSourceType::ResetDataMembers() {
    Framework::Reset(*this, s_Table);
}

int VarInputSourceType::GetDocLength() {
    return Framework::ListLength(m_DocList);
}

zelString VarInputSourceType::GetDoc(int Index) {
    return Framework::TextAt(m_DocList, Index);
}

zelString VarInputSourceType::GetDoc(const zelString& sName) {
    return Framework::TextByKey(m_MapDocList, sName);
}

zelString VarInputSourceType::GetPreProcessRef() {
    return m_PreProcessRef;
}

void VarInputSourceType::SetPreProcessRef(LPCTSTR szNew) {
    m_PreProcessRef = szNew;
}

PreProcessDataType* VarInputSourceType::GetPreProcessData() {
    return m_PreProcessData;
}

void VarInputSourceType::SetPreProcessData(PreProcessDataType* szNew) {
    Framework::ReplaceChild(m_PreProcessData, szNew);
}

bool VarInputSourceType::AutoFillTypeInfo() {
    return true;
}

void VarInputSourceType::AddDoc(const zelString& pData, const zelString& sName) {
    Framework::AddKeyedText(*this, s_Rows[0], pData, sName, __LINE__);
}

void VarInputSourceType::ClearDoc() {
    Framework::ClearKeyedTexts(m_MapDocList, m_DocList);
}
