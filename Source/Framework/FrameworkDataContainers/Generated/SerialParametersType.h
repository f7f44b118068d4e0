// Generated from CommConfig.xsd; do not edit. Regenerate with the target "generate".
#pragma once

#include "Framework/TypedDataContainer.h"
#include "FrameworkDataContainers/FrameworkDataContainersEnums.h"

namespace Framework {
struct FieldTableIndex;
}

/// Parameters of a serial line.
///
/// Element `SerialParameters` unless its parent names it otherwise.
class FRAMEWORK_API SerialParametersType : public TypedDataContainer {
public:
    explicit SerialParametersType(bool bBuildFromScratch);
    ~SerialParametersType() override;

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
    virtual zelString GetPortLoaderFactoryName();
    virtual void SetPortLoaderFactoryName(LPCTSTR szNew);
    virtual zelString GetPortLoaderFactoryMethod();
    virtual void SetPortLoaderFactoryMethod(LPCTSTR szNew);
    virtual int GetBaudRate();
    virtual void SetBaudRate(int szNew);
    virtual int GetDataBits();
    virtual void SetDataBits(int szNew);
    virtual ParityType GetParity();
    virtual void SetParity(ParityType szNew);
    virtual StopBitsType GetStopBits();
    virtual void SetStopBits(StopBitsType szNew);
    virtual FlowControlType GetControl();
    virtual void SetControl(FlowControlType szNew);
    virtual zelString GetStxchar();
    virtual void SetStxchar(LPCTSTR szNew);
    virtual zelString GetEtxchar();
    virtual void SetEtxchar(LPCTSTR szNew);
    virtual bool AutoFillTypeInfo();

    bool GetAutoFillTypeInfo() const { return m_bAutoFillTypeInfo; }
    void SetAutoFillTypeInfo(bool bNew) { m_bAutoFillTypeInfo = bNew; }

protected:
    bool m_bAutoFillTypeInfo = false;
    int m_BaudRate = 9600;
    int m_DataBits = 8;
    zelString m_PortLoaderFactoryName;
    zelString m_PortLoaderFactoryMethod;
    ParityType m_Parity{0};
    StopBitsType m_StopBits{0};
    FlowControlType m_Control{0};
    zelString m_Stxchar;
    zelString m_Etxchar;

    static const Framework::FieldTable s_Table;
    friend struct Framework::FieldTableIndex;

private:
    static const Framework::FieldRow s_Rows[];
};
