// Generated from StateActionDef.xsd; do not edit. Regenerate with the target "generate".
#pragma once

#include "FrameworkDataContainers/AbstractMethodDefType.h"

namespace Framework {
struct FieldTableIndex;
}

class StateActionParametersListType;

/// An action: the method that carries it out, and its parameters.
///
/// Element `StateActionHandler` unless its parent names it otherwise.
class FRAMEWORK_API StateActionHandlerType : public AbstractMethodDefType {
public:
    explicit StateActionHandlerType(bool bBuildFromScratch);
    ~StateActionHandlerType() override;

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
    bool AutoFillTypeInfo() override;

    // The order is that of the virtual table.
    virtual int GetDocLength();
    virtual zelString GetDoc(int Index);
    virtual void AddNewDoc(LPCTSTR szNew);
    virtual StateActionParametersListType* GetParameters();
    virtual void SetParameters(StateActionParametersListType* szNew);
    virtual zelString GetActionID();
    virtual void SetActionID(LPCTSTR szNew);
    virtual bool GetPreProcessor();
    virtual void SetPreProcessor(bool szNew);
    virtual void AddDoc(zelString pData);
    virtual void ClearDoc();

    bool GetAutoFillTypeInfo() const { return m_bAutoFillTypeInfo; }
    void SetAutoFillTypeInfo(bool bNew) { m_bAutoFillTypeInfo = bNew; }

protected:
    bool m_bAutoFillTypeInfo = false;
    bool m_PreProcessor = false;
    std::vector<zelString> m_DocList;
    StateActionParametersListType* m_Parameters = nullptr;
    zelString m_ActionID;

    static const Framework::FieldTable s_Table;
    friend struct Framework::FieldTableIndex;

private:
    static const Framework::FieldRow s_Rows[];
};
