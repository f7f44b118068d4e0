// Generated from StateActionDef.xsd; do not edit. Regenerate with the target "generate".
#include "FrameworkDataContainers/StateActionDefType.h"

#include "Framework/FrameworkDataContainers/Walks/Lists.h"
#include "Framework/FrameworkDataContainers/Walks/Walks.h"
#include "FrameworkDataContainers/StateActionMapType.h"
#include "FrameworkDataContainers/StateClassFactoryType.h"

// clang-format off
constinit const Framework::FieldRow StateActionDefType::s_Rows[] = {
    Framework::Child<&StateActionDefType::m_ActionMap>("ActionMap", "StateActionMapType"),
    Framework::Child<&StateActionDefType::m_ClassFactory>("ClassFactory", "StateClassFactoryType"),
};

constinit const Framework::FieldTable StateActionDefType::s_Table = {
    .className = "StateActionDefType",
    .elementName = "StateActionDef",
    .parent = nullptr,
    .isStructuralConfigLoader = true,
    .isRoot = true,
    .rows = s_Rows,
    .create = &Framework::CreateContainer<StateActionDefType>,
    .type = &typeid(StateActionDefType),
    .autoFill = Framework::ToBase(&StateActionDefType::m_bAutoFillTypeInfo),
};
// clang-format on

StateActionDefType::StateActionDefType(bool bBuildFromScratch) : StructuralConfigLoader(bBuildFromScratch) {
    Framework::NameByClass(*this, s_Table);
}

StateActionDefType::~StateActionDefType() {
    delete m_ActionMap;
    delete m_ClassFactory;
}

zelString StateActionDefType::GetBaseType() {
    return "StateActionDefType";
}

void StateActionDefType::GetProperties(ParameterList& pList) {
    Framework::Properties(*this, s_Table, pList);
}

bool StateActionDefType::MergeDataMembers(XMLDataWrapper* pMergeData, zelString sFeatureID) {
    return Framework::Merge(*this, s_Table, pMergeData, sFeatureID, __LINE__);
}

zelString StateActionDefType::GetAttributeList() {
    return Framework::AttributePredicate(*this, s_Table);
}

ParameterList* StateActionDefType::GetPLAttributeList() {
    return Framework::AttributeParameters(*this, s_Table);
}

TypedDataContainer* StateActionDefType::Clone() {
    return Framework::Clone(*this, s_Table);
}

bool StateActionDefType::DumpMergeContents(const zelString& sParentQuery, FullFunctionXMLDataWrapper* pOutput,
                                           int QueryPos, bool bIncludeMergeAttributes) {
    return Framework::DumpByQuery(*this, s_Table, sParentQuery, pOutput, QueryPos, bIncludeMergeAttributes);
}

bool StateActionDefType::DumpMergeContentsII(DOMNode* pParentNode, FullFunctionXMLDataWrapper* pOutput,
                                             DOMNode*& pPassedCurrent, bool bIncludeMergeAttributes) {
    return Framework::DumpByNode(*this, s_Table, pParentNode, pOutput, pPassedCurrent, bIncludeMergeAttributes);
}

bool StateActionDefType::UpdateContainedData() {
    return Framework::Update(*this, s_Table);
}

bool StateActionDefType::PopulateDataMembers(XalanNode* pNode) {
    return Framework::Populate(*this, s_Table, pNode);
}

void StateActionDefType::ResetDataMembers() {
    Framework::Reset(*this, s_Table);
}

StateActionMapType* StateActionDefType::GetActionMap() {
    return m_ActionMap;
}

void StateActionDefType::SetActionMap(StateActionMapType* szNew) {
    Framework::ReplaceChild(m_ActionMap, szNew);
}

StateClassFactoryType* StateActionDefType::GetClassFactory() {
    return m_ClassFactory;
}

void StateActionDefType::SetClassFactory(StateClassFactoryType* szNew) {
    Framework::ReplaceChild(m_ClassFactory, szNew);
}

bool StateActionDefType::AutoFillTypeInfo() {
    return true;
}
