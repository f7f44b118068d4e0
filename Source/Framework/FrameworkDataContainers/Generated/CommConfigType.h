// Generated from CommConfig.xsd; do not edit. Regenerate with the target "generate".
#pragma once

#include "Framework/TypedDataContainer.h"

namespace Framework {
struct FieldTableIndex;
}

class CommEntryType;

/// The communication channels of the lane.
///
/// Element `CommConfig`, the root of its document.
class FRAMEWORK_API CommConfigType : public StructuralConfigLoader {
public:
    explicit CommConfigType(bool bBuildFromScratch);
    ~CommConfigType() override;

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
    virtual int GetCommEntryLength();
    virtual CommEntryType* GetCommEntry(int Index);
    virtual CommEntryType* GetCommEntry(const zelString& sName);
    virtual void AddNewCommEntry(CommEntryType* szNew, const zelString& sName);
    virtual void RemoveCommEntry(const zelString& sName, const zelString& sFeatureId);
    virtual bool AutoFillTypeInfo();
    virtual void AddCommEntry(XMLDataWrapper* pData, XalanNode* spNode, const zelString& sName);
    virtual void ClearCommEntry();

    bool GetAutoFillTypeInfo() const { return m_bAutoFillTypeInfo; }
    void SetAutoFillTypeInfo(bool bNew) { m_bAutoFillTypeInfo = bNew; }

protected:
    bool m_bAutoFillTypeInfo = false;
    Zelvon::SyncMap<zelString, TypedDataContainer*> m_MapCommEntryList;
    std::vector<TypedDataContainer*> m_CommEntryList;

    static const Framework::FieldTable s_Table;
    friend struct Framework::FieldTableIndex;

private:
    static const Framework::FieldRow s_Rows[];
};
