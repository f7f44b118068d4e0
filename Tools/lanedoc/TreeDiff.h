#pragma once

#include <cstddef>
#include <string>
#include <vector>

#include "Framework/ContainerCatalog.h"

namespace Lanedoc {

/// One place at which two trees differ.
struct Difference {
    enum class Kind { Added, Removed, Changed, Moved };

    Kind kind = Kind::Changed;
    /// The steps to the place; those of a removed entry are those of the tree before.
    std::vector<std::string> path;
    /// Added and Removed: how many values stand there, 0 for a single text, which `before` or `after` then holds.
    std::size_t values = 0;
    bool isText = false;
    std::string before;
    std::string after;
    /// Changed: the text before was only the default.
    bool beforeIsDefault = false;
    /// Moved: the step of the entry in front of it now; empty for the first.
    std::string behind;
};

/// Compares two trees of one class, in the order of the tree after. Entries of keyed lists are compared by key, those
/// of plain lists by position. Takes time in proportion to both trees, times the logarithm of the longest list where
/// entries moved.
std::vector<Difference> CompareTrees(TypedDataContainer& before, TypedDataContainer& after);

/// Values that a tree holds beyond the defaults: set scalars and the texts of lists.
std::size_t CountValues(TypedDataContainer& tree);

} // namespace Lanedoc
