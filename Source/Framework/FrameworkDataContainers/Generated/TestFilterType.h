// Generated from StateTriggerFilterDef.xsd; do not edit. Regenerate with the target "generate".
#pragma once

#include "Framework/TypedDataContainer.h"

namespace Framework {
struct FieldTableIndex;
}

class FilterPropertyTestType;

/// A query into a packet, what it is compared with, and the trigger it raises.
///
/// Element `TestFilter` unless its parent names it otherwise.
class FRAMEWORK_API TestFilterType : public TypedDataContainer {
public:
    explicit TestFilterType(bool bBuildFromScratch);
    ~TestFilterType() override;

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
    virtual zelString GetTestQuery();
    virtual void SetTestQuery(LPCTSTR szNew);
    virtual FilterPropertyTestType* GetTestValue();
    virtual void SetTestValue(FilterPropertyTestType* szNew);
    virtual bool GetTestExists();
    virtual void SetTestExists(bool szNew);
    virtual zelString GetTriggerResponse();
    virtual void SetTriggerResponse(LPCTSTR szNew);
    virtual zelString GetIndex();
    virtual void SetIndex(LPCTSTR szNew);
    virtual bool AutoFillTypeInfo();

    bool GetAutoFillTypeInfo() const { return m_bAutoFillTypeInfo; }
    void SetAutoFillTypeInfo(bool bNew) { m_bAutoFillTypeInfo = bNew; }

protected:
    bool m_bAutoFillTypeInfo = false;
    bool m_TestExists = false;
    zelString m_TestQuery;
    FilterPropertyTestType* m_TestValue = nullptr;
    zelString m_TriggerResponse;
    zelString m_Index;

    static const Framework::FieldTable s_Table;
    friend struct Framework::FieldTableIndex;

private:
    static const Framework::FieldRow s_Rows[];
};
