// Generated from LoggingInformation.xsd; do not edit. Regenerate with the target "generate".
#pragma once

#include "Framework/TypedDataContainer.h"
#include "FrameworkDataContainers/FrameworkDataContainersEnums.h"

namespace Framework {
struct FieldTableIndex;
}

class ItemInformationType;
class SystemEventType;
class TransactionInformationType;

/// A record for the log: an event, an item or a transaction.
///
/// Element `LoggingInformationPacket`, the root of its document.
class FRAMEWORK_API LoggingInformationPacketType : public TypedDataContainer {
public:
    explicit LoggingInformationPacketType(bool bBuildFromScratch);
    ~LoggingInformationPacketType() override;

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
    virtual LogInformationTypeDefintion GetPacketType();
    virtual void SetPacketType(LogInformationTypeDefintion szNew);
    virtual int GetLane();
    virtual void SetLane(int szNew);
    virtual zelString GetTimeStamp();
    virtual void SetTimeStamp(LPCTSTR szNew);
    virtual SystemEventType* GetSystemEvent();
    virtual void SetSystemEvent(SystemEventType* szNew);
    virtual ItemInformationType* GetItemInformation();
    virtual void SetItemInformation(ItemInformationType* szNew);
    virtual TransactionInformationType* GetTransactionInformation();
    virtual void SetTransactionInformation(TransactionInformationType* szNew);
    virtual bool AutoFillTypeInfo();

    bool GetAutoFillTypeInfo() const { return m_bAutoFillTypeInfo; }
    void SetAutoFillTypeInfo(bool bNew) { m_bAutoFillTypeInfo = bNew; }

protected:
    bool m_bAutoFillTypeInfo = false;
    int m_Lane = 0;
    LogInformationTypeDefintion m_PacketType{0};
    zelString m_TimeStamp;
    SystemEventType* m_SystemEvent = nullptr;
    ItemInformationType* m_ItemInformation = nullptr;
    TransactionInformationType* m_TransactionInformation = nullptr;

    static const Framework::FieldTable s_Table;
    friend struct Framework::FieldTableIndex;

private:
    static const Framework::FieldRow s_Rows[];
};
