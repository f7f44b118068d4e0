// Generated from StateProcessingRoot.xsd; do not edit. Regenerate with the target "generate".
#pragma once

#include "Framework/TypedDataContainer.h"

namespace Framework {
struct FieldTableIndex;
}

class ActionItemType;

/// What one trigger sets off: a list of action items.
///
/// Element `StateActionList` unless its parent names it otherwise.
class FRAMEWORK_API StateActionListType : public TypedDataContainer {
public:
    explicit StateActionListType(bool bBuildFromScratch);
    ~StateActionListType() override;

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
    virtual int GetActionItemLength();
    virtual ActionItemType* GetActionItem(int Index);
    virtual ActionItemType* GetActionItem(const zelString& sName);
    virtual void AddNewActionItem(ActionItemType* szNew, const zelString& sName);
    virtual void RemoveActionItem(const zelString& sName, const zelString& sFeatureId);
    virtual bool GetActionListCached();
    virtual void SetActionListCached(bool szNew);
    virtual zelString GetTrigger();
    virtual void SetTrigger(LPCTSTR szNew);
    virtual bool GetTransient();
    virtual void SetTransient(bool szNew);
    virtual bool AutoFillTypeInfo();
    virtual void AddDoc(const zelString& pData, const zelString& sName);
    virtual void ClearDoc();
    virtual void AddActionItem(XMLDataWrapper* pData, XalanNode* spNode, const zelString& sName);
    virtual void ClearActionItem();

    bool GetAutoFillTypeInfo() const { return m_bAutoFillTypeInfo; }
    void SetAutoFillTypeInfo(bool bNew) { m_bAutoFillTypeInfo = bNew; }

protected:
    bool m_bAutoFillTypeInfo = false;
    bool m_ActionListCached = false;
    bool m_Transient = false;
    Zelvon::SyncMap<zelString, SimpleDataContainer*> m_MapDocList;
    std::vector<SimpleDataContainer*> m_DocList;
    Zelvon::SyncMap<zelString, TypedDataContainer*> m_MapActionItemList;
    std::vector<TypedDataContainer*> m_ActionItemList;
    zelString m_Trigger;

    static const Framework::FieldTable s_Table;
    friend struct Framework::FieldTableIndex;

private:
    static const Framework::FieldRow s_Rows[];
};
