// Generated from LoadConfig.xsd; do not edit. Regenerate with the target "generate".
#pragma once

#include "Framework/TypedDataContainer.h"

namespace Framework {
struct FieldTableIndex;
}

class ThreadChildListType;

/// What is started on the lane: lists of threads and data stores.
///
/// Element `LoadConfig`, the root of its document.
class FRAMEWORK_API LoadConfigType : public StructuralConfigLoader {
public:
    explicit LoadConfigType(bool bBuildFromScratch);
    ~LoadConfigType() override;

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
    virtual int GetThreadChildListLength();
    virtual ThreadChildListType* GetThreadChildList(int Index);
    virtual ThreadChildListType* GetThreadChildList(const zelString& sName);
    virtual void AddNewThreadChildList(ThreadChildListType* szNew, const zelString& sName);
    virtual void RemoveThreadChildList(const zelString& sName, const zelString& sFeatureId);
    virtual bool AutoFillTypeInfo();
    virtual void AddThreadChildList(XMLDataWrapper* pData, XalanNode* spNode, const zelString& sName);
    virtual void ClearThreadChildList();

    bool GetAutoFillTypeInfo() const { return m_bAutoFillTypeInfo; }
    void SetAutoFillTypeInfo(bool bNew) { m_bAutoFillTypeInfo = bNew; }

protected:
    bool m_bAutoFillTypeInfo = false;
    Zelvon::SyncMap<zelString, TypedDataContainer*> m_MapThreadChildListList;
    std::vector<TypedDataContainer*> m_ThreadChildListList;

    static const Framework::FieldTable s_Table;
    friend struct Framework::FieldTableIndex;

private:
    static const Framework::FieldRow s_Rows[];
};
