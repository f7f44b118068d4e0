// Generated from CaptureDoc.xsd; do not edit. Regenerate with the target "generate".
#pragma once

#include "Framework/TypedDataContainer.h"
#include "FrameworkDataContainers/FrameworkDataContainersEnums.h"

namespace Framework {
struct FieldTableIndex;
}

/// One captured message, with its time, place and level.
///
/// Element `CaptureDoc` unless its parent names it otherwise.
class FRAMEWORK_API CaptureDocEntryType : public TypedDataContainer {
public:
    explicit CaptureDocEntryType(bool bBuildFromScratch);
    ~CaptureDocEntryType() override;

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
    virtual zelString GetMsg();
    virtual void SetMsg(LPCTSTR szNew);
    virtual zelString GetTime();
    virtual void SetTime(LPCTSTR szNew);
    virtual zelString GetFile();
    virtual void SetFile(LPCTSTR szNew);
    virtual zelString GetSubSystem();
    virtual void SetSubSystem(LPCTSTR szNew);
    virtual zelString GetUniqueName();
    virtual void SetUniqueName(LPCTSTR szNew);
    virtual zelString GetClass();
    virtual void SetClass(LPCTSTR szNew);
    virtual zelString GetLine();
    virtual void SetLine(LPCTSTR szNew);
    virtual CaptureLevelType GetLevel();
    virtual void SetLevel(CaptureLevelType szNew);
    virtual bool AutoFillTypeInfo();

    bool GetAutoFillTypeInfo() const { return m_bAutoFillTypeInfo; }
    void SetAutoFillTypeInfo(bool bNew) { m_bAutoFillTypeInfo = bNew; }

protected:
    bool m_bAutoFillTypeInfo = false;
    zelString m_Msg;
    zelString m_Time;
    zelString m_File;
    zelString m_SubSystem;
    zelString m_UniqueName;
    zelString m_Class;
    zelString m_Line;
    CaptureLevelType m_Level{0};

    static const Framework::FieldTable s_Table;
    friend struct Framework::FieldTableIndex;

private:
    static const Framework::FieldRow s_Rows[];
};
