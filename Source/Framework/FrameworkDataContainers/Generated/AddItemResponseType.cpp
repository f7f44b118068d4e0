// Generated from ItemPurchase.xsd; do not edit. Regenerate with the target "generate".
#include "FrameworkDataContainers/AddItemResponseType.h"

#include "Framework/FrameworkDataContainers/Walks/Lists.h"
#include "Framework/FrameworkDataContainers/Walks/Walks.h"
#include "FrameworkDataContainers/CouponInfoType.h"
#include "FrameworkDataContainers/ItemInfoType.h"
#include "FrameworkDataContainers/PointsInfoType.h"

// clang-format off
constinit const Framework::FieldRow AddItemResponseType::s_Rows[] = {
    Framework::Element("RequestID", &AddItemResponseType::m_RequestID),
    Framework::PlainList<ItemInfoType, &AddItemResponseType::AddLineItem, &AddItemResponseType::ClearLineItem>("LineItem", "ItemInfoType", &AddItemResponseType::m_LineItemList),
    Framework::PlainList<CouponInfoType, &AddItemResponseType::AddCouponItem, &AddItemResponseType::ClearCouponItem>("CouponItem", "CouponInfoType", &AddItemResponseType::m_CouponItemList),
    Framework::PlainList<PointsInfoType, &AddItemResponseType::AddPointsItem, &AddItemResponseType::ClearPointsItem>("PointsItem", "PointsInfoType", &AddItemResponseType::m_PointsItemList),
};

constinit const Framework::FieldTable AddItemResponseType::s_Table = {
    .className = "AddItemResponseType",
    .elementName = "AddItemResponse",
    .parent = nullptr,
    .isStructuralConfigLoader = false,
    .isRoot = false,
    .rows = s_Rows,
    .create = &Framework::CreateContainer<AddItemResponseType>,
    .type = &typeid(AddItemResponseType),
    .autoFill = Framework::ToBase(&AddItemResponseType::m_bAutoFillTypeInfo),
};
// clang-format on

AddItemResponseType::AddItemResponseType(bool bBuildFromScratch) : TypedDataContainer(bBuildFromScratch) {
    Framework::NameByClass(*this, s_Table);
}

AddItemResponseType::~AddItemResponseType() {
    AddItemResponseType::ClearLineItem();
    AddItemResponseType::ClearCouponItem();
    AddItemResponseType::ClearPointsItem();
}

zelString AddItemResponseType::GetBaseType() {
    return "AddItemResponseType";
}

void AddItemResponseType::GetProperties(ParameterList& pList) {
    Framework::Properties(*this, s_Table, pList);
}

bool AddItemResponseType::MergeDataMembers(XMLDataWrapper* pMergeData, zelString sFeatureID) {
    return Framework::Merge(*this, s_Table, pMergeData, sFeatureID, __LINE__);
}

zelString AddItemResponseType::GetAttributeList() {
    return Framework::AttributePredicate(*this, s_Table);
}

ParameterList* AddItemResponseType::GetPLAttributeList() {
    return Framework::AttributeParameters(*this, s_Table);
}

TypedDataContainer* AddItemResponseType::Clone() {
    return Framework::Clone(*this, s_Table);
}

bool AddItemResponseType::DumpMergeContents(const zelString& sParentQuery, FullFunctionXMLDataWrapper* pOutput,
                                            int QueryPos, bool bIncludeMergeAttributes) {
    return Framework::DumpByQuery(*this, s_Table, sParentQuery, pOutput, QueryPos, bIncludeMergeAttributes);
}

bool AddItemResponseType::DumpMergeContentsII(DOMNode* pParentNode, FullFunctionXMLDataWrapper* pOutput,
                                              DOMNode*& pPassedCurrent, bool bIncludeMergeAttributes) {
    return Framework::DumpByNode(*this, s_Table, pParentNode, pOutput, pPassedCurrent, bIncludeMergeAttributes);
}

bool AddItemResponseType::UpdateContainedData() {
    return Framework::Update(*this, s_Table);
}

bool AddItemResponseType::PopulateDataMembers(XalanNode* pNode) {
    return Framework::Populate(*this, s_Table, pNode);
}

void AddItemResponseType::ResetDataMembers() {
    Framework::Reset(*this, s_Table);
}

zelString AddItemResponseType::GetRequestID() {
    return m_RequestID;
}

void AddItemResponseType::SetRequestID(LPCTSTR szNew) {
    m_RequestID = szNew;
}

int AddItemResponseType::GetLineItemLength() {
    return Framework::ListLength(m_LineItemList);
}

ItemInfoType* AddItemResponseType::GetLineItem(int Index) {
    return static_cast<ItemInfoType*>(Framework::GrowTo(*this, s_Rows[1], Index));
}

void AddItemResponseType::AddNewLineItem(ItemInfoType* szNew) {
    Framework::AddNewPlain(m_LineItemList, szNew);
}

int AddItemResponseType::GetCouponItemLength() {
    return Framework::ListLength(m_CouponItemList);
}

CouponInfoType* AddItemResponseType::GetCouponItem(int Index) {
    return static_cast<CouponInfoType*>(Framework::GrowTo(*this, s_Rows[2], Index));
}

void AddItemResponseType::AddNewCouponItem(CouponInfoType* szNew) {
    Framework::AddNewPlain(m_CouponItemList, szNew);
}

int AddItemResponseType::GetPointsItemLength() {
    return Framework::ListLength(m_PointsItemList);
}

PointsInfoType* AddItemResponseType::GetPointsItem(int Index) {
    return static_cast<PointsInfoType*>(Framework::GrowTo(*this, s_Rows[3], Index));
}

void AddItemResponseType::AddNewPointsItem(PointsInfoType* szNew) {
    Framework::AddNewPlain(m_PointsItemList, szNew);
}

bool AddItemResponseType::AutoFillTypeInfo() {
    return true;
}

void AddItemResponseType::AddLineItem(XMLDataWrapper* pData, XalanNode* spNode) {
    Framework::AddPlain(*this, s_Rows[1], pData, spNode);
}

void AddItemResponseType::ClearLineItem() {
    Framework::ClearPlain(m_LineItemList);
}

void AddItemResponseType::AddCouponItem(XMLDataWrapper* pData, XalanNode* spNode) {
    Framework::AddPlain(*this, s_Rows[2], pData, spNode);
}

void AddItemResponseType::ClearCouponItem() {
    Framework::ClearPlain(m_CouponItemList);
}

void AddItemResponseType::AddPointsItem(XMLDataWrapper* pData, XalanNode* spNode) {
    Framework::AddPlain(*this, s_Rows[3], pData, spNode);
}

void AddItemResponseType::ClearPointsItem() {
    Framework::ClearPlain(m_PointsItemList);
}
