// Generated from TranslationConfig.xsd; do not edit. Regenerate with the target "generate".
#pragma once

#include "Framework/TypedDataContainer.h"

namespace Framework {
struct FieldTableIndex;
}

class TranslationType;

/// The translations into one language.
///
/// Element `TranslationKeyMap` unless its parent names it otherwise.
class FRAMEWORK_API TranslationKeyMapType : public TypedDataContainer {
public:
    explicit TranslationKeyMapType(bool bBuildFromScratch);
    ~TranslationKeyMapType() override;

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
    virtual int GetTranslationLength();
    virtual TranslationType* GetTranslation(int Index);
    virtual TranslationType* GetTranslation(const zelString& sName);
    virtual void AddNewTranslation(TranslationType* szNew, const zelString& sName);
    virtual void RemoveTranslation(const zelString& sName, const zelString& sFeatureId);
    virtual zelString Getlanguage();
    virtual void Setlanguage(LPCTSTR szNew);
    virtual bool AutoFillTypeInfo();
    virtual void AddTranslation(XMLDataWrapper* pData, XalanNode* spNode, const zelString& sName);
    virtual void ClearTranslation();

    bool GetAutoFillTypeInfo() const { return m_bAutoFillTypeInfo; }
    void SetAutoFillTypeInfo(bool bNew) { m_bAutoFillTypeInfo = bNew; }

protected:
    bool m_bAutoFillTypeInfo = false;
    Zelvon::SyncMap<zelString, TypedDataContainer*> m_MapTranslationList;
    std::vector<TypedDataContainer*> m_TranslationList;
    zelString m_language;

    static const Framework::FieldTable s_Table;
    friend struct Framework::FieldTableIndex;

private:
    static const Framework::FieldRow s_Rows[];
};
