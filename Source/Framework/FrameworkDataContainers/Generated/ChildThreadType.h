// Generated from LoadConfig.xsd; do not edit. Regenerate with the target "generate".
#pragma once

#include "Framework/TypedDataContainer.h"
#include "FrameworkDataContainers/FrameworkDataContainersEnums.h"

namespace Framework {
struct FieldTableIndex;
}

/// A thread to start: the library and class factory of its component, and how it is set up.
///
/// Element `ChildThread` unless its parent names it otherwise.
class FRAMEWORK_API ChildThreadType : public TypedDataContainer {
public:
    explicit ChildThreadType(bool bBuildFromScratch);
    ~ChildThreadType() override;

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
    virtual zelString GetLibraryPath();
    virtual void SetLibraryPath(LPCTSTR szNew);
    virtual zelString GetLibraryPathDebug();
    virtual void SetLibraryPathDebug(LPCTSTR szNew);
    virtual zelString GetComponentClassFactory();
    virtual void SetComponentClassFactory(LPCTSTR szNew);
    virtual zelString GetInitializeString();
    virtual void SetInitializeString(LPCTSTR szNew);
    virtual zelString GetSubSystemName();
    virtual void SetSubSystemName(LPCTSTR szNew);
    virtual ThreadPriorityType GetThreadPriority();
    virtual void SetThreadPriority(ThreadPriorityType szNew);
    virtual zelString GetUniqueName();
    virtual void SetUniqueName(LPCTSTR szNew);
    virtual zelString GetConfigValue();
    virtual void SetConfigValue(LPCTSTR szNew);
    virtual zelString GetConfigLogic();
    virtual void SetConfigLogic(LPCTSTR szNew);
    virtual bool AutoFillTypeInfo();

    bool GetAutoFillTypeInfo() const { return m_bAutoFillTypeInfo; }
    void SetAutoFillTypeInfo(bool bNew) { m_bAutoFillTypeInfo = bNew; }

protected:
    bool m_bAutoFillTypeInfo = false;
    zelString m_LibraryPath;
    zelString m_LibraryPathDebug;
    zelString m_ComponentClassFactory;
    zelString m_InitializeString;
    zelString m_SubSystemName;
    ThreadPriorityType m_ThreadPriority{0};
    zelString m_UniqueName;
    zelString m_ConfigValue;
    zelString m_ConfigLogic;

    static const Framework::FieldTable s_Table;
    friend struct Framework::FieldTableIndex;

private:
    static const Framework::FieldRow s_Rows[];
};
