// Generated from SystemsManagement.xsd; do not edit. Regenerate with the target "generate".
#pragma once

#include "Framework/TypedDataContainer.h"
#include "FrameworkDataContainers/FrameworkDataContainersEnums.h"

namespace Framework {
struct FieldTableIndex;
}

class AvailabilityType;
class SystemEventPacketType;

/// What a lane tells systems management.
///
/// Element `SystemsManagementPacket`, the root of its document.
class FRAMEWORK_API SystemsManagementPacketType : public TypedDataContainer {
public:
    explicit SystemsManagementPacketType(bool bBuildFromScratch);
    ~SystemsManagementPacketType() override;

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
    virtual SystemsManagementPacketTypeEnum GetPacketType();
    virtual void SetPacketType(SystemsManagementPacketTypeEnum szNew);
    virtual AvailabilityType* GetAvailability();
    virtual void SetAvailability(AvailabilityType* szNew);
    virtual SystemEventPacketType* GetSystemEvent();
    virtual void SetSystemEvent(SystemEventPacketType* szNew);
    virtual bool AutoFillTypeInfo();

    bool GetAutoFillTypeInfo() const { return m_bAutoFillTypeInfo; }
    void SetAutoFillTypeInfo(bool bNew) { m_bAutoFillTypeInfo = bNew; }

protected:
    bool m_bAutoFillTypeInfo = false;
    SystemsManagementPacketTypeEnum m_PacketType{0};
    AvailabilityType* m_Availability = nullptr;
    SystemEventPacketType* m_SystemEvent = nullptr;

    static const Framework::FieldTable s_Table;
    friend struct Framework::FieldTableIndex;

private:
    static const Framework::FieldRow s_Rows[];
};
