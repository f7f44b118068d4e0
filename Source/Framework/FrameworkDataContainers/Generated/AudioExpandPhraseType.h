// Generated from AudioLookupConfig.xsd; do not edit. Regenerate with the target "generate".
#pragma once

#include "Framework/TypedDataContainer.h"

namespace Framework {
struct FieldTableIndex;
}

class AudioExpandPhraseConditionType;

/// Keys that are played one after the other while the conditions hold.
///
/// Element `AudioExpandPhrase` unless its parent names it otherwise.
class FRAMEWORK_API AudioExpandPhraseType : public TypedDataContainer {
public:
    explicit AudioExpandPhraseType(bool bBuildFromScratch);
    ~AudioExpandPhraseType() override;

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
    virtual int GetConditionLength();
    virtual AudioExpandPhraseConditionType* GetCondition(int Index);
    virtual AudioExpandPhraseConditionType* GetCondition(const zelString& sName);
    virtual void AddNewCondition(AudioExpandPhraseConditionType* szNew, const zelString& sName);
    virtual void RemoveCondition(const zelString& sName, const zelString& sFeatureId);
    virtual int GetKeyLength();
    virtual zelString GetKey(int Index);
    virtual void AddNewKey(LPCTSTR szNew);
    virtual bool AutoFillTypeInfo();
    virtual void AddCondition(XMLDataWrapper* pData, XalanNode* spNode, const zelString& sName);
    virtual void ClearCondition();
    virtual void AddKey(zelString pData);
    virtual void ClearKey();

    bool GetAutoFillTypeInfo() const { return m_bAutoFillTypeInfo; }
    void SetAutoFillTypeInfo(bool bNew) { m_bAutoFillTypeInfo = bNew; }

protected:
    bool m_bAutoFillTypeInfo = false;
    Zelvon::SyncMap<zelString, TypedDataContainer*> m_MapConditionList;
    std::vector<TypedDataContainer*> m_ConditionList;
    std::vector<zelString> m_KeyList;

    static const Framework::FieldTable s_Table;
    friend struct Framework::FieldTableIndex;

private:
    static const Framework::FieldRow s_Rows[];
};
