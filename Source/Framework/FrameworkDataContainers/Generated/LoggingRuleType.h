// Generated from TarnLoggingConfig.xsd; do not edit. Regenerate with the target "generate".
#pragma once

#include "Framework/TypedDataContainer.h"
#include "FrameworkDataContainers/FrameworkDataContainersEnums.h"

namespace Framework {
struct FieldTableIndex;
}

/// One rule: a kind of packet or log record, and whether it is left out.
///
/// Element `LoggingRule` unless its parent names it otherwise.
class FRAMEWORK_API LoggingRuleType : public TypedDataContainer {
public:
    explicit LoggingRuleType(bool bBuildFromScratch);
    ~LoggingRuleType() override;

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
    virtual LogIdTypeDefintion GetSystemLogId();
    virtual void SetSystemLogId(LogIdTypeDefintion szNew);
    virtual bool GetExcludeOutput();
    virtual void SetExcludeOutput(bool szNew);
    virtual bool AutoFillTypeInfo();

    bool GetAutoFillTypeInfo() const { return m_bAutoFillTypeInfo; }
    void SetAutoFillTypeInfo(bool bNew) { m_bAutoFillTypeInfo = bNew; }

protected:
    bool m_bAutoFillTypeInfo = false;
    bool m_ExcludeOutput = false;
    LogInformationTypeDefintion m_PacketType{0};
    LogIdTypeDefintion m_SystemLogId{0};

    static const Framework::FieldTable s_Table;
    friend struct Framework::FieldTableIndex;

private:
    static const Framework::FieldRow s_Rows[];
};
