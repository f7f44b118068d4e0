#pragma once

#include "Framework/XMLSupport/XmlTree.h"

#include <cstddef>
#include <string>
#include <unordered_map>

namespace Framework {

/// Positions that were counted for earlier paths, by parent: of the errors about the entries of a list each counts on
/// from the one before, where it would cost the list. Good until an element comes or goes.
struct CountedPositions {
    struct Counted {
        NodeRef element;
        std::size_t before; ///< elements of its name that stand before it
    };
    std::unordered_map<NodeRef, Counted> byParent;
};

/// Where a node stands, for messages: "StateTable/State[2]/Value", an attribute as "State[2]/@Name", other nodes by the
/// element they stand in. Positions, from 1 and among elements of the same name, only where there is more than one. Of
/// deep trees the upper elements are left out. Bytes that are no printable text are shown as "?".
std::string NodePath(const XmlTree& tree, NodeRef node, CountedPositions* counted = nullptr);

} // namespace Framework
