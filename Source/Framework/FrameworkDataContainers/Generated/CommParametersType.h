// Generated from CommConfig.xsd; do not edit. Regenerate with the target "generate".
#pragma once

#include "Framework/TypedDataContainer.h"
#include "FrameworkDataContainers/FrameworkDataContainersEnums.h"

namespace Framework {
struct FieldTableIndex;
}

class SerialParametersType;

/// Parameters of a channel, whatever it runs over.
///
/// Element `CommParameters` unless its parent names it otherwise.
class FRAMEWORK_API CommParametersType : public TypedDataContainer {
public:
    explicit CommParametersType(bool bBuildFromScratch);
    ~CommParametersType() override;

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
    virtual zelString GetCommHandlerFactoryName();
    virtual void SetCommHandlerFactoryName(LPCTSTR szNew);
    virtual zelString GetCommHandlerFactoryMethod();
    virtual void SetCommHandlerFactoryMethod(LPCTSTR szNew);
    virtual CommModeType GetMode();
    virtual void SetMode(CommModeType szNew);
    virtual zelString GetFileName();
    virtual void SetFileName(LPCTSTR szNew);
    virtual zelString GetHostName();
    virtual void SetHostName(LPCTSTR szNew);
    virtual int GetPort();
    virtual void SetPort(int szNew);
    virtual int GetNumConnections();
    virtual void SetNumConnections(int szNew);
    virtual SerialParametersType* GetSerialParameters();
    virtual void SetSerialParameters(SerialParametersType* szNew);
    virtual zelString GetDeviceDescList();
    virtual void SetDeviceDescList(LPCTSTR szNew);
    virtual int GetMaxBufferSize();
    virtual void SetMaxBufferSize(int szNew);
    virtual bool AutoFillTypeInfo();

    bool GetAutoFillTypeInfo() const { return m_bAutoFillTypeInfo; }
    void SetAutoFillTypeInfo(bool bNew) { m_bAutoFillTypeInfo = bNew; }

protected:
    bool m_bAutoFillTypeInfo = false;
    int m_Port = 0;
    int m_NumConnections = 0;
    int m_MaxBufferSize = 16384;
    zelString m_CommHandlerFactoryName;
    zelString m_CommHandlerFactoryMethod;
    CommModeType m_Mode{0};
    zelString m_FileName;
    zelString m_HostName;
    SerialParametersType* m_SerialParameters = nullptr;
    zelString m_DeviceDescList;

    static const Framework::FieldTable s_Table;
    friend struct Framework::FieldTableIndex;

private:
    static const Framework::FieldRow s_Rows[];
};
