// Generated from Methods.xsd; do not edit. Regenerate with the target "generate".
#include "FrameworkDataContainers/AbstractMethodDefType.h"

#include "Framework/FrameworkDataContainers/Walks/Lists.h"
#include "Framework/FrameworkDataContainers/Walks/Walks.h"

// clang-format off
constinit const Framework::FieldRow AbstractMethodDefType::s_Rows[] = {
    Framework::Element("ClassName", &AbstractMethodDefType::m_ClassName),
    Framework::Element("Method", &AbstractMethodDefType::m_Method),
};

constinit const Framework::FieldTable AbstractMethodDefType::s_Table = {
    .className = "AbstractMethodDefType",
    .elementName = "AbstractMethod",
    .parent = nullptr,
    .isStructuralConfigLoader = false,
    .isRoot = false,
    .rows = s_Rows,
    .create = &Framework::CreateContainer<AbstractMethodDefType>,
    .type = &typeid(AbstractMethodDefType),
    .autoFill = Framework::ToBase(&AbstractMethodDefType::m_bAutoFillTypeInfo),
};
// clang-format on

AbstractMethodDefType::AbstractMethodDefType(bool bBuildFromScratch) : TypedDataContainer(bBuildFromScratch) {
    Framework::NameByClass(*this, s_Table);
}

AbstractMethodDefType::~AbstractMethodDefType() {}

zelString AbstractMethodDefType::GetBaseType() {
    return "AbstractMethodDefType";
}

void AbstractMethodDefType::GetProperties(ParameterList& pList) {
    Framework::Properties(*this, s_Table, pList);
}

bool AbstractMethodDefType::MergeDataMembers(XMLDataWrapper* pMergeData, zelString sFeatureID) {
    return Framework::Merge(*this, s_Table, pMergeData, sFeatureID, __LINE__);
}

zelString AbstractMethodDefType::GetAttributeList() {
    return Framework::AttributePredicate(*this, s_Table);
}

ParameterList* AbstractMethodDefType::GetPLAttributeList() {
    return Framework::AttributeParameters(*this, s_Table);
}

TypedDataContainer* AbstractMethodDefType::Clone() {
    return Framework::Clone(*this, s_Table);
}

bool AbstractMethodDefType::DumpMergeContents(const zelString& sParentQuery, FullFunctionXMLDataWrapper* pOutput,
                                              int QueryPos, bool bIncludeMergeAttributes) {
    return Framework::DumpByQuery(*this, s_Table, sParentQuery, pOutput, QueryPos, bIncludeMergeAttributes);
}

bool AbstractMethodDefType::DumpMergeContentsII(DOMNode* pParentNode, FullFunctionXMLDataWrapper* pOutput,
                                                DOMNode*& pPassedCurrent, bool bIncludeMergeAttributes) {
    return Framework::DumpByNode(*this, s_Table, pParentNode, pOutput, pPassedCurrent, bIncludeMergeAttributes);
}

bool AbstractMethodDefType::UpdateContainedData() {
    return Framework::Update(*this, s_Table);
}

bool AbstractMethodDefType::PopulateDataMembers(XalanNode* pNode) {
    return Framework::Populate(*this, s_Table, pNode);
}

void AbstractMethodDefType::ResetDataMembers() {
    Framework::Reset(*this, s_Table);
}

zelString AbstractMethodDefType::GetClassName() {
    return m_ClassName;
}

void AbstractMethodDefType::SetClassName(LPCTSTR szNew) {
    m_ClassName = szNew;
}

zelString AbstractMethodDefType::GetMethod() {
    return m_Method;
}

void AbstractMethodDefType::SetMethod(LPCTSTR szNew) {
    m_Method = szNew;
}

bool AbstractMethodDefType::AutoFillTypeInfo() {
    return true;
}
