// Generated from ConfigDefRoot.xsd; do not edit. Regenerate with the target "generate".
#pragma once

#include "Framework/TypedDataContainer.h"

namespace Framework {
struct FieldTableIndex;
}

class LinkedOptionType;

/// The options that an option is linked to.
///
/// Element `LinkedOptionList` unless its parent names it otherwise.
class FRAMEWORK_API LinkedOptionListType : public TypedDataContainer {
public:
    explicit LinkedOptionListType(bool bBuildFromScratch);
    ~LinkedOptionListType() override;

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
    virtual int GetLinkedOptionLength();
    virtual LinkedOptionType* GetLinkedOption(int Index);
    virtual LinkedOptionType* GetLinkedOption(const zelString& sName);
    virtual void AddNewLinkedOption(LinkedOptionType* szNew, const zelString& sName);
    virtual void RemoveLinkedOption(const zelString& sName, const zelString& sFeatureId);
    virtual bool AutoFillTypeInfo();
    virtual void AddLinkedOption(XMLDataWrapper* pData, XalanNode* spNode, const zelString& sName);
    virtual void ClearLinkedOption();

    bool GetAutoFillTypeInfo() const { return m_bAutoFillTypeInfo; }
    void SetAutoFillTypeInfo(bool bNew) { m_bAutoFillTypeInfo = bNew; }

protected:
    bool m_bAutoFillTypeInfo = false;
    Zelvon::SyncMap<zelString, TypedDataContainer*> m_MapLinkedOptionList;
    std::vector<TypedDataContainer*> m_LinkedOptionList;

    static const Framework::FieldTable s_Table;
    friend struct Framework::FieldTableIndex;

private:
    static const Framework::FieldRow s_Rows[];
};
