// Generated from StructureTransformDef.xsd; do not edit. Regenerate with the target "generate".
#include "FrameworkDataContainers/InterfaceSpecificPropertiesType.h"

#include "Framework/FrameworkDataContainers/Walks/Lists.h"
#include "Framework/FrameworkDataContainers/Walks/Walks.h"
#include "FrameworkDataContainers/ISPropertyType.h"

// clang-format off
constinit const Framework::FieldRow InterfaceSpecificPropertiesType::s_Rows[] = {
    Framework::KeyedList<ISPropertyType, &ISPropertyType::GetName, &InterfaceSpecificPropertiesType::AddISProperty, &InterfaceSpecificPropertiesType::ClearISProperty>("ISProperty", "ISPropertyType", "Name", &InterfaceSpecificPropertiesType::m_MapISPropertyList, &InterfaceSpecificPropertiesType::m_ISPropertyList),
};

constinit const Framework::FieldTable InterfaceSpecificPropertiesType::s_Table = {
    .className = "InterfaceSpecificPropertiesType",
    .elementName = "InterfaceSpecificProperties",
    .parent = nullptr,
    .isStructuralConfigLoader = false,
    .isRoot = false,
    .rows = s_Rows,
    .create = &Framework::CreateContainer<InterfaceSpecificPropertiesType>,
    .type = &typeid(InterfaceSpecificPropertiesType),
    .autoFill = Framework::ToBase(&InterfaceSpecificPropertiesType::m_bAutoFillTypeInfo),
};
// clang-format on

InterfaceSpecificPropertiesType::InterfaceSpecificPropertiesType(bool bBuildFromScratch)
    : TypedDataContainer(bBuildFromScratch) {
    Framework::NameByClass(*this, s_Table);
}

InterfaceSpecificPropertiesType::~InterfaceSpecificPropertiesType() {
    InterfaceSpecificPropertiesType::ClearISProperty();
}

zelString InterfaceSpecificPropertiesType::GetBaseType() {
    return "InterfaceSpecificPropertiesType";
}

void InterfaceSpecificPropertiesType::GetProperties(ParameterList& pList) {
    Framework::Properties(*this, s_Table, pList);
}

bool InterfaceSpecificPropertiesType::MergeDataMembers(XMLDataWrapper* pMergeData, zelString sFeatureID) {
    return Framework::Merge(*this, s_Table, pMergeData, sFeatureID, __LINE__);
}

zelString InterfaceSpecificPropertiesType::GetAttributeList() {
    return Framework::AttributePredicate(*this, s_Table);
}

ParameterList* InterfaceSpecificPropertiesType::GetPLAttributeList() {
    return Framework::AttributeParameters(*this, s_Table);
}

TypedDataContainer* InterfaceSpecificPropertiesType::Clone() {
    return Framework::Clone(*this, s_Table);
}

bool InterfaceSpecificPropertiesType::DumpMergeContents(const zelString& sParentQuery,
                                                        FullFunctionXMLDataWrapper* pOutput, int QueryPos,
                                                        bool bIncludeMergeAttributes) {
    return Framework::DumpByQuery(*this, s_Table, sParentQuery, pOutput, QueryPos, bIncludeMergeAttributes);
}

bool InterfaceSpecificPropertiesType::DumpMergeContentsII(DOMNode* pParentNode, FullFunctionXMLDataWrapper* pOutput,
                                                          DOMNode*& pPassedCurrent, bool bIncludeMergeAttributes) {
    return Framework::DumpByNode(*this, s_Table, pParentNode, pOutput, pPassedCurrent, bIncludeMergeAttributes);
}

bool InterfaceSpecificPropertiesType::UpdateContainedData() {
    return Framework::Update(*this, s_Table);
}

bool InterfaceSpecificPropertiesType::PopulateDataMembers(XalanNode* pNode) {
    return Framework::Populate(*this, s_Table, pNode);
}

void InterfaceSpecificPropertiesType::ResetDataMembers() {
    Framework::Reset(*this, s_Table);
}

int InterfaceSpecificPropertiesType::GetISPropertyLength() {
    return Framework::ListLength(m_ISPropertyList);
}

ISPropertyType* InterfaceSpecificPropertiesType::GetISProperty(int Index) {
    return static_cast<ISPropertyType*>(Framework::EntryAt(m_ISPropertyList, Index));
}

ISPropertyType* InterfaceSpecificPropertiesType::GetISProperty(const zelString& sName) {
    return static_cast<ISPropertyType*>(Framework::EntryByKey(m_MapISPropertyList, sName));
}

void InterfaceSpecificPropertiesType::AddNewISProperty(ISPropertyType* szNew, const zelString& sName) {
    Framework::AddNewKeyed(m_MapISPropertyList, m_ISPropertyList, szNew, sName);
}

void InterfaceSpecificPropertiesType::RemoveISProperty(const zelString& sName, const zelString& sFeatureId) {
    Framework::RemoveKeyed(*this, s_Rows[0], sName, sFeatureId);
}

bool InterfaceSpecificPropertiesType::AutoFillTypeInfo() {
    return true;
}

void InterfaceSpecificPropertiesType::AddISProperty(XMLDataWrapper* pData, XalanNode* spNode, const zelString& sName) {
    Framework::AddKeyed(*this, s_Rows[0], pData, spNode, sName, __LINE__);
}

void InterfaceSpecificPropertiesType::ClearISProperty() {
    Framework::ClearKeyed(m_MapISPropertyList, m_ISPropertyList);
}
