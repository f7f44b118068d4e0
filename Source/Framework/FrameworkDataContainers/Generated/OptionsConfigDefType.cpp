// Generated from ConfigDefRoot.xsd; do not edit. Regenerate with the target "generate".
#include "FrameworkDataContainers/OptionsConfigDefType.h"

#include "Framework/FrameworkDataContainers/Walks/Lists.h"
#include "Framework/FrameworkDataContainers/Walks/Walks.h"
#include "FrameworkDataContainers/ConstraintType.h"
#include "FrameworkDataContainers/LinkedOptionListType.h"
#include "FrameworkDataContainers/ValidationDefType.h"

// clang-format off
constinit const Framework::FieldRow OptionsConfigDefType::s_Rows[] = {
    Framework::Element("Type", &OptionsConfigDefType::m_Type),
    Framework::Element("LongDescription", &OptionsConfigDefType::m_LongDescription),
    Framework::Element("ShortDescription", &OptionsConfigDefType::m_ShortDescription),
    Framework::Element("DefaultValue", &OptionsConfigDefType::m_DefaultValue),
    Framework::CDataElement("XMLDefaultValue", &OptionsConfigDefType::m_XMLDefaultValue),
    Framework::Element("AllowReload", &OptionsConfigDefType::m_AllowReload),
    Framework::Element("AllowRelease", &OptionsConfigDefType::m_AllowRelease),
    Framework::Element("AllowSessionManagement", &OptionsConfigDefType::m_AllowSessionManagement),
    Framework::Element("MustBeSetInConfiguration", &OptionsConfigDefType::m_MustBeSetInConfiguration),
    Framework::Element("PreserveOnWarmStart", &OptionsConfigDefType::m_PreserveOnWarmStart),
    Framework::Element("CustomValidationCommand", &OptionsConfigDefType::m_CustomValidationCommand),
    Framework::Element("OnValidationFailed", &OptionsConfigDefType::m_OnValidationFailed),
    Framework::Element("ValidationErrorEvent", &OptionsConfigDefType::m_ValidationErrorEvent),
    Framework::Element("ValidationErrorCondition", &OptionsConfigDefType::m_ValidationErrorCondition),
    Framework::Element("ValidationErrorValue", &OptionsConfigDefType::m_ValidationErrorValue),
    Framework::Element("ValidationErrorData", &OptionsConfigDefType::m_ValidationErrorData),
    Framework::Child<&OptionsConfigDefType::m_ValidationDef>("ValidationDef", "ValidationDefType"),
    Framework::Element("ReferenceLookup", &OptionsConfigDefType::m_ReferenceLookup),
    Framework::Element("RebootRequired", &OptionsConfigDefType::m_RebootRequired),
    Framework::Element("LocalUpdate", &OptionsConfigDefType::m_LocalUpdate),
    Framework::Element("Hidden", &OptionsConfigDefType::m_Hidden),
    Framework::Element("Category", &OptionsConfigDefType::m_Category),
    Framework::Child<&OptionsConfigDefType::m_LinkedOptionList>("LinkedOptionList", "LinkedOptionListType"),
    Framework::Element("TargetLevel", &OptionsConfigDefType::m_TargetLevel),
    Framework::KeyedList<ConstraintType, &ConstraintType::GetType, &OptionsConfigDefType::AddConstraint, &OptionsConfigDefType::ClearConstraint>("Constraint", "ConstraintType", "Type", &OptionsConfigDefType::m_MapConstraintList, &OptionsConfigDefType::m_ConstraintList),
    Framework::Attribute("Name", &OptionsConfigDefType::m_Name),
};

constinit const Framework::FieldTable OptionsConfigDefType::s_Table = {
    .className = "OptionsConfigDefType",
    .elementName = "ConfigDef",
    .parent = nullptr,
    .isStructuralConfigLoader = false,
    .isRoot = false,
    .rows = s_Rows,
    .create = &Framework::CreateContainer<OptionsConfigDefType>,
    .type = &typeid(OptionsConfigDefType),
    .autoFill = Framework::ToBase(&OptionsConfigDefType::m_bAutoFillTypeInfo),
};
// clang-format on

OptionsConfigDefType::OptionsConfigDefType(bool bBuildFromScratch) : TypedDataContainer(bBuildFromScratch) {
    Framework::NameByClass(*this, s_Table);
}

OptionsConfigDefType::~OptionsConfigDefType() {
    delete m_ValidationDef;
    delete m_LinkedOptionList;
    OptionsConfigDefType::ClearConstraint();
}

