// Generated from LoggingInformation.xsd; do not edit. Regenerate with the target "generate".
#include "FrameworkDataContainers/TenderDataEntryType.h"

#include "Framework/FrameworkDataContainers/Walks/Lists.h"
#include "Framework/FrameworkDataContainers/Walks/Walks.h"

// clang-format off
constinit const Framework::FieldRow TenderDataEntryType::s_Rows[] = {
    Framework::EnumElement<&TenderDataEntryType::m_TenderType>("TenderType", "TenderTypeDefinition"),
    Framework::Element("CurrentEntry_TenderAmount_Reported", &TenderDataEntryType::m_CurrentEntry_TenderAmount_Reported),
    Framework::Element("CurrentEntry_Cash_Collected", &TenderDataEntryType::m_CurrentEntry_Cash_Collected),
    Framework::Element("CurrentEntry_Cash_Dispense_Attempted", &TenderDataEntryType::m_CurrentEntry_Cash_Dispense_Attempted),
    Framework::Element("CurrentEntry_Cash_Dispense_Actual", &TenderDataEntryType::m_CurrentEntry_Cash_Dispense_Actual),
    Framework::Element("CurrentEntry_Cash_Dispense_Vouchered", &TenderDataEntryType::m_CurrentEntry_Cash_Dispense_Vouchered),
    Framework::Element("CurrentEntry_CashBackAmount", &TenderDataEntryType::m_CurrentEntry_CashBackAmount),
    Framework::Element("CurrentEntry_ChangeAmount", &TenderDataEntryType::m_CurrentEntry_ChangeAmount),
    Framework::Element("AssistantVoid", &TenderDataEntryType::m_AssistantVoid),
    Framework::Element("AssistantId", &TenderDataEntryType::m_AssistantId),
    Framework::Attribute("EntryIndex", &TenderDataEntryType::m_EntryIndex),
};

constinit const Framework::FieldTable TenderDataEntryType::s_Table = {
    .className = "TenderDataEntryType",
    .elementName = "TenderDataEntry",
    .parent = nullptr,
    .isStructuralConfigLoader = false,
    .isRoot = false,
    .rows = s_Rows,
    .create = &Framework::CreateContainer<TenderDataEntryType>,
    .type = &typeid(TenderDataEntryType),
    .autoFill = Framework::ToBase(&TenderDataEntryType::m_bAutoFillTypeInfo),
};
// clang-format on

TenderDataEntryType::TenderDataEntryType(bool bBuildFromScratch) : TypedDataContainer(bBuildFromScratch) {
    Framework::NameByClass(*this, s_Table);
}

TenderDataEntryType::~TenderDataEntryType() {}

zelString TenderDataEntryType::GetBaseType() {
    return "TenderDataEntryType";
}

void TenderDataEntryType::GetProperties(ParameterList& pList) {
    Framework::Properties(*this, s_Table, pList);
}

bool TenderDataEntryType::MergeDataMembers(XMLDataWrapper* pMergeData, zelString sFeatureID) {
    return Framework::Merge(*this, s_Table, pMergeData, sFeatureID, __LINE__);
}

zelString TenderDataEntryType::GetAttributeList() {
    return Framework::AttributePredicate(*this, s_Table);
}

ParameterList* TenderDataEntryType::GetPLAttributeList() {
    return Framework::AttributeParameters(*this, s_Table);
}

TypedDataContainer* TenderDataEntryType::Clone() {
    return Framework::Clone(*this, s_Table);
}

bool TenderDataEntryType::DumpMergeContents(const zelString& sParentQuery, FullFunctionXMLDataWrapper* pOutput,
                                            int QueryPos, bool bIncludeMergeAttributes) {
    return Framework::DumpByQuery(*this, s_Table, sParentQuery, pOutput, QueryPos, bIncludeMergeAttributes);
}

