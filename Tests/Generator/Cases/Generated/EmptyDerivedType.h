// Generated from Parents.xsd; do not edit. Regenerate with the target "generate".
#pragma once

#include "FrameworkDataContainers/DerivedType.h"

namespace Framework {
struct FieldTableIndex;
}

/// Element `EmptyDerived` unless its parent names it otherwise.
class FRAMEWORK_API EmptyDerivedType : public DerivedType {
public:
    explicit EmptyDerivedType(bool bBuildFromScratch);
    ~EmptyDerivedType() override;

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

    bool GetAutoFillTypeInfo() const { return m_bAutoFillTypeInfo; }
    void SetAutoFillTypeInfo(bool bNew) { m_bAutoFillTypeInfo = bNew; }

protected:
    bool m_bAutoFillTypeInfo = false;

    static const Framework::FieldTable s_Table;
    friend struct Framework::FieldTableIndex;
};
