// Generated from ConfigDefRoot.xsd; do not edit. Regenerate with the target "generate".
#include "FrameworkDataContainers/ValidationDefType.h"

#include "Framework/FrameworkDataContainers/Walks/Lists.h"
#include "Framework/FrameworkDataContainers/Walks/Walks.h"
#include "FrameworkDataContainers/InValidOptionRefListType.h"

// clang-format off
constinit const Framework::FieldRow ValidationDefType::s_Rows[] = {
    Framework::Child<&ValidationDefType::m_InValidOptionRefList>("InValidOptionRefList", "InValidOptionRefListType"),
};

constinit const Framework::FieldTable ValidationDefType::s_Table = {
    .className = "ValidationDefType",
    .elementName = "ValidationDef",
    .parent = nullptr,
    .isStructuralConfigLoader = false,
    .isRoot = false,
    .rows = s_Rows,
    .create = &Framework::CreateContainer<ValidationDefType>,
    .type = &typeid(ValidationDefType),
    .autoFill = Framework::ToBase(&ValidationDefType::m_bAutoFillTypeInfo),
};
// clang-format on

ValidationDefType::ValidationDefType(bool bBuildFromScratch) : TypedDataContainer(bBuildFromScratch) {
    Framework::NameByClass(*this, s_Table);
}

ValidationDefType::~ValidationDefType() {
    delete m_InValidOptionRefList;
}

zelString ValidationDefType::GetBaseType() {
    return "ValidationDefType";
}

void ValidationDefType::GetProperties(ParameterList& pList) {
    Framework::Properties(*this, s_Table, pList);
}

bool ValidationDefType::MergeDataMembers(XMLDataWrapper* pMergeData, zelString sFeatureID) {
    return Framework::Merge(*this, s_Table, pMergeData, sFeatureID, __LINE__);
}

zelString ValidationDefType::GetAttributeList() {
    return Framework::AttributePredicate(*this, s_Table);
}

ParameterList* ValidationDefType::GetPLAttributeList() {
    return Framework::AttributeParameters(*this, s_Table);
}

TypedDataContainer* ValidationDefType::Clone() {
    return Framework::Clone(*this, s_Table);
}

bool ValidationDefType::DumpMergeContents(const zelString& sParentQuery, FullFunctionXMLDataWrapper* pOutput,
                                          int QueryPos, bool bIncludeMergeAttributes) {
    return Framework::DumpByQuery(*this, s_Table, sParentQuery, pOutput, QueryPos, bIncludeMergeAttributes);
}

bool ValidationDefType::DumpMergeContentsII(DOMNode* pParentNode, FullFunctionXMLDataWrapper* pOutput,
                                            DOMNode*& pPassedCurrent, bool bIncludeMergeAttributes) {
    return Framework::DumpByNode(*this, s_Table, pParentNode, pOutput, pPassedCurrent, bIncludeMergeAttributes);
}

bool ValidationDefType::UpdateContainedData() {
    return Framework::Update(*this, s_Table);
}

bool ValidationDefType::PopulateDataMembers(XalanNode* pNode) {
    return Framework::Populate(*this, s_Table, pNode);
}

void ValidationDefType::ResetDataMembers() {
    Framework::Reset(*this, s_Table);
}

InValidOptionRefListType* ValidationDefType::GetInValidOptionRefList() {
    return m_InValidOptionRefList;
}

void ValidationDefType::SetInValidOptionRefList(InValidOptionRefListType* szNew) {
    Framework::ReplaceChild(m_InValidOptionRefList, szNew);
}

bool ValidationDefType::AutoFillTypeInfo() {
    return true;
}
