// Generated from ItemPurchase.xsd; do not edit. Regenerate with the target "generate".
#include "FrameworkDataContainers/ItemIdentifyEntryType.h"

#include "Framework/FrameworkDataContainers/Walks/Lists.h"
#include "Framework/FrameworkDataContainers/Walks/Walks.h"

// clang-format off
constinit const Framework::FieldRow ItemIdentifyEntryType::s_Rows[] = {
    Framework::EnumElement<&ItemIdentifyEntryType::m_ItemProcessingType>("ItemProcessingType", "ItemProcessingEnum", "NormalItem"),
    Framework::EnumElement<&ItemIdentifyEntryType::m_SpecialHandlingInstruction>("SpecialHandlingInstruction", "SpecialHandlingEnum", "Default"),
    Framework::Element("Description", &ItemIdentifyEntryType::m_Description),
};

constinit const Framework::FieldTable ItemIdentifyEntryType::s_Table = {
    .className = "ItemIdentifyEntryType",
    .elementName = "ItemIdentifyEntry",
    .parent = nullptr,
    .isStructuralConfigLoader = false,
    .isRoot = true,
    .rows = s_Rows,
    .create = &Framework::CreateContainer<ItemIdentifyEntryType>,
    .type = &typeid(ItemIdentifyEntryType),
    .autoFill = Framework::ToBase(&ItemIdentifyEntryType::m_bAutoFillTypeInfo),
};
// clang-format on

ItemIdentifyEntryType::ItemIdentifyEntryType(bool bBuildFromScratch) : TypedDataContainer(bBuildFromScratch) {
    Framework::NameByClass(*this, s_Table);
}

ItemIdentifyEntryType::~ItemIdentifyEntryType() {}

zelString ItemIdentifyEntryType::GetBaseType() {
    return "ItemIdentifyEntryType";
}

void ItemIdentifyEntryType::GetProperties(ParameterList& pList) {
    Framework::Properties(*this, s_Table, pList);
}

bool ItemIdentifyEntryType::MergeDataMembers(XMLDataWrapper* pMergeData, zelString sFeatureID) {
    return Framework::Merge(*this, s_Table, pMergeData, sFeatureID, __LINE__);
}

zelString ItemIdentifyEntryType::GetAttributeList() {
    return Framework::AttributePredicate(*this, s_Table);
}

ParameterList* ItemIdentifyEntryType::GetPLAttributeList() {
    return Framework::AttributeParameters(*this, s_Table);
}

TypedDataContainer* ItemIdentifyEntryType::Clone() {
    return Framework::Clone(*this, s_Table);
}

bool ItemIdentifyEntryType::DumpMergeContents(const zelString& sParentQuery, FullFunctionXMLDataWrapper* pOutput,
                                              int QueryPos, bool bIncludeMergeAttributes) {
    return Framework::DumpByQuery(*this, s_Table, sParentQuery, pOutput, QueryPos, bIncludeMergeAttributes);
}

bool ItemIdentifyEntryType::DumpMergeContentsII(DOMNode* pParentNode, FullFunctionXMLDataWrapper* pOutput,
                                                DOMNode*& pPassedCurrent, bool bIncludeMergeAttributes) {
    return Framework::DumpByNode(*this, s_Table, pParentNode, pOutput, pPassedCurrent, bIncludeMergeAttributes);
}

bool ItemIdentifyEntryType::UpdateContainedData() {
    return Framework::Update(*this, s_Table);
}

bool ItemIdentifyEntryType::PopulateDataMembers(XalanNode* pNode) {
    return Framework::Populate(*this, s_Table, pNode);
}

void ItemIdentifyEntryType::ResetDataMembers() {
    Framework::Reset(*this, s_Table);
}

ItemProcessingEnum ItemIdentifyEntryType::GetItemProcessingType() {
    return m_ItemProcessingType;
}

void ItemIdentifyEntryType::SetItemProcessingType(ItemProcessingEnum szNew) {
    m_ItemProcessingType = szNew;
}

SpecialHandlingEnum ItemIdentifyEntryType::GetSpecialHandlingInstruction() {
    return m_SpecialHandlingInstruction;
}

void ItemIdentifyEntryType::SetSpecialHandlingInstruction(SpecialHandlingEnum szNew) {
    m_SpecialHandlingInstruction = szNew;
}

zelString ItemIdentifyEntryType::GetDescription() {
    return m_Description;
}

void ItemIdentifyEntryType::SetDescription(LPCTSTR szNew) {
    m_Description = szNew;
}

bool ItemIdentifyEntryType::AutoFillTypeInfo() {
    return true;
}
