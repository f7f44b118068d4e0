#pragma once

#include "Framework/TypedDataContainer.h"
#include "Framework/XMLSupport/Attachment.h"
#include "Framework/XMLSupport/WrapperState.h"

namespace Framework {

/// Access of the library's own code to the state of a container.
struct ContainerAccess {
    static ValueLookupBase* Lookup(const TypedDataContainer& object) { return object.m_pValueLookup; }
    static void SetLookup(TypedDataContainer& object, ValueLookupBase* pLookup) { object.m_pValueLookup = pLookup; }
    static bool IsReadOnly(const TypedDataContainer& object) { return object.m_bReadOnly; }
    static void SetReadOnly(TypedDataContainer& object, bool value) { object.m_bReadOnly = value; }
    static bool BuildsFromScratch(const TypedDataContainer& object) { return object.m_bBuildFromScratch; }
    static bool IsNested(const TypedDataContainer& object) { return object.m_bNested; }
    static void SetNested(TypedDataContainer& object, bool value) { object.m_bNested = value; }
    static void SetValid(TypedDataContainer& object, bool value) { object.m_bValid = value; }
    static const zelString& FeatureID(const TypedDataContainer& object) { return object.m_sFeatureID; }
    static const zelString& ContainerName(const TypedDataContainer& object) { return object.m_sContainerName; }
    static const zelString& MergeFeature(const TypedDataContainer& object) { return object.m_sMergeFeature; }
    static void SetMergeFeature(TypedDataContainer& object, const zelString& feature) {
        object.m_sMergeFeature = feature;
    }

    /// The wrapper the object stands on, null when there is none.
    static XMLDataWrapper* Wrapper(const TypedDataContainer& object) {
        return object.m_pContainedData == nullptr ? nullptr : object.m_pContainedData->Wrapper();
    }

    /// Stands the object on a node of the tree that the wrapper reads from at this moment.
    static void Attach(TypedDataContainer& object, std::shared_ptr<Attachment> attachment, NodeRef node) {
        const bool isDomNode = WrapperAccess::State(*attachment->Wrapper()).domIsMaster;
        object.m_pContainedData = std::move(attachment);
        object.m_uNode = (static_cast<std::uintptr_t>(node) << 1) | (isDomNode ? 1U : 0U);
    }

    static void Detach(TypedDataContainer& object) {
        object.m_pContainedData.reset();
        object.m_uNode = 0;
    }

    /// The node the object stands on, in the tree that its wrapper reads from now; None when it stands on none.
    static NodeRef Node(const TypedDataContainer& object) {
        const XMLDataWrapper* const wrapper = Wrapper(object);
        if (wrapper == nullptr) {
            return NodeRef::None;
        }
        const NodeRef node{object.m_uNode >> 1};
        return (object.m_uNode & 1U) != 0 ? node : WrapperAccess::State(*wrapper).Translate(node);
    }

    /// Keeps a literal as the error: allocates nothing, cannot fail.
    static void SetFixedError(TypedDataContainer& object, int number, const char* text) noexcept {
        object.m_iLastError = number;
        object.m_pFixedError = text;
    }
};

/// The state of a loaded merge source or wrapper, null when there is none or nothing is loaded in it.
inline WrapperState* LoadedState(XMLDataWrapper* wrapper) {
    return wrapper != nullptr && wrapper->IsDataLoaded() ? &WrapperAccess::State(*wrapper) : nullptr;
}

/// Takes everything out of an object: members to their defaults, lists cleared, children deleted. Done by the walk over
/// its class's fields, which stands above this layer.
void MakeEmpty(TypedDataContainer& object);

} // namespace Framework
