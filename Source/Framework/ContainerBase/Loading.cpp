#include "Framework/ContainerBase/Guarded.h"
#include "Framework/ContainerBase/Sources.h"
#include "Framework/XMLSupport/NodeViews.h"

using namespace Framework;

namespace {

/// The end of every load: empties the object, stands it on the node, and populates it.
bool LoadAt(TypedDataContainer& object, ValueLookupBase* lookup, std::shared_ptr<Attachment> attachment, NodeRef node,
            bool readOnly) {
    const WrapperState& state = WrapperAccess::State(*attachment->Wrapper());
    MakeEmpty(object);
    ContainerAccess::SetValid(object, false);
    ContainerAccess::SetNested(object, false);
    ContainerAccess::SetMergeFeature(object, {});
    ContainerAccess::SetLookup(object, lookup);
    ContainerAccess::SetReadOnly(object, readOnly);
    ContainerAccess::Attach(object, std::move(attachment), node);
    const bool success = object.PopulateDataMembers(state.Tree()->View(node));
    ContainerAccess::SetValid(object, success);
    return success;
}

/// Loads from a source of the object's own; nothing happens when the source holds no element of that name.
bool LoadOwn(TypedDataContainer& object, ValueLookupBase* lookup, std::unique_ptr<XMLDataWrapper> source,
             const zelString& name, bool readOnly) {
    if (source == nullptr) {
        return false;
    }
    const WrapperState& state = WrapperAccess::State(*source);
    const NodeRef node = StartNode(state, state.current, name);
    if (node == NodeRef::None) {
        SetNoElementError(object, state, name);
        return false;
    }
    if (object.GetContainerName() != name) {
        object.SetContainerName(name);
    }
    return LoadAt(object, lookup, Attachment::Owning(std::move(source)), node, readOnly);
}

} // namespace

bool Framework::LoadFromNodeOf(TypedDataContainer& object, const TypedDataContainer& original) {
    return Guarded(object, [&] {
        const zelString name = object.GetContainerName();
        const WrapperState* const state = LoadedState(ContainerAccess::Wrapper(original));
        if (state == nullptr) {
            object.SetLastError(-1, "the data packet holds no document");
            return false;
        }
        const NodeRef node = StartNode(*state, ContainerAccess::Node(original), name);
        if (node == NodeRef::None) {
            SetNoElementError(object, *state, name);
            return false;
        }
        return LoadAt(object, ContainerAccess::Lookup(original),
                      Attachment::ForCopy(ContainerAccess::AttachmentOf(original)), node,
                      ContainerAccess::IsReadOnly(original));
    });
}

bool TypedDataContainer::LoadFromTemplate(ValueLookupBase* pLookup, const char* sStore, const char* sXMLName,
                                          const char*, bool bReadOnly) {
    return Guarded(*this, [&] {
        return LoadOwn(*this, pLookup, OpenTemplate(*this, sStore, sXMLName, bReadOnly), sXMLName, bReadOnly);
    });
}

bool TypedDataContainer::LoadFromTemplate(ValueLookupBase* pLookup, const char* sStore, const char* sXMLName,
                                          bool bReadOnly) {
    return LoadFromTemplate(pLookup, sStore, sXMLName, nullptr, bReadOnly);
}

bool TypedDataContainer::LoadFromModel(ValueLookupBase* pLookup, const char* sModel, const char* sXMLName,
                                       bool bReadOnly) {
    return Guarded(*this, [&] {
        return LoadOwn(*this, pLookup, OpenModel(*this, sModel, sXMLName, bReadOnly), sXMLName, bReadOnly);
    });
}

bool TypedDataContainer::LoadFromFile(ValueLookupBase* pLookup, const char* sPath, bool bReadOnly) {
    return Guarded(*this, [&] {
        std::unique_ptr<XMLDataWrapper> source = OpenFile(*this, sPath, bReadOnly);
        if (source == nullptr ||
            StartNode(WrapperAccess::State(*source), NodeRef::None, GetContainerName()) == NodeRef::None) {
            return LoadOwn(*this, pLookup, std::move(source), GetContainerName(), bReadOnly);
        }
        // Before the walk: children and entries take the feature of their parent.
        SetFeatureID(FeatureOf(*source, GetFeatureID()));
        return LoadOwn(*this, pLookup, std::move(source), GetContainerName(), bReadOnly);
    });
}

bool TypedDataContainer::LoadFromDataPacket(ValueLookupBase* pLookup, XMLDataWrapper* pData, bool bReadOnly) {
    return Guarded(*this, [&] {
        const WrapperState* const state = LoadedState(pData);
        if (state == nullptr) {
            SetLastError(-1, "the data packet holds no document");
            return false;
        }
        const NodeRef node = StartNode(*state, state->current, GetContainerName());
        if (node == NodeRef::None) {
            SetNoElementError(*this, *state, GetContainerName());
            return false;
        }
        return LoadAt(*this, pLookup, Attachment::ForTree(*pData), node, bReadOnly);
    });
}

bool TypedDataContainer::LoadFromDOMNode(ValueLookupBase* pLookup, DOMNode* pNode, bool bReadOnly) {
    return Guarded(*this, [&] {
        return LoadOwn(*this, pLookup, OpenDomNode(*this, pNode, bReadOnly), GetContainerName(), bReadOnly);
    });
}

bool TypedDataContainer::PopulateDataMembers(XalanNode*) {
    return true;
}

void TypedDataContainer::ResetDataMembers() {}

bool TypedDataContainer::SetContainedDataPtr(XMLDataWrapper* pData, XalanNode* spNode, bool bReadOnly, bool bNested) {
    return Guarded(*this, [&] {
        const WrapperState* const state = LoadedState(pData);
        const XmlTree* tree = nullptr;
        NodeRef node = NodeViews::Find(spNode, tree);
        if (state != nullptr && spNode == nullptr) {
            tree = state->Tree();
            node = state->Here();
        } else if (state != nullptr && tree != state->Tree()) {
            node = state->HeldDocument(tree) ? state->Translate(node) : NodeRef::None;
            tree = state->Tree();
        }
        if (state == nullptr || node == NodeRef::None || tree->Kind(node) != NodeKind::Element) {
            SetLastError(-1, "%s stands on no element of a loaded document", GetContainerName().c_str());
            return false;
        }
        ContainerAccess::SetReadOnly(*this, bReadOnly);
        ContainerAccess::SetNested(*this, bNested);
        XMLDataWrapper& wrapper = *ContainerAccess::WrapperForParts(*this, pData);
        ContainerAccess::AttachAgain(*this, Attachment::Of(wrapper), node);
        const bool success = PopulateDataMembers(tree->View(node));
        ContainerAccess::SetValid(*this, success);
        return success;
    });
}
