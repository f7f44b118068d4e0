// Generated from StateTriggerFilterDef.xsd; do not edit. Regenerate with the target "generate".
#pragma once

#include "Framework/TypedDataContainer.h"

namespace Framework {
struct FieldTableIndex;
}

class FilterPropertyTestType;
class TestFilterType;

/// One test of a packet: conditions on its properties, and on its content.
///
/// Element `EventFilterTest` unless its parent names it otherwise.
class FRAMEWORK_API EventFilterTestType : public TypedDataContainer {
public:
    explicit EventFilterTestType(bool bBuildFromScratch);
    ~EventFilterTestType() override;

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
    virtual int GetFilterPropertyTestLength();
    virtual FilterPropertyTestType* GetFilterPropertyTest(int Index);
    virtual FilterPropertyTestType* GetFilterPropertyTest(const zelString& sName);
    virtual void AddNewFilterPropertyTest(FilterPropertyTestType* szNew, const zelString& sName);
    virtual void RemoveFilterPropertyTest(const zelString& sName, const zelString& sFeatureId);
    virtual int GetTestFilterLength();
    virtual TestFilterType* GetTestFilter(int Index);
    virtual TestFilterType* GetTestFilter(const zelString& sName);
    virtual void AddNewTestFilter(TestFilterType* szNew, const zelString& sName);
    virtual void RemoveTestFilter(const zelString& sName, const zelString& sFeatureId);
    virtual zelString GetIndex();
    virtual void SetIndex(LPCTSTR szNew);
    virtual zelString GetDoc();
    virtual void SetDoc(LPCTSTR szNew);
    virtual bool AutoFillTypeInfo();
    virtual void AddFilterPropertyTest(XMLDataWrapper* pData, XalanNode* spNode, const zelString& sName);
    virtual void ClearFilterPropertyTest();
    virtual void AddTestFilter(XMLDataWrapper* pData, XalanNode* spNode, const zelString& sName);
    virtual void ClearTestFilter();

    bool GetAutoFillTypeInfo() const { return m_bAutoFillTypeInfo; }
    void SetAutoFillTypeInfo(bool bNew) { m_bAutoFillTypeInfo = bNew; }

protected:
    bool m_bAutoFillTypeInfo = false;
    Zelvon::SyncMap<zelString, TypedDataContainer*> m_MapFilterPropertyTestList;
    std::vector<TypedDataContainer*> m_FilterPropertyTestList;
    Zelvon::SyncMap<zelString, TypedDataContainer*> m_MapTestFilterList;
    std::vector<TypedDataContainer*> m_TestFilterList;
    zelString m_Index;
    zelString m_Doc;

    static const Framework::FieldTable s_Table;
    friend struct Framework::FieldTableIndex;

private:
    static const Framework::FieldRow s_Rows[];
};
