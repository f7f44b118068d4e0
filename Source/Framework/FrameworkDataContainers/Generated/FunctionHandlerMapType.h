// Generated from AudioLookupConfig.xsd; do not edit. Regenerate with the target "generate".
#pragma once

#include "Framework/TypedDataContainer.h"

namespace Framework {
struct FieldTableIndex;
}

class FunctionHandlerType;

/// The function handlers, by language.
///
/// Element `FunctionHandlerMap` unless its parent names it otherwise.
class FRAMEWORK_API FunctionHandlerMapType : public TypedDataContainer {
public:
    explicit FunctionHandlerMapType(bool bBuildFromScratch);
    ~FunctionHandlerMapType() override;

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
    virtual int GetFunctionHandlerLength();
    virtual FunctionHandlerType* GetFunctionHandler(int Index);
    virtual FunctionHandlerType* GetFunctionHandler(const zelString& sName);
    virtual void AddNewFunctionHandler(FunctionHandlerType* szNew, const zelString& sName);
    virtual void RemoveFunctionHandler(const zelString& sName, const zelString& sFeatureId);
    virtual bool AutoFillTypeInfo();
    virtual void AddFunctionHandler(XMLDataWrapper* pData, XalanNode* spNode, const zelString& sName);
    virtual void ClearFunctionHandler();

    bool GetAutoFillTypeInfo() const { return m_bAutoFillTypeInfo; }
    void SetAutoFillTypeInfo(bool bNew) { m_bAutoFillTypeInfo = bNew; }

protected:
    bool m_bAutoFillTypeInfo = false;
    Zelvon::SyncMap<zelString, TypedDataContainer*> m_MapFunctionHandlerList;
    std::vector<TypedDataContainer*> m_FunctionHandlerList;

    static const Framework::FieldTable s_Table;
    friend struct Framework::FieldTableIndex;

private:
    static const Framework::FieldRow s_Rows[];
};
