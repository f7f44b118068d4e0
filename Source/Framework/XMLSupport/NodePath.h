#pragma once

#include "Framework/XMLSupport/XmlTree.h"

#include <string>

namespace Framework {

/// Where a node stands, for messages: "StateTable/State[2]/Value", an attribute as "State[2]/@Name", other nodes by the
/// element they stand in. Positions, from 1 and among elements of the same name, only where there is more than one. Of
/// deep trees the upper elements are left out. Bytes that are no printable text are shown as "?".
std::string NodePath(const XmlTree& tree, NodeRef node);

} // namespace Framework
