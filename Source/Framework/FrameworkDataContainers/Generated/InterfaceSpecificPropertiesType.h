// Generated from StructureTransformDef.xsd; do not edit. Regenerate with the target "generate".
#pragma once

#include "Framework/TypedDataContainer.h"

namespace Framework {
struct FieldTableIndex;
}

class ISPropertyType;

/// Properties that one interface alone reads.
///
/// Element `InterfaceSpecificProperties` unless its parent names it otherwise.
class FRAMEWORK_API InterfaceSpecificPropertiesType : public TypedDataContainer {
public:
    explicit InterfaceSpecificPropertiesType(bool bBuildFromScratch);
    ~InterfaceSpecificPropertiesType() override;

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
    virtual int GetISPropertyLength();
    virtual ISPropertyType* GetISProperty(int Index);
    virtual ISPropertyType* GetISProperty(const zelString& sName);
    virtual void AddNewISProperty(ISPropertyType* szNew, const zelString& sName);
    virtual void RemoveISProperty(const zelString& sName, const zelString& sFeatureId);
    virtual bool AutoFillTypeInfo();
    virtual void AddISProperty(XMLDataWrapper* pData, XalanNode* spNode, const zelString& sName);
    virtual void ClearISProperty();

    bool GetAutoFillTypeInfo() const { return m_bAutoFillTypeInfo; }
    void SetAutoFillTypeInfo(bool bNew) { m_bAutoFillTypeInfo = bNew; }

protected:
    bool m_bAutoFillTypeInfo = false;
    Zelvon::SyncMap<zelString, TypedDataContainer*> m_MapISPropertyList;
    std::vector<TypedDataContainer*> m_ISPropertyList;

    static const Framework::FieldTable s_Table;
    friend struct Framework::FieldTableIndex;

private:
    static const Framework::FieldRow s_Rows[];
};
