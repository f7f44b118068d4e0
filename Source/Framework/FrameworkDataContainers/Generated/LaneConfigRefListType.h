// Generated from GUIConfigurations.xsd; do not edit. Regenerate with the target "generate".
#pragma once

#include "Framework/TypedDataContainer.h"

namespace Framework {
struct FieldTableIndex;
}

/// References to the configuration of lanes.
///
/// Element `LaneConfigRefList` unless its parent names it otherwise.
class FRAMEWORK_API LaneConfigRefListType : public TypedDataContainer {
public:
    explicit LaneConfigRefListType(bool bBuildFromScratch);
    ~LaneConfigRefListType() override;

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
    virtual int GetLaneConfigRefLength();
    virtual zelString GetLaneConfigRef(int Index);
    virtual void AddNewLaneConfigRef(LPCTSTR szNew);
    virtual bool AutoFillTypeInfo();
    virtual void AddLaneConfigRef(zelString pData);
    virtual void ClearLaneConfigRef();

    bool GetAutoFillTypeInfo() const { return m_bAutoFillTypeInfo; }
    void SetAutoFillTypeInfo(bool bNew) { m_bAutoFillTypeInfo = bNew; }

protected:
    bool m_bAutoFillTypeInfo = false;
    std::vector<zelString> m_LaneConfigRefList;

    static const Framework::FieldTable s_Table;
    friend struct Framework::FieldTableIndex;

private:
    static const Framework::FieldRow s_Rows[];
};
