// Generated from ConfigDefRoot.xsd; do not edit. Regenerate with the target "generate".
#pragma once

#include "Framework/TypedDataContainer.h"

namespace Framework {
struct FieldTableIndex;
}

class OptionsConfigDefType;

/// The options of a lane, by name.
///
/// Element `ConfigurationDefinition` unless its parent names it otherwise.
class FRAMEWORK_API ConfigurationDefinitionType : public TypedDataContainer {
public:
    explicit ConfigurationDefinitionType(bool bBuildFromScratch);
    ~ConfigurationDefinitionType() override;

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
    virtual int GetConfigDefLength();
    virtual OptionsConfigDefType* GetConfigDef(int Index);
    virtual OptionsConfigDefType* GetConfigDef(const zelString& sName);
    virtual void AddNewConfigDef(OptionsConfigDefType* szNew, const zelString& sName);
    virtual void RemoveConfigDef(const zelString& sName, const zelString& sFeatureId);
    virtual bool AutoFillTypeInfo();
    virtual void AddConfigDef(XMLDataWrapper* pData, XalanNode* spNode, const zelString& sName);
    virtual void ClearConfigDef();

    bool GetAutoFillTypeInfo() const { return m_bAutoFillTypeInfo; }
    void SetAutoFillTypeInfo(bool bNew) { m_bAutoFillTypeInfo = bNew; }

protected:
    bool m_bAutoFillTypeInfo = false;
    Zelvon::SyncMap<zelString, TypedDataContainer*> m_MapConfigDefList;
    std::vector<TypedDataContainer*> m_ConfigDefList;

    static const Framework::FieldTable s_Table;
    friend struct Framework::FieldTableIndex;

private:
    static const Framework::FieldRow s_Rows[];
};
