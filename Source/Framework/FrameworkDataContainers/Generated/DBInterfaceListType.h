// Generated from DBManagerThreadConfig.xsd; do not edit. Regenerate with the target "generate".
#pragma once

#include "Framework/TypedDataContainer.h"

namespace Framework {
struct FieldTableIndex;
}

class DBInterfaceType;

/// The database interfaces, by name.
///
/// Element `DBInterfaceList` unless its parent names it otherwise.
class FRAMEWORK_API DBInterfaceListType : public TypedDataContainer {
public:
    explicit DBInterfaceListType(bool bBuildFromScratch);
    ~DBInterfaceListType() override;

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
    virtual int GetDBInterfaceLength();
    virtual DBInterfaceType* GetDBInterface(int Index);
    virtual DBInterfaceType* GetDBInterface(const zelString& sName);
    virtual void AddNewDBInterface(DBInterfaceType* szNew, const zelString& sName);
    virtual void RemoveDBInterface(const zelString& sName, const zelString& sFeatureId);
    virtual bool AutoFillTypeInfo();
    virtual void AddDBInterface(XMLDataWrapper* pData, XalanNode* spNode, const zelString& sName);
    virtual void ClearDBInterface();

    bool GetAutoFillTypeInfo() const { return m_bAutoFillTypeInfo; }
    void SetAutoFillTypeInfo(bool bNew) { m_bAutoFillTypeInfo = bNew; }

protected:
    bool m_bAutoFillTypeInfo = false;
    Zelvon::SyncMap<zelString, TypedDataContainer*> m_MapDBInterfaceList;
    std::vector<TypedDataContainer*> m_DBInterfaceList;

    static const Framework::FieldTable s_Table;
    friend struct Framework::FieldTableIndex;

private:
    static const Framework::FieldRow s_Rows[];
};
