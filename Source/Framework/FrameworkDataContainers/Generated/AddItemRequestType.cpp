// Generated from ItemPurchase.xsd; do not edit. Regenerate with the target "generate".
#include "FrameworkDataContainers/AddItemRequestType.h"

#include "Framework/FrameworkDataContainers/Walks/Lists.h"
#include "Framework/FrameworkDataContainers/Walks/Walks.h"
#include "FrameworkDataContainers/ItemIdentifierType.h"

// clang-format off
constinit const Framework::FieldRow AddItemRequestType::s_Rows[] = {
    Framework::Child<&AddItemRequestType::m_ItemIdentifier>("ItemIdentifier", "ItemIdentifierType"),
};

constinit const Framework::FieldTable AddItemRequestType::s_Table = {
    .className = "AddItemRequestType",
    .elementName = "AddItemRequest",
    .parent = nullptr,
    .isStructuralConfigLoader = false,
    .isRoot = false,
    .rows = s_Rows,
    .create = &Framework::CreateContainer<AddItemRequestType>,
    .type = &typeid(AddItemRequestType),
    .autoFill = Framework::ToBase(&AddItemRequestType::m_bAutoFillTypeInfo),
};
// clang-format on

AddItemRequestType::AddItemRequestType(bool bBuildFromScratch) : TypedDataContainer(bBuildFromScratch) {
    Framework::NameByClass(*this, s_Table);
}

AddItemRequestType::~AddItemRequestType() {
    delete m_ItemIdentifier;
}

zelString AddItemRequestType::GetBaseType() {
    return "AddItemRequestType";
}

void AddItemRequestType::GetProperties(ParameterList& pList) {
    Framework::Properties(*this, s_Table, pList);
}

bool AddItemRequestType::MergeDataMembers(XMLDataWrapper* pMergeData, zelString sFeatureID) {
    return Framework::Merge(*this, s_Table, pMergeData, sFeatureID, __LINE__);
}

zelString AddItemRequestType::GetAttributeList() {
    return Framework::AttributePredicate(*this, s_Table);
}

ParameterList* AddItemRequestType::GetPLAttributeList() {
    return Framework::AttributeParameters(*this, s_Table);
}

TypedDataContainer* AddItemRequestType::Clone() {
    return Framework::Clone(*this, s_Table);
}

bool AddItemRequestType::DumpMergeContents(const zelString& sParentQuery, FullFunctionXMLDataWrapper* pOutput,
                                           int QueryPos, bool bIncludeMergeAttributes) {
    return Framework::DumpByQuery(*this, s_Table, sParentQuery, pOutput, QueryPos, bIncludeMergeAttributes);
}

bool AddItemRequestType::DumpMergeContentsII(DOMNode* pParentNode, FullFunctionXMLDataWrapper* pOutput,
                                             DOMNode*& pPassedCurrent, bool bIncludeMergeAttributes) {
    return Framework::DumpByNode(*this, s_Table, pParentNode, pOutput, pPassedCurrent, bIncludeMergeAttributes);
}

bool AddItemRequestType::UpdateContainedData() {
    return Framework::Update(*this, s_Table);
}

bool AddItemRequestType::PopulateDataMembers(XalanNode* pNode) {
    return Framework::Populate(*this, s_Table, pNode);
}

void AddItemRequestType::ResetDataMembers() {
    Framework::Reset(*this, s_Table);
}

ItemIdentifierType* AddItemRequestType::GetItemIdentifier() {
    return m_ItemIdentifier;
}

void AddItemRequestType::SetItemIdentifier(ItemIdentifierType* szNew) {
    Framework::ReplaceChild(m_ItemIdentifier, szNew);
}

bool AddItemRequestType::AutoFillTypeInfo() {
    return true;
}
