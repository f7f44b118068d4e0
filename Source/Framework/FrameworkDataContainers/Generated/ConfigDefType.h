// Generated from VendraConfig.xsd; do not edit. Regenerate with the target "generate".
#pragma once

#include "Framework/TypedDataContainer.h"

namespace Framework {
struct FieldTableIndex;
}

class ConfigDefDescriptionType;
class LoadSourceType;

/// One configuration document: what it is, and where it is loaded from.
///
/// Element `Config` unless its parent names it otherwise.
class FRAMEWORK_API ConfigDefType : public TypedDataContainer {
public:
    explicit ConfigDefType(bool bBuildFromScratch);
    ~ConfigDefType() override;

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
    virtual zelString GetConfigType();
    virtual void SetConfigType(LPCTSTR szNew);
    virtual ConfigDefDescriptionType* GetDescription();
    virtual void SetDescription(ConfigDefDescriptionType* szNew);
    virtual int GetLoadSourceLength();
    virtual LoadSourceType* GetLoadSource(int Index);
    virtual void AddNewLoadSource(LoadSourceType* szNew);
    virtual zelString GetName();
    virtual void SetName(LPCTSTR szNew);
    virtual bool AutoFillTypeInfo();
    virtual void AddLoadSource(XMLDataWrapper* pData, XalanNode* spNode);
    virtual void ClearLoadSource();

    bool GetAutoFillTypeInfo() const { return m_bAutoFillTypeInfo; }
    void SetAutoFillTypeInfo(bool bNew) { m_bAutoFillTypeInfo = bNew; }

protected:
    bool m_bAutoFillTypeInfo = false;
    zelString m_ConfigType;
    ConfigDefDescriptionType* m_Description = nullptr;
    std::vector<TypedDataContainer*> m_LoadSourceList;
    zelString m_Name;

    static const Framework::FieldTable s_Table;
    friend struct Framework::FieldTableIndex;

private:
    static const Framework::FieldRow s_Rows[];
};
