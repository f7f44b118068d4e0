#pragma once

#include "Framework/XMLSupport/XmlTree.h"

namespace Framework {

/// All text and CDATA that stands directly in the element, joined; the value of any other node.
std::string TextOf(const XmlTree& tree, NodeRef node);

/// The same without a copy where the text stands in one piece. The view points into the tree or into `room`.
std::string_view TextIn(const XmlTree& tree, NodeRef node, std::string& room);

/// From the first CDATA section to the last, the text between them included; without a section as TextOf.
std::string CDataOf(const XmlTree& tree, NodeRef element);

/// The attribute of that exact name, or None.
NodeRef FindAttribute(const XmlTree& tree, NodeRef element, std::string_view name);

/// Value of the attribute, empty when it is not there.
std::string AttributeOf(const XmlTree& tree, NodeRef element, std::string_view name);

/// The last child element of that exact name, or None: where a name stands more than once, the last one counts.
NodeRef LastChildNamed(const XmlTree& tree, NodeRef element, std::string_view name);

/// The first node of the subtree, in document order and `top` included, that is an element of that name, or None.
NodeRef FirstDescendantNamed(const XmlTree& tree, NodeRef top, std::string_view name);

/// The node that follows in document order within the subtree of `top`, or None behind its end. Walks without
/// recursion.
NodeRef NextInOrder(const XmlTree& tree, NodeRef node, NodeRef top);

} // namespace Framework
