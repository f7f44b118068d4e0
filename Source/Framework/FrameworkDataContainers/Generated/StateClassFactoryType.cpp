// Generated from StateActionDef.xsd; do not edit. Regenerate with the target "generate".
#include "FrameworkDataContainers/StateClassFactoryType.h"

#include "Framework/FrameworkDataContainers/Walks/Lists.h"
#include "Framework/FrameworkDataContainers/Walks/Walks.h"
#include "FrameworkDataContainers/BasicClassFactoryType.h"

// clang-format off
constinit const Framework::FieldRow StateClassFactoryType::s_Rows[] = {
    Framework::PlainList<BasicClassFactoryType, &StateClassFactoryType::AddClass, &StateClassFactoryType::ClearClass>("Class", "BasicClassFactoryType", &StateClassFactoryType::m_ClassList),
};

constinit const Framework::FieldTable StateClassFactoryType::s_Table = {
    .className = "StateClassFactoryType",
    .elementName = "StateClassFactory",
    .parent = nullptr,
    .isStructuralConfigLoader = false,
    .isRoot = false,
    .rows = s_Rows,
    .create = &Framework::CreateContainer<StateClassFactoryType>,
    .type = &typeid(StateClassFactoryType),
    .autoFill = Framework::ToBase(&StateClassFactoryType::m_bAutoFillTypeInfo),
};
// clang-format on

StateClassFactoryType::StateClassFactoryType(bool bBuildFromScratch) : TypedDataContainer(bBuildFromScratch) {
    Framework::NameByClass(*this, s_Table);
}

StateClassFactoryType::~StateClassFactoryType() {
    StateClassFactoryType::ClearClass();
}

zelString StateClassFactoryType::GetBaseType() {
    return "StateClassFactoryType";
}

void StateClassFactoryType::GetProperties(ParameterList& pList) {
    Framework::Properties(*this, s_Table, pList);
}

bool StateClassFactoryType::MergeDataMembers(XMLDataWrapper* pMergeData, zelString sFeatureID) {
    return Framework::Merge(*this, s_Table, pMergeData, sFeatureID, __LINE__);
}

zelString StateClassFactoryType::GetAttributeList() {
    return Framework::AttributePredicate(*this, s_Table);
}

ParameterList* StateClassFactoryType::GetPLAttributeList() {
    return Framework::AttributeParameters(*this, s_Table);
}

TypedDataContainer* StateClassFactoryType::Clone() {
    return Framework::Clone(*this, s_Table);
}

bool StateClassFactoryType::DumpMergeContents(const zelString& sParentQuery, FullFunctionXMLDataWrapper* pOutput,
                                              int QueryPos, bool bIncludeMergeAttributes) {
    return Framework::DumpByQuery(*this, s_Table, sParentQuery, pOutput, QueryPos, bIncludeMergeAttributes);
}

bool StateClassFactoryType::DumpMergeContentsII(DOMNode* pParentNode, FullFunctionXMLDataWrapper* pOutput,
                                                DOMNode*& pPassedCurrent, bool bIncludeMergeAttributes) {
    return Framework::DumpByNode(*this, s_Table, pParentNode, pOutput, pPassedCurrent, bIncludeMergeAttributes);
}

bool StateClassFactoryType::UpdateContainedData() {
    return Framework::Update(*this, s_Table);
}

bool StateClassFactoryType::PopulateDataMembers(XalanNode* pNode) {
    return Framework::Populate(*this, s_Table, pNode);
}

void StateClassFactoryType::ResetDataMembers() {
    Framework::Reset(*this, s_Table);
}

int StateClassFactoryType::GetClassLength() {
    return Framework::ListLength(m_ClassList);
}

BasicClassFactoryType* StateClassFactoryType::GetClass(int Index) {
    return static_cast<BasicClassFactoryType*>(Framework::GrowTo(*this, s_Rows[0], Index));
}

void StateClassFactoryType::AddNewClass(BasicClassFactoryType* szNew) {
    Framework::AddNewPlain(m_ClassList, szNew);
}

bool StateClassFactoryType::AutoFillTypeInfo() {
    return true;
}

void StateClassFactoryType::AddClass(XMLDataWrapper* pData, XalanNode* spNode) {
    Framework::AddPlain(*this, s_Rows[0], pData, spNode);
}

void StateClassFactoryType::ClearClass() {
    Framework::ClearPlain(m_ClassList);
}
