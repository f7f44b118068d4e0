// Generated from ActionData.xsd; do not edit. Regenerate with the target "generate".
#include "FrameworkDataContainers/ExtendableDataEntryType.h"

#include "Framework/FrameworkDataContainers/Walks/Lists.h"
#include "Framework/FrameworkDataContainers/Walks/Walks.h"
#include "FrameworkDataContainers/VarInputType.h"

// clang-format off
constinit const Framework::FieldRow ExtendableDataEntryType::s_Rows[] = {
    Framework::Child<&ExtendableDataEntryType::m_VarInput>("VarInput", "VarInputType"),
};

constinit const Framework::FieldTable ExtendableDataEntryType::s_Table = {
    .className = "ExtendableDataEntryType",
    .elementName = "ExtendableDataEntry",
    .parent = &SimpleDataEntryType::s_Table,
    .isStructuralConfigLoader = false,
    .isRoot = false,
    .rows = s_Rows,
    .create = &Framework::CreateContainer<ExtendableDataEntryType>,
    .type = &typeid(ExtendableDataEntryType),
    .autoFill = Framework::ToBase(&ExtendableDataEntryType::m_bAutoFillTypeInfo),
};
// clang-format on

ExtendableDataEntryType::ExtendableDataEntryType(bool bBuildFromScratch) : SimpleDataEntryType(bBuildFromScratch) {
    Framework::NameByClass(*this, s_Table);
}

ExtendableDataEntryType::~ExtendableDataEntryType() {
    delete m_VarInput;
}

zelString ExtendableDataEntryType::GetBaseType() {
    return "ExtendableDataEntryType";
}

void ExtendableDataEntryType::GetProperties(ParameterList& pList) {
    Framework::Properties(*this, s_Table, pList);
}

bool ExtendableDataEntryType::MergeDataMembers(XMLDataWrapper* pMergeData, zelString sFeatureID) {
    return Framework::Merge(*this, s_Table, pMergeData, sFeatureID, __LINE__);
}

zelString ExtendableDataEntryType::GetAttributeList() {
    return Framework::AttributePredicate(*this, s_Table);
}

ParameterList* ExtendableDataEntryType::GetPLAttributeList() {
    return Framework::AttributeParameters(*this, s_Table);
}

TypedDataContainer* ExtendableDataEntryType::Clone() {
    return Framework::Clone(*this, s_Table);
}

bool ExtendableDataEntryType::DumpMergeContents(const zelString& sParentQuery, FullFunctionXMLDataWrapper* pOutput,
                                                int QueryPos, bool bIncludeMergeAttributes) {
    return Framework::DumpByQuery(*this, s_Table, sParentQuery, pOutput, QueryPos, bIncludeMergeAttributes);
}

bool ExtendableDataEntryType::DumpMergeContentsII(DOMNode* pParentNode, FullFunctionXMLDataWrapper* pOutput,
                                                  DOMNode*& pPassedCurrent, bool bIncludeMergeAttributes) {
    return Framework::DumpByNode(*this, s_Table, pParentNode, pOutput, pPassedCurrent, bIncludeMergeAttributes);
}

bool ExtendableDataEntryType::UpdateContainedData() {
    return Framework::Update(*this, s_Table);
}

bool ExtendableDataEntryType::PopulateDataMembers(XalanNode* pNode) {
    return Framework::Populate(*this, s_Table, pNode);
}

void ExtendableDataEntryType::ResetDataMembers() {
    Framework::Reset(*this, s_Table);
}

bool ExtendableDataEntryType::AutoFillTypeInfo() {
    return true;
}

VarInputType* ExtendableDataEntryType::GetVarInput() {
    return m_VarInput;
}

void ExtendableDataEntryType::SetVarInput(VarInputType* szNew) {
    Framework::ReplaceChild(m_VarInput, szNew);
}
