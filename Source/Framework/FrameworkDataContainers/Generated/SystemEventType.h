// Generated from LoggingInformation.xsd; do not edit. Regenerate with the target "generate".
#pragma once

#include "Framework/TypedDataContainer.h"
#include "FrameworkDataContainers/FrameworkDataContainersEnums.h"

namespace Framework {
struct FieldTableIndex;
}

/// An event of the lane for the log.
///
/// Element `SystemEvent` unless its parent names it otherwise.
class FRAMEWORK_API SystemEventType : public TypedDataContainer {
public:
    explicit SystemEventType(bool bBuildFromScratch);
    ~SystemEventType() override;

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
    virtual LogIdTypeDefintion GetLogId();
    virtual void SetLogId(LogIdTypeDefintion szNew);
    virtual zelString GetSystemMessage();
    virtual void SetSystemMessage(LPCTSTR szNew);
    virtual OverrideModeDefinition GetOverrideMode();
    virtual void SetOverrideMode(OverrideModeDefinition szNew);
    virtual bool AutoFillTypeInfo();

    bool GetAutoFillTypeInfo() const { return m_bAutoFillTypeInfo; }
    void SetAutoFillTypeInfo(bool bNew) { m_bAutoFillTypeInfo = bNew; }

protected:
    bool m_bAutoFillTypeInfo = false;
    LogIdTypeDefintion m_LogId{0};
    zelString m_SystemMessage;
    OverrideModeDefinition m_OverrideMode{0};

    static const Framework::FieldTable s_Table;
    friend struct Framework::FieldTableIndex;

private:
    static const Framework::FieldRow s_Rows[];
};
