// Generated from LoggingInformation.xsd; do not edit. Regenerate with the target "generate".
#pragma once

#include "Framework/TypedDataContainer.h"

namespace Framework {
struct FieldTableIndex;
}

class TenderDataEntryType;

/// The tenders of a transaction, by number.
///
/// Element `TenderDataList` unless its parent names it otherwise.
class FRAMEWORK_API TenderDataListType : public TypedDataContainer {
public:
    explicit TenderDataListType(bool bBuildFromScratch);
    ~TenderDataListType() override;

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
    virtual int GetTenderDataEntryLength();
    virtual TenderDataEntryType* GetTenderDataEntry(int Index);
    virtual TenderDataEntryType* GetTenderDataEntry(const zelString& sName);
    virtual void AddNewTenderDataEntry(TenderDataEntryType* szNew, const zelString& sName);
    virtual void RemoveTenderDataEntry(const zelString& sName, const zelString& sFeatureId);
    virtual bool AutoFillTypeInfo();
    virtual void AddTenderDataEntry(XMLDataWrapper* pData, XalanNode* spNode, const zelString& sName);
    virtual void ClearTenderDataEntry();

    bool GetAutoFillTypeInfo() const { return m_bAutoFillTypeInfo; }
    void SetAutoFillTypeInfo(bool bNew) { m_bAutoFillTypeInfo = bNew; }

protected:
    bool m_bAutoFillTypeInfo = false;
    Zelvon::SyncMap<zelString, TypedDataContainer*> m_MapTenderDataEntryList;
    std::vector<TypedDataContainer*> m_TenderDataEntryList;

    static const Framework::FieldTable s_Table;
    friend struct Framework::FieldTableIndex;

private:
    static const Framework::FieldRow s_Rows[];
};
