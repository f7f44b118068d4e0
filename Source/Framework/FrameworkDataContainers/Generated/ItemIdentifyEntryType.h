// Generated from ItemPurchase.xsd; do not edit. Regenerate with the target "generate".
#pragma once

#include "Framework/TypedDataContainer.h"
#include "FrameworkDataContainers/FrameworkDataContainersEnums.h"

namespace Framework {
struct FieldTableIndex;
}

/// How an item that was looked up is to be processed.
///
/// Element `ItemIdentifyEntry`, the root of its document.
class FRAMEWORK_API ItemIdentifyEntryType : public TypedDataContainer {
public:
    explicit ItemIdentifyEntryType(bool bBuildFromScratch);
    ~ItemIdentifyEntryType() override;

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
    virtual ItemProcessingEnum GetItemProcessingType();
    virtual void SetItemProcessingType(ItemProcessingEnum szNew);
    virtual SpecialHandlingEnum GetSpecialHandlingInstruction();
    virtual void SetSpecialHandlingInstruction(SpecialHandlingEnum szNew);
    virtual zelString GetDescription();
    virtual void SetDescription(LPCTSTR szNew);
    virtual bool AutoFillTypeInfo();

    bool GetAutoFillTypeInfo() const { return m_bAutoFillTypeInfo; }
    void SetAutoFillTypeInfo(bool bNew) { m_bAutoFillTypeInfo = bNew; }

protected:
    bool m_bAutoFillTypeInfo = false;
    ItemProcessingEnum m_ItemProcessingType{0};
    SpecialHandlingEnum m_SpecialHandlingInstruction{0};
    zelString m_Description;

    static const Framework::FieldTable s_Table;
    friend struct Framework::FieldTableIndex;

private:
    static const Framework::FieldRow s_Rows[];
};
