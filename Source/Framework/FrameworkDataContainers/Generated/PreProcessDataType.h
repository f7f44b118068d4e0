// Generated from ActionData.xsd; do not edit. Regenerate with the target "generate".
#pragma once

#include "Framework/TypedDataContainer.h"

namespace Framework {
struct FieldTableIndex;
}

class PreProcessDataEntryType;

/// The data handed to a preparation, by name.
///
/// Element `PreProcessData` unless its parent names it otherwise.
class FRAMEWORK_API PreProcessDataType : public TypedDataContainer {
public:
    explicit PreProcessDataType(bool bBuildFromScratch);
    ~PreProcessDataType() override;

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
    virtual int GetProcessDataLength();
    virtual PreProcessDataEntryType* GetProcessData(int Index);
    virtual PreProcessDataEntryType* GetProcessData(const zelString& sName);
    virtual void AddNewProcessData(PreProcessDataEntryType* szNew, const zelString& sName);
    virtual void RemoveProcessData(const zelString& sName, const zelString& sFeatureId);
    virtual bool AutoFillTypeInfo();
    virtual void AddProcessData(XMLDataWrapper* pData, XalanNode* spNode, const zelString& sName);
    virtual void ClearProcessData();

    bool GetAutoFillTypeInfo() const { return m_bAutoFillTypeInfo; }
    void SetAutoFillTypeInfo(bool bNew) { m_bAutoFillTypeInfo = bNew; }

protected:
    bool m_bAutoFillTypeInfo = false;
    Zelvon::SyncMap<zelString, TypedDataContainer*> m_MapProcessDataList;
    std::vector<TypedDataContainer*> m_ProcessDataList;

    static const Framework::FieldTable s_Table;
    friend struct Framework::FieldTableIndex;

private:
    static const Framework::FieldRow s_Rows[];
};
