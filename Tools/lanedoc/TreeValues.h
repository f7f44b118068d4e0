#pragma once

#include <functional>
#include <string>

#include "Framework/ContainerCatalog.h"

namespace Lanedoc {

/// One scalar, or one text of a list, of a tree.
struct TreeValue {
    const CatalogField& field;
    TypedDataContainer& object; ///< that holds it
    std::string path;
    std::string text;
};

/// Visits all values of the tree in the order of the fields, which is that of a dump. Takes time in proportion to the
/// tree and the paths.
void ForEachValue(TypedDataContainer& tree, const std::function<void(const TreeValue&)>& visit);

} // namespace Lanedoc
