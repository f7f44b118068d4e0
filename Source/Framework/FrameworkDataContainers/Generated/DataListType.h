// Generated from ActionData.xsd; do not edit. Regenerate with the target "generate".
#pragma once

#include "Framework/TypedDataContainer.h"

namespace Framework {
struct FieldTableIndex;
}

class DataListDataEntryType;

/// Data within a datum, by name.
///
/// Element `DataList` unless its parent names it otherwise.
class FRAMEWORK_API DataListType : public TypedDataContainer {
public:
    explicit DataListType(bool bBuildFromScratch);
    ~DataListType() override;

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
    virtual int GetDataListItemLength();
    virtual DataListDataEntryType* GetDataListItem(int Index);
    virtual DataListDataEntryType* GetDataListItem(const zelString& sName);
    virtual void AddNewDataListItem(DataListDataEntryType* szNew, const zelString& sName);
    virtual void RemoveDataListItem(const zelString& sName, const zelString& sFeatureId);
    virtual bool AutoFillTypeInfo();
    virtual void AddDataListItem(XMLDataWrapper* pData, XalanNode* spNode, const zelString& sName);
    virtual void ClearDataListItem();

    bool GetAutoFillTypeInfo() const { return m_bAutoFillTypeInfo; }
    void SetAutoFillTypeInfo(bool bNew) { m_bAutoFillTypeInfo = bNew; }

protected:
    bool m_bAutoFillTypeInfo = false;
    Zelvon::SyncMap<zelString, TypedDataContainer*> m_MapDataListItemList;
    std::vector<TypedDataContainer*> m_DataListItemList;

    static const Framework::FieldTable s_Table;
    friend struct Framework::FieldTableIndex;

private:
    static const Framework::FieldRow s_Rows[];
};
