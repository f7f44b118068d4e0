// Generated from CaptureConfig.xsd; do not edit. Regenerate with the target "generate".
#pragma once

#include "Framework/TypedDataContainer.h"

namespace Framework {
struct FieldTableIndex;
}

/// A capture file, and its limits.
///
/// Element `File` unless its parent names it otherwise.
class FRAMEWORK_API CaptureFileConfigType : public TypedDataContainer {
public:
    explicit CaptureFileConfigType(bool bBuildFromScratch);
    ~CaptureFileConfigType() override;

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
    virtual zelString GetName();
    virtual void SetName(LPCTSTR szNew);
    virtual zelString GetOutput();
    virtual void SetOutput(LPCTSTR szNew);
    virtual int GetMaxLines();
    virtual void SetMaxLines(int szNew);
    virtual int GetMaxFilesPerTransaction();
    virtual void SetMaxFilesPerTransaction(int szNew);
    virtual int GetTransactionsOnDisk();
    virtual void SetTransactionsOnDisk(int szNew);
    virtual bool GetXmlOutputFormat();
    virtual void SetXmlOutputFormat(bool szNew);
    virtual zelString GetRootElement();
    virtual void SetRootElement(LPCTSTR szNew);
    virtual bool AutoFillTypeInfo();

    bool GetAutoFillTypeInfo() const { return m_bAutoFillTypeInfo; }
    void SetAutoFillTypeInfo(bool bNew) { m_bAutoFillTypeInfo = bNew; }

protected:
    bool m_bAutoFillTypeInfo = false;
    bool m_XmlOutputFormat = true;
    int m_MaxLines = 10000;
    int m_MaxFilesPerTransaction = 100;
    int m_TransactionsOnDisk = 5;
    zelString m_Name;
    zelString m_Output;
    zelString m_RootElement{"CaptureDoc"};

    static const Framework::FieldTable s_Table;
    friend struct Framework::FieldTableIndex;

private:
    static const Framework::FieldRow s_Rows[];
};
