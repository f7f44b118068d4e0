// Generated from GUIConfigurations.xsd; do not edit. Regenerate with the target "generate".
#pragma once

#include "Framework/TypedDataContainer.h"

namespace Framework {
struct FieldTableIndex;
}

class GUIConfigType;

/// One set of screen settings.
///
/// Element `GUIConfigSettings` unless its parent names it otherwise.
class FRAMEWORK_API GUIConfigSettingsType : public TypedDataContainer {
public:
    explicit GUIConfigSettingsType(bool bBuildFromScratch);
    ~GUIConfigSettingsType() override;

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
    virtual int GetGUIConfigLength();
    virtual GUIConfigType* GetGUIConfig(int Index);
    virtual void AddNewGUIConfig(GUIConfigType* szNew);
    virtual zelString Getid();
    virtual void Setid(LPCTSTR szNew);
    virtual bool AutoFillTypeInfo();
    virtual void AddGUIConfig(XMLDataWrapper* pData, XalanNode* spNode);
    virtual void ClearGUIConfig();

    bool GetAutoFillTypeInfo() const { return m_bAutoFillTypeInfo; }
    void SetAutoFillTypeInfo(bool bNew) { m_bAutoFillTypeInfo = bNew; }

protected:
    bool m_bAutoFillTypeInfo = false;
    std::vector<TypedDataContainer*> m_GUIConfigList;
    zelString m_id;

    static const Framework::FieldTable s_Table;
    friend struct Framework::FieldTableIndex;

private:
    static const Framework::FieldRow s_Rows[];
};
