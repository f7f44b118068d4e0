// Generated from LaneManager.xsd; do not edit. Regenerate with the target "generate".
#include "FrameworkDataContainers/LaneManagerPacketType.h"

#include "Framework/FrameworkDataContainers/Walks/Lists.h"
#include "Framework/FrameworkDataContainers/Walks/Walks.h"

// clang-format off
constinit const Framework::FieldRow LaneManagerPacketType::s_Rows[] = {
    Framework::EnumElement<&LaneManagerPacketType::m_Action>("Action", "LaneManagerActionsEnums"),
    Framework::Element("ExtraData", &LaneManagerPacketType::m_ExtraData),
};

constinit const Framework::FieldTable LaneManagerPacketType::s_Table = {
    .className = "LaneManagerPacketType",
    .elementName = "LaneManagerPacket",
    .parent = nullptr,
    .isStructuralConfigLoader = false,
    .isRoot = true,
    .rows = s_Rows,
    .create = &Framework::CreateContainer<LaneManagerPacketType>,
    .type = &typeid(LaneManagerPacketType),
    .autoFill = Framework::ToBase(&LaneManagerPacketType::m_bAutoFillTypeInfo),
};
// clang-format on

LaneManagerPacketType::LaneManagerPacketType(bool bBuildFromScratch) : TypedDataContainer(bBuildFromScratch) {
    Framework::NameByClass(*this, s_Table);
}

LaneManagerPacketType::~LaneManagerPacketType() {}

zelString LaneManagerPacketType::GetBaseType() {
    return "LaneManagerPacketType";
}

void LaneManagerPacketType::GetProperties(ParameterList& pList) {
    Framework::Properties(*this, s_Table, pList);
}

bool LaneManagerPacketType::MergeDataMembers(XMLDataWrapper* pMergeData, zelString sFeatureID) {
    return Framework::Merge(*this, s_Table, pMergeData, sFeatureID, __LINE__);
}

zelString LaneManagerPacketType::GetAttributeList() {
    return Framework::AttributePredicate(*this, s_Table);
}

ParameterList* LaneManagerPacketType::GetPLAttributeList() {
    return Framework::AttributeParameters(*this, s_Table);
}

TypedDataContainer* LaneManagerPacketType::Clone() {
    return Framework::Clone(*this, s_Table);
}

bool LaneManagerPacketType::DumpMergeContents(const zelString& sParentQuery, FullFunctionXMLDataWrapper* pOutput,
                                              int QueryPos, bool bIncludeMergeAttributes) {
    return Framework::DumpByQuery(*this, s_Table, sParentQuery, pOutput, QueryPos, bIncludeMergeAttributes);
}

bool LaneManagerPacketType::DumpMergeContentsII(DOMNode* pParentNode, FullFunctionXMLDataWrapper* pOutput,
                                                DOMNode*& pPassedCurrent, bool bIncludeMergeAttributes) {
    return Framework::DumpByNode(*this, s_Table, pParentNode, pOutput, pPassedCurrent, bIncludeMergeAttributes);
}

bool LaneManagerPacketType::UpdateContainedData() {
    return Framework::Update(*this, s_Table);
}

bool LaneManagerPacketType::PopulateDataMembers(XalanNode* pNode) {
    return Framework::Populate(*this, s_Table, pNode);
}

void LaneManagerPacketType::ResetDataMembers() {
    Framework::Reset(*this, s_Table);
}

LaneManagerActionsEnums LaneManagerPacketType::GetAction() {
    return m_Action;
}

void LaneManagerPacketType::SetAction(LaneManagerActionsEnums szNew) {
    m_Action = szNew;
}

zelString LaneManagerPacketType::GetExtraData() {
    return m_ExtraData;
}

void LaneManagerPacketType::SetExtraData(LPCTSTR szNew) {
    m_ExtraData = szNew;
}

bool LaneManagerPacketType::AutoFillTypeInfo() {
    return true;
}
