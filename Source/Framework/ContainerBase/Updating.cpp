#include "Framework/ContainerBase/ContainerAccess.h"
#include "Framework/XMLSupport/PathError.h"

using namespace Framework;

namespace {

/// The position from 1 of an element among its namesakes.
std::size_t PositionOf(const XmlTree& tree, NodeRef element) {
    std::size_t position = 1;
    for (NodeRef node = tree.PreviousSibling(element); node != NodeRef::None; node = tree.PreviousSibling(node)) {
        position += tree.Kind(node) == NodeKind::Element && tree.Name(node) == tree.Name(element) ? 1 : 0;
    }
    return position;
}

/// Whether a query relative to `parent` finds just that node. One that can be read in two ways does not.
bool Selects(WrapperState& state, NodeRef parent, const zelString& query, NodeRef node) {
    const NodeRef before = std::exchange(state.current, parent);
    NodeRef found = NodeRef::None;
    try {
        found = state.Find(query, false);
    } catch (const PathError&) {
        found = NodeRef::None;
    } catch (...) {
        state.current = before;
        throw;
    }
    state.current = before;
    return found == node;
}

} // namespace

bool TypedDataContainer::UpdateContainedData() {
    return true;
}

zelString TypedDataContainer::BuildUpdateQuery(zelString sXMLName, TypedDataContainer* pEntry) {
    if (pEntry == nullptr) {
        return sXMLName;
    }
    const zelString attributes = pEntry->GetAttributeList();
    const zelString byIdentity = attributes.empty() ? sXMLName : zelString(sXMLName + "[" + attributes + "]");
    XMLDataWrapper* const wrapper = ContainerAccess::Wrapper(*this);
    const NodeRef node = ContainerAccess::Node(*pEntry);
    if (wrapper == nullptr || wrapper != ContainerAccess::Wrapper(*pEntry) || node == NodeRef::None) {
        return byIdentity;
    }
    WrapperState& state = WrapperAccess::State(*wrapper);
    const NodeRef parent = ContainerAccess::Node(*this);
    const bool isOwnEntry =
        state.Tree()->Parent(node) == parent && state.Tree()->Name(node) == std::string_view(sXMLName);
    if (!isOwnEntry || Selects(state, parent, byIdentity, node)) {
        return byIdentity;
    }
    return sXMLName + "[" + SupportFunc::GetStrValue(static_cast<long>(PositionOf(*state.Tree(), node))) + "]";
}
