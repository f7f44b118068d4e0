// Generated from ActionData.xsd; do not edit. Regenerate with the target "generate".
#pragma once

#include "Framework/TypedDataContainer.h"

namespace Framework {
struct FieldTableIndex;
}

class PreProcessDataType;

/// One input: the preparation to run, and the data for it.
///
/// Element `VarInputSource` unless its parent names it otherwise.
class FRAMEWORK_API VarInputSourceType : public TypedDataContainer {
public:
    explicit VarInputSourceType(bool bBuildFromScratch);
    ~VarInputSourceType() override;

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
    virtual zelString GetPreProcessRef();
    virtual void SetPreProcessRef(LPCTSTR szNew);
    virtual PreProcessDataType* GetPreProcessData();
    virtual void SetPreProcessData(PreProcessDataType* szNew);
    virtual bool AutoFillTypeInfo();
    virtual void AddDoc(const zelString& pData, const zelString& sName);
    virtual void ClearDoc();

    bool GetAutoFillTypeInfo() const { return m_bAutoFillTypeInfo; }
    void SetAutoFillTypeInfo(bool bNew) { m_bAutoFillTypeInfo = bNew; }

protected:
    bool m_bAutoFillTypeInfo = false;
    Zelvon::SyncMap<zelString, SimpleDataContainer*> m_MapDocList;
    std::vector<SimpleDataContainer*> m_DocList;
    zelString m_PreProcessRef;
    PreProcessDataType* m_PreProcessData = nullptr;

    static const Framework::FieldTable s_Table;
    friend struct Framework::FieldTableIndex;

private:
    static const Framework::FieldRow s_Rows[];
};
