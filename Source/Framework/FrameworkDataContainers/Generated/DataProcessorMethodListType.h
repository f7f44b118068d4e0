// Generated from DBManagerThreadConfig.xsd; do not edit. Regenerate with the target "generate".
#pragma once

#include "Framework/TypedDataContainer.h"

namespace Framework {
struct FieldTableIndex;
}

class DataProcessorMethodType;

/// The data processors, by name.
///
/// Element `DataProcessorMethodList` unless its parent names it otherwise.
class FRAMEWORK_API DataProcessorMethodListType : public TypedDataContainer {
public:
    explicit DataProcessorMethodListType(bool bBuildFromScratch);
    ~DataProcessorMethodListType() override;

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
    virtual int GetDataProcessorMethodLength();
    virtual DataProcessorMethodType* GetDataProcessorMethod(int Index);
    virtual DataProcessorMethodType* GetDataProcessorMethod(const zelString& sName);
    virtual void AddNewDataProcessorMethod(DataProcessorMethodType* szNew, const zelString& sName);
    virtual void RemoveDataProcessorMethod(const zelString& sName, const zelString& sFeatureId);
    virtual bool AutoFillTypeInfo();
    virtual void AddDataProcessorMethod(XMLDataWrapper* pData, XalanNode* spNode, const zelString& sName);
    virtual void ClearDataProcessorMethod();

    bool GetAutoFillTypeInfo() const { return m_bAutoFillTypeInfo; }
    void SetAutoFillTypeInfo(bool bNew) { m_bAutoFillTypeInfo = bNew; }

protected:
    bool m_bAutoFillTypeInfo = false;
    Zelvon::SyncMap<zelString, TypedDataContainer*> m_MapDataProcessorMethodList;
    std::vector<TypedDataContainer*> m_DataProcessorMethodList;

    static const Framework::FieldTable s_Table;
    friend struct Framework::FieldTableIndex;

private:
    static const Framework::FieldRow s_Rows[];
};
