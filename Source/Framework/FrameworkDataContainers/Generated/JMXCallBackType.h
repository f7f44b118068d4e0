// Generated from JMXEventConfiguration.xsd; do not edit. Regenerate with the target "generate".
#pragma once

#include "Framework/TypedDataContainer.h"

namespace Framework {
struct FieldTableIndex;
}

/// A management operation and its kind of callback.
///
/// Element `JMXCallBack` unless its parent names it otherwise.
class FRAMEWORK_API JMXCallBackType : public TypedDataContainer {
public:
    explicit JMXCallBackType(bool bBuildFromScratch);
    ~JMXCallBackType() override;

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
    virtual int GetOpCode();
    virtual void SetOpCode(int szNew);
    virtual zelString GetCallBackType();
    virtual void SetCallBackType(LPCTSTR szNew);
    virtual bool AutoFillTypeInfo();

    bool GetAutoFillTypeInfo() const { return m_bAutoFillTypeInfo; }
    void SetAutoFillTypeInfo(bool bNew) { m_bAutoFillTypeInfo = bNew; }

protected:
    bool m_bAutoFillTypeInfo = false;
    int m_OpCode = 0;
    zelString m_CallBackType;

    static const Framework::FieldTable s_Table;
    friend struct Framework::FieldTableIndex;

private:
    static const Framework::FieldRow s_Rows[];
};
