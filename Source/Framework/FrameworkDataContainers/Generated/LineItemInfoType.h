// Generated from ItemPurchase.xsd; do not edit. Regenerate with the target "generate".
#pragma once

#include "Framework/TypedDataContainer.h"

namespace Framework {
struct FieldTableIndex;
}

/// What the lines of an order have in common.
///
/// Element `LineItemInfo` unless its parent names it otherwise.
class FRAMEWORK_API LineItemInfoType : public TypedDataContainer {
public:
    explicit LineItemInfoType(bool bBuildFromScratch);
    ~LineItemInfoType() override;

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
    virtual zelString GetDescription();
    virtual void SetDescription(LPCTSTR szNew);
    virtual bool GetReturnFlag();
    virtual void SetReturnFlag(bool szNew);
    virtual bool GetDepositFlag();
    virtual void SetDepositFlag(bool szNew);
    virtual bool GetVoidFlag();
    virtual void SetVoidFlag(bool szNew);
    virtual zelString GetRequestID();
    virtual void SetRequestID(LPCTSTR szNew);
    virtual bool AutoFillTypeInfo();

    bool GetAutoFillTypeInfo() const { return m_bAutoFillTypeInfo; }
    void SetAutoFillTypeInfo(bool bNew) { m_bAutoFillTypeInfo = bNew; }

protected:
    bool m_bAutoFillTypeInfo = false;
    bool m_ReturnFlag = false;
    bool m_DepositFlag = false;
    bool m_VoidFlag = false;
    zelString m_Description;
    zelString m_RequestID;

    static const Framework::FieldTable s_Table;
    friend struct Framework::FieldTableIndex;

private:
    static const Framework::FieldRow s_Rows[];
};
