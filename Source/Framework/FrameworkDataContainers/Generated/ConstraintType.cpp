// Generated from ConfigDefRoot.xsd; do not edit. Regenerate with the target "generate".
#include "FrameworkDataContainers/ConstraintType.h"

#include "Framework/FrameworkDataContainers/Walks/Lists.h"
#include "Framework/FrameworkDataContainers/Walks/Walks.h"
#include "FrameworkDataContainers/ChoiceConstraintType.h"
#include "FrameworkDataContainers/ConfigSchemaDefType.h"
#include "FrameworkDataContainers/ReferenceListConstraintType.h"
#include "FrameworkDataContainers/XMLDataListDefType.h"

// clang-format off
constinit const Framework::FieldRow ConstraintType::s_Rows[] = {
    Framework::Element("MinValue", &ConstraintType::m_MinValue),
    Framework::Element("MaxValue", &ConstraintType::m_MaxValue),
    Framework::Element("MinLength", &ConstraintType::m_MinLength),
    Framework::Element("MaxLength", &ConstraintType::m_MaxLength),
    Framework::Element("SystemValue", &ConstraintType::m_SystemValue),
    Framework::PlainList<ChoiceConstraintType, &ConstraintType::AddChoice, &ConstraintType::ClearChoice>("Choice", "ChoiceConstraintType", &ConstraintType::m_ChoiceList),
    Framework::PlainList<ReferenceListConstraintType, &ConstraintType::AddReferenceListConstraint, &ConstraintType::ClearReferenceListConstraint>("ReferenceListConstraint", "ReferenceListConstraintType", &ConstraintType::m_ReferenceListConstraintList),
    Framework::Child<&ConstraintType::m_SchemaDef>("SchemaDef", "ConfigSchemaDefType"),
    Framework::Child<&ConstraintType::m_XMLDataListDef>("XMLDataListDef", "XMLDataListDefType"),
    Framework::Attribute("Type", &ConstraintType::m_Type),
};

constinit const Framework::FieldTable ConstraintType::s_Table = {
    .className = "ConstraintType",
    .elementName = "Constraint",
    .parent = nullptr,
    .isStructuralConfigLoader = false,
    .isRoot = false,
    .rows = s_Rows,
    .create = &Framework::CreateContainer<ConstraintType>,
    .type = &typeid(ConstraintType),
    .autoFill = Framework::ToBase(&ConstraintType::m_bAutoFillTypeInfo),
};
// clang-format on

ConstraintType::ConstraintType(bool bBuildFromScratch) : TypedDataContainer(bBuildFromScratch) {
    Framework::NameByClass(*this, s_Table);
}

ConstraintType::~ConstraintType() {
    ConstraintType::ClearChoice();
    ConstraintType::ClearReferenceListConstraint();
    delete m_SchemaDef;
    delete m_XMLDataListDef;
}

zelString ConstraintType::GetBaseType() {
    return "ConstraintType";
}

void ConstraintType::GetProperties(ParameterList& pList) {
    Framework::Properties(*this, s_Table, pList);
}

bool ConstraintType::MergeDataMembers(XMLDataWrapper* pMergeData, zelString sFeatureID) {
    return Framework::Merge(*this, s_Table, pMergeData, sFeatureID, __LINE__);
}

zelString ConstraintType::GetAttributeList() {
    return Framework::AttributePredicate(*this, s_Table);
}

ParameterList* ConstraintType::GetPLAttributeList() {
    return Framework::AttributeParameters(*this, s_Table);
}

TypedDataContainer* ConstraintType::Clone() {
    return Framework::Clone(*this, s_Table);
}

bool ConstraintType::DumpMergeContents(const zelString& sParentQuery, FullFunctionXMLDataWrapper* pOutput, int QueryPos,
                                       bool bIncludeMergeAttributes) {
    return Framework::DumpByQuery(*this, s_Table, sParentQuery, pOutput, QueryPos, bIncludeMergeAttributes);
}

