// Generated from ItemPurchase.xsd; do not edit. Regenerate with the target "generate".
#include "FrameworkDataContainers/LineItemInfoType.h"

#include "Framework/FrameworkDataContainers/Walks/Lists.h"
#include "Framework/FrameworkDataContainers/Walks/Walks.h"

// clang-format off
constinit const Framework::FieldRow LineItemInfoType::s_Rows[] = {
    Framework::Element("Description", &LineItemInfoType::m_Description),
    Framework::Element("ReturnFlag", &LineItemInfoType::m_ReturnFlag),
    Framework::Element("DepositFlag", &LineItemInfoType::m_DepositFlag),
    Framework::Element("VoidFlag", &LineItemInfoType::m_VoidFlag),
    Framework::Element("RequestID", &LineItemInfoType::m_RequestID),
};

constinit const Framework::FieldTable LineItemInfoType::s_Table = {
    .className = "LineItemInfoType",
    .elementName = "LineItemInfo",
    .parent = nullptr,
    .isStructuralConfigLoader = false,
    .isRoot = false,
    .rows = s_Rows,
    .create = &Framework::CreateContainer<LineItemInfoType>,
    .type = &typeid(LineItemInfoType),
    .autoFill = Framework::ToBase(&LineItemInfoType::m_bAutoFillTypeInfo),
};
// clang-format on

LineItemInfoType::LineItemInfoType(bool bBuildFromScratch) : TypedDataContainer(bBuildFromScratch) {
    Framework::NameByClass(*this, s_Table);
}

LineItemInfoType::~LineItemInfoType() {}

zelString LineItemInfoType::GetBaseType() {
    return "LineItemInfoType";
}

void LineItemInfoType::GetProperties(ParameterList& pList) {
    Framework::Properties(*this, s_Table, pList);
}

bool LineItemInfoType::MergeDataMembers(XMLDataWrapper* pMergeData, zelString sFeatureID) {
    return Framework::Merge(*this, s_Table, pMergeData, sFeatureID, __LINE__);
}

zelString LineItemInfoType::GetAttributeList() {
    return Framework::AttributePredicate(*this, s_Table);
}

ParameterList* LineItemInfoType::GetPLAttributeList() {
    return Framework::AttributeParameters(*this, s_Table);
}

TypedDataContainer* LineItemInfoType::Clone() {
    return Framework::Clone(*this, s_Table);
}

bool LineItemInfoType::DumpMergeContents(const zelString& sParentQuery, FullFunctionXMLDataWrapper* pOutput,
                                         int QueryPos, bool bIncludeMergeAttributes) {
    return Framework::DumpByQuery(*this, s_Table, sParentQuery, pOutput, QueryPos, bIncludeMergeAttributes);
}

bool LineItemInfoType::DumpMergeContentsII(DOMNode* pParentNode, FullFunctionXMLDataWrapper* pOutput,
                                           DOMNode*& pPassedCurrent, bool bIncludeMergeAttributes) {
    return Framework::DumpByNode(*this, s_Table, pParentNode, pOutput, pPassedCurrent, bIncludeMergeAttributes);
}

bool LineItemInfoType::UpdateContainedData() {
    return Framework::Update(*this, s_Table);
}

bool LineItemInfoType::PopulateDataMembers(XalanNode* pNode) {
    return Framework::Populate(*this, s_Table, pNode);
}

void LineItemInfoType::ResetDataMembers() {
    Framework::Reset(*this, s_Table);
}

zelString LineItemInfoType::GetDescription() {
    return m_Description;
}

void LineItemInfoType::SetDescription(LPCTSTR szNew) {
    m_Description = szNew;
}

bool LineItemInfoType::GetReturnFlag() {
    return m_ReturnFlag;
}

void LineItemInfoType::SetReturnFlag(bool szNew) {
    m_ReturnFlag = szNew;
}

bool LineItemInfoType::GetDepositFlag() {
    return m_DepositFlag;
}

void LineItemInfoType::SetDepositFlag(bool szNew) {
    m_DepositFlag = szNew;
}

bool LineItemInfoType::GetVoidFlag() {
    return m_VoidFlag;
}

void LineItemInfoType::SetVoidFlag(bool szNew) {
    m_VoidFlag = szNew;
}

zelString LineItemInfoType::GetRequestID() {
    return m_RequestID;
}

void LineItemInfoType::SetRequestID(LPCTSTR szNew) {
    m_RequestID = szNew;
}

bool LineItemInfoType::AutoFillTypeInfo() {
    return true;
}
