// Generated from StateActionDef.xsd; do not edit. Regenerate with the target "generate".
#pragma once

#include "Framework/TypedDataContainer.h"

namespace Framework {
struct FieldTableIndex;
}

class StateActionParameterType;

/// The parameters of an action, by name.
///
/// Element `StateActionParametersList` unless its parent names it otherwise.
class FRAMEWORK_API StateActionParametersListType : public TypedDataContainer {
public:
    explicit StateActionParametersListType(bool bBuildFromScratch);
    ~StateActionParametersListType() override;

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
    virtual int GetParameterLength();
    virtual StateActionParameterType* GetParameter(int Index);
    virtual StateActionParameterType* GetParameter(const zelString& sName);
    virtual void AddNewParameter(StateActionParameterType* szNew, const zelString& sName);
    virtual void RemoveParameter(const zelString& sName, const zelString& sFeatureId);
    virtual bool AutoFillTypeInfo();
    virtual void AddParameter(XMLDataWrapper* pData, XalanNode* spNode, const zelString& sName);
    virtual void ClearParameter();

    bool GetAutoFillTypeInfo() const { return m_bAutoFillTypeInfo; }
    void SetAutoFillTypeInfo(bool bNew) { m_bAutoFillTypeInfo = bNew; }

protected:
    bool m_bAutoFillTypeInfo = false;
    Zelvon::SyncMap<zelString, TypedDataContainer*> m_MapParameterList;
    std::vector<TypedDataContainer*> m_ParameterList;

    static const Framework::FieldTable s_Table;
    friend struct Framework::FieldTableIndex;

private:
    static const Framework::FieldRow s_Rows[];
};
