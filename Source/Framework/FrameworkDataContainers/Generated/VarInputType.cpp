// Generated from ActionData.xsd; do not edit. Regenerate with the target "generate".
#include "FrameworkDataContainers/VarInputType.h"

#include "Framework/FrameworkDataContainers/Walks/Lists.h"
#include "Framework/FrameworkDataContainers/Walks/Walks.h"
#include "FrameworkDataContainers/VarInputSourceType.h"

// clang-format off
constinit const Framework::FieldRow VarInputType::s_Rows[] = {
    Framework::PlainList<VarInputSourceType, &VarInputType::AddInputSource, &VarInputType::ClearInputSource>("InputSource", "VarInputSourceType", &VarInputType::m_InputSourceList),
};

constinit const Framework::FieldTable VarInputType::s_Table = {
    .className = "VarInputType",
    .elementName = "VarInput",
    .parent = nullptr,
    .isStructuralConfigLoader = false,
    .isRoot = false,
    .rows = s_Rows,
    .create = &Framework::CreateContainer<VarInputType>,
    .type = &typeid(VarInputType),
    .autoFill = Framework::ToBase(&VarInputType::m_bAutoFillTypeInfo),
};
// clang-format on

VarInputType::VarInputType(bool bBuildFromScratch) : TypedDataContainer(bBuildFromScratch) {
    Framework::NameByClass(*this, s_Table);
}

VarInputType::~VarInputType() {
    VarInputType::ClearInputSource();
}

zelString VarInputType::GetBaseType() {
    return "VarInputType";
}

void VarInputType::GetProperties(ParameterList& pList) {
    Framework::Properties(*this, s_Table, pList);
}

bool VarInputType::MergeDataMembers(XMLDataWrapper* pMergeData, zelString sFeatureID) {
    return Framework::Merge(*this, s_Table, pMergeData, sFeatureID, __LINE__);
}

zelString VarInputType::GetAttributeList() {
    return Framework::AttributePredicate(*this, s_Table);
}

ParameterList* VarInputType::GetPLAttributeList() {
    return Framework::AttributeParameters(*this, s_Table);
}

TypedDataContainer* VarInputType::Clone() {
    return Framework::Clone(*this, s_Table);
}

bool VarInputType::DumpMergeContents(const zelString& sParentQuery, FullFunctionXMLDataWrapper* pOutput, int QueryPos,
                                     bool bIncludeMergeAttributes) {
    return Framework::DumpByQuery(*this, s_Table, sParentQuery, pOutput, QueryPos, bIncludeMergeAttributes);
}

bool VarInputType::DumpMergeContentsII(DOMNode* pParentNode, FullFunctionXMLDataWrapper* pOutput,
                                       DOMNode*& pPassedCurrent, bool bIncludeMergeAttributes) {
    return Framework::DumpByNode(*this, s_Table, pParentNode, pOutput, pPassedCurrent, bIncludeMergeAttributes);
}

bool VarInputType::UpdateContainedData() {
    return Framework::Update(*this, s_Table);
}

bool VarInputType::PopulateDataMembers(XalanNode* pNode) {
    return Framework::Populate(*this, s_Table, pNode);
}

void VarInputType::ResetDataMembers() {
    Framework::Reset(*this, s_Table);
}

int VarInputType::GetInputSourceLength() {
    return Framework::ListLength(m_InputSourceList);
}

VarInputSourceType* VarInputType::GetInputSource(int Index) {
    return static_cast<VarInputSourceType*>(Framework::GrowTo(*this, s_Rows[0], Index));
}

void VarInputType::AddNewInputSource(VarInputSourceType* szNew) {
    Framework::AddNewPlain(m_InputSourceList, szNew);
}

bool VarInputType::AutoFillTypeInfo() {
    return true;
}

void VarInputType::AddInputSource(XMLDataWrapper* pData, XalanNode* spNode) {
    Framework::AddPlain(*this, s_Rows[0], pData, spNode);
}

void VarInputType::ClearInputSource() {
    Framework::ClearPlain(m_InputSourceList);
}
