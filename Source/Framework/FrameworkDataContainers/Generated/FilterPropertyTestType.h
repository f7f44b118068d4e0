// Generated from StateTriggerFilterDef.xsd; do not edit. Regenerate with the target "generate".
#pragma once

#include "Framework/TypedDataContainer.h"

namespace Framework {
struct FieldTableIndex;
}

class VarInputType;

/// A value that a packet is compared with, and where it comes from.
///
/// Element `FilterPropertyTest` unless its parent names it otherwise.
class FRAMEWORK_API FilterPropertyTestType : public TypedDataContainer {
public:
    explicit FilterPropertyTestType(bool bBuildFromScratch);
    ~FilterPropertyTestType() override;

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
    virtual zelString GetValue();
    virtual void SetValue(LPCTSTR szNew);
    virtual VarInputType* GetVarInput();
    virtual void SetVarInput(VarInputType* szNew);
    virtual zelString GetName();
    virtual void SetName(LPCTSTR szNew);
    virtual zelString GetMatchType();
    virtual void SetMatchType(LPCTSTR szNew);
    virtual zelString GetSourceType();
    virtual void SetSourceType(LPCTSTR szNew);
    virtual zelString GetSource();
    virtual void SetSource(LPCTSTR szNew);
    virtual zelString GetPreProcess();
    virtual void SetPreProcess(LPCTSTR szNew);
    virtual bool GetRootData();
    virtual void SetRootData(bool szNew);
    virtual bool AutoFillTypeInfo();

    bool GetAutoFillTypeInfo() const { return m_bAutoFillTypeInfo; }
    void SetAutoFillTypeInfo(bool bNew) { m_bAutoFillTypeInfo = bNew; }

protected:
    bool m_bAutoFillTypeInfo = false;
    bool m_RootData = false;
    zelString m_Value;
    VarInputType* m_VarInput = nullptr;
    zelString m_Name;
    zelString m_MatchType;
    zelString m_SourceType;
    zelString m_Source;
    zelString m_PreProcess;

    static const Framework::FieldTable s_Table;
    friend struct Framework::FieldTableIndex;

private:
    static const Framework::FieldRow s_Rows[];
};
