// Generated from AudioLookupConfig.xsd; do not edit. Regenerate with the target "generate".
#pragma once

#include "Framework/TypedDataContainer.h"

namespace Framework {
struct FieldTableIndex;
}

class VoiceCurrencyType;

/// The spoken words for one currency.
///
/// Element `CurrencyAudioKeys` unless its parent names it otherwise.
class FRAMEWORK_API CurrencyAudioKeysType : public TypedDataContainer {
public:
    explicit CurrencyAudioKeysType(bool bBuildFromScratch);
    ~CurrencyAudioKeysType() override;

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
    virtual int GetVoiceCurrencyLength();
    virtual VoiceCurrencyType* GetVoiceCurrency(int Index);
    virtual VoiceCurrencyType* GetVoiceCurrency(const zelString& sName);
    virtual void AddNewVoiceCurrency(VoiceCurrencyType* szNew, const zelString& sName);
    virtual void RemoveVoiceCurrency(const zelString& sName, const zelString& sFeatureId);
    virtual zelString GetcurrencyCode();
    virtual void SetcurrencyCode(LPCTSTR szNew);
    virtual bool AutoFillTypeInfo();
    virtual void AddVoiceCurrency(XMLDataWrapper* pData, XalanNode* spNode, const zelString& sName);
    virtual void ClearVoiceCurrency();

    bool GetAutoFillTypeInfo() const { return m_bAutoFillTypeInfo; }
    void SetAutoFillTypeInfo(bool bNew) { m_bAutoFillTypeInfo = bNew; }

protected:
    bool m_bAutoFillTypeInfo = false;
    Zelvon::SyncMap<zelString, TypedDataContainer*> m_MapVoiceCurrencyList;
    std::vector<TypedDataContainer*> m_VoiceCurrencyList;
    zelString m_currencyCode;

    static const Framework::FieldTable s_Table;
    friend struct Framework::FieldTableIndex;

private:
    static const Framework::FieldRow s_Rows[];
};
