// Generated from SystemsManagement.xsd; do not edit. Regenerate with the target "generate".
#include "FrameworkDataContainers/AvailabilityType.h"

#include "Framework/FrameworkDataContainers/Walks/Lists.h"
#include "Framework/FrameworkDataContainers/Walks/Walks.h"

// clang-format off
constinit const Framework::FieldRow AvailabilityType::s_Rows[] = {
    Framework::EnumElement<&AvailabilityType::m_AvailabilityState>("AvailabilityState", "AvailabilityStateEnum"),
    Framework::Element("AdditionalInformation", &AvailabilityType::m_AdditionalInformation),
};

constinit const Framework::FieldTable AvailabilityType::s_Table = {
    .className = "AvailabilityType",
    .elementName = "Availability",
    .parent = nullptr,
    .isStructuralConfigLoader = false,
    .isRoot = false,
    .rows = s_Rows,
    .create = &Framework::CreateContainer<AvailabilityType>,
    .type = &typeid(AvailabilityType),
    .autoFill = Framework::ToBase(&AvailabilityType::m_bAutoFillTypeInfo),
};
// clang-format on

AvailabilityType::AvailabilityType(bool bBuildFromScratch) : TypedDataContainer(bBuildFromScratch) {
    Framework::NameByClass(*this, s_Table);
}

AvailabilityType::~AvailabilityType() {}

zelString AvailabilityType::GetBaseType() {
    return "AvailabilityType";
}

void AvailabilityType::GetProperties(ParameterList& pList) {
    Framework::Properties(*this, s_Table, pList);
}

bool AvailabilityType::MergeDataMembers(XMLDataWrapper* pMergeData, zelString sFeatureID) {
    return Framework::Merge(*this, s_Table, pMergeData, sFeatureID, __LINE__);
}

zelString AvailabilityType::GetAttributeList() {
    return Framework::AttributePredicate(*this, s_Table);
}

ParameterList* AvailabilityType::GetPLAttributeList() {
    return Framework::AttributeParameters(*this, s_Table);
}

TypedDataContainer* AvailabilityType::Clone() {
    return Framework::Clone(*this, s_Table);
}

bool AvailabilityType::DumpMergeContents(const zelString& sParentQuery, FullFunctionXMLDataWrapper* pOutput,
                                         int QueryPos, bool bIncludeMergeAttributes) {
    return Framework::DumpByQuery(*this, s_Table, sParentQuery, pOutput, QueryPos, bIncludeMergeAttributes);
}

bool AvailabilityType::DumpMergeContentsII(DOMNode* pParentNode, FullFunctionXMLDataWrapper* pOutput,
                                           DOMNode*& pPassedCurrent, bool bIncludeMergeAttributes) {
    return Framework::DumpByNode(*this, s_Table, pParentNode, pOutput, pPassedCurrent, bIncludeMergeAttributes);
}

bool AvailabilityType::UpdateContainedData() {
    return Framework::Update(*this, s_Table);
}

bool AvailabilityType::PopulateDataMembers(XalanNode* pNode) {
    return Framework::Populate(*this, s_Table, pNode);
}

void AvailabilityType::ResetDataMembers() {
    Framework::Reset(*this, s_Table);
}

AvailabilityStateEnum AvailabilityType::GetAvailabilityState() {
    return m_AvailabilityState;
}

void AvailabilityType::SetAvailabilityState(AvailabilityStateEnum szNew) {
    m_AvailabilityState = szNew;
}

zelString AvailabilityType::GetAdditionalInformation() {
    return m_AdditionalInformation;
}

void AvailabilityType::SetAdditionalInformation(LPCTSTR szNew) {
    m_AdditionalInformation = szNew;
}

bool AvailabilityType::AutoFillTypeInfo() {
    return true;
}
