// Generated from StructureTransformDef.xsd; do not edit. Regenerate with the target "generate".
#pragma once

#include "Framework/TypedDataContainer.h"

namespace Framework {
struct FieldTableIndex;
}

class EnumIterationType;

/// One enumeration of a packet field.
///
/// Element `StructureEnum` unless its parent names it otherwise.
class FRAMEWORK_API StructureEnumType : public TypedDataContainer {
public:
    explicit StructureEnumType(bool bBuildFromScratch);
    ~StructureEnumType() override;

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
    virtual int GetEnumIterationLength();
    virtual EnumIterationType* GetEnumIteration(int Index);
    virtual EnumIterationType* GetEnumIteration(const zelString& sName);
    virtual void AddNewEnumIteration(EnumIterationType* szNew, const zelString& sName);
    virtual void RemoveEnumIteration(const zelString& sName, const zelString& sFeatureId);
    virtual zelString GetName();
    virtual void SetName(LPCTSTR szNew);
    virtual bool AutoFillTypeInfo();
    virtual void AddDoc(const zelString& pData, const zelString& sName);
    virtual void ClearDoc();
    virtual void AddEnumIteration(XMLDataWrapper* pData, XalanNode* spNode, const zelString& sName);
    virtual void ClearEnumIteration();

    bool GetAutoFillTypeInfo() const { return m_bAutoFillTypeInfo; }
    void SetAutoFillTypeInfo(bool bNew) { m_bAutoFillTypeInfo = bNew; }

protected:
    bool m_bAutoFillTypeInfo = false;
    Zelvon::SyncMap<zelString, SimpleDataContainer*> m_MapDocList;
    std::vector<SimpleDataContainer*> m_DocList;
    Zelvon::SyncMap<zelString, TypedDataContainer*> m_MapEnumIterationList;
    std::vector<TypedDataContainer*> m_EnumIterationList;
    zelString m_Name;

    static const Framework::FieldTable s_Table;
    friend struct Framework::FieldTableIndex;

private:
    static const Framework::FieldRow s_Rows[];
};
