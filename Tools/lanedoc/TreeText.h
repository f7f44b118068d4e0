#pragma once

#include <string>

#include "Output.h"
#include "TreeNode.h"

namespace Lanedoc {

/// The tree below a node for people: one line for each value and each container, steps as in paths, values in columns.
/// A value that is only a default is marked, or left out when `defaults` is false.
std::string TreeAsText(const TreeNode& node, const std::string& rootName, bool defaults, const Style& style);

} // namespace Lanedoc
