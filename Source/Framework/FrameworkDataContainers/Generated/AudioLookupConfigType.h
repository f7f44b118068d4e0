// Generated from AudioLookupConfig.xsd; do not edit. Regenerate with the target "generate".
#pragma once

#include "Framework/TypedDataContainer.h"

namespace Framework {
struct FieldTableIndex;
}

class AudioGlobalParamsType;
class AudioKeyMapType;
class CurrencyAudioMapType;
class FunctionHandlerMapType;

/// Root of an audio lookup document.
///
/// Element `AudioLookupConfig`, the root of its document.
class FRAMEWORK_API AudioLookupConfigType : public StructuralConfigLoader {
public:
    explicit AudioLookupConfigType(bool bBuildFromScratch);
    ~AudioLookupConfigType() override;

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
    virtual AudioGlobalParamsType* GetGlobalParams();
    virtual void SetGlobalParams(AudioGlobalParamsType* szNew);
    virtual FunctionHandlerMapType* GetFunctionHandlerMap();
    virtual void SetFunctionHandlerMap(FunctionHandlerMapType* szNew);
    virtual int GetCurrencyAudioMapLength();
    virtual CurrencyAudioMapType* GetCurrencyAudioMap(int Index);
    virtual CurrencyAudioMapType* GetCurrencyAudioMap(const zelString& sName);
    virtual void AddNewCurrencyAudioMap(CurrencyAudioMapType* szNew, const zelString& sName);
    virtual void RemoveCurrencyAudioMap(const zelString& sName, const zelString& sFeatureId);
    virtual int GetAudioKeyMapLength();
    virtual AudioKeyMapType* GetAudioKeyMap(int Index);
    virtual AudioKeyMapType* GetAudioKeyMap(const zelString& sName);
    virtual void AddNewAudioKeyMap(AudioKeyMapType* szNew, const zelString& sName);
    virtual void RemoveAudioKeyMap(const zelString& sName, const zelString& sFeatureId);
    virtual bool AutoFillTypeInfo();
    virtual void AddCurrencyAudioMap(XMLDataWrapper* pData, XalanNode* spNode, const zelString& sName);
    virtual void ClearCurrencyAudioMap();
    virtual void AddAudioKeyMap(XMLDataWrapper* pData, XalanNode* spNode, const zelString& sName);
    virtual void ClearAudioKeyMap();

    bool GetAutoFillTypeInfo() const { return m_bAutoFillTypeInfo; }
    void SetAutoFillTypeInfo(bool bNew) { m_bAutoFillTypeInfo = bNew; }

protected:
    bool m_bAutoFillTypeInfo = false;
    AudioGlobalParamsType* m_GlobalParams = nullptr;
    FunctionHandlerMapType* m_FunctionHandlerMap = nullptr;
    Zelvon::SyncMap<zelString, TypedDataContainer*> m_MapCurrencyAudioMapList;
    std::vector<TypedDataContainer*> m_CurrencyAudioMapList;
    Zelvon::SyncMap<zelString, TypedDataContainer*> m_MapAudioKeyMapList;
    std::vector<TypedDataContainer*> m_AudioKeyMapList;

    static const Framework::FieldTable s_Table;
    friend struct Framework::FieldTableIndex;

private:
    static const Framework::FieldRow s_Rows[];
};
