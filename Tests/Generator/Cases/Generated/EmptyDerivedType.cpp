// Generated from Parents.xsd; do not edit. Regenerate with the target "generate".
#include "FrameworkDataContainers/EmptyDerivedType.h"

#include "Framework/FrameworkDataContainers/Walks/Lists.h"
#include "Framework/FrameworkDataContainers/Walks/Walks.h"

// clang-format off
constinit const Framework::FieldTable EmptyDerivedType::s_Table = {
    .className = "EmptyDerivedType",
    .elementName = "EmptyDerived",
    .parent = &DerivedType::s_Table,
    .isStructuralConfigLoader = true,
    .isRoot = false,
    .rows = {},
    .create = &Framework::CreateContainer<EmptyDerivedType>,
    .type = &typeid(EmptyDerivedType),
    .autoFill = Framework::ToBase(&EmptyDerivedType::m_bAutoFillTypeInfo),
};
// clang-format on

EmptyDerivedType::EmptyDerivedType(bool bBuildFromScratch) : DerivedType(bBuildFromScratch) {
    Framework::NameByClass(*this, s_Table);
}

EmptyDerivedType::~EmptyDerivedType() {}

zelString EmptyDerivedType::GetBaseType() {
    return "EmptyDerivedType";
}

void EmptyDerivedType::GetProperties(ParameterList& pList) {
    Framework::Properties(*this, s_Table, pList);
}

bool EmptyDerivedType::MergeDataMembers(XMLDataWrapper* pMergeData, zelString sFeatureID) {
    return Framework::Merge(*this, s_Table, pMergeData, sFeatureID, __LINE__);
}

zelString EmptyDerivedType::GetAttributeList() {
    return Framework::AttributePredicate(*this, s_Table);
}

ParameterList* EmptyDerivedType::GetPLAttributeList() {
    return Framework::AttributeParameters(*this, s_Table);
}

TypedDataContainer* EmptyDerivedType::Clone() {
    return Framework::Clone(*this, s_Table);
}

bool EmptyDerivedType::DumpMergeContents(const zelString& sParentQuery, FullFunctionXMLDataWrapper* pOutput,
                                         int QueryPos, bool bIncludeMergeAttributes) {
    return Framework::DumpByQuery(*this, s_Table, sParentQuery, pOutput, QueryPos, bIncludeMergeAttributes);
}

bool EmptyDerivedType::DumpMergeContentsII(DOMNode* pParentNode, FullFunctionXMLDataWrapper* pOutput,
                                           DOMNode*& pPassedCurrent, bool bIncludeMergeAttributes) {
    return Framework::DumpByNode(*this, s_Table, pParentNode, pOutput, pPassedCurrent, bIncludeMergeAttributes);
}

bool EmptyDerivedType::UpdateContainedData() {
    return Framework::Update(*this, s_Table);
}

bool EmptyDerivedType::PopulateDataMembers(XalanNode* pNode) {
    return Framework::Populate(*this, s_Table, pNode);
}

void EmptyDerivedType::ResetDataMembers() {
    Framework::Reset(*this, s_Table);
}

bool EmptyDerivedType::AutoFillTypeInfo() {
    return true;
}