zelString OptionsConfigDefType::GetBaseType() {
    return "OptionsConfigDefType";
}

void OptionsConfigDefType::GetProperties(ParameterList& pList) {
    Framework::Properties(*this, s_Table, pList);
}

bool OptionsConfigDefType::MergeDataMembers(XMLDataWrapper* pMergeData, zelString sFeatureID) {
    return Framework::Merge(*this, s_Table, pMergeData, sFeatureID, __LINE__);
}

zelString OptionsConfigDefType::GetAttributeList() {
    return Framework::AttributePredicate(*this, s_Table);
}

ParameterList* OptionsConfigDefType::GetPLAttributeList() {
    return Framework::AttributeParameters(*this, s_Table);
}

TypedDataContainer* OptionsConfigDefType::Clone() {
    return Framework::Clone(*this, s_Table);
}

bool OptionsConfigDefType::DumpMergeContents(const zelString& sParentQuery, FullFunctionXMLDataWrapper* pOutput,
                                             int QueryPos, bool bIncludeMergeAttributes) {
    return Framework::DumpByQuery(*this, s_Table, sParentQuery, pOutput, QueryPos, bIncludeMergeAttributes);
}

bool OptionsConfigDefType::DumpMergeContentsII(DOMNode* pParentNode, FullFunctionXMLDataWrapper* pOutput,
                                               DOMNode*& pPassedCurrent, bool bIncludeMergeAttributes) {
    return Framework::DumpByNode(*this, s_Table, pParentNode, pOutput, pPassedCurrent, bIncludeMergeAttributes);
}

bool OptionsConfigDefType::UpdateContainedData() {
    return Framework::Update(*this, s_Table);
}

bool OptionsConfigDefType::PopulateDataMembers(XalanNode* pNode) {
    return Framework::Populate(*this, s_Table, pNode);
}

void OptionsConfigDefType::ResetDataMembers() {
    Framework::Reset(*this, s_Table);
}

zelString OptionsConfigDefType::GetType() {
    return m_Type;
}

void OptionsConfigDefType::SetType(LPCTSTR szNew) {
    m_Type = szNew;
}

zelString OptionsConfigDefType::GetLongDescription() {
    return m_LongDescription;
}

void OptionsConfigDefType::SetLongDescription(LPCTSTR szNew) {
    m_LongDescription = szNew;
}

zelString OptionsConfigDefType::GetShortDescription() {
    return m_ShortDescription;
}

void OptionsConfigDefType::SetShortDescription(LPCTSTR szNew) {
    m_ShortDescription = szNew;
}

zelString OptionsConfigDefType::GetDefaultValue() {
    return m_DefaultValue;
}

void OptionsConfigDefType::SetDefaultValue(LPCTSTR szNew) {
    m_DefaultValue = szNew;
}

zelString OptionsConfigDefType::GetXMLDefaultValue() {
    return m_XMLDefaultValue;
}

void OptionsConfigDefType::SetXMLDefaultValue(LPCTSTR szNew) {
    m_XMLDefaultValue = szNew;
}

bool OptionsConfigDefType::GetAllowReload() {
    return m_AllowReload;
}

void OptionsConfigDefType::SetAllowReload(bool szNew) {
    m_AllowReload = szNew;
}

bool OptionsConfigDefType::GetAllowRelease() {
    return m_AllowRelease;
}

void OptionsConfigDefType::SetAllowRelease(bool szNew) {
    m_AllowRelease = szNew;
}

bool OptionsConfigDefType::GetAllowSessionManagement() {
    return m_AllowSessionManagement;
}

void OptionsConfigDefType::SetAllowSessionManagement(bool szNew) {
    m_AllowSessionManagement = szNew;
}

bool OptionsConfigDefType::GetMustBeSetInConfiguration() {
    return m_MustBeSetInConfiguration;
}

void OptionsConfigDefType::SetMustBeSetInConfiguration(bool szNew) {
    m_MustBeSetInConfiguration = szNew;
}

bool OptionsConfigDefType::GetPreserveOnWarmStart() {
    return m_PreserveOnWarmStart;
}

void OptionsConfigDefType::SetPreserveOnWarmStart(bool szNew) {
    m_PreserveOnWarmStart = szNew;
}

zelString OptionsConfigDefType::GetCustomValidationCommand() {
    return m_CustomValidationCommand;
}

void OptionsConfigDefType::SetCustomValidationCommand(LPCTSTR szNew) {
    m_CustomValidationCommand = szNew;
}

zelString OptionsConfigDefType::GetOnValidationFailed() {
    return m_OnValidationFailed;
}

