// Generated from Lists.xsd; do not edit. Regenerate with the target "generate".
#pragma once

#include "Framework/TypedDataContainer.h"
#include "FrameworkDataContainers/FrameworkDataContainersEnums.h"

namespace Framework {
struct FieldTableIndex;
}

class BasicType;
class DerivedType;
class EmptyType;

/// Element `Lists`, the root of its document.
class FRAMEWORK_API ListsType : public TypedDataContainer {
public:
    explicit ListsType(bool bBuildFromScratch);
    ~ListsType() override;

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
    virtual int GetNoteLength();
    virtual zelString GetNote(int Index);
    virtual zelString GetNote(const zelString& sName);
    virtual int GetLineLength();
    virtual zelString GetLine(int Index);
    virtual zelString GetLine(const zelString& sName);
    virtual int GetByNameLength();
    virtual DerivedType* GetByName(int Index);
    virtual DerivedType* GetByName(const zelString& sName);
    virtual void AddNewByName(DerivedType* szNew, const zelString& sName);
    virtual void RemoveByName(const zelString& sName, const zelString& sFeatureId);
    virtual BasicType* GetChild();
    virtual void SetChild(BasicType* szNew);
    virtual int GetByNumberLength();
    virtual DerivedType* GetByNumber(int Index);
    virtual DerivedType* GetByNumber(const zelString& sName);
    virtual void AddNewByNumber(DerivedType* szNew, const zelString& sName);
    virtual void RemoveByNumber(const zelString& sName, const zelString& sFeatureId);
    virtual int GetWordLength();
    virtual zelString GetWord(int Index);
    virtual void AddNewWord(LPCTSTR szNew);
    virtual int GetShadeLength();
    virtual ShadeType* GetShade(int Index);
    virtual void AddNewShade(ShadeType* szNew);
    virtual int GetItemLength();
    virtual EmptyType* GetItem(int Index);
    virtual void AddNewItem(EmptyType* szNew);
    virtual bool AutoFillTypeInfo();
    virtual void AddNote(const zelString& pData, const zelString& sName);
    virtual void ClearNote();
    virtual void AddLine(const zelString& pData, const zelString& sName);
    virtual void ClearLine();
    virtual void AddByName(XMLDataWrapper* pData, XalanNode* spNode, const zelString& sName);
    virtual void ClearByName();
    virtual void AddByNumber(XMLDataWrapper* pData, XalanNode* spNode, const zelString& sName);
    virtual void ClearByNumber();
    virtual void AddWord(zelString pData);
    virtual void ClearWord();
    virtual void AddShade(zelString pData);
    virtual void ClearShade();
    virtual void AddItem(XMLDataWrapper* pData, XalanNode* spNode);
    virtual void ClearItem();

    bool GetAutoFillTypeInfo() const { return m_bAutoFillTypeInfo; }
    void SetAutoFillTypeInfo(bool bNew) { m_bAutoFillTypeInfo = bNew; }

protected:
    bool m_bAutoFillTypeInfo = false;
    Zelvon::SyncMap<zelString, SimpleDataContainer*> m_MapNoteList;
    std::vector<SimpleDataContainer*> m_NoteList;
    Zelvon::SyncMap<zelString, SimpleDataContainer*> m_MapLineList;
    std::vector<SimpleDataContainer*> m_LineList;
    Zelvon::SyncMap<zelString, TypedDataContainer*> m_MapByNameList;
    std::vector<TypedDataContainer*> m_ByNameList;
    BasicType* m_Child = nullptr;
    Zelvon::SyncMap<zelString, TypedDataContainer*> m_MapByNumberList;
    std::vector<TypedDataContainer*> m_ByNumberList;
    std::vector<zelString> m_WordList;
    std::vector<TypedDataEnumeration*> m_ShadeList;
    std::vector<TypedDataContainer*> m_ItemList;

    static const Framework::FieldTable s_Table;
    friend struct Framework::FieldTableIndex;

private:
    static const Framework::FieldRow s_Rows[];
};
