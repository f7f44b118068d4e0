// Generated from ConfigDefRoot.xsd; do not edit. Regenerate with the target "generate".
#pragma once

#include "Framework/TypedDataContainer.h"

namespace Framework {
struct FieldTableIndex;
}

class TestInValidOptionType;

/// A value that is ruled out while all its tests hold, and what is done then.
///
/// Element `InValidOptionRef` unless its parent names it otherwise.
class FRAMEWORK_API InValidOptionRefType : public TypedDataContainer {
public:
    explicit InValidOptionRefType(bool bBuildFromScratch);
    ~InValidOptionRefType() override;

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
    virtual zelString GetFailedAction();
    virtual void SetFailedAction(LPCTSTR szNew);
    virtual zelString GetNewDefault();
    virtual void SetNewDefault(LPCTSTR szNew);
    virtual int GetTestInValidOptionLength();
    virtual TestInValidOptionType* GetTestInValidOption(int Index);
    virtual void AddNewTestInValidOption(TestInValidOptionType* szNew);
    virtual zelString GetValue();
    virtual void SetValue(LPCTSTR szNew);
    virtual bool AutoFillTypeInfo();
    virtual void AddTestInValidOption(XMLDataWrapper* pData, XalanNode* spNode);
    virtual void ClearTestInValidOption();

    bool GetAutoFillTypeInfo() const { return m_bAutoFillTypeInfo; }
    void SetAutoFillTypeInfo(bool bNew) { m_bAutoFillTypeInfo = bNew; }

protected:
    bool m_bAutoFillTypeInfo = false;
    zelString m_FailedAction;
    zelString m_NewDefault;
    std::vector<TypedDataContainer*> m_TestInValidOptionList;
    zelString m_Value;

    static const Framework::FieldTable s_Table;
    friend struct Framework::FieldTableIndex;

private:
    static const Framework::FieldRow s_Rows[];
};
