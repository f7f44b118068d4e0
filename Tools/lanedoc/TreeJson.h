#pragma once

#include <string>

#include "TreeNode.h"

namespace Lanedoc {

/// The tree below a node for programs: `{"format": 1, "root", "path", "class", "value"}`, fields in the order of the
/// class. Lists are arrays; entries of a keyed list of texts are objects of `key` and `value`. Numbers and bools are
/// JSON's own, what JSON has no number for is a text. Defaults are left out when `defaults` is false.
std::string TreeAsJson(const TreeNode& node, const std::string& rootName, bool defaults);

} // namespace Lanedoc
