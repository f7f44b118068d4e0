// Generated from ConfigDefRoot.xsd; do not edit. Regenerate with the target "generate".
#pragma once

#include "Framework/TypedDataContainer.h"

namespace Framework {
struct FieldTableIndex;
}

class ChoiceConstraintType;
class ConfigSchemaDefType;
class ReferenceListConstraintType;
class XMLDataListDefType;

/// What values an option may take.
///
/// Element `Constraint` unless its parent names it otherwise.
class FRAMEWORK_API ConstraintType : public TypedDataContainer {
public:
    explicit ConstraintType(bool bBuildFromScratch);
    ~ConstraintType() override;

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
    virtual zelString GetMinValue();
    virtual void SetMinValue(LPCTSTR szNew);
    virtual zelString GetMaxValue();
    virtual void SetMaxValue(LPCTSTR szNew);
    virtual zelString GetMinLength();
    virtual void SetMinLength(LPCTSTR szNew);
    virtual zelString GetMaxLength();
    virtual void SetMaxLength(LPCTSTR szNew);
    virtual zelString GetSystemValue();
    virtual void SetSystemValue(LPCTSTR szNew);
    virtual int GetChoiceLength();
    virtual ChoiceConstraintType* GetChoice(int Index);
    virtual void AddNewChoice(ChoiceConstraintType* szNew);
    virtual int GetReferenceListConstraintLength();
    virtual ReferenceListConstraintType* GetReferenceListConstraint(int Index);
    virtual void AddNewReferenceListConstraint(ReferenceListConstraintType* szNew);
    virtual ConfigSchemaDefType* GetSchemaDef();
    virtual void SetSchemaDef(ConfigSchemaDefType* szNew);
    virtual XMLDataListDefType* GetXMLDataListDef();
    virtual void SetXMLDataListDef(XMLDataListDefType* szNew);
    virtual zelString GetType();
    virtual void SetType(LPCTSTR szNew);
    virtual bool AutoFillTypeInfo();
    virtual void AddChoice(XMLDataWrapper* pData, XalanNode* spNode);
    virtual void ClearChoice();
    virtual void AddReferenceListConstraint(XMLDataWrapper* pData, XalanNode* spNode);
    virtual void ClearReferenceListConstraint();

    bool GetAutoFillTypeInfo() const { return m_bAutoFillTypeInfo; }
    void SetAutoFillTypeInfo(bool bNew) { m_bAutoFillTypeInfo = bNew; }

protected:
    bool m_bAutoFillTypeInfo = false;
    zelString m_MinValue;
    zelString m_MaxValue;
    zelString m_MinLength;
    zelString m_MaxLength;
    zelString m_SystemValue;
    std::vector<TypedDataContainer*> m_ChoiceList;
    std::vector<TypedDataContainer*> m_ReferenceListConstraintList;
    ConfigSchemaDefType* m_SchemaDef = nullptr;
    XMLDataListDefType* m_XMLDataListDef = nullptr;
    zelString m_Type;

    static const Framework::FieldTable s_Table;
    friend struct Framework::FieldTableIndex;

private:
    static const Framework::FieldRow s_Rows[];
};
