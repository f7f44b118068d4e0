// Generated from ActionData.xsd; do not edit. Regenerate with the target "generate".
#pragma once

#include "FrameworkDataContainers/SimpleDataEntryType.h"

namespace Framework {
struct FieldTableIndex;
}

class VarInputType;

/// A value that may be made from several inputs.
///
/// Element `ExtendableDataEntry` unless its parent names it otherwise.
class FRAMEWORK_API ExtendableDataEntryType : public SimpleDataEntryType {
public:
    explicit ExtendableDataEntryType(bool bBuildFromScratch);
    ~ExtendableDataEntryType() override;

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
    bool AutoFillTypeInfo() override;

    // The order is that of the virtual table.
    virtual VarInputType* GetVarInput();
    virtual void SetVarInput(VarInputType* szNew);

    bool GetAutoFillTypeInfo() const { return m_bAutoFillTypeInfo; }
    void SetAutoFillTypeInfo(bool bNew) { m_bAutoFillTypeInfo = bNew; }

protected:
    bool m_bAutoFillTypeInfo = false;
    VarInputType* m_VarInput = nullptr;

    static const Framework::FieldTable s_Table;
    friend struct Framework::FieldTableIndex;

private:
    static const Framework::FieldRow s_Rows[];
};
