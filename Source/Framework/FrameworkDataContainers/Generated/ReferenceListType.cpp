// Generated from ConfigDefRoot.xsd; do not edit. Regenerate with the target "generate".
#include "FrameworkDataContainers/ReferenceListType.h"

#include "Framework/FrameworkDataContainers/Walks/Lists.h"
#include "Framework/FrameworkDataContainers/Walks/Walks.h"
#include "FrameworkDataContainers/ReferenceType.h"

// clang-format off
constinit const Framework::FieldRow ReferenceListType::s_Rows[] = {
    Framework::PlainList<ReferenceType, &ReferenceListType::AddReference, &ReferenceListType::ClearReference>("Reference", "ReferenceType", &ReferenceListType::m_ReferenceList),
};

constinit const Framework::FieldTable ReferenceListType::s_Table = {
    .className = "ReferenceListType",
    .elementName = "ReferenceList",
    .parent = nullptr,
    .isStructuralConfigLoader = false,
    .isRoot = false,
    .rows = s_Rows,
    .create = &Framework::CreateContainer<ReferenceListType>,
    .type = &typeid(ReferenceListType),
    .autoFill = Framework::ToBase(&ReferenceListType::m_bAutoFillTypeInfo),
};
// clang-format on

ReferenceListType::ReferenceListType(bool bBuildFromScratch) : TypedDataContainer(bBuildFromScratch) {
    Framework::NameByClass(*this, s_Table);
}

ReferenceListType::~ReferenceListType() {
    ReferenceListType::ClearReference();
}

zelString ReferenceListType::GetBaseType() {
    return "ReferenceListType";
}

void ReferenceListType::GetProperties(ParameterList& pList) {
    Framework::Properties(*this, s_Table, pList);
}

bool ReferenceListType::MergeDataMembers(XMLDataWrapper* pMergeData, zelString sFeatureID) {
    return Framework::Merge(*this, s_Table, pMergeData, sFeatureID, __LINE__);
}

zelString ReferenceListType::GetAttributeList() {
    return Framework::AttributePredicate(*this, s_Table);
}

ParameterList* ReferenceListType::GetPLAttributeList() {
    return Framework::AttributeParameters(*this, s_Table);
}

TypedDataContainer* ReferenceListType::Clone() {
    return Framework::Clone(*this, s_Table);
}

bool ReferenceListType::DumpMergeContents(const zelString& sParentQuery, FullFunctionXMLDataWrapper* pOutput,
                                          int QueryPos, bool bIncludeMergeAttributes) {
    return Framework::DumpByQuery(*this, s_Table, sParentQuery, pOutput, QueryPos, bIncludeMergeAttributes);
}

bool ReferenceListType::DumpMergeContentsII(DOMNode* pParentNode, FullFunctionXMLDataWrapper* pOutput,
                                            DOMNode*& pPassedCurrent, bool bIncludeMergeAttributes) {
    return Framework::DumpByNode(*this, s_Table, pParentNode, pOutput, pPassedCurrent, bIncludeMergeAttributes);
}

bool ReferenceListType::UpdateContainedData() {
    return Framework::Update(*this, s_Table);
}

bool ReferenceListType::PopulateDataMembers(XalanNode* pNode) {
    return Framework::Populate(*this, s_Table, pNode);
}

void ReferenceListType::ResetDataMembers() {
    Framework::Reset(*this, s_Table);
}

int ReferenceListType::GetReferenceLength() {
    return Framework::ListLength(m_ReferenceList);
}

ReferenceType* ReferenceListType::GetReference(int Index) {
    return static_cast<ReferenceType*>(Framework::GrowTo(*this, s_Rows[0], Index));
}

void ReferenceListType::AddNewReference(ReferenceType* szNew) {
    Framework::AddNewPlain(m_ReferenceList, szNew);
}

bool ReferenceListType::AutoFillTypeInfo() {
    return true;
}

void ReferenceListType::AddReference(XMLDataWrapper* pData, XalanNode* spNode) {
    Framework::AddPlain(*this, s_Rows[0], pData, spNode);
}

void ReferenceListType::ClearReference() {
    Framework::ClearPlain(m_ReferenceList);
}
