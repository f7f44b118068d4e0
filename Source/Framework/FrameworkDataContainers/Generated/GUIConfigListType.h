// Generated from GUIConfigurations.xsd; do not edit. Regenerate with the target "generate".
#pragma once

#include "Framework/TypedDataContainer.h"

namespace Framework {
struct FieldTableIndex;
}

class GUIConfigSettingsType;

/// The sets of screen settings, by identifier.
///
/// Element `GUIConfigList` unless its parent names it otherwise.
class FRAMEWORK_API GUIConfigListType : public TypedDataContainer {
public:
    explicit GUIConfigListType(bool bBuildFromScratch);
    ~GUIConfigListType() override;

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
    virtual int GetGUIConfigSettingsLength();
    virtual GUIConfigSettingsType* GetGUIConfigSettings(int Index);
    virtual GUIConfigSettingsType* GetGUIConfigSettings(const zelString& sName);
    virtual void AddNewGUIConfigSettings(GUIConfigSettingsType* szNew, const zelString& sName);
    virtual void RemoveGUIConfigSettings(const zelString& sName, const zelString& sFeatureId);
    virtual bool AutoFillTypeInfo();
    virtual void AddGUIConfigSettings(XMLDataWrapper* pData, XalanNode* spNode, const zelString& sName);
    virtual void ClearGUIConfigSettings();

    bool GetAutoFillTypeInfo() const { return m_bAutoFillTypeInfo; }
    void SetAutoFillTypeInfo(bool bNew) { m_bAutoFillTypeInfo = bNew; }

protected:
    bool m_bAutoFillTypeInfo = false;
    Zelvon::SyncMap<zelString, TypedDataContainer*> m_MapGUIConfigSettingsList;
    std::vector<TypedDataContainer*> m_GUIConfigSettingsList;

    static const Framework::FieldTable s_Table;
    friend struct Framework::FieldTableIndex;

private:
    static const Framework::FieldRow s_Rows[];
};
