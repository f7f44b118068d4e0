#include "Framework/XMLSupport/TreeReading.h"

namespace Framework {

std::string CDataOf(const XmlTree& tree, NodeRef element) {
    std::string room;
    std::string text;
    std::size_t endOfLastSection = 0;
    bool inside = false;
    for (NodeRef child = tree.FirstChild(element); child != NodeRef::None; child = tree.NextSibling(child)) {
        const NodeKind kind = tree.Kind(child);
        inside = inside || kind == NodeKind::CData;
        if (inside && IsText(kind)) {
            text.append(tree.Value(child, room));
        }
        if (kind == NodeKind::CData) {
            endOfLastSection = text.size();
        }
    }
    if (!inside) {
        return TextOf(tree, element);
    }
    text.resize(endOfLastSection);
    return text;
}

std::string AttributeOf(const XmlTree& tree, NodeRef element, std::string_view name) {
    const NodeRef attribute = FindAttribute(tree, element, name);
    return attribute == NodeRef::None ? std::string() : TextOf(tree, attribute);
}

NodeRef LastChildNamed(const XmlTree& tree, NodeRef element, std::string_view name) {
    for (NodeRef child = tree.LastChild(element); child != NodeRef::None; child = tree.PreviousSibling(child)) {
        if (tree.Kind(child) == NodeKind::Element && tree.Name(child) == name) {
            return child;
        }
    }
    return NodeRef::None;
}

NodeRef NextInOrder(const XmlTree& tree, NodeRef node, NodeRef top) {
    if (const NodeRef child = tree.FirstChild(node); child != NodeRef::None) {
        return child;
    }
    while (node != top && node != NodeRef::None) {
        if (const NodeRef next = tree.NextSibling(node); next != NodeRef::None) {
            return next;
        }
        node = tree.Parent(node);
    }
    return NodeRef::None;
}

NodeRef FirstDescendantNamed(const XmlTree& tree, NodeRef top, std::string_view name) {
    for (NodeRef node = top; node != NodeRef::None; node = NextInOrder(tree, node, top)) {
        if (tree.Kind(node) == NodeKind::Element && tree.Name(node) == name) {
            return node;
        }
    }
    return NodeRef::None;
}

} // namespace Framework
