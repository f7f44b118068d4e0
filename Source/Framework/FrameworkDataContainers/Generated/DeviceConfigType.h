// Generated from DeviceConfig.xsd; do not edit. Regenerate with the target "generate".
#pragma once

#include "Framework/TypedDataContainer.h"

namespace Framework {
struct FieldTableIndex;
}

class DeviceEntryType;

/// Root of a device document.
///
/// Element `DeviceConfig`, the root of its document.
class FRAMEWORK_API DeviceConfigType : public StructuralConfigLoader {
public:
    explicit DeviceConfigType(bool bBuildFromScratch);
    ~DeviceConfigType() override;

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
    virtual int GetDeviceEntryLength();
    virtual DeviceEntryType* GetDeviceEntry(int Index);
    virtual DeviceEntryType* GetDeviceEntry(const zelString& sName);
    virtual void AddNewDeviceEntry(DeviceEntryType* szNew, const zelString& sName);
    virtual void RemoveDeviceEntry(const zelString& sName, const zelString& sFeatureId);
    virtual bool AutoFillTypeInfo();
    virtual void AddDeviceEntry(XMLDataWrapper* pData, XalanNode* spNode, const zelString& sName);
    virtual void ClearDeviceEntry();

    bool GetAutoFillTypeInfo() const { return m_bAutoFillTypeInfo; }
    void SetAutoFillTypeInfo(bool bNew) { m_bAutoFillTypeInfo = bNew; }

protected:
    bool m_bAutoFillTypeInfo = false;
    Zelvon::SyncMap<zelString, TypedDataContainer*> m_MapDeviceEntryList;
    std::vector<TypedDataContainer*> m_DeviceEntryList;

    static const Framework::FieldTable s_Table;
    friend struct Framework::FieldTableIndex;

private:
    static const Framework::FieldRow s_Rows[];
};
