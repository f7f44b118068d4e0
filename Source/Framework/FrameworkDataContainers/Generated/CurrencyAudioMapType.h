// Generated from AudioLookupConfig.xsd; do not edit. Regenerate with the target "generate".
#pragma once

#include "Framework/TypedDataContainer.h"

namespace Framework {
struct FieldTableIndex;
}

class CurrencyAudioKeysType;

/// The spoken words for money in one language.
///
/// Element `CurrencyAudioMap` unless its parent names it otherwise.
class FRAMEWORK_API CurrencyAudioMapType : public TypedDataContainer {
public:
    explicit CurrencyAudioMapType(bool bBuildFromScratch);
    ~CurrencyAudioMapType() override;

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
    virtual int GetCurrencyAudioKeysLength();
    virtual CurrencyAudioKeysType* GetCurrencyAudioKeys(int Index);
    virtual CurrencyAudioKeysType* GetCurrencyAudioKeys(const zelString& sName);
    virtual void AddNewCurrencyAudioKeys(CurrencyAudioKeysType* szNew, const zelString& sName);
    virtual void RemoveCurrencyAudioKeys(const zelString& sName, const zelString& sFeatureId);
    virtual zelString Getlanguage();
    virtual void Setlanguage(LPCTSTR szNew);
    virtual bool AutoFillTypeInfo();
    virtual void AddCurrencyAudioKeys(XMLDataWrapper* pData, XalanNode* spNode, const zelString& sName);
    virtual void ClearCurrencyAudioKeys();

    bool GetAutoFillTypeInfo() const { return m_bAutoFillTypeInfo; }
    void SetAutoFillTypeInfo(bool bNew) { m_bAutoFillTypeInfo = bNew; }

protected:
    bool m_bAutoFillTypeInfo = false;
    Zelvon::SyncMap<zelString, TypedDataContainer*> m_MapCurrencyAudioKeysList;
    std::vector<TypedDataContainer*> m_CurrencyAudioKeysList;
    zelString m_language;

    static const Framework::FieldTable s_Table;
    friend struct Framework::FieldTableIndex;

private:
    static const Framework::FieldRow s_Rows[];
};
