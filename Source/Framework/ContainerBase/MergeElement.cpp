#include "Framework/ContainerBase/Guarded.h"
#include "Framework/ContainerBase/MergeControl.h"
#include "Framework/ContainerBase/OverrideLog.h"
#include "Framework/ContainerBase/Storing.h"
#include "Framework/XMLSupport/TreeReading.h"

using namespace Framework;

namespace {

/// Reports an entry that is not taken over; the rest of the merge goes on.
bool Refuse(TypedDataContainer& parent, const WrapperState& source, const zelString& name, const zelString& key,
            const std::string& reason, unsigned int line) {
    const OverridePlace place(source.Tree(), source.Here());
    parent.SetLastError(-1, "%s[%s]: %s", name.c_str(), key.c_str(), reason.c_str());
    LogLastError(parent, line);
    return false;
}

} // namespace

bool TypedDataContainer::MergeElement(zelString sFeatureID, Zelvon::SyncMap<zelString, TypedDataContainer*>& mapEntries,
                                      std::vector<TypedDataContainer*>& vecEntries, XMLDataWrapper* pMergeData,
                                      TypedDataContainer* pNew, zelString sKey, zelString sKeyName,
                                      zelString sXMLName) {
    std::unique_ptr<TypedDataContainer> entry(pNew);
    const WrapperState& source = WrapperAccess::State(*pMergeData);
    if (const std::string control = UnsupportedControl(*source.Tree(), source.Here()); !control.empty()) {
        return Refuse(*this, source, sXMLName, sKey, control, __LINE__);
    }
    if (FindAttribute(*source.Tree(), source.Here(), sKeyName) == NodeRef::None) {
        return Refuse(*this, source, sXMLName, sKey, "the entry has no key, expected the attribute " + sKeyName,
                      __LINE__);
    }
    TypedDataContainer* present = nullptr;
    if (mapEntries.getValue(sKey, present, true) && present != nullptr) {
        return present->MergeFromDataPacket(ContainerAccess::Lookup(*this), sFeatureID, pMergeData, true);
    }
    entry->SetContainerName(sXMLName);
    entry->SetFeatureID(sFeatureID);
    ContainerAccess::SetLookup(*entry, ContainerAccess::Lookup(*this));
    if (!entry->SetContainedDataPtr(pMergeData, nullptr, ContainerAccess::IsReadOnly(*this), true)) {
        return Refuse(*this, source, sXMLName, sKey, "the entry cannot be loaded: " + entry->GetLastError(), __LINE__);
    }
    ContainerAccess::SetMergeFeature(*entry, sFeatureID);
    StoreKeyed(mapEntries, vecEntries, std::move(entry), sKey);
    return true;
}

bool TypedDataContainer::MergeElement(zelString sFeatureID,
                                      Zelvon::SyncMap<zelString, SimpleDataContainer*>& mapEntries,
                                      std::vector<SimpleDataContainer*>& vecEntries, XMLDataWrapper* pMergeData,
                                      ParameterDataEnum eType, zelString sKey, zelString sXMLName) {
    const WrapperState& source = WrapperAccess::State(*pMergeData);
    if (const std::string control = UnsupportedControl(*source.Tree(), source.Here()); !control.empty()) {
        return Refuse(*this, source, sXMLName, sKey, control, __LINE__);
    }
    const zelString text = pMergeData->GetStringValue("", false);
    SimpleDataContainer* present = nullptr;
    if (mapEntries.getValue(sKey, present, true) && present != nullptr) {
        SetSimpleTypeData(present, text);
        return true;
    }
    auto entry = std::make_unique<SimpleDataContainer>();
    entry->FeatureID = sFeatureID;
    entry->dcType = eType;
    entry->strValue = text;
    entry->ElementName = sKey;
    StoreKeyed(mapEntries, vecEntries, std::move(entry), sKey);
    return true;
}
