// Generated from CaptureConfig.xsd; do not edit. Regenerate with the target "generate".
#pragma once

#include "Framework/TypedDataContainer.h"

namespace Framework {
struct FieldTableIndex;
}

class CaptureHandlerType;
class FilesListType;
class RulesListType;

/// What diagnostic output is captured, and where it goes.
///
/// Element `CaptureConfig`, the root of its document.
class FRAMEWORK_API CaptureConfigType : public StructuralConfigLoader {
public:
    explicit CaptureConfigType(bool bBuildFromScratch);
    ~CaptureConfigType() override;

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
    virtual int GetWriteBufferSize();
    virtual void SetWriteBufferSize(int szNew);
    virtual int GetFlushTimerDelay();
    virtual void SetFlushTimerDelay(int szNew);
    virtual int GetMaxTransactions();
    virtual void SetMaxTransactions(int szNew);
    virtual int GetDuplicateExtractTimeout();
    virtual void SetDuplicateExtractTimeout(int szNew);
    virtual bool GetExtractOnErrorOptional();
    virtual void SetExtractOnErrorOptional(bool szNew);
    virtual zelString GetAlternateCaptureFileName();
    virtual void SetAlternateCaptureFileName(LPCTSTR szNew);
    virtual CaptureHandlerType* GetCaptureHandler();
    virtual void SetCaptureHandler(CaptureHandlerType* szNew);
    virtual FilesListType* GetFiles();
    virtual void SetFiles(FilesListType* szNew);
    virtual RulesListType* GetRules();
    virtual void SetRules(RulesListType* szNew);
    virtual bool AutoFillTypeInfo();

    bool GetAutoFillTypeInfo() const { return m_bAutoFillTypeInfo; }
    void SetAutoFillTypeInfo(bool bNew) { m_bAutoFillTypeInfo = bNew; }

protected:
    bool m_bAutoFillTypeInfo = false;
    bool m_ExtractOnErrorOptional = false;
    int m_WriteBufferSize = 100;
    int m_FlushTimerDelay = 3000;
    int m_MaxTransactions = 100;
    int m_DuplicateExtractTimeout = 60000;
    zelString m_AlternateCaptureFileName;
    CaptureHandlerType* m_CaptureHandler = nullptr;
    FilesListType* m_Files = nullptr;
    RulesListType* m_Rules = nullptr;

    static const Framework::FieldTable s_Table;
    friend struct Framework::FieldTableIndex;

private:
    static const Framework::FieldRow s_Rows[];
};
