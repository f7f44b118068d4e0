// Generated from ConfigDefRoot.xsd; do not edit. Regenerate with the target "generate".
#pragma once

#include "Framework/TypedDataContainer.h"

namespace Framework {
struct FieldTableIndex;
}

class ConstraintType;
class LinkedOptionListType;
class ValidationDefType;

/// One option: its kind, descriptions, defaults, behaviour and constraints.
///
/// Element `ConfigDef` unless its parent names it otherwise.
class FRAMEWORK_API OptionsConfigDefType : public TypedDataContainer {
public:
    explicit OptionsConfigDefType(bool bBuildFromScratch);
    ~OptionsConfigDefType() override;

    zelString GetBaseType() override;
    void GetProperties(ParameterList& pList) override;
    bool MergeDataMembers(XMLDataWrapper* pMergeData, zelString sFeatureID) override;
    zelString GetAttributeList() override;
    ParameterList* GetPLAttributeList() override;
    TypedDataContainer* Clone() override;
    bool DumpMergeContents(const zelString& sParentQuery, FullFunctionXMLDataWrapper* pOutput, int QueryPos,
                           bool bIncludeMergeAttributes) override;
    bool DumpMergeContentsII(DOMNode* pParentNode, FullFunctionXMLDataWrapper* pOutput, DOMNode*& pPassedCurrent,
                             bool bIncludeMergeAttributes) override;
    bool UpdateContainedData() override;
    bool PopulateDataMembers(XalanNode* pNode) override;
    void ResetDataMembers() override;

    // The order is that of the virtual table.
    virtual zelString GetType();
    virtual void SetType(LPCTSTR szNew);
    virtual zelString GetLongDescription();
    virtual void SetLongDescription(LPCTSTR szNew);
    virtual zelString GetShortDescription();
    virtual void SetShortDescription(LPCTSTR szNew);
    virtual zelString GetDefaultValue();
    virtual void SetDefaultValue(LPCTSTR szNew);
    virtual zelString GetXMLDefaultValue();
    virtual void SetXMLDefaultValue(LPCTSTR szNew);
    virtual bool GetAllowReload();
    virtual void SetAllowReload(bool szNew);
    virtual bool GetAllowRelease();
    virtual void SetAllowRelease(bool szNew);
    virtual bool GetAllowSessionManagement();
    virtual void SetAllowSessionManagement(bool szNew);
    virtual bool GetMustBeSetInConfiguration();
    virtual void SetMustBeSetInConfiguration(bool szNew);
    virtual bool GetPreserveOnWarmStart();
    virtual void SetPreserveOnWarmStart(bool szNew);
    virtual zelString GetCustomValidationCommand();
    virtual void SetCustomValidationCommand(LPCTSTR szNew);
    virtual zelString GetOnValidationFailed();
    virtual void SetOnValidationFailed(LPCTSTR szNew);
    virtual zelString GetValidationErrorEvent();
    virtual void SetValidationErrorEvent(LPCTSTR szNew);
    virtual zelString GetValidationErrorCondition();
    virtual void SetValidationErrorCondition(LPCTSTR szNew);
    virtual zelString GetValidationErrorValue();
    virtual void SetValidationErrorValue(LPCTSTR szNew);
    virtual zelString GetValidationErrorData();
    virtual void SetValidationErrorData(LPCTSTR szNew);
    virtual ValidationDefType* GetValidationDef();
    virtual void SetValidationDef(ValidationDefType* szNew);
    virtual zelString GetReferenceLookup();
    virtual void SetReferenceLookup(LPCTSTR szNew);
    virtual bool GetRebootRequired();
    virtual void SetRebootRequired(bool szNew);
    virtual bool GetLocalUpdate();
    virtual void SetLocalUpdate(bool szNew);
    virtual bool GetHidden();
    virtual void SetHidden(bool szNew);
    virtual zelString GetCategory();
    virtual void SetCategory(LPCTSTR szNew);
    virtual LinkedOptionListType* GetLinkedOptionList();
    virtual void SetLinkedOptionList(LinkedOptionListType* szNew);
    virtual zelString GetTargetLevel();
    virtual void SetTargetLevel(LPCTSTR szNew);
    virtual int GetConstraintLength();
    virtual ConstraintType* GetConstraint(int Index);
    virtual ConstraintType* GetConstraint(const zelString& sName);
    virtual void AddNewConstraint(ConstraintType* szNew, const zelString& sName);
    virtual void RemoveConstraint(const zelString& sName, const zelString& sFeatureId);
    virtual zelString GetName();
    virtual void SetName(LPCTSTR szNew);
    virtual bool AutoFillTypeInfo();
    virtual void AddConstraint(XMLDataWrapper* pData, XalanNode* spNode, const zelString& sName);
    virtual void ClearConstraint();

    bool GetAutoFillTypeInfo() const { return m_bAutoFillTypeInfo; }
    void SetAutoFillTypeInfo(bool bNew) { m_bAutoFillTypeInfo = bNew; }

protected:
    bool m_bAutoFillTypeInfo = false;
    bool m_AllowReload = false;
    bool m_AllowRelease = false;
    bool m_AllowSessionManagement = false;
    bool m_MustBeSetInConfiguration = false;
    bool m_PreserveOnWarmStart = false;
    bool m_RebootRequired = false;
    bool m_LocalUpdate = false;
    bool m_Hidden = false;
    zelString m_Type;
    zelString m_LongDescription;
    zelString m_ShortDescription;
    zelString m_DefaultValue;
    zelString m_XMLDefaultValue;
    zelString m_CustomValidationCommand;
    zelString m_OnValidationFailed;
    zelString m_ValidationErrorEvent;
    zelString m_ValidationErrorCondition;
    zelString m_ValidationErrorValue;
    zelString m_ValidationErrorData;
    ValidationDefType* m_ValidationDef = nullptr;
    zelString m_ReferenceLookup;
    zelString m_Category;
    LinkedOptionListType* m_LinkedOptionList = nullptr;
    zelString m_TargetLevel;
    Zelvon::SyncMap<zelString, TypedDataContainer*> m_MapConstraintList;
    std::vector<TypedDataContainer*> m_ConstraintList;
    zelString m_Name;

    static const Framework::FieldTable s_Table;
    friend struct Framework::FieldTableIndex;

private:
    static const Framework::FieldRow s_Rows[];
};
