// Generated from ActionData.xsd; do not edit. Regenerate with the target "generate".
#pragma once

#include "Framework/TypedDataContainer.h"

namespace Framework {
struct FieldTableIndex;
}

/// A named value for an action: where it comes from, and how it is prepared.
///
/// Element `SimpleDataEntry` unless its parent names it otherwise.
class FRAMEWORK_API SimpleDataEntryType : public TypedDataContainer {
public:
    explicit SimpleDataEntryType(bool bBuildFromScratch);
    ~SimpleDataEntryType() override;

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
    virtual zelString GetValue();
    virtual void SetValue(LPCTSTR szNew);
    virtual zelString GetSourceType();
    virtual void SetSourceType(LPCTSTR szNew);
    virtual zelString GetSource();
    virtual void SetSource(LPCTSTR szNew);
    virtual zelString GetPreProcess();
    virtual void SetPreProcess(LPCTSTR szNew);
    virtual bool GetRootData();
    virtual void SetRootData(bool szNew);
    virtual bool GetReadOnly();
    virtual void SetReadOnly(bool szNew);
    virtual zelString GetExtraData();
    virtual void SetExtraData(LPCTSTR szNew);
    virtual bool AutoFillTypeInfo();
    virtual void AddDoc(const zelString& pData, const zelString& sName);
    virtual void ClearDoc();

    bool GetAutoFillTypeInfo() const { return m_bAutoFillTypeInfo; }
    void SetAutoFillTypeInfo(bool bNew) { m_bAutoFillTypeInfo = bNew; }

protected:
    bool m_bAutoFillTypeInfo = false;
    bool m_RootData = false;
    bool m_ReadOnly = false;
    Zelvon::SyncMap<zelString, SimpleDataContainer*> m_MapDocList;
    std::vector<SimpleDataContainer*> m_DocList;
    zelString m_Value;
    zelString m_SourceType;
    zelString m_Source;
    zelString m_PreProcess;
    zelString m_ExtraData;

    static const Framework::FieldTable s_Table;
    friend struct Framework::FieldTableIndex;

private:
    static const Framework::FieldRow s_Rows[];
};
