// Generated from ConfigDefRoot.xsd; do not edit. Regenerate with the target "generate".
#pragma once

#include "Framework/TypedDataContainer.h"

namespace Framework {
struct FieldTableIndex;
}

class ViewMapType;

/// The views of a level, by name.
///
/// Element `ViewList` unless its parent names it otherwise.
class FRAMEWORK_API ViewListType : public TypedDataContainer {
public:
    explicit ViewListType(bool bBuildFromScratch);
    ~ViewListType() override;

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
    virtual int GetViewLength();
    virtual ViewMapType* GetView(int Index);
    virtual ViewMapType* GetView(const zelString& sName);
    virtual void AddNewView(ViewMapType* szNew, const zelString& sName);
    virtual void RemoveView(const zelString& sName, const zelString& sFeatureId);
    virtual bool AutoFillTypeInfo();
    virtual void AddView(XMLDataWrapper* pData, XalanNode* spNode, const zelString& sName);
    virtual void ClearView();

    bool GetAutoFillTypeInfo() const { return m_bAutoFillTypeInfo; }
    void SetAutoFillTypeInfo(bool bNew) { m_bAutoFillTypeInfo = bNew; }

protected:
    bool m_bAutoFillTypeInfo = false;
    Zelvon::SyncMap<zelString, TypedDataContainer*> m_MapViewList;
    std::vector<TypedDataContainer*> m_ViewList;

    static const Framework::FieldTable s_Table;
    friend struct Framework::FieldTableIndex;

private:
    static const Framework::FieldRow s_Rows[];
};
