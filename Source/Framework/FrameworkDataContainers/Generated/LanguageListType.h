// Generated from LanguageConfig.xsd; do not edit. Regenerate with the target "generate".
#pragma once

#include "Framework/TypedDataContainer.h"

namespace Framework {
struct FieldTableIndex;
}

class LanguageDefType;

/// The languages of a lane.
///
/// Element `LanguageList` unless its parent names it otherwise.
class FRAMEWORK_API LanguageListType : public TypedDataContainer {
public:
    explicit LanguageListType(bool bBuildFromScratch);
    ~LanguageListType() override;

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
    virtual int GetLanguageLength();
    virtual LanguageDefType* GetLanguage(int Index);
    virtual LanguageDefType* GetLanguage(const zelString& sName);
    virtual void AddNewLanguage(LanguageDefType* szNew, const zelString& sName);
    virtual void RemoveLanguage(const zelString& sName, const zelString& sFeatureId);
    virtual bool AutoFillTypeInfo();
    virtual void AddLanguage(XMLDataWrapper* pData, XalanNode* spNode, const zelString& sName);
    virtual void ClearLanguage();

    bool GetAutoFillTypeInfo() const { return m_bAutoFillTypeInfo; }
    void SetAutoFillTypeInfo(bool bNew) { m_bAutoFillTypeInfo = bNew; }

protected:
    bool m_bAutoFillTypeInfo = false;
    Zelvon::SyncMap<zelString, TypedDataContainer*> m_MapLanguageList;
    std::vector<TypedDataContainer*> m_LanguageList;

    static const Framework::FieldTable s_Table;
    friend struct Framework::FieldTableIndex;

private:
    static const Framework::FieldRow s_Rows[];
};
