// Generated from SystemsManagement.xsd; do not edit. Regenerate with the target "generate".
#pragma once

#include "Framework/TypedDataContainer.h"
#include "FrameworkDataContainers/FrameworkDataContainersEnums.h"

namespace Framework {
struct FieldTableIndex;
}

/// The availability of a lane.
///
/// Element `Availability` unless its parent names it otherwise.
class FRAMEWORK_API AvailabilityType : public TypedDataContainer {
public:
    explicit AvailabilityType(bool bBuildFromScratch);
    ~AvailabilityType() override;

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
    virtual AvailabilityStateEnum GetAvailabilityState();
    virtual void SetAvailabilityState(AvailabilityStateEnum szNew);
    virtual zelString GetAdditionalInformation();
    virtual void SetAdditionalInformation(LPCTSTR szNew);
    virtual bool AutoFillTypeInfo();

    bool GetAutoFillTypeInfo() const { return m_bAutoFillTypeInfo; }
    void SetAutoFillTypeInfo(bool bNew) { m_bAutoFillTypeInfo = bNew; }

protected:
    bool m_bAutoFillTypeInfo = false;
    AvailabilityStateEnum m_AvailabilityState{0};
    zelString m_AdditionalInformation;

    static const Framework::FieldTable s_Table;
    friend struct Framework::FieldTableIndex;

private:
    static const Framework::FieldRow s_Rows[];
};