bool TenderDataEntryType::DumpMergeContentsII(DOMNode* pParentNode, FullFunctionXMLDataWrapper* pOutput,
                                              DOMNode*& pPassedCurrent, bool bIncludeMergeAttributes) {
    return Framework::DumpByNode(*this, s_Table, pParentNode, pOutput, pPassedCurrent, bIncludeMergeAttributes);
}

bool TenderDataEntryType::UpdateContainedData() {
    return Framework::Update(*this, s_Table);
}

bool TenderDataEntryType::PopulateDataMembers(XalanNode* pNode) {
    return Framework::Populate(*this, s_Table, pNode);
}

void TenderDataEntryType::ResetDataMembers() {
    Framework::Reset(*this, s_Table);
}

TenderTypeDefinition TenderDataEntryType::GetTenderType() {
    return m_TenderType;
}

void TenderDataEntryType::SetTenderType(TenderTypeDefinition szNew) {
    m_TenderType = szNew;
}

double TenderDataEntryType::GetCurrentEntry_TenderAmount_Reported() {
    return m_CurrentEntry_TenderAmount_Reported;
}

void TenderDataEntryType::SetCurrentEntry_TenderAmount_Reported(double szNew) {
    m_CurrentEntry_TenderAmount_Reported = szNew;
}

double TenderDataEntryType::GetCurrentEntry_Cash_Collected() {
    return m_CurrentEntry_Cash_Collected;
}

void TenderDataEntryType::SetCurrentEntry_Cash_Collected(double szNew) {
    m_CurrentEntry_Cash_Collected = szNew;
}

double TenderDataEntryType::GetCurrentEntry_Cash_Dispense_Attempted() {
    return m_CurrentEntry_Cash_Dispense_Attempted;
}

void TenderDataEntryType::SetCurrentEntry_Cash_Dispense_Attempted(double szNew) {
    m_CurrentEntry_Cash_Dispense_Attempted = szNew;
}

double TenderDataEntryType::GetCurrentEntry_Cash_Dispense_Actual() {
    return m_CurrentEntry_Cash_Dispense_Actual;
}

void TenderDataEntryType::SetCurrentEntry_Cash_Dispense_Actual(double szNew) {
    m_CurrentEntry_Cash_Dispense_Actual = szNew;
}

double TenderDataEntryType::GetCurrentEntry_Cash_Dispense_Vouchered() {
    return m_CurrentEntry_Cash_Dispense_Vouchered;
}

void TenderDataEntryType::SetCurrentEntry_Cash_Dispense_Vouchered(double szNew) {
    m_CurrentEntry_Cash_Dispense_Vouchered = szNew;
}

double TenderDataEntryType::GetCurrentEntry_CashBackAmount() {
    return m_CurrentEntry_CashBackAmount;
}

void TenderDataEntryType::SetCurrentEntry_CashBackAmount(double szNew) {
    m_CurrentEntry_CashBackAmount = szNew;
}

double TenderDataEntryType::GetCurrentEntry_ChangeAmount() {
    return m_CurrentEntry_ChangeAmount;
}

void TenderDataEntryType::SetCurrentEntry_ChangeAmount(double szNew) {
    m_CurrentEntry_ChangeAmount = szNew;
}

bool TenderDataEntryType::GetAssistantVoid() {
    return m_AssistantVoid;
}

void TenderDataEntryType::SetAssistantVoid(bool szNew) {
    m_AssistantVoid = szNew;
}

zelString TenderDataEntryType::GetAssistantId() {
    return m_AssistantId;
}

void TenderDataEntryType::SetAssistantId(LPCTSTR szNew) {
    m_AssistantId = szNew;
}

int TenderDataEntryType::GetEntryIndex() {
    return m_EntryIndex;
}

void TenderDataEntryType::SetEntryIndex(int szNew) {
    m_EntryIndex = szNew;
}

bool TenderDataEntryType::AutoFillTypeInfo() {
    return true;
}
