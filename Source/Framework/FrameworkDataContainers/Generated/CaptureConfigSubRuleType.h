// Generated from CaptureConfig.xsd; do not edit. Regenerate with the target "generate".
#pragma once

#include "Framework/TypedDataContainer.h"
#include "FrameworkDataContainers/FrameworkDataContainersEnums.h"

namespace Framework {
struct FieldTableIndex;
}

/// A part of a rule: the senders and levels that it chooses, and where their output goes.
///
/// Element `CaptureConfigSubRule` unless its parent names it otherwise.
class FRAMEWORK_API CaptureConfigSubRuleType : public TypedDataContainer {
public:
    explicit CaptureConfigSubRuleType(bool bBuildFromScratch);
    ~CaptureConfigSubRuleType() override;

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
    virtual zelString GetIsKindOf();
    virtual void SetIsKindOf(LPCTSTR szNew);
    virtual zelString GetIsExactKindOf();
    virtual void SetIsExactKindOf(LPCTSTR szNew);
    virtual zelString GetSubSystem();
    virtual void SetSubSystem(LPCTSTR szNew);
    virtual zelString GetUniqueName();
    virtual void SetUniqueName(LPCTSTR szNew);
    virtual int GetCaptureLevelLength();
    virtual CaptureLevelType* GetCaptureLevel(int Index);
    virtual void AddNewCaptureLevel(CaptureLevelType* szNew);
    virtual bool GetAddTrace();
    virtual void SetAddTrace(bool szNew);
    virtual bool GetShowErrorMessageBox();
    virtual void SetShowErrorMessageBox(bool szNew);
    virtual zelString GetOutput();
    virtual void SetOutput(LPCTSTR szNew);
    virtual bool AutoFillTypeInfo();
    virtual void AddCaptureLevel(zelString pData);
    virtual void ClearCaptureLevel();

    bool GetAutoFillTypeInfo() const { return m_bAutoFillTypeInfo; }
    void SetAutoFillTypeInfo(bool bNew) { m_bAutoFillTypeInfo = bNew; }

protected:
    bool m_bAutoFillTypeInfo = false;
    bool m_AddTrace = false;
    bool m_ShowErrorMessageBox = false;
    zelString m_IsKindOf;
    zelString m_IsExactKindOf;
    zelString m_SubSystem;
    zelString m_UniqueName;
    std::vector<TypedDataEnumeration*> m_CaptureLevelList;
    zelString m_Output;

    static const Framework::FieldTable s_Table;
    friend struct Framework::FieldTableIndex;

private:
    static const Framework::FieldRow s_Rows[];
};
