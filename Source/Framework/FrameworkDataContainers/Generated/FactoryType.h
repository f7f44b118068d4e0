// Generated from FactoryConfig.xsd; do not edit. Regenerate with the target "generate".
#pragma once

#include "Framework/TypedDataContainer.h"

namespace Framework {
struct FieldTableIndex;
}

/// A factory: its library and its class factory.
///
/// Element `Factory` unless its parent names it otherwise.
class FRAMEWORK_API FactoryType : public TypedDataContainer {
public:
    explicit FactoryType(bool bBuildFromScratch);
    ~FactoryType() override;

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
    virtual zelString Getname();
    virtual void Setname(LPCTSTR szNew);
    virtual bool AutoFillTypeInfo();

    bool GetAutoFillTypeInfo() const { return m_bAutoFillTypeInfo; }
    void SetAutoFillTypeInfo(bool bNew) { m_bAutoFillTypeInfo = bNew; }

protected:
    bool m_bAutoFillTypeInfo = false;
    zelString m_LibraryPath;
    zelString m_LibraryPathDebug;
    zelString m_ComponentClassFactory;
    zelString m_name;

    static const Framework::FieldTable s_Table;
    friend struct Framework::FieldTableIndex;

private:
    static const Framework::FieldRow s_Rows[];
};
