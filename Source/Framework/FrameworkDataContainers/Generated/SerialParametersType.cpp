// Generated from CommConfig.xsd; do not edit. Regenerate with the target "generate".
#include "FrameworkDataContainers/SerialParametersType.h"

#include "Framework/FrameworkDataContainers/Walks/Lists.h"
#include "Framework/FrameworkDataContainers/Walks/Walks.h"

// clang-format off
constinit const Framework::FieldRow SerialParametersType::s_Rows[] = {
    Framework::Element("PortLoaderFactoryName", &SerialParametersType::m_PortLoaderFactoryName),
    Framework::Element("PortLoaderFactoryMethod", &SerialParametersType::m_PortLoaderFactoryMethod),
    Framework::Element("BaudRate", &SerialParametersType::m_BaudRate, 9600),
    Framework::Element("DataBits", &SerialParametersType::m_DataBits, 8),
    Framework::EnumElement<&SerialParametersType::m_Parity>("Parity", "ParityType", "EVEN"),
    Framework::EnumElement<&SerialParametersType::m_StopBits>("StopBits", "StopBitsType", "ONE"),
    Framework::EnumElement<&SerialParametersType::m_Control>("Control", "FlowControlType", "NONE"),
    Framework::Element("Stxchar", &SerialParametersType::m_Stxchar),
    Framework::Element("Etxchar", &SerialParametersType::m_Etxchar),
};

constinit const Framework::FieldTable SerialParametersType::s_Table = {
    .className = "SerialParametersType",
    .elementName = "SerialParameters",
    .parent = nullptr,
    .isStructuralConfigLoader = false,
    .isRoot = false,
    .rows = s_Rows,
    .create = &Framework::CreateContainer<SerialParametersType>,
    .type = &typeid(SerialParametersType),
    .autoFill = Framework::ToBase(&SerialParametersType::m_bAutoFillTypeInfo),
};
// clang-format on

SerialParametersType::SerialParametersType(bool bBuildFromScratch) : TypedDataContainer(bBuildFromScratch) {
    Framework::NameByClass(*this, s_Table);
}

SerialParametersType::~SerialParametersType() {}

zelString SerialParametersType::GetBaseType() {
    return "SerialParametersType";
}

void SerialParametersType::GetProperties(ParameterList& pList) {
    Framework::Properties(*this, s_Table, pList);
}

bool SerialParametersType::MergeDataMembers(XMLDataWrapper* pMergeData, zelString sFeatureID) {
    return Framework::Merge(*this, s_Table, pMergeData, sFeatureID, __LINE__);
}

zelString SerialParametersType::GetAttributeList() {
    return Framework::AttributePredicate(*this, s_Table);
}

ParameterList* SerialParametersType::GetPLAttributeList() {
    return Framework::AttributeParameters(*this, s_Table);
}

TypedDataContainer* SerialParametersType::Clone() {
    return Framework::Clone(*this, s_Table);
}

bool SerialParametersType::DumpMergeContents(const zelString& sParentQuery, FullFunctionXMLDataWrapper* pOutput,
                                             int QueryPos, bool bIncludeMergeAttributes) {
    return Framework::DumpByQuery(*this, s_Table, sParentQuery, pOutput, QueryPos, bIncludeMergeAttributes);
}

bool SerialParametersType::DumpMergeContentsII(DOMNode* pParentNode, FullFunctionXMLDataWrapper* pOutput,
                                               DOMNode*& pPassedCurrent, bool bIncludeMergeAttributes) {
    return Framework::DumpByNode(*this, s_Table, pParentNode, pOutput, pPassedCurrent, bIncludeMergeAttributes);
}

bool SerialParametersType::UpdateContainedData() {
    return Framework::Update(*this, s_Table);
}

bool SerialParametersType::PopulateDataMembers(XalanNode* pNode) {
    return Framework::Populate(*this, s_Table, pNode);
}

void SerialParametersType::ResetDataMembers() {
    Framework::Reset(*this, s_Table);
}

zelString SerialParametersType::GetPortLoaderFactoryName() {
    return m_PortLoaderFactoryName;
}

void SerialParametersType::SetPortLoaderFactoryName(LPCTSTR szNew) {
    m_PortLoaderFactoryName = szNew;
}

zelString SerialParametersType::GetPortLoaderFactoryMethod() {
    return m_PortLoaderFactoryMethod;
}

void SerialParametersType::SetPortLoaderFactoryMethod(LPCTSTR szNew) {
    m_PortLoaderFactoryMethod = szNew;
}

int SerialParametersType::GetBaudRate() {
    return m_BaudRate;
}

void SerialParametersType::SetBaudRate(int szNew) {
    m_BaudRate = szNew;
}

int SerialParametersType::GetDataBits() {
    return m_DataBits;
}

void SerialParametersType::SetDataBits(int szNew) {
    m_DataBits = szNew;
}

ParityType SerialParametersType::GetParity() {
    return m_Parity;
}

void SerialParametersType::SetParity(ParityType szNew) {
    m_Parity = szNew;
}

StopBitsType SerialParametersType::GetStopBits() {
    return m_StopBits;
}

void SerialParametersType::SetStopBits(StopBitsType szNew) {
    m_StopBits = szNew;
}

FlowControlType SerialParametersType::GetControl() {
    return m_Control;
}

void SerialParametersType::SetControl(FlowControlType szNew) {
    m_Control = szNew;
}

zelString SerialParametersType::GetStxchar() {
    return m_Stxchar;
}

void SerialParametersType::SetStxchar(LPCTSTR szNew) {
    m_Stxchar = szNew;
}

zelString SerialParametersType::GetEtxchar() {
    return m_Etxchar;
}

void SerialParametersType::SetEtxchar(LPCTSTR szNew) {
    m_Etxchar = szNew;
}

bool SerialParametersType::AutoFillTypeInfo() {
    return true;
}
