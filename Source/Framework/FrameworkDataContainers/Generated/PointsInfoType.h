// Generated from ItemPurchase.xsd; do not edit. Regenerate with the target "generate".
#pragma once

#include "FrameworkDataContainers/LineItemInfoType.h"

namespace Framework {
struct FieldTableIndex;
}

class PointsGroupType;

/// Points that the order earns or redeems.
///
/// Element `PointsInfo` unless its parent names it otherwise.
class FRAMEWORK_API PointsInfoType : public LineItemInfoType {
public:
    explicit PointsInfoType(bool bBuildFromScratch);
    ~PointsInfoType() override;

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
    bool AutoFillTypeInfo() override;

    // The order is that of the virtual table.
    virtual int GetPointsTotalsLength();
    virtual PointsGroupType* GetPointsTotals(int Index);
    virtual void AddNewPointsTotals(PointsGroupType* szNew);
    virtual zelString GetType();
    virtual void SetType(LPCTSTR szNew);
    virtual bool GetIsRedeemed();
    virtual void SetIsRedeemed(bool szNew);
    virtual zelString GetPoints();
    virtual void SetPoints(LPCTSTR szNew);
    virtual void AddPointsTotals(XMLDataWrapper* pData, XalanNode* spNode);
    virtual void ClearPointsTotals();

    bool GetAutoFillTypeInfo() const { return m_bAutoFillTypeInfo; }
    void SetAutoFillTypeInfo(bool bNew) { m_bAutoFillTypeInfo = bNew; }

protected:
    bool m_bAutoFillTypeInfo = false;
    bool m_IsRedeemed = false;
    std::vector<TypedDataContainer*> m_PointsTotalsList;
    zelString m_Type;
    zelString m_Points;

    static const Framework::FieldTable s_Table;
    friend struct Framework::FieldTableIndex;

private:
    static const Framework::FieldRow s_Rows[];
};
