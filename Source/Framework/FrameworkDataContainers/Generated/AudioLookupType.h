// Generated from AudioLookupConfig.xsd; do not edit. Regenerate with the target "generate".
#pragma once

#include "Framework/TypedDataContainer.h"
#include "FrameworkDataContainers/FrameworkDataContainersEnums.h"

namespace Framework {
struct FieldTableIndex;
}

class AudioExpandPhraseType;
class AudioFunctionType;
class AudioPathSearchOrderType;

/// What is played for a key.
///
/// Element `AudioLookup` unless its parent names it otherwise.
class FRAMEWORK_API AudioLookupType : public TypedDataContainer {
public:
    explicit AudioLookupType(bool bBuildFromScratch);
    ~AudioLookupType() override;

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
    virtual AudioPathSearchOrderType* GetPathSearchOrder();
    virtual void SetPathSearchOrder(AudioPathSearchOrderType* szNew);
    virtual zelString GetFileName();
    virtual void SetFileName(LPCTSTR szNew);
    virtual int GetFunctionLength();
    virtual AudioFunctionType* GetFunction(int Index);
    virtual void AddNewFunction(AudioFunctionType* szNew);
    virtual int GetExpandPhraseLength();
    virtual AudioExpandPhraseType* GetExpandPhrase(int Index);
    virtual void AddNewExpandPhrase(AudioExpandPhraseType* szNew);
    virtual AudioPriorityEnum GetPriority();
    virtual void SetPriority(AudioPriorityEnum szNew);
    virtual bool GetAllowAbort();
    virtual void SetAllowAbort(bool szNew);
    virtual bool GetAllowQueueing();
    virtual void SetAllowQueueing(bool szNew);
    virtual zelString Getkey();
    virtual void Setkey(LPCTSTR szNew);
    virtual bool AutoFillTypeInfo();
    virtual void AddFunction(XMLDataWrapper* pData, XalanNode* spNode);
    virtual void ClearFunction();
    virtual void AddExpandPhrase(XMLDataWrapper* pData, XalanNode* spNode);
    virtual void ClearExpandPhrase();

    bool GetAutoFillTypeInfo() const { return m_bAutoFillTypeInfo; }
    void SetAutoFillTypeInfo(bool bNew) { m_bAutoFillTypeInfo = bNew; }

protected:
    bool m_bAutoFillTypeInfo = false;
    bool m_AllowAbort = true;
    bool m_AllowQueueing = false;
    AudioPathSearchOrderType* m_PathSearchOrder = nullptr;
    zelString m_FileName;
    std::vector<TypedDataContainer*> m_FunctionList;
    std::vector<TypedDataContainer*> m_ExpandPhraseList;
    AudioPriorityEnum m_Priority{0};
    zelString m_key;

    static const Framework::FieldTable s_Table;
    friend struct Framework::FieldTableIndex;

private:
    static const Framework::FieldRow s_Rows[];
};
