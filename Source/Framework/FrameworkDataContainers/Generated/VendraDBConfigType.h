// Generated from VendraDBConfig.xsd; do not edit. Regenerate with the target "generate".
#pragma once

#include "Framework/TypedDataContainer.h"

namespace Framework {
struct FieldTableIndex;
}

class DBDataType;

/// Root of a database definition document.
///
/// Element `VendraDBConfig`, the root of its document.
class FRAMEWORK_API VendraDBConfigType : public StructuralConfigLoader {
public:
    explicit VendraDBConfigType(bool bBuildFromScratch);
    ~VendraDBConfigType() override;

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
    virtual int GetDBDataLength();
    virtual DBDataType* GetDBData(int Index);
    virtual DBDataType* GetDBData(const zelString& sName);
    virtual void AddNewDBData(DBDataType* szNew, const zelString& sName);
    virtual void RemoveDBData(const zelString& sName, const zelString& sFeatureId);
    virtual bool AutoFillTypeInfo();
    virtual void AddDBData(XMLDataWrapper* pData, XalanNode* spNode, const zelString& sName);
    virtual void ClearDBData();

    bool GetAutoFillTypeInfo() const { return m_bAutoFillTypeInfo; }
    void SetAutoFillTypeInfo(bool bNew) { m_bAutoFillTypeInfo = bNew; }

protected:
    bool m_bAutoFillTypeInfo = false;
    Zelvon::SyncMap<zelString, TypedDataContainer*> m_MapDBDataList;
    std::vector<TypedDataContainer*> m_DBDataList;

    static const Framework::FieldTable s_Table;
    friend struct Framework::FieldTableIndex;

private:
    static const Framework::FieldRow s_Rows[];
};
