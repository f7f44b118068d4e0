// Generated from ConfigDefRoot.xsd; do not edit. Regenerate with the target "generate".
#pragma once

#include "Framework/TypedDataContainer.h"

namespace Framework {
struct FieldTableIndex;
}

class InValidOptionRefType;

/// The values that may be ruled out.
///
/// Element `InValidOptionRefList` unless its parent names it otherwise.
class FRAMEWORK_API InValidOptionRefListType : public TypedDataContainer {
public:
    explicit InValidOptionRefListType(bool bBuildFromScratch);
    ~InValidOptionRefListType() override;

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
    virtual int GetInValidOptionRefLength();
    virtual InValidOptionRefType* GetInValidOptionRef(int Index);
    virtual InValidOptionRefType* GetInValidOptionRef(const zelString& sName);
    virtual void AddNewInValidOptionRef(InValidOptionRefType* szNew, const zelString& sName);
    virtual void RemoveInValidOptionRef(const zelString& sName, const zelString& sFeatureId);
    virtual bool AutoFillTypeInfo();
    virtual void AddInValidOptionRef(XMLDataWrapper* pData, XalanNode* spNode, const zelString& sName);
    virtual void ClearInValidOptionRef();

    bool GetAutoFillTypeInfo() const { return m_bAutoFillTypeInfo; }
    void SetAutoFillTypeInfo(bool bNew) { m_bAutoFillTypeInfo = bNew; }

protected:
    bool m_bAutoFillTypeInfo = false;
    Zelvon::SyncMap<zelString, TypedDataContainer*> m_MapInValidOptionRefList;
    std::vector<TypedDataContainer*> m_InValidOptionRefList;

    static const Framework::FieldTable s_Table;
    friend struct Framework::FieldTableIndex;

private:
    static const Framework::FieldRow s_Rows[];
};
