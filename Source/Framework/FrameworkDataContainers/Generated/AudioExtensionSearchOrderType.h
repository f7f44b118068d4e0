// Generated from AudioLookupConfig.xsd; do not edit. Regenerate with the target "generate".
#pragma once

#include "Framework/TypedDataContainer.h"

namespace Framework {
struct FieldTableIndex;
}

/// File extensions that are tried, in order.
///
/// Element `AudioExtensionSearchOrder` unless its parent names it otherwise.
class FRAMEWORK_API AudioExtensionSearchOrderType : public TypedDataContainer {
public:
    explicit AudioExtensionSearchOrderType(bool bBuildFromScratch);
    ~AudioExtensionSearchOrderType() override;

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
    virtual int GetExtensionLength();
    virtual zelString GetExtension(int Index);
    virtual void AddNewExtension(LPCTSTR szNew);
    virtual bool AutoFillTypeInfo();
    virtual void AddExtension(zelString pData);
    virtual void ClearExtension();

    bool GetAutoFillTypeInfo() const { return m_bAutoFillTypeInfo; }
    void SetAutoFillTypeInfo(bool bNew) { m_bAutoFillTypeInfo = bNew; }

protected:
    bool m_bAutoFillTypeInfo = false;
    std::vector<zelString> m_ExtensionList;

    static const Framework::FieldTable s_Table;
    friend struct Framework::FieldTableIndex;

private:
    static const Framework::FieldRow s_Rows[];
};
