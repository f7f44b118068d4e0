// Generated from Parents.xsd; do not edit. Regenerate with the target "generate".
#include "FrameworkDataContainers/EmptyType.h"

#include "Framework/FrameworkDataContainers/Walks/Lists.h"
#include "Framework/FrameworkDataContainers/Walks/Walks.h"

// clang-format off
constinit const Framework::FieldTable EmptyType::s_Table = {
    .className = "EmptyType",
    .elementName = "Empty",
    .parent = nullptr,
    .isStructuralConfigLoader = false,
    .isRoot = false,
    .rows = {},
    .create = &Framework::CreateContainer<EmptyType>,
    .type = &typeid(EmptyType),
    .autoFill = Framework::ToBase(&EmptyType::m_bAutoFillTypeInfo),
};
// clang-format on

EmptyType::EmptyType(bool bBuildFromScratch) : TypedDataContainer(bBuildFromScratch) {
    Framework::NameByClass(*this, s_Table);
}

EmptyType::~EmptyType() {}

zelString EmptyType::GetBaseType() {
    return "EmptyType";
}

void EmptyType::GetProperties(ParameterList& pList) {
    Framework::Properties(*this, s_Table, pList);
}

bool EmptyType::MergeDataMembers(XMLDataWrapper* pMergeData, zelString sFeatureID) {
    return Framework::Merge(*this, s_Table, pMergeData, sFeatureID, __LINE__);
}

zelString EmptyType::GetAttributeList() {
    return Framework::AttributePredicate(*this, s_Table);
}

ParameterList* EmptyType::GetPLAttributeList() {
    return Framework::AttributeParameters(*this, s_Table);
}

TypedDataContainer* EmptyType::Clone() {
    return Framework::Clone(*this, s_Table);
}

bool EmptyType::DumpMergeContents(const zelString& sParentQuery, FullFunctionXMLDataWrapper* pOutput, int QueryPos,
                                  bool bIncludeMergeAttributes) {
    return Framework::DumpByQuery(*this, s_Table, sParentQuery, pOutput, QueryPos, bIncludeMergeAttributes);
}

bool EmptyType::DumpMergeContentsII(DOMNode* pParentNode, FullFunctionXMLDataWrapper* pOutput, DOMNode*& pPassedCurrent,
                                    bool bIncludeMergeAttributes) {
    return Framework::DumpByNode(*this, s_Table, pParentNode, pOutput, pPassedCurrent, bIncludeMergeAttributes);
}

bool EmptyType::UpdateContainedData() {
    return Framework::Update(*this, s_Table);
}

bool EmptyType::PopulateDataMembers(XalanNode* pNode) {
    return Framework::Populate(*this, s_Table, pNode);
}

void EmptyType::ResetDataMembers() {
    Framework::Reset(*this, s_Table);
}

bool EmptyType::AutoFillTypeInfo() {
    return true;
}
