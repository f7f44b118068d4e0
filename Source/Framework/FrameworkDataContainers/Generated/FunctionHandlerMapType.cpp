// Generated from AudioLookupConfig.xsd; do not edit. Regenerate with the target "generate".
#include "FrameworkDataContainers/FunctionHandlerMapType.h"

#include "Framework/FrameworkDataContainers/Walks/Lists.h"
#include "Framework/FrameworkDataContainers/Walks/Walks.h"
#include "FrameworkDataContainers/FunctionHandlerType.h"

// clang-format off
constinit const Framework::FieldRow FunctionHandlerMapType::s_Rows[] = {
    Framework::KeyedList<FunctionHandlerType, &FunctionHandlerType::Getlanguage, &FunctionHandlerMapType::AddFunctionHandler, &FunctionHandlerMapType::ClearFunctionHandler>("FunctionHandler", "FunctionHandlerType", "language", &FunctionHandlerMapType::m_MapFunctionHandlerList, &FunctionHandlerMapType::m_FunctionHandlerList),
};

constinit const Framework::FieldTable FunctionHandlerMapType::s_Table = {
    .className = "FunctionHandlerMapType",
    .elementName = "FunctionHandlerMap",
    .parent = nullptr,
    .isStructuralConfigLoader = false,
    .isRoot = false,
    .rows = s_Rows,
    .create = &Framework::CreateContainer<FunctionHandlerMapType>,
    .type = &typeid(FunctionHandlerMapType),
    .autoFill = Framework::ToBase(&FunctionHandlerMapType::m_bAutoFillTypeInfo),
};
// clang-format on

FunctionHandlerMapType::FunctionHandlerMapType(bool bBuildFromScratch) : TypedDataContainer(bBuildFromScratch) {
    Framework::NameByClass(*this, s_Table);
}

FunctionHandlerMapType::~FunctionHandlerMapType() {
    FunctionHandlerMapType::ClearFunctionHandler();
}

zelString FunctionHandlerMapType::GetBaseType() {
    return "FunctionHandlerMapType";
}

void FunctionHandlerMapType::GetProperties(ParameterList& pList) {
    Framework::Properties(*this, s_Table, pList);
}

bool FunctionHandlerMapType::MergeDataMembers(XMLDataWrapper* pMergeData, zelString sFeatureID) {
    return Framework::Merge(*this, s_Table, pMergeData, sFeatureID, __LINE__);
}

zelString FunctionHandlerMapType::GetAttributeList() {
    return Framework::AttributePredicate(*this, s_Table);
}

ParameterList* FunctionHandlerMapType::GetPLAttributeList() {
    return Framework::AttributeParameters(*this, s_Table);
}

TypedDataContainer* FunctionHandlerMapType::Clone() {
    return Framework::Clone(*this, s_Table);
}

bool FunctionHandlerMapType::DumpMergeContents(const zelString& sParentQuery, FullFunctionXMLDataWrapper* pOutput,
                                               int QueryPos, bool bIncludeMergeAttributes) {
    return Framework::DumpByQuery(*this, s_Table, sParentQuery, pOutput, QueryPos, bIncludeMergeAttributes);
}

bool FunctionHandlerMapType::DumpMergeContentsII(DOMNode* pParentNode, FullFunctionXMLDataWrapper* pOutput,
                                                 DOMNode*& pPassedCurrent, bool bIncludeMergeAttributes) {
    return Framework::DumpByNode(*this, s_Table, pParentNode, pOutput, pPassedCurrent, bIncludeMergeAttributes);
}

bool FunctionHandlerMapType::UpdateContainedData() {
    return Framework::Update(*this, s_Table);
}

bool FunctionHandlerMapType::PopulateDataMembers(XalanNode* pNode) {
    return Framework::Populate(*this, s_Table, pNode);
}

void FunctionHandlerMapType::ResetDataMembers() {
    Framework::Reset(*this, s_Table);
}

int FunctionHandlerMapType::GetFunctionHandlerLength() {
    return Framework::ListLength(m_FunctionHandlerList);
}

FunctionHandlerType* FunctionHandlerMapType::GetFunctionHandler(int Index) {
    return static_cast<FunctionHandlerType*>(Framework::EntryAt(m_FunctionHandlerList, Index));
}

FunctionHandlerType* FunctionHandlerMapType::GetFunctionHandler(const zelString& sName) {
    return static_cast<FunctionHandlerType*>(Framework::EntryByKey(m_MapFunctionHandlerList, sName));
}

void FunctionHandlerMapType::AddNewFunctionHandler(FunctionHandlerType* szNew, const zelString& sName) {
    Framework::AddNewKeyed(m_MapFunctionHandlerList, m_FunctionHandlerList, szNew, sName);
}

void FunctionHandlerMapType::RemoveFunctionHandler(const zelString& sName, const zelString& sFeatureId) {
    Framework::RemoveKeyed(*this, s_Rows[0], sName, sFeatureId);
}

bool FunctionHandlerMapType::AutoFillTypeInfo() {
    return true;
}

void FunctionHandlerMapType::AddFunctionHandler(XMLDataWrapper* pData, XalanNode* spNode, const zelString& sName) {
    Framework::AddKeyed(*this, s_Rows[0], pData, spNode, sName, __LINE__);
}

void FunctionHandlerMapType::ClearFunctionHandler() {
    Framework::ClearKeyed(m_MapFunctionHandlerList, m_FunctionHandlerList);
}
