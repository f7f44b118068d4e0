// Generated from StateProcessingRoot.xsd; do not edit. Regenerate with the target "generate".
#pragma once

#include "Framework/TypedDataContainer.h"

namespace Framework {
struct FieldTableIndex;
}

class StateActionListType;

/// The triggers that a state answers.
///
/// Element `StateTriggersList` unless its parent names it otherwise.
class FRAMEWORK_API StateTriggersListType : public TypedDataContainer {
public:
    explicit StateTriggersListType(bool bBuildFromScratch);
    ~StateTriggersListType() override;

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
    virtual int GetStateActionLength();
    virtual StateActionListType* GetStateAction(int Index);
    virtual StateActionListType* GetStateAction(const zelString& sName);
    virtual void AddNewStateAction(StateActionListType* szNew, const zelString& sName);
    virtual void RemoveStateAction(const zelString& sName, const zelString& sFeatureId);
    virtual bool AutoFillTypeInfo();
    virtual void AddStateAction(XMLDataWrapper* pData, XalanNode* spNode, const zelString& sName);
    virtual void ClearStateAction();

    bool GetAutoFillTypeInfo() const { return m_bAutoFillTypeInfo; }
    void SetAutoFillTypeInfo(bool bNew) { m_bAutoFillTypeInfo = bNew; }

protected:
    bool m_bAutoFillTypeInfo = false;
    Zelvon::SyncMap<zelString, TypedDataContainer*> m_MapStateActionList;
    std::vector<TypedDataContainer*> m_StateActionList;

    static const Framework::FieldTable s_Table;
    friend struct Framework::FieldTableIndex;

private:
    static const Framework::FieldRow s_Rows[];
};
