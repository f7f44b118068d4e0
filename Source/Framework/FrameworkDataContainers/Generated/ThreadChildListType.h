// Generated from LoadConfig.xsd; do not edit. Regenerate with the target "generate".
#pragma once

#include "Framework/TypedDataContainer.h"

namespace Framework {
struct FieldTableIndex;
}

class ChildThreadType;
class DataStorageContainerType;

/// Threads and data stores that are started together.
///
/// Element `ThreadChildList` unless its parent names it otherwise.
class FRAMEWORK_API ThreadChildListType : public TypedDataContainer {
public:
    explicit ThreadChildListType(bool bBuildFromScratch);
    ~ThreadChildListType() override;

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
    virtual int GetChildThreadLength();
    virtual ChildThreadType* GetChildThread(int Index);
    virtual ChildThreadType* GetChildThread(const zelString& sName);
    virtual void AddNewChildThread(ChildThreadType* szNew, const zelString& sName);
    virtual void RemoveChildThread(const zelString& sName, const zelString& sFeatureId);
    virtual int GetDataStorageContainerLength();
    virtual DataStorageContainerType* GetDataStorageContainer(int Index);
    virtual void AddNewDataStorageContainer(DataStorageContainerType* szNew);
    virtual zelString GetUniqueName();
    virtual void SetUniqueName(LPCTSTR szNew);
    virtual bool AutoFillTypeInfo();
    virtual void AddChildThread(XMLDataWrapper* pData, XalanNode* spNode, const zelString& sName);
    virtual void ClearChildThread();
    virtual void AddDataStorageContainer(XMLDataWrapper* pData, XalanNode* spNode);
    virtual void ClearDataStorageContainer();

    bool GetAutoFillTypeInfo() const { return m_bAutoFillTypeInfo; }
    void SetAutoFillTypeInfo(bool bNew) { m_bAutoFillTypeInfo = bNew; }

protected:
    bool m_bAutoFillTypeInfo = false;
    Zelvon::SyncMap<zelString, TypedDataContainer*> m_MapChildThreadList;
    std::vector<TypedDataContainer*> m_ChildThreadList;
    std::vector<TypedDataContainer*> m_DataStorageContainerList;
    zelString m_UniqueName;

    static const Framework::FieldTable s_Table;
    friend struct Framework::FieldTableIndex;

private:
    static const Framework::FieldRow s_Rows[];
};
