#pragma once

#include <string>

#include "TreeNode.h"

namespace Lanedoc {

/// The tree below a node for programs, in the shape that Docs/JsonFormat.md promises. Values that are only defaults are
/// named as such, or left out when `defaults` is false.
std::string TreeAsJson(const TreeNode& node, const std::string& rootName, bool defaults);

} // namespace Lanedoc
