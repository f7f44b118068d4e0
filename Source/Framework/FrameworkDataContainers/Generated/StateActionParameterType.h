// Generated from StateActionDef.xsd; do not edit. Regenerate with the target "generate".
#pragma once

#include "Framework/TypedDataContainer.h"

namespace Framework {
struct FieldTableIndex;
}

/// One parameter of an action, with its type and default.
///
/// Element `StateActionParameter` unless its parent names it otherwise.
class FRAMEWORK_API StateActionParameterType : public TypedDataContainer {
public:
    explicit StateActionParameterType(bool bBuildFromScratch);
    ~StateActionParameterType() override;

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
    virtual void AddNewDoc(LPCTSTR szNew);
    virtual zelString GetDataType();
    virtual void SetDataType(LPCTSTR szNew);
    virtual zelString GetDefaultValue();
    virtual void SetDefaultValue(LPCTSTR szNew);
    virtual zelString GetName();
    virtual void SetName(LPCTSTR szNew);
    virtual bool AutoFillTypeInfo();
    virtual void AddDoc(zelString pData);
    virtual void ClearDoc();

    bool GetAutoFillTypeInfo() const { return m_bAutoFillTypeInfo; }
    void SetAutoFillTypeInfo(bool bNew) { m_bAutoFillTypeInfo = bNew; }

protected:
    bool m_bAutoFillTypeInfo = false;
    std::vector<zelString> m_DocList;
    zelString m_DataType;
    zelString m_DefaultValue;
    zelString m_Name;

    static const Framework::FieldTable s_Table;
    friend struct Framework::FieldTableIndex;

private:
    static const Framework::FieldRow s_Rows[];
};
