// Generated from StateTriggerFilterDef.xsd; do not edit. Regenerate with the target "generate".
#pragma once

#include "Framework/TypedDataContainer.h"

namespace Framework {
struct FieldTableIndex;
}

class EventPacketFilterType;

/// The filters over event packets, by packet identifier.
///
/// Element `TriggerFilters` unless its parent names it otherwise.
class FRAMEWORK_API TriggerFiltersType : public TypedDataContainer {
public:
    explicit TriggerFiltersType(bool bBuildFromScratch);
    ~TriggerFiltersType() override;

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
    virtual int GetEventPacketFilterLength();
    virtual EventPacketFilterType* GetEventPacketFilter(int Index);
    virtual EventPacketFilterType* GetEventPacketFilter(const zelString& sName);
    virtual void AddNewEventPacketFilter(EventPacketFilterType* szNew, const zelString& sName);
    virtual void RemoveEventPacketFilter(const zelString& sName, const zelString& sFeatureId);
    virtual bool AutoFillTypeInfo();
    virtual void AddEventPacketFilter(XMLDataWrapper* pData, XalanNode* spNode, const zelString& sName);
    virtual void ClearEventPacketFilter();

    bool GetAutoFillTypeInfo() const { return m_bAutoFillTypeInfo; }
    void SetAutoFillTypeInfo(bool bNew) { m_bAutoFillTypeInfo = bNew; }

protected:
    bool m_bAutoFillTypeInfo = false;
    Zelvon::SyncMap<zelString, TypedDataContainer*> m_MapEventPacketFilterList;
    std::vector<TypedDataContainer*> m_EventPacketFilterList;

    static const Framework::FieldTable s_Table;
    friend struct Framework::FieldTableIndex;

private:
    static const Framework::FieldRow s_Rows[];
};
