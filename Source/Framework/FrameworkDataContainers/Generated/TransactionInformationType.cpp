// Generated from LoggingInformation.xsd; do not edit. Regenerate with the target "generate".
#include "FrameworkDataContainers/TransactionInformationType.h"

#include "Framework/FrameworkDataContainers/Walks/Lists.h"
#include "Framework/FrameworkDataContainers/Walks/Walks.h"
#include "FrameworkDataContainers/TenderDataListType.h"

// clang-format off
constinit const Framework::FieldRow TransactionInformationType::s_Rows[] = {
    Framework::Element("LaneTransId", &TransactionInformationType::m_LaneTransId),
    Framework::Element("PosTransId", &TransactionInformationType::m_PosTransId),
    Framework::Element("OrderSavingsAmount", &TransactionInformationType::m_OrderSavingsAmount),
    Framework::Element("OrderDiscountAmount", &TransactionInformationType::m_OrderDiscountAmount),
    Framework::Element("OrderSubTotalAmount", &TransactionInformationType::m_OrderSubTotalAmount),
    Framework::Element("OrderTaxAmount", &TransactionInformationType::m_OrderTaxAmount),
    Framework::Element("OrderTotalAmount", &TransactionInformationType::m_OrderTotalAmount),
    Framework::Element("OrderFoodStampTotal", &TransactionInformationType::m_OrderFoodStampTotal),
    Framework::Element("OrderCouponTotal", &TransactionInformationType::m_OrderCouponTotal),
    Framework::Element("OrderAmountPaid", &TransactionInformationType::m_OrderAmountPaid),
    Framework::Element("OrderAmountDue", &TransactionInformationType::m_OrderAmountDue),
    Framework::Element("OrderChangeAmount", &TransactionInformationType::m_OrderChangeAmount),
    Framework::Element("NumberOfTenderElements", &TransactionInformationType::m_NumberOfTenderElements),
    Framework::Child<&TransactionInformationType::m_TenderData>("TenderData", "TenderDataListType"),
};

constinit const Framework::FieldTable TransactionInformationType::s_Table = {
    .className = "TransactionInformationType",
    .elementName = "TransactionInformation",
    .parent = nullptr,
    .isStructuralConfigLoader = false,
    .isRoot = false,
    .rows = s_Rows,
    .create = &Framework::CreateContainer<TransactionInformationType>,
    .type = &typeid(TransactionInformationType),
    .autoFill = Framework::ToBase(&TransactionInformationType::m_bAutoFillTypeInfo),
};
// clang-format on

TransactionInformationType::TransactionInformationType(bool bBuildFromScratch) : TypedDataContainer(bBuildFromScratch) {
    Framework::NameByClass(*this, s_Table);
}

TransactionInformationType::~TransactionInformationType() {
    delete m_TenderData;
}

zelString TransactionInformationType::GetBaseType() {
    return "TransactionInformationType";
}

void TransactionInformationType::GetProperties(ParameterList& pList) {
    Framework::Properties(*this, s_Table, pList);
}

bool TransactionInformationType::MergeDataMembers(XMLDataWrapper* pMergeData, zelString sFeatureID) {
    return Framework::Merge(*this, s_Table, pMergeData, sFeatureID, __LINE__);
}

zelString TransactionInformationType::GetAttributeList() {
    return Framework::AttributePredicate(*this, s_Table);
}

ParameterList* TransactionInformationType::GetPLAttributeList() {
    return Framework::AttributeParameters(*this, s_Table);
}

TypedDataContainer* TransactionInformationType::Clone() {
    return Framework::Clone(*this, s_Table);
}

bool TransactionInformationType::DumpMergeContents(const zelString& sParentQuery, FullFunctionXMLDataWrapper* pOutput,
                                                   int QueryPos, bool bIncludeMergeAttributes) {
    return Framework::DumpByQuery(*this, s_Table, sParentQuery, pOutput, QueryPos, bIncludeMergeAttributes);
}

