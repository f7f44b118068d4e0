#pragma once

#include "Framework/XMLSupport/XmlTree.h"

namespace Framework {

// Those that a load calls for every node take the tree as what it is, so that reading a document is no virtual call.

constexpr bool IsText(NodeKind kind) {
    return kind == NodeKind::Text || kind == NodeKind::CData;
}

/// All text and CDATA that stands directly in the element, joined; the value of any other node.
template <typename Tree> std::string TextOf(const Tree& tree, NodeRef node) {
    std::string room;
    if (tree.Kind(node) != NodeKind::Element) {
        return std::string(tree.Value(node, room));
    }
    std::string text;
    for (NodeRef child = tree.FirstChild(node); child != NodeRef::None; child = tree.NextSibling(child)) {
        if (IsText(tree.Kind(child))) {
            text.append(tree.Value(child, room));
        }
    }
    return text;
}

/// The same without a copy where the text stands in one piece. The view points into the tree or into `room`.
template <typename Tree> std::string_view TextIn(const Tree& tree, NodeRef node, std::string& room) {
    if (tree.Kind(node) != NodeKind::Element) {
        return tree.Value(node, room);
    }
    const NodeRef child = tree.FirstChild(node);
    if (child == NodeRef::None) {
        return {};
    }
    if (IsText(tree.Kind(child)) && tree.NextSibling(child) == NodeRef::None) {
        return tree.Value(child, room);
    }
    room = TextOf(tree, node);
    return room;
}

/// From the first CDATA section to the last, the text between them included; without a section as TextOf.
std::string CDataOf(const XmlTree& tree, NodeRef element);

/// The attribute of that exact name, or None.
template <typename Tree> NodeRef FindAttribute(const Tree& tree, NodeRef element, std::string_view name) {
    NodeRef attribute = tree.FirstAttribute(element);
    while (attribute != NodeRef::None && tree.Name(attribute) != name) {
        attribute = tree.NextSibling(attribute);
    }
    return attribute;
}

/// Value of the attribute, empty when it is not there. The view points into the tree or into `room`.
template <typename Tree>
std::string_view AttributeIn(const Tree& tree, NodeRef element, std::string_view name, std::string& room) {
    const NodeRef attribute = FindAttribute(tree, element, name);
    return attribute == NodeRef::None ? std::string_view() : tree.Value(attribute, room);
}

/// The same as a text of its own.
std::string AttributeOf(const XmlTree& tree, NodeRef element, std::string_view name);

/// The last child element of that exact name, or None: where a name stands more than once, the last one counts.
NodeRef LastChildNamed(const XmlTree& tree, NodeRef element, std::string_view name);

/// The first node of the subtree, in document order and `top` included, that is an element of that name, or None.
NodeRef FirstDescendantNamed(const XmlTree& tree, NodeRef top, std::string_view name);

/// The node that follows in document order within the subtree of `top`, or None behind its end. Walks without
/// recursion.
NodeRef NextInOrder(const XmlTree& tree, NodeRef node, NodeRef top);

} // namespace Framework