void OptionsConfigDefType::SetOnValidationFailed(LPCTSTR szNew) {
    m_OnValidationFailed = szNew;
}

zelString OptionsConfigDefType::GetValidationErrorEvent() {
    return m_ValidationErrorEvent;
}

void OptionsConfigDefType::SetValidationErrorEvent(LPCTSTR szNew) {
    m_ValidationErrorEvent = szNew;
}

zelString OptionsConfigDefType::GetValidationErrorCondition() {
    return m_ValidationErrorCondition;
}

void OptionsConfigDefType::SetValidationErrorCondition(LPCTSTR szNew) {
    m_ValidationErrorCondition = szNew;
}

zelString OptionsConfigDefType::GetValidationErrorValue() {
    return m_ValidationErrorValue;
}

void OptionsConfigDefType::SetValidationErrorValue(LPCTSTR szNew) {
    m_ValidationErrorValue = szNew;
}

zelString OptionsConfigDefType::GetValidationErrorData() {
    return m_ValidationErrorData;
}

void OptionsConfigDefType::SetValidationErrorData(LPCTSTR szNew) {
    m_ValidationErrorData = szNew;
}

ValidationDefType* OptionsConfigDefType::GetValidationDef() {
    return m_ValidationDef;
}

void OptionsConfigDefType::SetValidationDef(ValidationDefType* szNew) {
    Framework::ReplaceChild(m_ValidationDef, szNew);
}

zelString OptionsConfigDefType::GetReferenceLookup() {
    return m_ReferenceLookup;
}

void OptionsConfigDefType::SetReferenceLookup(LPCTSTR szNew) {
    m_ReferenceLookup = szNew;
}

bool OptionsConfigDefType::GetRebootRequired() {
    return m_RebootRequired;
}

void OptionsConfigDefType::SetRebootRequired(bool szNew) {
    m_RebootRequired = szNew;
}

bool OptionsConfigDefType::GetLocalUpdate() {
    return m_LocalUpdate;
}

void OptionsConfigDefType::SetLocalUpdate(bool szNew) {
    m_LocalUpdate = szNew;
}

bool OptionsConfigDefType::GetHidden() {
    return m_Hidden;
}

void OptionsConfigDefType::SetHidden(bool szNew) {
    m_Hidden = szNew;
}

zelString OptionsConfigDefType::GetCategory() {
    return m_Category;
}

void OptionsConfigDefType::SetCategory(LPCTSTR szNew) {
    m_Category = szNew;
}

LinkedOptionListType* OptionsConfigDefType::GetLinkedOptionList() {
    return m_LinkedOptionList;
}

void OptionsConfigDefType::SetLinkedOptionList(LinkedOptionListType* szNew) {
    Framework::ReplaceChild(m_LinkedOptionList, szNew);
}

zelString OptionsConfigDefType::GetTargetLevel() {
    return m_TargetLevel;
}

void OptionsConfigDefType::SetTargetLevel(LPCTSTR szNew) {
    m_TargetLevel = szNew;
}

int OptionsConfigDefType::GetConstraintLength() {
    return Framework::ListLength(m_ConstraintList);
}

ConstraintType* OptionsConfigDefType::GetConstraint(int Index) {
    return static_cast<ConstraintType*>(Framework::EntryAt(m_ConstraintList, Index));
}

ConstraintType* OptionsConfigDefType::GetConstraint(const zelString& sName) {
    return static_cast<ConstraintType*>(Framework::EntryByKey(m_MapConstraintList, sName));
}

void OptionsConfigDefType::AddNewConstraint(ConstraintType* szNew, const zelString& sName) {
    Framework::AddNewKeyed(m_MapConstraintList, m_ConstraintList, szNew, sName);
}

void OptionsConfigDefType::RemoveConstraint(const zelString& sName, const zelString& sFeatureId) {
    Framework::RemoveKeyed(*this, s_Rows[24], sName, sFeatureId);
}

zelString OptionsConfigDefType::GetName() {
    return m_Name;
}

void OptionsConfigDefType::SetName(LPCTSTR szNew) {
    m_Name = szNew;
}

bool OptionsConfigDefType::AutoFillTypeInfo() {
    return true;
}

void OptionsConfigDefType::AddConstraint(XMLDataWrapper* pData, XalanNode* spNode, const zelString& sName) {
    Framework::AddKeyed(*this, s_Rows[24], pData, spNode, sName, __LINE__);
}

void OptionsConfigDefType::ClearConstraint() {
    Framework::ClearKeyed(m_MapConstraintList, m_ConstraintList);
}
