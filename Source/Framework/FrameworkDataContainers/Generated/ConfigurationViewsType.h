// Generated from ConfigDefRoot.xsd; do not edit. Regenerate with the target "generate".
#pragma once

#include "Framework/TypedDataContainer.h"

namespace Framework {
struct FieldTableIndex;
}

class ConfigViewType;

/// The views of the options, by name.
///
/// Element `ConfigurationViews` unless its parent names it otherwise.
class FRAMEWORK_API ConfigurationViewsType : public TypedDataContainer {
public:
    explicit ConfigurationViewsType(bool bBuildFromScratch);
    ~ConfigurationViewsType() override;

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
    virtual int GetConfigViewLength();
    virtual ConfigViewType* GetConfigView(int Index);
    virtual ConfigViewType* GetConfigView(const zelString& sName);
    virtual void AddNewConfigView(ConfigViewType* szNew, const zelString& sName);
    virtual void RemoveConfigView(const zelString& sName, const zelString& sFeatureId);
    virtual bool AutoFillTypeInfo();
    virtual void AddConfigView(XMLDataWrapper* pData, XalanNode* spNode, const zelString& sName);
    virtual void ClearConfigView();

    bool GetAutoFillTypeInfo() const { return m_bAutoFillTypeInfo; }
    void SetAutoFillTypeInfo(bool bNew) { m_bAutoFillTypeInfo = bNew; }

protected:
    bool m_bAutoFillTypeInfo = false;
    Zelvon::SyncMap<zelString, TypedDataContainer*> m_MapConfigViewList;
    std::vector<TypedDataContainer*> m_ConfigViewList;

    static const Framework::FieldTable s_Table;
    friend struct Framework::FieldTableIndex;

private:
    static const Framework::FieldRow s_Rows[];
};
