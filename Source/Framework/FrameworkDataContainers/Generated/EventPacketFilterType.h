// Generated from StateTriggerFilterDef.xsd; do not edit. Regenerate with the target "generate".
#pragma once

#include "Framework/TypedDataContainer.h"

namespace Framework {
struct FieldTableIndex;
}

class EventFilterTestType;

/// The tests of one kind of packet.
///
/// Element `EventPacketFilter` unless its parent names it otherwise.
class FRAMEWORK_API EventPacketFilterType : public TypedDataContainer {
public:
    explicit EventPacketFilterType(bool bBuildFromScratch);
    ~EventPacketFilterType() override;

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
    virtual int GetEventFilterTestLength();
    virtual EventFilterTestType* GetEventFilterTest(int Index);
    virtual EventFilterTestType* GetEventFilterTest(const zelString& sName);
    virtual void AddNewEventFilterTest(EventFilterTestType* szNew, const zelString& sName);
    virtual void RemoveEventFilterTest(const zelString& sName, const zelString& sFeatureId);
    virtual zelString GetPacketID();
    virtual void SetPacketID(LPCTSTR szNew);
    virtual zelString GetDoc();
    virtual void SetDoc(LPCTSTR szNew);
    virtual bool AutoFillTypeInfo();
    virtual void AddEventFilterTest(XMLDataWrapper* pData, XalanNode* spNode, const zelString& sName);
    virtual void ClearEventFilterTest();

    bool GetAutoFillTypeInfo() const { return m_bAutoFillTypeInfo; }
    void SetAutoFillTypeInfo(bool bNew) { m_bAutoFillTypeInfo = bNew; }

protected:
    bool m_bAutoFillTypeInfo = false;
    Zelvon::SyncMap<zelString, TypedDataContainer*> m_MapEventFilterTestList;
    std::vector<TypedDataContainer*> m_EventFilterTestList;
    zelString m_PacketID;
    zelString m_Doc;

    static const Framework::FieldTable s_Table;
    friend struct Framework::FieldTableIndex;

private:
    static const Framework::FieldRow s_Rows[];
};
