// Generated from CaptureDoc.xsd; do not edit. Regenerate with the target "generate".
#pragma once

#include "Framework/TypedDataContainer.h"

namespace Framework {
struct FieldTableIndex;
}

class CaptureDocEntryType;

/// Captured output.
///
/// Element `CaptureDoc`, the root of its document.
class FRAMEWORK_API CaptureDocType : public TypedDataContainer {
public:
    explicit CaptureDocType(bool bBuildFromScratch);
    ~CaptureDocType() override;

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
    virtual int GetCaptureLength();
    virtual CaptureDocEntryType* GetCapture(int Index);
    virtual void AddNewCapture(CaptureDocEntryType* szNew);
    virtual bool AutoFillTypeInfo();
    virtual void AddCapture(XMLDataWrapper* pData, XalanNode* spNode);
    virtual void ClearCapture();

    bool GetAutoFillTypeInfo() const { return m_bAutoFillTypeInfo; }
    void SetAutoFillTypeInfo(bool bNew) { m_bAutoFillTypeInfo = bNew; }

protected:
    bool m_bAutoFillTypeInfo = false;
    std::vector<TypedDataContainer*> m_CaptureList;

    static const Framework::FieldTable s_Table;
    friend struct Framework::FieldTableIndex;

private:
    static const Framework::FieldRow s_Rows[];
};
