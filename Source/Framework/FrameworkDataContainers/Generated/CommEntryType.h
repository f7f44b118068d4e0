// Generated from CommConfig.xsd; do not edit. Regenerate with the target "generate".
#pragma once

#include "Framework/TypedDataContainer.h"

namespace Framework {
struct FieldTableIndex;
}

class CommEventTransformerListType;
class CommParametersType;
class CommTransformerType;

/// A channel: its handler, the transformers on the way, and its parameters.
///
/// Element `CommEntry` unless its parent names it otherwise.
class FRAMEWORK_API CommEntryType : public TypedDataContainer {
public:
    explicit CommEntryType(bool bBuildFromScratch);
    ~CommEntryType() override;

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
    virtual CommTransformerType* GetBinaryTransformer();
    virtual void SetBinaryTransformer(CommTransformerType* szNew);
    virtual CommEventTransformerListType* GetEventTransformerList();
    virtual void SetEventTransformerList(CommEventTransformerListType* szNew);
    virtual zelString GetCommHandlerFactoryName();
    virtual void SetCommHandlerFactoryName(LPCTSTR szNew);
    virtual zelString GetCommHandlerFactoryMethod();
    virtual void SetCommHandlerFactoryMethod(LPCTSTR szNew);
    virtual CommParametersType* GetParameters();
    virtual void SetParameters(CommParametersType* szNew);
    virtual zelString Getname();
    virtual void Setname(LPCTSTR szNew);
    virtual bool AutoFillTypeInfo();

    bool GetAutoFillTypeInfo() const { return m_bAutoFillTypeInfo; }
    void SetAutoFillTypeInfo(bool bNew) { m_bAutoFillTypeInfo = bNew; }

protected:
    bool m_bAutoFillTypeInfo = false;
    CommTransformerType* m_BinaryTransformer = nullptr;
    CommEventTransformerListType* m_EventTransformerList = nullptr;
    zelString m_CommHandlerFactoryName;
    zelString m_CommHandlerFactoryMethod;
    CommParametersType* m_Parameters = nullptr;
    zelString m_name;

    static const Framework::FieldTable s_Table;
    friend struct Framework::FieldTableIndex;

private:
    static const Framework::FieldRow s_Rows[];
};
