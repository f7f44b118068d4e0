// Generated from ActionData.xsd; do not edit. Regenerate with the target "generate".
#pragma once

#include "Framework/TypedDataContainer.h"

namespace Framework {
struct FieldTableIndex;
}

class StateActionDataEntryType;

/// The data handed to an action, by name.
///
/// Element `StateActionData` unless its parent names it otherwise.
class FRAMEWORK_API StateActionDataType : public TypedDataContainer {
public:
    explicit StateActionDataType(bool bBuildFromScratch);
    ~StateActionDataType() override;

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
    virtual int GetDataLength();
    virtual StateActionDataEntryType* GetData(int Index);
    virtual StateActionDataEntryType* GetData(const zelString& sName);
    virtual void AddNewData(StateActionDataEntryType* szNew, const zelString& sName);
    virtual void RemoveData(const zelString& sName, const zelString& sFeatureId);
    virtual bool AutoFillTypeInfo();
    virtual void AddData(XMLDataWrapper* pData, XalanNode* spNode, const zelString& sName);
    virtual void ClearData();

    bool GetAutoFillTypeInfo() const { return m_bAutoFillTypeInfo; }
    void SetAutoFillTypeInfo(bool bNew) { m_bAutoFillTypeInfo = bNew; }

protected:
    bool m_bAutoFillTypeInfo = false;
    Zelvon::SyncMap<zelString, TypedDataContainer*> m_MapDataList;
    std::vector<TypedDataContainer*> m_DataList;

    static const Framework::FieldTable s_Table;
    friend struct Framework::FieldTableIndex;

private:
    static const Framework::FieldRow s_Rows[];
};
