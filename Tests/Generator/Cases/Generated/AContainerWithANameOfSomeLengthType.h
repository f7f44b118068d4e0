// Generated from LongNames.xsd; do not edit. Regenerate with the target "generate".
#pragma once

#include "Framework/TypedDataContainer.h"

namespace Framework {
struct FieldTableIndex;
}

/// Element `Long` unless its parent names it otherwise.
class FRAMEWORK_API AContainerWithANameOfSomeLengthType : public TypedDataContainer {
public:
    explicit AContainerWithANameOfSomeLengthType(bool bBuildFromScratch);
    ~AContainerWithANameOfSomeLengthType() override;

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
    virtual int GetAnEntryWithANameOfSomeLengthLength();
    virtual AContainerWithANameOfSomeLengthType* GetAnEntryWithANameOfSomeLength(int Index);
    virtual AContainerWithANameOfSomeLengthType* GetAnEntryWithANameOfSomeLength(const zelString& sName);
    virtual void AddNewAnEntryWithANameOfSomeLength(AContainerWithANameOfSomeLengthType* szNew, const zelString& sName);
    virtual void RemoveAnEntryWithANameOfSomeLength(const zelString& sName, const zelString& sFeatureId);
    virtual int GetAlsoLongLength();
    virtual AContainerWithANameOfSomeLengthType* GetAlsoLong(int Index);
    virtual void AddNewAlsoLong(AContainerWithANameOfSomeLengthType* szNew);
    virtual zelString GetName();
    virtual void SetName(LPCTSTR szNew);
    virtual bool AutoFillTypeInfo();
    virtual void AddAnEntryWithANameOfSomeLength(XMLDataWrapper* pData, XalanNode* spNode, const zelString& sName);
    virtual void ClearAnEntryWithANameOfSomeLength();
    virtual void AddAlsoLong(XMLDataWrapper* pData, XalanNode* spNode);
    virtual void ClearAlsoLong();

    bool GetAutoFillTypeInfo() const { return m_bAutoFillTypeInfo; }
    void SetAutoFillTypeInfo(bool bNew) { m_bAutoFillTypeInfo = bNew; }

protected:
    bool m_bAutoFillTypeInfo = false;
    Zelvon::SyncMap<zelString, TypedDataContainer*> m_MapAnEntryWithANameOfSomeLengthList;
    std::vector<TypedDataContainer*> m_AnEntryWithANameOfSomeLengthList;
    std::vector<TypedDataContainer*> m_AlsoLongList;
    zelString m_Name;

    static const Framework::FieldTable s_Table;
    friend struct Framework::FieldTableIndex;

private:
    static const Framework::FieldRow s_Rows[];
};
