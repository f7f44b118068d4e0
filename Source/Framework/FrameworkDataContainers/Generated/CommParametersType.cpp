// Generated from CommConfig.xsd; do not edit. Regenerate with the target "generate".
#include "FrameworkDataContainers/CommParametersType.h"

#include "Framework/FrameworkDataContainers/Walks/Lists.h"
#include "Framework/FrameworkDataContainers/Walks/Walks.h"
#include "FrameworkDataContainers/SerialParametersType.h"

// clang-format off
constinit const Framework::FieldRow CommParametersType::s_Rows[] = {
    Framework::Element("CommHandlerFactoryName", &CommParametersType::m_CommHandlerFactoryName),
    Framework::Element("CommHandlerFactoryMethod", &CommParametersType::m_CommHandlerFactoryMethod),
    Framework::EnumElement<&CommParametersType::m_Mode>("Mode", "CommModeType"),
    Framework::Element("FileName", &CommParametersType::m_FileName),
    Framework::Element("HostName", &CommParametersType::m_HostName),
    Framework::Element("Port", &CommParametersType::m_Port),
    Framework::Element("NumConnections", &CommParametersType::m_NumConnections),
    Framework::Child<&CommParametersType::m_SerialParameters>("SerialParameters", "SerialParametersType"),
    Framework::Element("DeviceDescList", &CommParametersType::m_DeviceDescList),
    Framework::Element("MaxBufferSize", &CommParametersType::m_MaxBufferSize, 16384),
};

constinit const Framework::FieldTable CommParametersType::s_Table = {
    .className = "CommParametersType",
    .elementName = "CommParameters",
    .parent = nullptr,
    .isStructuralConfigLoader = false,
    .isRoot = false,
    .rows = s_Rows,
    .create = &Framework::CreateContainer<CommParametersType>,
    .type = &typeid(CommParametersType),
    .autoFill = Framework::ToBase(&CommParametersType::m_bAutoFillTypeInfo),
};
// clang-format on

CommParametersType::CommParametersType(bool bBuildFromScratch) : TypedDataContainer(bBuildFromScratch) {
    Framework::NameByClass(*this, s_Table);
}

CommParametersType::~CommParametersType() {
    delete m_SerialParameters;
}

zelString CommParametersType::GetBaseType() {
    return "CommParametersType";
}

void CommParametersType::GetProperties(ParameterList& pList) {
    Framework::Properties(*this, s_Table, pList);
}

bool CommParametersType::MergeDataMembers(XMLDataWrapper* pMergeData, zelString sFeatureID) {
    return Framework::Merge(*this, s_Table, pMergeData, sFeatureID, __LINE__);
}

zelString CommParametersType::GetAttributeList() {
    return Framework::AttributePredicate(*this, s_Table);
}

ParameterList* CommParametersType::GetPLAttributeList() {
    return Framework::AttributeParameters(*this, s_Table);
}

TypedDataContainer* CommParametersType::Clone() {
    return Framework::Clone(*this, s_Table);
}

bool CommParametersType::DumpMergeContents(const zelString& sParentQuery, FullFunctionXMLDataWrapper* pOutput,
                                           int QueryPos, bool bIncludeMergeAttributes) {
    return Framework::DumpByQuery(*this, s_Table, sParentQuery, pOutput, QueryPos, bIncludeMergeAttributes);
}

bool CommParametersType::DumpMergeContentsII(DOMNode* pParentNode, FullFunctionXMLDataWrapper* pOutput,
                                             DOMNode*& pPassedCurrent, bool bIncludeMergeAttributes) {
    return Framework::DumpByNode(*this, s_Table, pParentNode, pOutput, pPassedCurrent, bIncludeMergeAttributes);
}

bool CommParametersType::UpdateContainedData() {
    return Framework::Update(*this, s_Table);
}

bool CommParametersType::PopulateDataMembers(XalanNode* pNode) {
    return Framework::Populate(*this, s_Table, pNode);
}

void CommParametersType::ResetDataMembers() {
    Framework::Reset(*this, s_Table);
}

zelString CommParametersType::GetCommHandlerFactoryName() {
    return m_CommHandlerFactoryName;
}

void CommParametersType::SetCommHandlerFactoryName(LPCTSTR szNew) {
    m_CommHandlerFactoryName = szNew;
}

zelString CommParametersType::GetCommHandlerFactoryMethod() {
    return m_CommHandlerFactoryMethod;
}

void CommParametersType::SetCommHandlerFactoryMethod(LPCTSTR szNew) {
    m_CommHandlerFactoryMethod = szNew;
}

CommModeType CommParametersType::GetMode() {
    return m_Mode;
}

void CommParametersType::SetMode(CommModeType szNew) {
    m_Mode = szNew;
}

zelString CommParametersType::GetFileName() {
    return m_FileName;
}

void CommParametersType::SetFileName(LPCTSTR szNew) {
    m_FileName = szNew;
}

zelString CommParametersType::GetHostName() {
    return m_HostName;
}

void CommParametersType::SetHostName(LPCTSTR szNew) {
    m_HostName = szNew;
}

int CommParametersType::GetPort() {
    return m_Port;
}

void CommParametersType::SetPort(int szNew) {
    m_Port = szNew;
}

int CommParametersType::GetNumConnections() {
    return m_NumConnections;
}

void CommParametersType::SetNumConnections(int szNew) {
    m_NumConnections = szNew;
}

SerialParametersType* CommParametersType::GetSerialParameters() {
    return m_SerialParameters;
}

void CommParametersType::SetSerialParameters(SerialParametersType* szNew) {
    Framework::ReplaceChild(m_SerialParameters, szNew);
}

zelString CommParametersType::GetDeviceDescList() {
    return m_DeviceDescList;
}

void CommParametersType::SetDeviceDescList(LPCTSTR szNew) {
    m_DeviceDescList = szNew;
}

int CommParametersType::GetMaxBufferSize() {
    return m_MaxBufferSize;
}

void CommParametersType::SetMaxBufferSize(int szNew) {
    m_MaxBufferSize = szNew;
}

bool CommParametersType::AutoFillTypeInfo() {
    return true;
}
