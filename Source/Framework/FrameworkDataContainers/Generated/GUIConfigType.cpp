// Generated from GUIConfigurations.xsd; do not edit. Regenerate with the target "generate".
#include "FrameworkDataContainers/GUIConfigType.h"

#include "Framework/FrameworkDataContainers/Walks/Lists.h"
#include "Framework/FrameworkDataContainers/Walks/Walks.h"

// clang-format off
constinit const Framework::FieldRow GUIConfigType::s_Rows[] = {
    Framework::Element("Key", &GUIConfigType::m_Key),
    Framework::Element("Value", &GUIConfigType::m_Value),
    Framework::Element("RefLookup", &GUIConfigType::m_RefLookup),
};

constinit const Framework::FieldTable GUIConfigType::s_Table = {
    .className = "GUIConfigType",
    .elementName = "GUIConfig",
    .parent = nullptr,
    .isStructuralConfigLoader = false,
    .isRoot = false,
    .rows = s_Rows,
    .create = &Framework::CreateContainer<GUIConfigType>,
    .type = &typeid(GUIConfigType),
    .autoFill = Framework::ToBase(&GUIConfigType::m_bAutoFillTypeInfo),
};
// clang-format on

GUIConfigType::GUIConfigType(bool bBuildFromScratch) : TypedDataContainer(bBuildFromScratch) {
    Framework::NameByClass(*this, s_Table);
}

GUIConfigType::~GUIConfigType() {}

zelString GUIConfigType::GetBaseType() {
    return "GUIConfigType";
}

void GUIConfigType::GetProperties(ParameterList& pList) {
    Framework::Properties(*this, s_Table, pList);
}

bool GUIConfigType::MergeDataMembers(XMLDataWrapper* pMergeData, zelString sFeatureID) {
    return Framework::Merge(*this, s_Table, pMergeData, sFeatureID, __LINE__);
}

zelString GUIConfigType::GetAttributeList() {
    return Framework::AttributePredicate(*this, s_Table);
}

ParameterList* GUIConfigType::GetPLAttributeList() {
    return Framework::AttributeParameters(*this, s_Table);
}

TypedDataContainer* GUIConfigType::Clone() {
    return Framework::Clone(*this, s_Table);
}

bool GUIConfigType::DumpMergeContents(const zelString& sParentQuery, FullFunctionXMLDataWrapper* pOutput, int QueryPos,
                                      bool bIncludeMergeAttributes) {
    return Framework::DumpByQuery(*this, s_Table, sParentQuery, pOutput, QueryPos, bIncludeMergeAttributes);
}

bool GUIConfigType::DumpMergeContentsII(DOMNode* pParentNode, FullFunctionXMLDataWrapper* pOutput,
                                        DOMNode*& pPassedCurrent, bool bIncludeMergeAttributes) {
    return Framework::DumpByNode(*this, s_Table, pParentNode, pOutput, pPassedCurrent, bIncludeMergeAttributes);
}

bool GUIConfigType::UpdateContainedData() {
    return Framework::Update(*this, s_Table);
}

bool GUIConfigType::PopulateDataMembers(XalanNode* pNode) {
    return Framework::Populate(*this, s_Table, pNode);
}

void GUIConfigType::ResetDataMembers() {
    Framework::Reset(*this, s_Table);
}

zelString GUIConfigType::GetKey() {
    return m_Key;
}

void GUIConfigType::SetKey(LPCTSTR szNew) {
    m_Key = szNew;
}

zelString GUIConfigType::GetValue() {
    return m_Value;
}

void GUIConfigType::SetValue(LPCTSTR szNew) {
    m_Value = szNew;
}

zelString GUIConfigType::GetRefLookup() {
    return m_RefLookup;
}

void GUIConfigType::SetRefLookup(LPCTSTR szNew) {
    m_RefLookup = szNew;
}

bool GUIConfigType::AutoFillTypeInfo() {
    return true;
}
