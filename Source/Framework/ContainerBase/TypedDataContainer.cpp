#include "Framework/TypedDataContainer.h"

#include <cstdarg>

#include "Framework/ContainerBase/ContainerAccess.h"

using namespace Framework;

const char* const TypedDataContainer::TDC_BASE_DATA_TEMPLATE = "BaseDataTemplate";

TypedDataContainer::TypedDataContainer(bool bBuildFromScratch) : m_bBuildFromScratch(bBuildFromScratch) {}

TypedDataContainer::~TypedDataContainer() = default;

bool TypedDataContainer::Valid() {
    return m_bValid;
}

void TypedDataContainer::Clear() {
    ResetDataMembers();
    ContainerAccess::Detach(*this);
    m_bValid = false;
}

zelString TypedDataContainer::GetBaseType() {
    return "TypedDataContainer";
}

void TypedDataContainer::GetProperties(ParameterList&) {}

XMLDataWrapper* TypedDataContainer::GetContainedDataPtr() {
    return ContainerAccess::ShownWrapper(*this);
}

zelString TypedDataContainer::GetMergeAttributes() {
    const zelString feature(m_MergeFeature.View());
    return feature.empty() ? zelString() : zelString(" and @FeatureID='" + feature + "' ");
}

void TypedDataContainer::GetPLMergeAttributes(ParameterList* plAttributes) {
    const zelString feature(m_MergeFeature.View());
    if (plAttributes != nullptr && !feature.empty()) {
        plAttributes->Add(&feature, dcString, "FeatureID", false);
    }
}

zelString TypedDataContainer::GetAttributeList() {
    return {};
}

ParameterList* TypedDataContainer::GetPLAttributeList() {
    return new ParameterList;
}

zelString TypedDataContainer::GetSimpleTypeData(SimpleDataContainer* pEntry) {
    return pEntry == nullptr ? zelString() : pEntry->strValue;
}

void TypedDataContainer::SetSimpleTypeData(SimpleDataContainer* pEntry, zelString sValue) {
    if (pEntry != nullptr) {
        pEntry->strValue = std::move(sValue);
    }
}

TypedDataContainer* TypedDataContainer::Clone() {
    SetLastError(-1, "%s has nothing that could be cloned", GetBaseType().c_str());
    return nullptr;
}

zelString TypedDataContainer::GetContainerName() {
    return zelString(m_ContainerName.View());
}

void TypedDataContainer::SetContainerName(const char* sName) {
    m_ContainerName.Set(sName == nullptr ? "" : sName);
}

void TypedDataContainer::SetFeatureID(const zelString& sFeatureID) {
    m_FeatureID.Set(sFeatureID);
}

zelString TypedDataContainer::GetFeatureID() {
    return zelString(m_FeatureID.View());
}

void TypedDataContainer::SetLastError(int iNumber, const char* sFormat, ...) {
    auto text = std::make_unique<zelString>();
    va_list arguments;
    va_start(arguments, sFormat);
    try {
        text->FormatWithArgumentList(sFormat, arguments);
    } catch (...) {
        va_end(arguments);
        throw;
    }
    va_end(arguments);
    m_iLastError = iNumber;
    m_pLastError = std::move(text);
    m_pFixedError = nullptr;
}

zelString TypedDataContainer::GetLastError() {
    if (m_pFixedError != nullptr) {
        return m_pFixedError;
    }
    return m_pLastError == nullptr ? zelString() : *m_pLastError;
}

int TypedDataContainer::GetLastErrorNum() {
    return m_iLastError;
}

StructuralConfigLoader::StructuralConfigLoader(bool bBuildFromScratch) : TypedDataContainer(bBuildFromScratch) {}

StructuralConfigLoader::~StructuralConfigLoader() = default;

bool StructuralConfigLoader::InitializeConfig(const char* sPath, ValueLookupBase* pLookup) {
    return LoadFromFile(pLookup, sPath, true);
}
