// Generated from StateProcessingRoot.xsd; do not edit. Regenerate with the target "generate".
#pragma once

#include "Framework/TypedDataContainer.h"

namespace Framework {
struct FieldTableIndex;
}

class ActionItemType;
class StateTriggersListType;

/// A state: what is done on entering and leaving it, and what each trigger sets off in it.
///
/// Element `StateDefinition` unless its parent names it otherwise.
class FRAMEWORK_API StateDefinitionType : public TypedDataContainer {
public:
    explicit StateDefinitionType(bool bBuildFromScratch);
    ~StateDefinitionType() override;

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
    virtual int GetDocLength();
    virtual zelString GetDoc(int Index);
    virtual zelString GetDoc(const zelString& sName);
    virtual ActionItemType* GetPreStateTrigger();
    virtual void SetPreStateTrigger(ActionItemType* szNew);
    virtual StateTriggersListType* GetStateTriggers();
    virtual void SetStateTriggers(StateTriggersListType* szNew);
    virtual ActionItemType* GetPostStateTrigger();
    virtual void SetPostStateTrigger(ActionItemType* szNew);
    virtual zelString GetName();
    virtual void SetName(LPCTSTR szNew);
    virtual bool GetTransient();
    virtual void SetTransient(bool szNew);
    virtual bool GetCacheActions();
    virtual void SetCacheActions(bool szNew);
    virtual zelString GetBaseState();
    virtual void SetBaseState(LPCTSTR szNew);
    virtual bool AutoFillTypeInfo();
    virtual void AddDoc(const zelString& pData, const zelString& sName);
    virtual void ClearDoc();

    bool GetAutoFillTypeInfo() const { return m_bAutoFillTypeInfo; }
    void SetAutoFillTypeInfo(bool bNew) { m_bAutoFillTypeInfo = bNew; }

protected:
    bool m_bAutoFillTypeInfo = false;
    bool m_Transient = false;
    bool m_CacheActions = false;
    Zelvon::SyncMap<zelString, SimpleDataContainer*> m_MapDocList;
    std::vector<SimpleDataContainer*> m_DocList;
    ActionItemType* m_PreStateTrigger = nullptr;
    StateTriggersListType* m_StateTriggers = nullptr;
    ActionItemType* m_PostStateTrigger = nullptr;
    zelString m_Name;
    zelString m_BaseState;

    static const Framework::FieldTable s_Table;
    friend struct Framework::FieldTableIndex;

private:
    static const Framework::FieldRow s_Rows[];
};
