// Generated from StateProcessingRoot.xsd; do not edit. Regenerate with the target "generate".
#pragma once

#include "Framework/TypedDataContainer.h"

namespace Framework {
struct FieldTableIndex;
}

class StateTableType;

/// The state table of a lane: all that state processing is told.
///
/// Element `StateProcessingRoot`, the root of its document.
class FRAMEWORK_API StateProcessingRootType : public StructuralConfigLoader {
public:
    explicit StateProcessingRootType(bool bBuildFromScratch);
    ~StateProcessingRootType() override;

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
    virtual int GetRevisionHistoryLength();
    virtual zelString GetRevisionHistory(int Index);
    virtual zelString GetRevisionHistory(const zelString& sName);
    virtual StateTableType* GetStateTable();
    virtual void SetStateTable(StateTableType* szNew);
    virtual zelString GetVersion();
    virtual void SetVersion(LPCTSTR szNew);
    virtual bool AutoFillTypeInfo();
    virtual void AddRevisionHistory(const zelString& pData, const zelString& sName);
    virtual void ClearRevisionHistory();

    bool GetAutoFillTypeInfo() const { return m_bAutoFillTypeInfo; }
    void SetAutoFillTypeInfo(bool bNew) { m_bAutoFillTypeInfo = bNew; }

protected:
    bool m_bAutoFillTypeInfo = false;
    Zelvon::SyncMap<zelString, SimpleDataContainer*> m_MapRevisionHistoryList;
    std::vector<SimpleDataContainer*> m_RevisionHistoryList;
    StateTableType* m_StateTable = nullptr;
    zelString m_Version;

    static const Framework::FieldTable s_Table;
    friend struct Framework::FieldTableIndex;

private:
    static const Framework::FieldRow s_Rows[];
};
