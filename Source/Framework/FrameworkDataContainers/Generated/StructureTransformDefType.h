// Generated from StructureTransformDef.xsd; do not edit. Regenerate with the target "generate".
#pragma once

#include "Framework/TypedDataContainer.h"

namespace Framework {
struct FieldTableIndex;
}

class StructureDataMapType;
class StructureEnumListType;
class StructureReferenceMapType;

/// Root of a document that maps flat data structures to XML.
///
/// Element `StructureTransformDef`, the root of its document.
class FRAMEWORK_API StructureTransformDefType : public StructuralConfigLoader {
public:
    explicit StructureTransformDefType(bool bBuildFromScratch);
    ~StructureTransformDefType() override;

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
    virtual zelString GetCharBooleanTrue();
    virtual void SetCharBooleanTrue(LPCTSTR szNew);
    virtual zelString GetCharBooleanFalse();
    virtual void SetCharBooleanFalse(LPCTSTR szNew);
    virtual StructureDataMapType* GetStructureDataMap();
    virtual void SetStructureDataMap(StructureDataMapType* szNew);
    virtual StructureEnumListType* GetStructureEnumList();
    virtual void SetStructureEnumList(StructureEnumListType* szNew);
    virtual StructureReferenceMapType* GetStructureReferenceMap();
    virtual void SetStructureReferenceMap(StructureReferenceMapType* szNew);
    virtual bool AutoFillTypeInfo();

    bool GetAutoFillTypeInfo() const { return m_bAutoFillTypeInfo; }
    void SetAutoFillTypeInfo(bool bNew) { m_bAutoFillTypeInfo = bNew; }

protected:
    bool m_bAutoFillTypeInfo = false;
    zelString m_CharBooleanTrue{"Y"};
    zelString m_CharBooleanFalse{"N"};
    StructureDataMapType* m_StructureDataMap = nullptr;
    StructureEnumListType* m_StructureEnumList = nullptr;
    StructureReferenceMapType* m_StructureReferenceMap = nullptr;

    static const Framework::FieldTable s_Table;
    friend struct Framework::FieldTableIndex;

private:
    static const Framework::FieldRow s_Rows[];
};
