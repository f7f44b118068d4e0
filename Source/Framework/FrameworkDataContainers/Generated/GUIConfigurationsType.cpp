// Generated from GUIConfigurations.xsd; do not edit. Regenerate with the target "generate".
#include "FrameworkDataContainers/GUIConfigurationsType.h"

#include "Framework/FrameworkDataContainers/Walks/Lists.h"
#include "Framework/FrameworkDataContainers/Walks/Walks.h"
#include "FrameworkDataContainers/GUIConfigListType.h"
#include "FrameworkDataContainers/LaneConfigRefListType.h"

// clang-format off
constinit const Framework::FieldRow GUIConfigurationsType::s_Rows[] = {
    Framework::Child<&GUIConfigurationsType::m_LaneConfigRefList>("LaneConfigRefList", "LaneConfigRefListType"),
    Framework::Child<&GUIConfigurationsType::m_GUIConfigList>("GUIConfigList", "GUIConfigListType"),
};

constinit const Framework::FieldTable GUIConfigurationsType::s_Table = {
    .className = "GUIConfigurationsType",
    .elementName = "GUIConfigurations",
    .parent = nullptr,
    .isStructuralConfigLoader = true,
    .isRoot = true,
    .rows = s_Rows,
    .create = &Framework::CreateContainer<GUIConfigurationsType>,
    .type = &typeid(GUIConfigurationsType),
    .autoFill = Framework::ToBase(&GUIConfigurationsType::m_bAutoFillTypeInfo),
};
// clang-format on

GUIConfigurationsType::GUIConfigurationsType(bool bBuildFromScratch) : StructuralConfigLoader(bBuildFromScratch) {
    Framework::NameByClass(*this, s_Table);
}

GUIConfigurationsType::~GUIConfigurationsType() {
    delete m_LaneConfigRefList;
    delete m_GUIConfigList;
}

zelString GUIConfigurationsType::GetBaseType() {
    return "GUIConfigurationsType";
}

void GUIConfigurationsType::GetProperties(ParameterList& pList) {
    Framework::Properties(*this, s_Table, pList);
}

bool GUIConfigurationsType::MergeDataMembers(XMLDataWrapper* pMergeData, zelString sFeatureID) {
    return Framework::Merge(*this, s_Table, pMergeData, sFeatureID, __LINE__);
}

zelString GUIConfigurationsType::GetAttributeList() {
    return Framework::AttributePredicate(*this, s_Table);
}

ParameterList* GUIConfigurationsType::GetPLAttributeList() {
    return Framework::AttributeParameters(*this, s_Table);
}

TypedDataContainer* GUIConfigurationsType::Clone() {
    return Framework::Clone(*this, s_Table);
}

bool GUIConfigurationsType::DumpMergeContents(const zelString& sParentQuery, FullFunctionXMLDataWrapper* pOutput,
                                              int QueryPos, bool bIncludeMergeAttributes) {
    return Framework::DumpByQuery(*this, s_Table, sParentQuery, pOutput, QueryPos, bIncludeMergeAttributes);
}

bool GUIConfigurationsType::DumpMergeContentsII(DOMNode* pParentNode, FullFunctionXMLDataWrapper* pOutput,
                                                DOMNode*& pPassedCurrent, bool bIncludeMergeAttributes) {
    return Framework::DumpByNode(*this, s_Table, pParentNode, pOutput, pPassedCurrent, bIncludeMergeAttributes);
}

bool GUIConfigurationsType::UpdateContainedData() {
    return Framework::Update(*this, s_Table);
}

bool GUIConfigurationsType::PopulateDataMembers(XalanNode* pNode) {
    return Framework::Populate(*this, s_Table, pNode);
}

void GUIConfigurationsType::ResetDataMembers() {
    Framework::Reset(*this, s_Table);
}

LaneConfigRefListType* GUIConfigurationsType::GetLaneConfigRefList() {
    return m_LaneConfigRefList;
}

void GUIConfigurationsType::SetLaneConfigRefList(LaneConfigRefListType* szNew) {
    Framework::ReplaceChild(m_LaneConfigRefList, szNew);
}

GUIConfigListType* GUIConfigurationsType::GetGUIConfigList() {
    return m_GUIConfigList;
}

void GUIConfigurationsType::SetGUIConfigList(GUIConfigListType* szNew) {
    Framework::ReplaceChild(m_GUIConfigList, szNew);
}

bool GUIConfigurationsType::AutoFillTypeInfo() {
    return true;
}
