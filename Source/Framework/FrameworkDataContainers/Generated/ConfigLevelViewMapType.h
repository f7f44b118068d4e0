// Generated from ConfigDefRoot.xsd; do not edit. Regenerate with the target "generate".
#pragma once

#include "Framework/TypedDataContainer.h"

namespace Framework {
struct FieldTableIndex;
}

class ConfigLevelViewType;

/// The views of each configuration level.
///
/// Element `ConfigLevelViewMap` unless its parent names it otherwise.
class FRAMEWORK_API ConfigLevelViewMapType : public TypedDataContainer {
public:
    explicit ConfigLevelViewMapType(bool bBuildFromScratch);
    ~ConfigLevelViewMapType() override;

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
    virtual int GetConfigLevelViewLength();
    virtual ConfigLevelViewType* GetConfigLevelView(int Index);
    virtual ConfigLevelViewType* GetConfigLevelView(const zelString& sName);
    virtual void AddNewConfigLevelView(ConfigLevelViewType* szNew, const zelString& sName);
    virtual void RemoveConfigLevelView(const zelString& sName, const zelString& sFeatureId);
    virtual bool AutoFillTypeInfo();
    virtual void AddConfigLevelView(XMLDataWrapper* pData, XalanNode* spNode, const zelString& sName);
    virtual void ClearConfigLevelView();

    bool GetAutoFillTypeInfo() const { return m_bAutoFillTypeInfo; }
    void SetAutoFillTypeInfo(bool bNew) { m_bAutoFillTypeInfo = bNew; }

protected:
    bool m_bAutoFillTypeInfo = false;
    Zelvon::SyncMap<zelString, TypedDataContainer*> m_MapConfigLevelViewList;
    std::vector<TypedDataContainer*> m_ConfigLevelViewList;

    static const Framework::FieldTable s_Table;
    friend struct Framework::FieldTableIndex;

private:
    static const Framework::FieldRow s_Rows[];
};
