// Generated from StateProcessingRoot.xsd; do not edit. Regenerate with the target "generate".
#pragma once

#include "Framework/TypedDataContainer.h"

namespace Framework {
struct FieldTableIndex;
}

class StateDefinitionType;

/// A table of named states.
///
/// Element `StateTable` unless its parent names it otherwise.
class FRAMEWORK_API StateTableType : public TypedDataContainer {
public:
    explicit StateTableType(bool bBuildFromScratch);
    ~StateTableType() override;

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
    virtual int GetStateLength();
    virtual StateDefinitionType* GetState(int Index);
    virtual StateDefinitionType* GetState(const zelString& sName);
    virtual void AddNewState(StateDefinitionType* szNew, const zelString& sName);
    virtual void RemoveState(const zelString& sName, const zelString& sFeatureId);
    virtual zelString GetName();
    virtual void SetName(LPCTSTR szNew);
    virtual zelString GetActionMap();
    virtual void SetActionMap(LPCTSTR szNew);
    virtual zelString GetInitialState();
    virtual void SetInitialState(LPCTSTR szNew);
    virtual zelString GetTriggerFilterName();
    virtual void SetTriggerFilterName(LPCTSTR szNew);
    virtual bool AutoFillTypeInfo();
    virtual void AddState(XMLDataWrapper* pData, XalanNode* spNode, const zelString& sName);
    virtual void ClearState();

    bool GetAutoFillTypeInfo() const { return m_bAutoFillTypeInfo; }
    void SetAutoFillTypeInfo(bool bNew) { m_bAutoFillTypeInfo = bNew; }

protected:
    bool m_bAutoFillTypeInfo = false;
    Zelvon::SyncMap<zelString, TypedDataContainer*> m_MapStateList;
    std::vector<TypedDataContainer*> m_StateList;
    zelString m_Name;
    zelString m_ActionMap;
    zelString m_InitialState;
    zelString m_TriggerFilterName;

    static const Framework::FieldTable s_Table;
    friend struct Framework::FieldTableIndex;

private:
    static const Framework::FieldRow s_Rows[];
};
