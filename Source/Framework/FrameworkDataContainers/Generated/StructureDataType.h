// Generated from StructureTransformDef.xsd; do not edit. Regenerate with the target "generate".
#pragma once

#include "Framework/TypedDataContainer.h"

namespace Framework {
struct FieldTableIndex;
}

/// One field of a packet.
///
/// Element `StructureData` unless its parent names it otherwise.
class FRAMEWORK_API StructureDataType : public TypedDataContainer {
public:
    explicit StructureDataType(bool bBuildFromScratch);
    ~StructureDataType() override;

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
    virtual zelString GetType();
    virtual void SetType(LPCTSTR szNew);
    virtual int GetSize();
    virtual void SetSize(int szNew);
    virtual zelString GetDataType();
    virtual void SetDataType(LPCTSTR szNew);
    virtual zelString GetDefault();
    virtual void SetDefault(LPCTSTR szNew);
    virtual zelString GetCodePage();
    virtual void SetCodePage(LPCTSTR szNew);
    virtual zelString GetName();
    virtual void SetName(LPCTSTR szNew);
    virtual bool GetComplex();
    virtual void SetComplex(bool szNew);
    virtual bool GetEnum();
    virtual void SetEnum(bool szNew);
    virtual bool AutoFillTypeInfo();
    virtual void AddDoc(const zelString& pData, const zelString& sName);
    virtual void ClearDoc();

    bool GetAutoFillTypeInfo() const { return m_bAutoFillTypeInfo; }
    void SetAutoFillTypeInfo(bool bNew) { m_bAutoFillTypeInfo = bNew; }

protected:
    bool m_bAutoFillTypeInfo = false;
    bool m_Complex = false;
    bool m_Enum = false;
    int m_Size = 0;
    Zelvon::SyncMap<zelString, SimpleDataContainer*> m_MapDocList;
    std::vector<SimpleDataContainer*> m_DocList;
    zelString m_Type;
    zelString m_DataType;
    zelString m_Default;
    zelString m_CodePage;
    zelString m_Name;

    static const Framework::FieldTable s_Table;
    friend struct Framework::FieldTableIndex;

private:
    static const Framework::FieldRow s_Rows[];
};
