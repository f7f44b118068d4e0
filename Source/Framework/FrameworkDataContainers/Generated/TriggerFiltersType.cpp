// Generated from StateTriggerFilterDef.xsd; do not edit. Regenerate with the target "generate".
#include "FrameworkDataContainers/TriggerFiltersType.h"

#include "Framework/FrameworkDataContainers/Walks/Lists.h"
#include "Framework/FrameworkDataContainers/Walks/Walks.h"
#include "FrameworkDataContainers/EventPacketFilterType.h"

// clang-format off
constinit const Framework::FieldRow TriggerFiltersType::s_Rows[] = {
    Framework::KeyedList<EventPacketFilterType, &EventPacketFilterType::GetPacketID, &TriggerFiltersType::AddEventPacketFilter, &TriggerFiltersType::ClearEventPacketFilter>("EventPacketFilter", "EventPacketFilterType", "PacketID", &TriggerFiltersType::m_MapEventPacketFilterList, &TriggerFiltersType::m_EventPacketFilterList),
};

constinit const Framework::FieldTable TriggerFiltersType::s_Table = {
    .className = "TriggerFiltersType",
    .elementName = "TriggerFilters",
    .parent = nullptr,
    .isStructuralConfigLoader = false,
    .isRoot = false,
    .rows = s_Rows,
    .create = &Framework::CreateContainer<TriggerFiltersType>,
    .type = &typeid(TriggerFiltersType),
    .autoFill = Framework::ToBase(&TriggerFiltersType::m_bAutoFillTypeInfo),
};
// clang-format on

TriggerFiltersType::TriggerFiltersType(bool bBuildFromScratch) : TypedDataContainer(bBuildFromScratch) {
    Framework::NameByClass(*this, s_Table);
}

TriggerFiltersType::~TriggerFiltersType() {
    TriggerFiltersType::ClearEventPacketFilter();
}

zelString TriggerFiltersType::GetBaseType() {
    return "TriggerFiltersType";
}

void TriggerFiltersType::GetProperties(ParameterList& pList) {
    Framework::Properties(*this, s_Table, pList);
}

bool TriggerFiltersType::MergeDataMembers(XMLDataWrapper* pMergeData, zelString sFeatureID) {
    return Framework::Merge(*this, s_Table, pMergeData, sFeatureID, __LINE__);
}

zelString TriggerFiltersType::GetAttributeList() {
    return Framework::AttributePredicate(*this, s_Table);
}

ParameterList* TriggerFiltersType::GetPLAttributeList() {
    return Framework::AttributeParameters(*this, s_Table);
}

TypedDataContainer* TriggerFiltersType::Clone() {
    return Framework::Clone(*this, s_Table);
}

bool TriggerFiltersType::DumpMergeContents(const zelString& sParentQuery, FullFunctionXMLDataWrapper* pOutput,
                                           int QueryPos, bool bIncludeMergeAttributes) {
    return Framework::DumpByQuery(*this, s_Table, sParentQuery, pOutput, QueryPos, bIncludeMergeAttributes);
}

bool TriggerFiltersType::DumpMergeContentsII(DOMNode* pParentNode, FullFunctionXMLDataWrapper* pOutput,
                                             DOMNode*& pPassedCurrent, bool bIncludeMergeAttributes) {
    return Framework::DumpByNode(*this, s_Table, pParentNode, pOutput, pPassedCurrent, bIncludeMergeAttributes);
}

bool TriggerFiltersType::UpdateContainedData() {
    return Framework::Update(*this, s_Table);
}

bool TriggerFiltersType::PopulateDataMembers(XalanNode* pNode) {
    return Framework::Populate(*this, s_Table, pNode);
}

void TriggerFiltersType::ResetDataMembers() {
    Framework::Reset(*this, s_Table);
}

int TriggerFiltersType::GetEventPacketFilterLength() {
    return Framework::ListLength(m_EventPacketFilterList);
}

EventPacketFilterType* TriggerFiltersType::GetEventPacketFilter(int Index) {
    return static_cast<EventPacketFilterType*>(Framework::EntryAt(m_EventPacketFilterList, Index));
}

EventPacketFilterType* TriggerFiltersType::GetEventPacketFilter(const zelString& sName) {
    return static_cast<EventPacketFilterType*>(Framework::EntryByKey(m_MapEventPacketFilterList, sName));
}

void TriggerFiltersType::AddNewEventPacketFilter(EventPacketFilterType* szNew, const zelString& sName) {
    Framework::AddNewKeyed(m_MapEventPacketFilterList, m_EventPacketFilterList, szNew, sName);
}

void TriggerFiltersType::RemoveEventPacketFilter(const zelString& sName, const zelString& sFeatureId) {
    Framework::RemoveKeyed(*this, s_Rows[0], sName, sFeatureId);
}

bool TriggerFiltersType::AutoFillTypeInfo() {
    return true;
}

void TriggerFiltersType::AddEventPacketFilter(XMLDataWrapper* pData, XalanNode* spNode, const zelString& sName) {
    Framework::AddKeyed(*this, s_Rows[0], pData, spNode, sName, __LINE__);
}

void TriggerFiltersType::ClearEventPacketFilter() {
    Framework::ClearKeyed(m_MapEventPacketFilterList, m_EventPacketFilterList);
}