bool ConstraintType::DumpMergeContentsII(DOMNode* pParentNode, FullFunctionXMLDataWrapper* pOutput,
                                         DOMNode*& pPassedCurrent, bool bIncludeMergeAttributes) {
    return Framework::DumpByNode(*this, s_Table, pParentNode, pOutput, pPassedCurrent, bIncludeMergeAttributes);
}

bool ConstraintType::UpdateContainedData() {
    return Framework::Update(*this, s_Table);
}

bool ConstraintType::PopulateDataMembers(XalanNode* pNode) {
    return Framework::Populate(*this, s_Table, pNode);
}

void ConstraintType::ResetDataMembers() {
    Framework::Reset(*this, s_Table);
}

zelString ConstraintType::GetMinValue() {
    return m_MinValue;
}

void ConstraintType::SetMinValue(LPCTSTR szNew) {
    m_MinValue = szNew;
}

zelString ConstraintType::GetMaxValue() {
    return m_MaxValue;
}

void ConstraintType::SetMaxValue(LPCTSTR szNew) {
    m_MaxValue = szNew;
}

zelString ConstraintType::GetMinLength() {
    return m_MinLength;
}

void ConstraintType::SetMinLength(LPCTSTR szNew) {
    m_MinLength = szNew;
}

zelString ConstraintType::GetMaxLength() {
    return m_MaxLength;
}

void ConstraintType::SetMaxLength(LPCTSTR szNew) {
    m_MaxLength = szNew;
}

zelString ConstraintType::GetSystemValue() {
    return m_SystemValue;
}

void ConstraintType::SetSystemValue(LPCTSTR szNew) {
    m_SystemValue = szNew;
}

int ConstraintType::GetChoiceLength() {
    return Framework::ListLength(m_ChoiceList);
}

ChoiceConstraintType* ConstraintType::GetChoice(int Index) {
    return static_cast<ChoiceConstraintType*>(Framework::GrowTo(*this, s_Rows[5], Index));
}

void ConstraintType::AddNewChoice(ChoiceConstraintType* szNew) {
    Framework::AddNewPlain(m_ChoiceList, szNew);
}

int ConstraintType::GetReferenceListConstraintLength() {
    return Framework::ListLength(m_ReferenceListConstraintList);
}

ReferenceListConstraintType* ConstraintType::GetReferenceListConstraint(int Index) {
    return static_cast<ReferenceListConstraintType*>(Framework::GrowTo(*this, s_Rows[6], Index));
}

void ConstraintType::AddNewReferenceListConstraint(ReferenceListConstraintType* szNew) {
    Framework::AddNewPlain(m_ReferenceListConstraintList, szNew);
}

ConfigSchemaDefType* ConstraintType::GetSchemaDef() {
    return m_SchemaDef;
}

void ConstraintType::SetSchemaDef(ConfigSchemaDefType* szNew) {
    Framework::ReplaceChild(m_SchemaDef, szNew);
}

XMLDataListDefType* ConstraintType::GetXMLDataListDef() {
    return m_XMLDataListDef;
}

void ConstraintType::SetXMLDataListDef(XMLDataListDefType* szNew) {
    Framework::ReplaceChild(m_XMLDataListDef, szNew);
}

zelString ConstraintType::GetType() {
    return m_Type;
}

void ConstraintType::SetType(LPCTSTR szNew) {
    m_Type = szNew;
}

bool ConstraintType::AutoFillTypeInfo() {
    return true;
}

void ConstraintType::AddChoice(XMLDataWrapper* pData, XalanNode* spNode) {
    Framework::AddPlain(*this, s_Rows[5], pData, spNode);
}

void ConstraintType::ClearChoice() {
    Framework::ClearPlain(m_ChoiceList);
}

void ConstraintType::AddReferenceListConstraint(XMLDataWrapper* pData, XalanNode* spNode) {
    Framework::AddPlain(*this, s_Rows[6], pData, spNode);
}

void ConstraintType::ClearReferenceListConstraint() {
    Framework::ClearPlain(m_ReferenceListConstraintList);
}
