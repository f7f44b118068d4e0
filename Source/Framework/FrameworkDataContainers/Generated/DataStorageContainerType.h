// Generated from LoadConfig.xsd; do not edit. Regenerate with the target "generate".
#pragma once

#include "Framework/TypedDataContainer.h"
#include "FrameworkDataContainers/FrameworkDataContainersEnums.h"

namespace Framework {
struct FieldTableIndex;
}

/// A data store: its name, where it is loaded from, and how it is kept.
///
/// Element `DataStorageContainer` unless its parent names it otherwise.
class FRAMEWORK_API DataStorageContainerType : public TypedDataContainer {
public:
    explicit DataStorageContainerType(bool bBuildFromScratch);
    ~DataStorageContainerType() override;

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
    virtual zelString GetStorageName();
    virtual void SetStorageName(LPCTSTR szNew);
    virtual bool GetListContainer();
    virtual void SetListContainer(bool szNew);
    virtual bool GetDBListContainer();
    virtual void SetDBListContainer(bool szNew);
    virtual zelString GetInitializeListContainer();
    virtual void SetInitializeListContainer(LPCTSTR szNew);
    virtual bool GetReadOnly();
    virtual void SetReadOnly(bool szNew);
    virtual int GetLoadPathLength();
    virtual zelString GetLoadPath(int Index);
    virtual void AddNewLoadPath(LPCTSTR szNew);
    virtual PersistenceModelEnum GetPersistenceModel();
    virtual void SetPersistenceModel(PersistenceModelEnum szNew);
    virtual zelString GetAltLoadPath();
    virtual void SetAltLoadPath(LPCTSTR szNew);
    virtual bool AutoFillTypeInfo();
    virtual void AddLoadPath(zelString pData);
    virtual void ClearLoadPath();

    bool GetAutoFillTypeInfo() const { return m_bAutoFillTypeInfo; }
    void SetAutoFillTypeInfo(bool bNew) { m_bAutoFillTypeInfo = bNew; }

protected:
    bool m_bAutoFillTypeInfo = false;
    bool m_ListContainer = false;
    bool m_DBListContainer = false;
    bool m_ReadOnly = false;
    zelString m_StorageName;
    zelString m_InitializeListContainer;
    std::vector<zelString> m_LoadPathList;
    PersistenceModelEnum m_PersistenceModel{0};
    zelString m_AltLoadPath;

    static const Framework::FieldTable s_Table;
    friend struct Framework::FieldTableIndex;

private:
    static const Framework::FieldRow s_Rows[];
};
