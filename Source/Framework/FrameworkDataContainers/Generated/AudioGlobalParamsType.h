// Generated from AudioLookupConfig.xsd; do not edit. Regenerate with the target "generate".
#pragma once

#include "Framework/TypedDataContainer.h"

namespace Framework {
struct FieldTableIndex;
}

class AudioExtensionSearchOrderType;
class AudioPathSearchOrderType;

/// Where sounds are searched when an entry does not say.
///
/// Element `AudioGlobalParams` unless its parent names it otherwise.
class FRAMEWORK_API AudioGlobalParamsType : public TypedDataContainer {
public:
    explicit AudioGlobalParamsType(bool bBuildFromScratch);
    ~AudioGlobalParamsType() override;

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
    virtual AudioPathSearchOrderType* GetPathSearchOrder();
    virtual void SetPathSearchOrder(AudioPathSearchOrderType* szNew);
    virtual AudioExtensionSearchOrderType* GetExtensionSearchOrder();
    virtual void SetExtensionSearchOrder(AudioExtensionSearchOrderType* szNew);
    virtual bool AutoFillTypeInfo();

    bool GetAutoFillTypeInfo() const { return m_bAutoFillTypeInfo; }
    void SetAutoFillTypeInfo(bool bNew) { m_bAutoFillTypeInfo = bNew; }

protected:
    bool m_bAutoFillTypeInfo = false;
    AudioPathSearchOrderType* m_PathSearchOrder = nullptr;
    AudioExtensionSearchOrderType* m_ExtensionSearchOrder = nullptr;

    static const Framework::FieldTable s_Table;
    friend struct Framework::FieldTableIndex;

private:
    static const Framework::FieldRow s_Rows[];
};
