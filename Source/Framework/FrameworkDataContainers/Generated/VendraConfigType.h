// Generated from VendraConfig.xsd; do not edit. Regenerate with the target "generate".
#pragma once

#include "Framework/TypedDataContainer.h"

namespace Framework {
struct FieldTableIndex;
}

class ConfigDefType;

/// Root of the catalogue of configuration documents.
///
/// Element `VendraConfig`, the root of its document.
class FRAMEWORK_API VendraConfigType : public TypedDataContainer {
public:
    explicit VendraConfigType(bool bBuildFromScratch);
    ~VendraConfigType() override;

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
    virtual int GetConfigLength();
    virtual ConfigDefType* GetConfig(int Index);
    virtual ConfigDefType* GetConfig(const zelString& sName);
    virtual void AddNewConfig(ConfigDefType* szNew, const zelString& sName);
    virtual void RemoveConfig(const zelString& sName, const zelString& sFeatureId);
    virtual bool AutoFillTypeInfo();
    virtual void AddConfig(XMLDataWrapper* pData, XalanNode* spNode, const zelString& sName);
    virtual void ClearConfig();

    bool GetAutoFillTypeInfo() const { return m_bAutoFillTypeInfo; }
    void SetAutoFillTypeInfo(bool bNew) { m_bAutoFillTypeInfo = bNew; }

protected:
    bool m_bAutoFillTypeInfo = false;
    Zelvon::SyncMap<zelString, TypedDataContainer*> m_MapConfigList;
    std::vector<TypedDataContainer*> m_ConfigList;

    static const Framework::FieldTable s_Table;
    friend struct Framework::FieldTableIndex;

private:
    static const Framework::FieldRow s_Rows[];
};
