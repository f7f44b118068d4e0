// Generated from LoggingInformation.xsd; do not edit. Regenerate with the target "generate".
#pragma once

#include "Framework/TypedDataContainer.h"
#include "FrameworkDataContainers/FrameworkDataContainersEnums.h"

namespace Framework {
struct FieldTableIndex;
}

/// One tender, and the cash it moved.
///
/// Element `TenderDataEntry` unless its parent names it otherwise.
class FRAMEWORK_API TenderDataEntryType : public TypedDataContainer {
public:
    explicit TenderDataEntryType(bool bBuildFromScratch);
    ~TenderDataEntryType() override;

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
    virtual TenderTypeDefinition GetTenderType();
    virtual void SetTenderType(TenderTypeDefinition szNew);
    virtual double GetCurrentEntry_TenderAmount_Reported();
    virtual void SetCurrentEntry_TenderAmount_Reported(double szNew);
    virtual double GetCurrentEntry_Cash_Collected();
    virtual void SetCurrentEntry_Cash_Collected(double szNew);
    virtual double GetCurrentEntry_Cash_Dispense_Attempted();
    virtual void SetCurrentEntry_Cash_Dispense_Attempted(double szNew);
    virtual double GetCurrentEntry_Cash_Dispense_Actual();
    virtual void SetCurrentEntry_Cash_Dispense_Actual(double szNew);
    virtual double GetCurrentEntry_Cash_Dispense_Vouchered();
    virtual void SetCurrentEntry_Cash_Dispense_Vouchered(double szNew);
    virtual double GetCurrentEntry_CashBackAmount();
    virtual void SetCurrentEntry_CashBackAmount(double szNew);
    virtual double GetCurrentEntry_ChangeAmount();
    virtual void SetCurrentEntry_ChangeAmount(double szNew);
    virtual bool GetAssistantVoid();
    virtual void SetAssistantVoid(bool szNew);
    virtual zelString GetAssistantId();
    virtual void SetAssistantId(LPCTSTR szNew);
    virtual int GetEntryIndex();
    virtual void SetEntryIndex(int szNew);
    virtual bool AutoFillTypeInfo();

    bool GetAutoFillTypeInfo() const { return m_bAutoFillTypeInfo; }
    void SetAutoFillTypeInfo(bool bNew) { m_bAutoFillTypeInfo = bNew; }

protected:
    bool m_bAutoFillTypeInfo = false;
    bool m_AssistantVoid = false;
    int m_EntryIndex = 0;
    TenderTypeDefinition m_TenderType{0};
    double m_CurrentEntry_TenderAmount_Reported = 0.0;
    double m_CurrentEntry_Cash_Collected = 0.0;
    double m_CurrentEntry_Cash_Dispense_Attempted = 0.0;
    double m_CurrentEntry_Cash_Dispense_Actual = 0.0;
    double m_CurrentEntry_Cash_Dispense_Vouchered = 0.0;
    double m_CurrentEntry_CashBackAmount = 0.0;
    double m_CurrentEntry_ChangeAmount = 0.0;
    zelString m_AssistantId;

    static const Framework::FieldTable s_Table;
    friend struct Framework::FieldTableIndex;

private:
    static const Framework::FieldRow s_Rows[];
};
