// Generated from StateActionDef.xsd; do not edit. Regenerate with the target "generate".
#pragma once

#include "Framework/TypedDataContainer.h"

namespace Framework {
struct FieldTableIndex;
}

class BasicClassFactoryType;

/// The factories that make the classes of an action map.
///
/// Element `StateClassFactory` unless its parent names it otherwise.
class FRAMEWORK_API StateClassFactoryType : public TypedDataContainer {
public:
    explicit StateClassFactoryType(bool bBuildFromScratch);
    ~StateClassFactoryType() override;

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
    virtual int GetClassLength();
    virtual BasicClassFactoryType* GetClass(int Index);
    virtual void AddNewClass(BasicClassFactoryType* szNew);
    virtual bool AutoFillTypeInfo();
    virtual void AddClass(XMLDataWrapper* pData, XalanNode* spNode);
    virtual void ClearClass();

    bool GetAutoFillTypeInfo() const { return m_bAutoFillTypeInfo; }
    void SetAutoFillTypeInfo(bool bNew) { m_bAutoFillTypeInfo = bNew; }

protected:
    bool m_bAutoFillTypeInfo = false;
    std::vector<TypedDataContainer*> m_ClassList;

    static const Framework::FieldTable s_Table;
    friend struct Framework::FieldTableIndex;

private:
    static const Framework::FieldRow s_Rows[];
};
