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
    static void SetBuildsFromScratch(TypedDataContainer& object, bool value) { object.m_bBuildFromScratch = value; }
    static bool IsNested(const TypedDataContainer& object) { return object.m_bNested; }
    static void SetNested(TypedDataContainer& object, bool value) { object.m_bNested = value; }
    static bool IsValid(const TypedDataContainer& object) { return object.m_bValid; }
    static void SetValid(TypedDataContainer& object, bool value) { object.m_bValid = value; }
    static std::string_view FeatureID(const TypedDataContainer& object) { return object.m_FeatureID.View(); }
    static std::string_view ContainerName(const TypedDataContainer& object) { return object.m_ContainerName.View(); }
    static std::string_view MergeFeature(const TypedDataContainer& object) { return object.m_MergeFeature.View(); }
    static void SetFixedName(TypedDataContainer& object, const std::string_view& name) noexcept {
        object.m_ContainerName.SetFixed(name);
    }
    static void SetFixedName(TypedDataContainer& object, const std::string_view&& name) = delete;
    /// What an object gets from the place that it has in another one, where no host may have a say in it. The name is
    /// kept where it stands.
    static void SetPlace(TypedDataContainer& object, const std::string_view& name, const TypedDataContainer& parent) {
        object.m_ContainerName.SetFixed(name);
        object.m_FeatureID = parent.m_FeatureID;
        object.m_pValueLookup = parent.m_pValueLookup;
    }
    static void SetPlace(TypedDataContainer& object, const std::string_view&& name,
                         const TypedDataContainer& parent) = delete;
    static void SetMergeFeature(TypedDataContainer& object, const zelString& feature) {
        object.m_MergeFeature.Set(feature);
    }

    /// The wrapper the library reaches the object's XML through, null when it stands on none.
    static XMLDataWrapper* Wrapper(const TypedDataContainer& object) {
        return object.m_pContainedData == nullptr ? nullptr : object.m_pContainedData->Wrapper();
    }
    /// The wrapper the object was given.
    static XMLDataWrapper* ShownWrapper(const TypedDataContainer& object) {
        return object.m_pContainedData == nullptr ? nullptr : object.m_pContainedData->ShownWrapper();
    }
    /// The wrapper by which a part of the object is to stand on the document of `given`: where that is the object's,
    /// the one the library works through, so that all parts of a tree share it.
    static XMLDataWrapper* WrapperForParts(const TypedDataContainer& object, XMLDataWrapper* given) {
        return given != nullptr && given == ShownWrapper(object) ? Wrapper(object) : given;
    }
    static const std::shared_ptr<Attachment>& AttachmentOf(const TypedDataContainer& object) {
        return object.m_pContainedData;
    }

    /// Stands the object on a node of the tree that the wrapper reads from at this moment.
    static void Attach(TypedDataContainer& object, std::shared_ptr<Attachment> attachment, NodeRef node) {
        object.m_pEarlierNodes.reset();
        object.m_bHoldsNode = true;
        object.m_uNode = Mark(*attachment, node);
        object.m_pContainedData = std::move(attachment);
    }

    /// The same for an object that is populated once more without being reset: what the new node lacks was read from
    /// the ones before.
    static void AttachAgain(TypedDataContainer& object, const std::shared_ptr<Attachment>& attachment, NodeRef node) {
        if (object.m_pContainedData != attachment || !object.m_bHoldsNode) {
            Attach(object, attachment, node);
            return;
        }
        if (object.m_pEarlierNodes == nullptr) {
            object.m_pEarlierNodes = std::make_unique<std::vector<std::uintptr_t>>();
        }
        object.m_pEarlierNodes->push_back(object.m_uNode);
        object.m_uNode = Mark(*attachment, node);
    }

    /// The members were reset: they no longer hold anything of what they were populated from.
    static void ForgetNodes(TypedDataContainer& object) {
        object.m_pEarlierNodes.reset();
        object.m_bHoldsNode = false;
    }

    static void Detach(TypedDataContainer& object) {
        object.m_pContainedData.reset();
        object.m_pEarlierNodes.reset();
        object.m_uNode = 0;
    }

    /// The node the object stands on, in the tree that its wrapper reads from now; None when it stands on none.
    static NodeRef Node(const TypedDataContainer& object) {
        return object.m_pContainedData == nullptr ? NodeRef::None : Unmark(*object.m_pContainedData, object.m_uNode);
    }

    /// The nodes it was populated from before that one, since it was reset.
    static std::vector<NodeRef> EarlierNodes(const TypedDataContainer& object) {
        std::vector<NodeRef> nodes;
        if (object.m_pEarlierNodes != nullptr) {
            for (const std::uintptr_t mark : *object.m_pEarlierNodes) {
                nodes.push_back(Unmark(*object.m_pContainedData, mark));
            }
        }
        return nodes;
    }

    using TextEntry = TypedDataContainer::SimpleDataContainer;

    /// An entry of a list of strings was loaded from, or written to, a node of the document that `object` stands on.
    static void AttachText(TextEntry& entry, const TypedDataContainer& object, NodeRef node, const zelString& text) {
        entry.m_sWritten = text;
        entry.m_pContainedData = object.m_pContainedData;
        entry.m_uNode = Mark(*object.m_pContainedData, node);
    }
    /// Its node, None when it has none in the document that `object` stands on.
    static NodeRef TextNode(const TextEntry& entry, const TypedDataContainer& object) {
        const auto& own = object.m_pContainedData;
        const bool isSame = !entry.m_pContainedData.owner_before(own) && !own.owner_before(entry.m_pContainedData);
        return own == nullptr || !isSame ? NodeRef::None : Unmark(*own, entry.m_uNode);
    }
    static const zelString& WrittenText(const TextEntry& entry) { return entry.m_sWritten; }

    /// Keeps a literal as the error: allocates nothing, cannot fail.
    static void SetFixedError(TypedDataContainer& object, int number, const char* text) noexcept {
        object.m_iLastError = number;
        object.m_pFixedError = text;
    }

