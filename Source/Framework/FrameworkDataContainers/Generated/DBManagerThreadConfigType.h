// Generated from DBManagerThreadConfig.xsd; do not edit. Regenerate with the target "generate".
#pragma once

#include "Framework/TypedDataContainer.h"

namespace Framework {
struct FieldTableIndex;
}

class DBInterfaceListType;
class DataProcessorClassFactoryListType;
class DataProcessorMethodListType;

/// Root of a database manager document.
///
/// Element `DBManagerThreadConfig`, the root of its document.
class FRAMEWORK_API DBManagerThreadConfigType : public StructuralConfigLoader {
public:
    explicit DBManagerThreadConfigType(bool bBuildFromScratch);
    ~DBManagerThreadConfigType() override;

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
    virtual DataProcessorClassFactoryListType* GetDataProcessorClassFactoryList();
    virtual void SetDataProcessorClassFactoryList(DataProcessorClassFactoryListType* szNew);
    virtual DataProcessorMethodListType* GetDataProcessorMethodList();
    virtual void SetDataProcessorMethodList(DataProcessorMethodListType* szNew);
    virtual DBInterfaceListType* GetDBInterfaceList();
    virtual void SetDBInterfaceList(DBInterfaceListType* szNew);
    virtual bool AutoFillTypeInfo();

    bool GetAutoFillTypeInfo() const { return m_bAutoFillTypeInfo; }
    void SetAutoFillTypeInfo(bool bNew) { m_bAutoFillTypeInfo = bNew; }

protected:
    bool m_bAutoFillTypeInfo = false;
    DataProcessorClassFactoryListType* m_DataProcessorClassFactoryList = nullptr;
    DataProcessorMethodListType* m_DataProcessorMethodList = nullptr;
    DBInterfaceListType* m_DBInterfaceList = nullptr;

    static const Framework::FieldTable s_Table;
    friend struct Framework::FieldTableIndex;

private:
    static const Framework::FieldRow s_Rows[];
};
