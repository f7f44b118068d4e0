// Generated from ConfigDefRoot.xsd; do not edit. Regenerate with the target "generate".
#pragma once

#include "Framework/TypedDataContainer.h"

namespace Framework {
struct FieldTableIndex;
}

class ConfigLevelViewMapType;
class ConfigurationDefinitionType;
class ConfigurationViewsType;

/// Root of a configuration definition document.
///
/// Element `ConfigDefRoot`, the root of its document.
class FRAMEWORK_API ConfigDefRootType : public StructuralConfigLoader {
public:
    explicit ConfigDefRootType(bool bBuildFromScratch);
    ~ConfigDefRootType() override;

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
    virtual ConfigurationDefinitionType* GetConfigurationDefinition();
    virtual void SetConfigurationDefinition(ConfigurationDefinitionType* szNew);
    virtual ConfigurationViewsType* GetConfigurationViews();
    virtual void SetConfigurationViews(ConfigurationViewsType* szNew);
    virtual ConfigLevelViewMapType* GetConfigLevelViewMap();
    virtual void SetConfigLevelViewMap(ConfigLevelViewMapType* szNew);
    virtual bool AutoFillTypeInfo();

    bool GetAutoFillTypeInfo() const { return m_bAutoFillTypeInfo; }
    void SetAutoFillTypeInfo(bool bNew) { m_bAutoFillTypeInfo = bNew; }

protected:
    bool m_bAutoFillTypeInfo = false;
    ConfigurationDefinitionType* m_ConfigurationDefinition = nullptr;
    ConfigurationViewsType* m_ConfigurationViews = nullptr;
    ConfigLevelViewMapType* m_ConfigLevelViewMap = nullptr;

    static const Framework::FieldTable s_Table;
    friend struct Framework::FieldTableIndex;

private:
    static const Framework::FieldRow s_Rows[];
};
