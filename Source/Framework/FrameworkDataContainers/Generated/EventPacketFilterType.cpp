// Generated from StateTriggerFilterDef.xsd; do not edit. Regenerate with the target "generate".
#include "FrameworkDataContainers/EventPacketFilterType.h"

#include "Framework/FrameworkDataContainers/Walks/Lists.h"
#include "Framework/FrameworkDataContainers/Walks/Walks.h"
#include "FrameworkDataContainers/EventFilterTestType.h"

// clang-format off
constinit const Framework::FieldRow EventPacketFilterType::s_Rows[] = {
    Framework::KeyedList<EventFilterTestType, &EventFilterTestType::GetIndex, &EventPacketFilterType::AddEventFilterTest, &EventPacketFilterType::ClearEventFilterTest>("EventFilterTest", "EventFilterTestType", "Index", &EventPacketFilterType::m_MapEventFilterTestList, &EventPacketFilterType::m_EventFilterTestList),
    Framework::Attribute("PacketID", &EventPacketFilterType::m_PacketID),
    Framework::Attribute("Doc", &EventPacketFilterType::m_Doc),
};

constinit const Framework::FieldTable EventPacketFilterType::s_Table = {
    .className = "EventPacketFilterType",
    .elementName = "EventPacketFilter",
    .parent = nullptr,
    .isStructuralConfigLoader = false,
    .isRoot = false,
    .rows = s_Rows,
    .create = &Framework::CreateContainer<EventPacketFilterType>,
    .type = &typeid(EventPacketFilterType),
    .autoFill = Framework::ToBase(&EventPacketFilterType::m_bAutoFillTypeInfo),
};
// clang-format on

EventPacketFilterType::EventPacketFilterType(bool bBuildFromScratch) : TypedDataContainer(bBuildFromScratch) {
    Framework::NameByClass(*this, s_Table);
}

EventPacketFilterType::~EventPacketFilterType() {
    EventPacketFilterType::ClearEventFilterTest();
}

zelString EventPacketFilterType::GetBaseType() {
    return "EventPacketFilterType";
}

void EventPacketFilterType::GetProperties(ParameterList& pList) {
    Framework::Properties(*this, s_Table, pList);
}

bool EventPacketFilterType::MergeDataMembers(XMLDataWrapper* pMergeData, zelString sFeatureID) {
    return Framework::Merge(*this, s_Table, pMergeData, sFeatureID, __LINE__);
}

zelString EventPacketFilterType::GetAttributeList() {
    return Framework::AttributePredicate(*this, s_Table);
}

ParameterList* EventPacketFilterType::GetPLAttributeList() {
    return Framework::AttributeParameters(*this, s_Table);
}

TypedDataContainer* EventPacketFilterType::Clone() {
    return Framework::Clone(*this, s_Table);
}

bool EventPacketFilterType::DumpMergeContents(const zelString& sParentQuery, FullFunctionXMLDataWrapper* pOutput,
                                              int QueryPos, bool bIncludeMergeAttributes) {
    return Framework::DumpByQuery(*this, s_Table, sParentQuery, pOutput, QueryPos, bIncludeMergeAttributes);
}

bool EventPacketFilterType::DumpMergeContentsII(DOMNode* pParentNode, FullFunctionXMLDataWrapper* pOutput,
                                                DOMNode*& pPassedCurrent, bool bIncludeMergeAttributes) {
    return Framework::DumpByNode(*this, s_Table, pParentNode, pOutput, pPassedCurrent, bIncludeMergeAttributes);
}

bool EventPacketFilterType::UpdateContainedData() {
    return Framework::Update(*this, s_Table);
}

bool EventPacketFilterType::PopulateDataMembers(XalanNode* pNode) {
    return Framework::Populate(*this, s_Table, pNode);
}

void EventPacketFilterType::ResetDataMembers() {
    Framework::Reset(*this, s_Table);
}

int EventPacketFilterType::GetEventFilterTestLength() {
    return Framework::ListLength(m_EventFilterTestList);
}

EventFilterTestType* EventPacketFilterType::GetEventFilterTest(int Index) {
    return static_cast<EventFilterTestType*>(Framework::EntryAt(m_EventFilterTestList, Index));
}

EventFilterTestType* EventPacketFilterType::GetEventFilterTest(const zelString& sName) {
    return static_cast<EventFilterTestType*>(Framework::EntryByKey(m_MapEventFilterTestList, sName));
}

void EventPacketFilterType::AddNewEventFilterTest(EventFilterTestType* szNew, const zelString& sName) {
    Framework::AddNewKeyed(m_MapEventFilterTestList, m_EventFilterTestList, szNew, sName);
}

void EventPacketFilterType::RemoveEventFilterTest(const zelString& sName, const zelString& sFeatureId) {
    Framework::RemoveKeyed(*this, s_Rows[0], sName, sFeatureId);
}

zelString EventPacketFilterType::GetPacketID() {
    return m_PacketID;
}

void EventPacketFilterType::SetPacketID(LPCTSTR szNew) {
    m_PacketID = szNew;
}

zelString EventPacketFilterType::GetDoc() {
    return m_Doc;
}

void EventPacketFilterType::SetDoc(LPCTSTR szNew) {
    m_Doc = szNew;
}

bool EventPacketFilterType::AutoFillTypeInfo() {
    return true;
}

void EventPacketFilterType::AddEventFilterTest(XMLDataWrapper* pData, XalanNode* spNode, const zelString& sName) {
    Framework::AddKeyed(*this, s_Rows[0], pData, spNode, sName, __LINE__);
}

void EventPacketFilterType::ClearEventFilterTest() {
    Framework::ClearKeyed(m_MapEventFilterTestList, m_EventFilterTestList);
}
