#include "Framework/ContainerBase/Guarded.h"
#include "Framework/ContainerBase/Sources.h"
#include "Framework/XMLSupport/NodeViews.h"

using namespace Framework;

namespace {

/// What a load populates from, made before anything of the object changes.
struct Origin {
    Origin(std::shared_ptr<Attachment> source, NodeRef where)
        : attachment(std::move(source)), node(where),
          view(WrapperAccess::State(*attachment->Wrapper()).Tree()->View(where)) {}

    std::shared_ptr<Attachment> attachment;
    NodeRef node;
    XalanNode* view;
};

/// Populates an object that stands on the node. A walk that an exception ended has failed, whatever its result: that of
/// a derived class is its parent's then, or its own although the parent's walk has failed.
bool PopulateFrom(TypedDataContainer& object, XalanNode* view) {
    ContainerAccess::SetValid(object, true); // until a walk says otherwise
    const bool success = object.PopulateDataMembers(view) && ContainerAccess::IsValid(object);
    ContainerAccess::SetValid(object, success);
    return success;
}

/// The end of every load: empties the object, stands it on the node, and populates it.
bool LoadAt(TypedDataContainer& object, ValueLookupBase* lookup, Origin origin, bool readOnly) {
    ContainerAccess::SetValid(object, false);
    MakeEmpty(object);
    ContainerAccess::SetNested(object, false);
    ContainerAccess::SetMergeFeature(object, {});
    ContainerAccess::SetLookup(object, lookup);
    ContainerAccess::SetReadOnly(object, readOnly);
    ContainerAccess::Attach(object, std::move(origin.attachment), origin.node);
    return PopulateFrom(object, origin.view);
}

/// Loads from a source of the object's own; nothing happens when the source holds no element of that name. A file may
/// say which feature it belongs to; children and entries take that of their parent, so it is set before the walk.
bool LoadOwn(TypedDataContainer& object, ValueLookupBase* lookup, std::unique_ptr<XMLDataWrapper> source,
             const zelString& name, bool readOnly, bool hasFeature = false) {
    if (source == nullptr) {
        return false;
    }
    const WrapperState& state = WrapperAccess::State(*source);
    const NodeRef node = StartNode(state, state.current, name);
    if (node == NodeRef::None) {
        SetNoElementError(object, state, name);
        return false;
    }
    const zelString feature = hasFeature ? FeatureOf(*source, object.GetFeatureID()) : zelString();
    Origin origin(Attachment::Owning(std::move(source)), node);
    if (hasFeature) {
        object.SetFeatureID(feature);
    }
    if (object.GetContainerName() != name) {
        object.SetContainerName(name);
    }
    return LoadAt(object, lookup, std::move(origin), readOnly);
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
                      Origin(Attachment::ForCopy(ContainerAccess::AttachmentOf(original)), node),
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
        return LoadOwn(*this, pLookup, OpenFile(*this, sPath, bReadOnly), GetContainerName(), bReadOnly, true);
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
        return LoadAt(*this, pLookup, Origin(Attachment::ForTree(*pData), node), bReadOnly);
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
        XMLDataWrapper& wrapper = *ContainerAccess::WrapperForParts(*this, pData);
        XalanNode* const view = tree->View(node);
        ContainerAccess::AttachAgain(*this, Attachment::Of(wrapper), node);
        ContainerAccess::SetReadOnly(*this, bReadOnly);
        ContainerAccess::SetNested(*this, bNested);
        return PopulateFrom(*this, view);
    });
}
