// Generated from StateActionDef.xsd; do not edit. Regenerate with the target "generate".
#pragma once

#include "Framework/TypedDataContainer.h"

namespace Framework {
struct FieldTableIndex;
}

class StateActionHandlerType;

/// The actions that state tables can name, by identifier.
///
/// Element `StateActionMap` unless its parent names it otherwise.
class FRAMEWORK_API StateActionMapType : public TypedDataContainer {
public:
    explicit StateActionMapType(bool bBuildFromScratch);
    ~StateActionMapType() override;

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
    virtual int GetActionHandlerLength();
    virtual StateActionHandlerType* GetActionHandler(int Index);
    virtual StateActionHandlerType* GetActionHandler(const zelString& sName);
    virtual void AddNewActionHandler(StateActionHandlerType* szNew, const zelString& sName);
    virtual void RemoveActionHandler(const zelString& sName, const zelString& sFeatureId);
    virtual bool AutoFillTypeInfo();
    virtual void AddActionHandler(XMLDataWrapper* pData, XalanNode* spNode, const zelString& sName);
    virtual void ClearActionHandler();

    bool GetAutoFillTypeInfo() const { return m_bAutoFillTypeInfo; }
    void SetAutoFillTypeInfo(bool bNew) { m_bAutoFillTypeInfo = bNew; }

protected:
    bool m_bAutoFillTypeInfo = false;
    Zelvon::SyncMap<zelString, TypedDataContainer*> m_MapActionHandlerList;
    std::vector<TypedDataContainer*> m_ActionHandlerList;

    static const Framework::FieldTable s_Table;
    friend struct Framework::FieldTableIndex;

private:
    static const Framework::FieldRow s_Rows[];
};
