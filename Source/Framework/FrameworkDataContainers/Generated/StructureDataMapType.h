// Generated from StructureTransformDef.xsd; do not edit. Regenerate with the target "generate".
#pragma once

#include "Framework/TypedDataContainer.h"

namespace Framework {
struct FieldTableIndex;
}

class StructurePacketDefType;

/// The flat packets, by name.
///
/// Element `StructureDataMap` unless its parent names it otherwise.
class FRAMEWORK_API StructureDataMapType : public TypedDataContainer {
public:
    explicit StructureDataMapType(bool bBuildFromScratch);
    ~StructureDataMapType() override;

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
    virtual int GetStructurePacketDefLength();
    virtual StructurePacketDefType* GetStructurePacketDef(int Index);
    virtual StructurePacketDefType* GetStructurePacketDef(const zelString& sName);
    virtual void AddNewStructurePacketDef(StructurePacketDefType* szNew, const zelString& sName);
    virtual void RemoveStructurePacketDef(const zelString& sName, const zelString& sFeatureId);
    virtual bool AutoFillTypeInfo();
    virtual void AddDoc(const zelString& pData, const zelString& sName);
    virtual void ClearDoc();
    virtual void AddStructurePacketDef(XMLDataWrapper* pData, XalanNode* spNode, const zelString& sName);
    virtual void ClearStructurePacketDef();

    bool GetAutoFillTypeInfo() const { return m_bAutoFillTypeInfo; }
    void SetAutoFillTypeInfo(bool bNew) { m_bAutoFillTypeInfo = bNew; }

protected:
    bool m_bAutoFillTypeInfo = false;
    Zelvon::SyncMap<zelString, SimpleDataContainer*> m_MapDocList;
    std::vector<SimpleDataContainer*> m_DocList;
    Zelvon::SyncMap<zelString, TypedDataContainer*> m_MapStructurePacketDefList;
    std::vector<TypedDataContainer*> m_StructurePacketDefList;

    static const Framework::FieldTable s_Table;
    friend struct Framework::FieldTableIndex;

private:
    static const Framework::FieldRow s_Rows[];
};
