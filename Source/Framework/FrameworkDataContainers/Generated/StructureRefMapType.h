// Generated from StructureTransformDef.xsd; do not edit. Regenerate with the target "generate".
#pragma once

#include "Framework/TypedDataContainer.h"

namespace Framework {
struct FieldTableIndex;
}

class InterfaceSpecificPropertiesType;
class PresetDefaultListType;
class StructureDataMappingListType;

/// The map of one packet to one root element.
///
/// Element `StructureRefMap` unless its parent names it otherwise.
class FRAMEWORK_API StructureRefMapType : public TypedDataContainer {
public:
    explicit StructureRefMapType(bool bBuildFromScratch);
    ~StructureRefMapType() override;

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
    virtual int GetDocLength();
    virtual zelString GetDoc(int Index);
    virtual zelString GetDoc(const zelString& sName);
    virtual zelString GetRefType();
    virtual void SetRefType(LPCTSTR szNew);
    virtual zelString GetRootElement();
    virtual void SetRootElement(LPCTSTR szNew);
    virtual zelString GetStructurePacket();
    virtual void SetStructurePacket(LPCTSTR szNew);
    virtual InterfaceSpecificPropertiesType* GetInterfaceSpecificProperties();
    virtual void SetInterfaceSpecificProperties(InterfaceSpecificPropertiesType* szNew);
    virtual PresetDefaultListType* GetPresetDefaults();
    virtual void SetPresetDefaults(PresetDefaultListType* szNew);
    virtual StructureDataMappingListType* GetDataMappingList();
    virtual void SetDataMappingList(StructureDataMappingListType* szNew);
    virtual zelString GetIndex();
    virtual void SetIndex(LPCTSTR szNew);
    virtual bool AutoFillTypeInfo();
    virtual void AddDoc(const zelString& pData, const zelString& sName);
    virtual void ClearDoc();

    bool GetAutoFillTypeInfo() const { return m_bAutoFillTypeInfo; }
    void SetAutoFillTypeInfo(bool bNew) { m_bAutoFillTypeInfo = bNew; }

protected:
    bool m_bAutoFillTypeInfo = false;
    Zelvon::SyncMap<zelString, SimpleDataContainer*> m_MapDocList;
    std::vector<SimpleDataContainer*> m_DocList;
    zelString m_RefType;
    zelString m_RootElement;
    zelString m_StructurePacket;
    InterfaceSpecificPropertiesType* m_InterfaceSpecificProperties = nullptr;
    PresetDefaultListType* m_PresetDefaults = nullptr;
    StructureDataMappingListType* m_DataMappingList = nullptr;
    zelString m_Index;

    static const Framework::FieldTable s_Table;
    friend struct Framework::FieldTableIndex;

private:
    static const Framework::FieldRow s_Rows[];
};
