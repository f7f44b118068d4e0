#pragma once

#include <cstddef>
#include <string>
#include <vector>

#include "Framework/ContainerCatalog.h"
#include "Snapshot.h"

namespace Lanedoc {

/// One place at which a tree differs from what it was.
struct Difference {
    enum class Kind { Added, Changed, Replaced, Removed, Moved };

    Kind kind = Kind::Changed;
    /// The steps to the place; those of a removed entry are those of the tree before.
    std::vector<std::string> path;
    /// Containers: how many values stood and stand there.
    std::size_t valuesBefore = 0;
    std::size_t valuesAfter = 0;
    /// Texts: the text before and after.
    bool isText = false;
    std::string before;
    std::string after;
    /// Changed: the text before was only the default.
    bool beforeIsDefault = false;
    /// Moved: the steps of the entries it stood behind and stands behind; empty for the first. `behindAfter` also of an
    /// entry that was added in front of others.
    std::string behindBefore;
    std::string behindAfter;
    bool isPlaced = false; ///< `behindAfter` says where
};

/// Compares a tree with what it was, in the order of the tree now. Entries of keyed lists are compared by key, those
/// of plain lists by position. Of a list whose order changed, the fewest entries possible are told as moved. An entry
/// or child that stands on other XML than before was replaced; how it differs follows, as it does behind one that
/// moved. Takes time in proportion to both trees, times the logarithm of the longest keyed list.
std::vector<Difference> CompareTrees(const Snapshot& before, TypedDataContainer& after);

} // namespace Lanedoc
