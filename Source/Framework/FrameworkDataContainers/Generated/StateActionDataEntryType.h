// Generated from ActionData.xsd; do not edit. Regenerate with the target "generate".
#pragma once

#include "FrameworkDataContainers/ExtendableDataEntryType.h"

namespace Framework {
struct FieldTableIndex;
}

class DataListType;

/// One datum of an action; it may hold a list of further data.
///
/// Element `StateActionDataEntry` unless its parent names it otherwise.
class FRAMEWORK_API StateActionDataEntryType : public ExtendableDataEntryType {
public:
    explicit StateActionDataEntryType(bool bBuildFromScratch);
    ~StateActionDataEntryType() override;

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
    virtual DataListType* GetDataList();
    virtual void SetDataList(DataListType* szNew);
    virtual zelString GetName();
    virtual void SetName(LPCTSTR szNew);

    bool GetAutoFillTypeInfo() const { return m_bAutoFillTypeInfo; }
    void SetAutoFillTypeInfo(bool bNew) { m_bAutoFillTypeInfo = bNew; }

protected:
    bool m_bAutoFillTypeInfo = false;
    DataListType* m_DataList = nullptr;
    zelString m_Name;

    static const Framework::FieldTable s_Table;
    friend struct Framework::FieldTableIndex;

private:
    static const Framework::FieldRow s_Rows[];
};
