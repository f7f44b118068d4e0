// Generated from VendraDBConfig.xsd; do not edit. Regenerate with the target "generate".
#pragma once

#include "Framework/TypedDataContainer.h"

namespace Framework {
struct FieldTableIndex;
}

class DBConfigParametersType;

/// A named query with its parameters.
///
/// Element `DBData` unless its parent names it otherwise.
class FRAMEWORK_API DBDataType : public TypedDataContainer {
public:
    explicit DBDataType(bool bBuildFromScratch);
    ~DBDataType() override;

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
    virtual zelString GetSQLQuery();
    virtual void SetSQLQuery(LPCTSTR szNew);
    virtual zelString GetQueryType();
    virtual void SetQueryType(LPCTSTR szNew);
    virtual int GetOutputDataSize();
    virtual void SetOutputDataSize(int szNew);
    virtual bool GetUseFullFunctionXMLDataWrapper();
    virtual void SetUseFullFunctionXMLDataWrapper(bool szNew);
    virtual int GetParametersLength();
    virtual DBConfigParametersType* GetParameters(int Index);
    virtual DBConfigParametersType* GetParameters(const zelString& sName);
    virtual void AddNewParameters(DBConfigParametersType* szNew, const zelString& sName);
    virtual void RemoveParameters(const zelString& sName, const zelString& sFeatureId);
    virtual zelString GetName();
    virtual void SetName(LPCTSTR szNew);
    virtual bool AutoFillTypeInfo();
    virtual void AddParameters(XMLDataWrapper* pData, XalanNode* spNode, const zelString& sName);
    virtual void ClearParameters();

    bool GetAutoFillTypeInfo() const { return m_bAutoFillTypeInfo; }
    void SetAutoFillTypeInfo(bool bNew) { m_bAutoFillTypeInfo = bNew; }

protected:
    bool m_bAutoFillTypeInfo = false;
    bool m_UseFullFunctionXMLDataWrapper = false;
    int m_OutputDataSize = 0;
    zelString m_SQLQuery;
    zelString m_QueryType;
    Zelvon::SyncMap<zelString, TypedDataContainer*> m_MapParametersList;
    std::vector<TypedDataContainer*> m_ParametersList;
    zelString m_Name;

    static const Framework::FieldTable s_Table;
    friend struct Framework::FieldTableIndex;

private:
    static const Framework::FieldRow s_Rows[];
};
