// Generated from StateProcessingRoot.xsd; do not edit. Regenerate with the target "generate".
#pragma once

#include "Framework/TypedDataContainer.h"

namespace Framework {
struct FieldTableIndex;
}

class StateActionRespType;

/// The follow-up actions of an action, by result.
///
/// Element `ActionResp` unless its parent names it otherwise.
class FRAMEWORK_API ActionRespType : public TypedDataContainer {
public:
    explicit ActionRespType(bool bBuildFromScratch);
    ~ActionRespType() override;

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
    virtual int GetDocLength();
    virtual zelString GetDoc(int Index);
    virtual zelString GetDoc(const zelString& sName);
    virtual int GetPostActionRespLength();
    virtual StateActionRespType* GetPostActionResp(int Index);
    virtual StateActionRespType* GetPostActionResp(const zelString& sName);
    virtual void AddNewPostActionResp(StateActionRespType* szNew, const zelString& sName);
    virtual void RemovePostActionResp(const zelString& sName, const zelString& sFeatureId);
    virtual bool AutoFillTypeInfo();
    virtual void AddDoc(const zelString& pData, const zelString& sName);
    virtual void ClearDoc();
    virtual void AddPostActionResp(XMLDataWrapper* pData, XalanNode* spNode, const zelString& sName);
    virtual void ClearPostActionResp();

    bool GetAutoFillTypeInfo() const { return m_bAutoFillTypeInfo; }
    void SetAutoFillTypeInfo(bool bNew) { m_bAutoFillTypeInfo = bNew; }

protected:
    bool m_bAutoFillTypeInfo = false;
    Zelvon::SyncMap<zelString, SimpleDataContainer*> m_MapDocList;
    std::vector<SimpleDataContainer*> m_DocList;
    Zelvon::SyncMap<zelString, TypedDataContainer*> m_MapPostActionRespList;
    std::vector<TypedDataContainer*> m_PostActionRespList;

    static const Framework::FieldTable s_Table;
    friend struct Framework::FieldTableIndex;

private:
    static const Framework::FieldRow s_Rows[];
};