private:
    // A node is kept with a mark that tells its tree: a DOM may take over from the reading tree at any time.
    static std::uintptr_t Mark(const Attachment& attachment, NodeRef node) {
        const bool isDomNode = WrapperAccess::State(*attachment.Wrapper()).domIsMaster;
        return (static_cast<std::uintptr_t>(node) << 1) | (isDomNode ? 1U : 0U);
    }
    static NodeRef Unmark(const Attachment& attachment, std::uintptr_t mark) {
        const NodeRef node{mark >> 1};
        return (mark & 1U) != 0 ? node : WrapperAccess::State(*attachment.Wrapper()).Translate(node);
    }
};

/// The state of a loaded merge source or wrapper, null when there is none or nothing is loaded in it.
inline WrapperState* LoadedState(XMLDataWrapper* wrapper) {
    return wrapper != nullptr && wrapper->IsDataLoaded() ? &WrapperAccess::State(*wrapper) : nullptr;
}

/// Loads an object from the node that another one stands on, by the rules of LoadFromDataPacket; no wrapper is moved.
bool LoadFromNodeOf(TypedDataContainer& object, const TypedDataContainer& original);

/// Takes everything out of an object: members to their defaults, lists cleared, children deleted. Done by the walk over
/// its class's fields, which stands above this layer.
void MakeEmpty(TypedDataContainer& object);

/// Resets an object but for its attributes: children stay, with reset members of their own.
void ResetButAttributes(TypedDataContainer& object);

/// The attribute of an object as text, empty when its class has none of that name. Done over the fields as well.
zelString AttributeTextOf(TypedDataContainer& object, std::string_view attribute);

enum class DumpedText {
    Whole,
    NeedsDom, ///< an object is of a class that a host derived, whose dump may be its own, or a part cannot be written
    Failed,   ///< by an exception, which the object's error tells of
};

/// Appends the document that DumpMergeContentsII gives, byte for byte, and makes no DOM for it. What needs one leaves
/// the object as it was, and `xml` with a beginning that is worth nothing.
DumpedText DumpAsText(TypedDataContainer& object, bool withMergeAttributes, std::string& xml);

} // namespace Framework