bool TransactionInformationType::DumpMergeContentsII(DOMNode* pParentNode, FullFunctionXMLDataWrapper* pOutput,
                                                     DOMNode*& pPassedCurrent, bool bIncludeMergeAttributes) {
    return Framework::DumpByNode(*this, s_Table, pParentNode, pOutput, pPassedCurrent, bIncludeMergeAttributes);
}

bool TransactionInformationType::UpdateContainedData() {
    return Framework::Update(*this, s_Table);
}

bool TransactionInformationType::PopulateDataMembers(XalanNode* pNode) {
    return Framework::Populate(*this, s_Table, pNode);
}

void TransactionInformationType::ResetDataMembers() {
    Framework::Reset(*this, s_Table);
}

zelString TransactionInformationType::GetLaneTransId() {
    return m_LaneTransId;
}

void TransactionInformationType::SetLaneTransId(LPCTSTR szNew) {
    m_LaneTransId = szNew;
}

zelString TransactionInformationType::GetPosTransId() {
    return m_PosTransId;
}

void TransactionInformationType::SetPosTransId(LPCTSTR szNew) {
    m_PosTransId = szNew;
}

zelString TransactionInformationType::GetOrderSavingsAmount() {
    return m_OrderSavingsAmount;
}

void TransactionInformationType::SetOrderSavingsAmount(LPCTSTR szNew) {
    m_OrderSavingsAmount = szNew;
}

zelString TransactionInformationType::GetOrderDiscountAmount() {
    return m_OrderDiscountAmount;
}

void TransactionInformationType::SetOrderDiscountAmount(LPCTSTR szNew) {
    m_OrderDiscountAmount = szNew;
}

zelString TransactionInformationType::GetOrderSubTotalAmount() {
    return m_OrderSubTotalAmount;
}

void TransactionInformationType::SetOrderSubTotalAmount(LPCTSTR szNew) {
    m_OrderSubTotalAmount = szNew;
}

zelString TransactionInformationType::GetOrderTaxAmount() {
    return m_OrderTaxAmount;
}

void TransactionInformationType::SetOrderTaxAmount(LPCTSTR szNew) {
    m_OrderTaxAmount = szNew;
}

zelString TransactionInformationType::GetOrderTotalAmount() {
    return m_OrderTotalAmount;
}

void TransactionInformationType::SetOrderTotalAmount(LPCTSTR szNew) {
    m_OrderTotalAmount = szNew;
}

zelString TransactionInformationType::GetOrderFoodStampTotal() {
    return m_OrderFoodStampTotal;
}

void TransactionInformationType::SetOrderFoodStampTotal(LPCTSTR szNew) {
    m_OrderFoodStampTotal = szNew;
}

zelString TransactionInformationType::GetOrderCouponTotal() {
    return m_OrderCouponTotal;
}

void TransactionInformationType::SetOrderCouponTotal(LPCTSTR szNew) {
    m_OrderCouponTotal = szNew;
}

zelString TransactionInformationType::GetOrderAmountPaid() {
    return m_OrderAmountPaid;
}

void TransactionInformationType::SetOrderAmountPaid(LPCTSTR szNew) {
    m_OrderAmountPaid = szNew;
}

zelString TransactionInformationType::GetOrderAmountDue() {
    return m_OrderAmountDue;
}

void TransactionInformationType::SetOrderAmountDue(LPCTSTR szNew) {
    m_OrderAmountDue = szNew;
}

zelString TransactionInformationType::GetOrderChangeAmount() {
    return m_OrderChangeAmount;
}

void TransactionInformationType::SetOrderChangeAmount(LPCTSTR szNew) {
    m_OrderChangeAmount = szNew;
}

zelString TransactionInformationType::GetNumberOfTenderElements() {
    return m_NumberOfTenderElements;
}

void TransactionInformationType::SetNumberOfTenderElements(LPCTSTR szNew) {
    m_NumberOfTenderElements = szNew;
}

TenderDataListType* TransactionInformationType::GetTenderData() {
    return m_TenderData;
}

void TransactionInformationType::SetTenderData(TenderDataListType* szNew) {
    Framework::ReplaceChild(m_TenderData, szNew);
}

bool TransactionInformationType::AutoFillTypeInfo() {
    return true;
}
