// Generated from TranslationConfig.xsd; do not edit. Regenerate with the target "generate".
#pragma once

#include "Framework/TypedDataContainer.h"

namespace Framework {
struct FieldTableIndex;
}

class TranslationKeyMapType;

/// The translations, by language.
///
/// Element `TranslationText` unless its parent names it otherwise.
class FRAMEWORK_API TranslationTextType : public TypedDataContainer {
public:
    explicit TranslationTextType(bool bBuildFromScratch);
    ~TranslationTextType() override;

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
    virtual int GetTranslationKeyMapLength();
    virtual TranslationKeyMapType* GetTranslationKeyMap(int Index);
    virtual TranslationKeyMapType* GetTranslationKeyMap(const zelString& sName);
    virtual void AddNewTranslationKeyMap(TranslationKeyMapType* szNew, const zelString& sName);
    virtual void RemoveTranslationKeyMap(const zelString& sName, const zelString& sFeatureId);
    virtual bool AutoFillTypeInfo();
    virtual void AddTranslationKeyMap(XMLDataWrapper* pData, XalanNode* spNode, const zelString& sName);
    virtual void ClearTranslationKeyMap();

    bool GetAutoFillTypeInfo() const { return m_bAutoFillTypeInfo; }
    void SetAutoFillTypeInfo(bool bNew) { m_bAutoFillTypeInfo = bNew; }

protected:
    bool m_bAutoFillTypeInfo = false;
    Zelvon::SyncMap<zelString, TypedDataContainer*> m_MapTranslationKeyMapList;
    std::vector<TypedDataContainer*> m_TranslationKeyMapList;

    static const Framework::FieldTable s_Table;
    friend struct Framework::FieldTableIndex;

private:
    static const Framework::FieldRow s_Rows[];
};
