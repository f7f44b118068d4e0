// Generated from Scalars.xsd; do not edit. Regenerate with the target "generate".
#pragma once

#include "Framework/TypedDataContainer.h"
#include "FrameworkDataContainers/FrameworkDataContainersEnums.h"

namespace Framework {
struct FieldTableIndex;
}

/// Every kind of single value, with and without a default, and a child of the class itself. This text is long enough to
/// be broken into two lines of the comment.
///
/// Element `Scalars`, the root of its document.
class FRAMEWORK_API ScalarsType : public StructuralConfigLoader {
public:
    explicit ScalarsType(bool bBuildFromScratch);
    ~ScalarsType() override;

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
    virtual zelString GetText();
    virtual void SetText(LPCTSTR szNew);
    virtual zelString GetTextSet();
    virtual void SetTextSet(LPCTSTR szNew);
    virtual zelString GetRaw();
    virtual void SetRaw(LPCTSTR szNew);
    virtual bool GetFlag();
    virtual void SetFlag(bool szNew);
    virtual bool GetFlagSet();
    virtual void SetFlagSet(bool szNew);
    virtual int GetCount();
    virtual void SetCount(int szNew);
    virtual int GetCountSet();
    virtual void SetCountSet(int szNew);
    virtual double GetWeight();
    virtual void SetWeight(double szNew);
    virtual ShadeType GetShade();
    virtual void SetShade(ShadeType szNew);
    virtual SizeEnum GetSize();
    virtual void SetSize(SizeEnum szNew);
    virtual ScalarsType* GetInner();
    virtual void SetInner(ScalarsType* szNew);
    virtual zelString Getname();
    virtual void Setname(LPCTSTR szNew);
    virtual zelString GetLabel();
    virtual void SetLabel(LPCTSTR szNew);
    virtual bool GetOpen();
    virtual void SetOpen(bool szNew);
    virtual bool GetOpenSet();
    virtual void SetOpenSet(bool szNew);
    virtual int GetLevel();
    virtual void SetLevel(int szNew);
    virtual int GetLevelSet();
    virtual void SetLevelSet(int szNew);
    virtual bool AutoFillTypeInfo();

    bool GetAutoFillTypeInfo() const { return m_bAutoFillTypeInfo; }
    void SetAutoFillTypeInfo(bool bNew) { m_bAutoFillTypeInfo = bNew; }

protected:
    bool m_bAutoFillTypeInfo = false;
    bool m_Flag = false;
    bool m_FlagSet = true;
    bool m_Open = false;
    bool m_OpenSet = true;
    int m_Count = 0;
    int m_CountSet = (-2147483647 - 1);
    int m_Level = 0;
    int m_LevelSet = 7;
    zelString m_Text;
    zelString m_TextSet{"a \"b\\c\""};
    zelString m_Raw;
    double m_Weight = 0.0;
    ShadeType m_Shade{0};
    SizeEnum m_Size{0};
    ScalarsType* m_Inner = nullptr;
    zelString m_name;
    zelString m_Label{"none"};

    static const Framework::FieldTable s_Table;
    friend struct Framework::FieldTableIndex;

private:
    static const Framework::FieldRow s_Rows[];
};
