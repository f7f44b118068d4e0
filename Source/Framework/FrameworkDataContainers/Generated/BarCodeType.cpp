// Generated from ItemPurchase.xsd; do not edit. Regenerate with the target "generate".
#include "FrameworkDataContainers/BarCodeType.h"

#include "Framework/FrameworkDataContainers/Walks/Lists.h"
#include "Framework/FrameworkDataContainers/Walks/Walks.h"

// clang-format off
constinit const Framework::FieldRow BarCodeType::s_Rows[] = {
    Framework::Element("ScanData", &BarCodeType::m_ScanData),
    Framework::Element("ScanDataLabel", &BarCodeType::m_ScanDataLabel),
    Framework::EnumElement<&BarCodeType::m_ScanDataType>("ScanDataType", "ScanDataTypeEnum"),
};

constinit const Framework::FieldTable BarCodeType::s_Table = {
    .className = "BarCodeType",
    .elementName = "BarCode",
    .parent = nullptr,
    .isStructuralConfigLoader = false,
    .isRoot = false,
    .rows = s_Rows,
    .create = &Framework::CreateContainer<BarCodeType>,
    .type = &typeid(BarCodeType),
    .autoFill = Framework::ToBase(&BarCodeType::m_bAutoFillTypeInfo),
};
// clang-format on

BarCodeType::BarCodeType(bool bBuildFromScratch) : TypedDataContainer(bBuildFromScratch) {
    Framework::NameByClass(*this, s_Table);
}

BarCodeType::~BarCodeType() {}

zelString BarCodeType::GetBaseType() {
    return "BarCodeType";
}

void BarCodeType::GetProperties(ParameterList& pList) {
    Framework::Properties(*this, s_Table, pList);
}

bool BarCodeType::MergeDataMembers(XMLDataWrapper* pMergeData, zelString sFeatureID) {
    return Framework::Merge(*this, s_Table, pMergeData, sFeatureID, __LINE__);
}

zelString BarCodeType::GetAttributeList() {
    return Framework::AttributePredicate(*this, s_Table);
}

ParameterList* BarCodeType::GetPLAttributeList() {
    return Framework::AttributeParameters(*this, s_Table);
}

TypedDataContainer* BarCodeType::Clone() {
    return Framework::Clone(*this, s_Table);
}

bool BarCodeType::DumpMergeContents(const zelString& sParentQuery, FullFunctionXMLDataWrapper* pOutput, int QueryPos,
                                    bool bIncludeMergeAttributes) {
    return Framework::DumpByQuery(*this, s_Table, sParentQuery, pOutput, QueryPos, bIncludeMergeAttributes);
}

bool BarCodeType::DumpMergeContentsII(DOMNode* pParentNode, FullFunctionXMLDataWrapper* pOutput,
                                      DOMNode*& pPassedCurrent, bool bIncludeMergeAttributes) {
    return Framework::DumpByNode(*this, s_Table, pParentNode, pOutput, pPassedCurrent, bIncludeMergeAttributes);
}

bool BarCodeType::UpdateContainedData() {
    return Framework::Update(*this, s_Table);
}

bool BarCodeType::PopulateDataMembers(XalanNode* pNode) {
    return Framework::Populate(*this, s_Table, pNode);
}

void BarCodeType::ResetDataMembers() {
    Framework::Reset(*this, s_Table);
}

zelString BarCodeType::GetScanData() {
    return m_ScanData;
}

void BarCodeType::SetScanData(LPCTSTR szNew) {
    m_ScanData = szNew;
}

zelString BarCodeType::GetScanDataLabel() {
    return m_ScanDataLabel;
}

void BarCodeType::SetScanDataLabel(LPCTSTR szNew) {
    m_ScanDataLabel = szNew;
}

ScanDataTypeEnum BarCodeType::GetScanDataType() {
    return m_ScanDataType;
}

void BarCodeType::SetScanDataType(ScanDataTypeEnum szNew) {
    m_ScanDataType = szNew;
}

bool BarCodeType::AutoFillTypeInfo() {
    return true;
}
