// Generated from DBManagerThreadConfig.xsd; do not edit. Regenerate with the target "generate".
#pragma once

#include "FrameworkDataContainers/AbstractMethodDefType.h"

namespace Framework {
struct FieldTableIndex;
}

/// A data processor: the method that handles a result.
///
/// Element `DataProcessorMethod` unless its parent names it otherwise.
class FRAMEWORK_API DataProcessorMethodType : public AbstractMethodDefType {
public:
    explicit DataProcessorMethodType(bool bBuildFromScratch);
    ~DataProcessorMethodType() override;

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
    virtual zelString GetUnused();
    virtual void SetUnused(LPCTSTR szNew);
    virtual zelString GetName();
    virtual void SetName(LPCTSTR szNew);

    bool GetAutoFillTypeInfo() const { return m_bAutoFillTypeInfo; }
    void SetAutoFillTypeInfo(bool bNew) { m_bAutoFillTypeInfo = bNew; }

protected:
    bool m_bAutoFillTypeInfo = false;
    zelString m_Unused;
    zelString m_Name;

    static const Framework::FieldTable s_Table;
    friend struct Framework::FieldTableIndex;

private:
    static const Framework::FieldRow s_Rows[];
};
