// Generated from ConfigDefRoot.xsd; do not edit. Regenerate with the target "generate".
#pragma once

#include "Framework/TypedDataContainer.h"

namespace Framework {
struct FieldTableIndex;
}

class ConfigOptionType;

/// A view: the options that are shown together.
///
/// Element `ConfigView` unless its parent names it otherwise.
class FRAMEWORK_API ConfigViewType : public TypedDataContainer {
public:
    explicit ConfigViewType(bool bBuildFromScratch);
    ~ConfigViewType() override;

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
    virtual int GetConfigOptionLength();
    virtual ConfigOptionType* GetConfigOption(int Index);
    virtual ConfigOptionType* GetConfigOption(const zelString& sName);
    virtual void AddNewConfigOption(ConfigOptionType* szNew, const zelString& sName);
    virtual void RemoveConfigOption(const zelString& sName, const zelString& sFeatureId);
    virtual zelString GetName();
    virtual void SetName(LPCTSTR szNew);
    virtual bool GetIsPublic();
    virtual void SetIsPublic(bool szNew);
    virtual bool AutoFillTypeInfo();
    virtual void AddConfigOption(XMLDataWrapper* pData, XalanNode* spNode, const zelString& sName);
    virtual void ClearConfigOption();

    bool GetAutoFillTypeInfo() const { return m_bAutoFillTypeInfo; }
    void SetAutoFillTypeInfo(bool bNew) { m_bAutoFillTypeInfo = bNew; }

protected:
    bool m_bAutoFillTypeInfo = false;
    bool m_IsPublic = false;
    Zelvon::SyncMap<zelString, TypedDataContainer*> m_MapConfigOptionList;
    std::vector<TypedDataContainer*> m_ConfigOptionList;
    zelString m_Name;

    static const Framework::FieldTable s_Table;
    friend struct Framework::FieldTableIndex;

private:
    static const Framework::FieldRow s_Rows[];
};
