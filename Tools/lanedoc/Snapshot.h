#pragma once

#include <cstddef>
#include <memory>
#include <string>
#include <vector>

#include "Framework/ContainerCatalog.h"

namespace Lanedoc {

struct Snapshot;

/// An entry of a list, or a child.
struct SnapshotEntry {
    std::string key;                     ///< of a keyed list
    std::string text;                    ///< of a list of texts
    std::unique_ptr<Snapshot> container; ///< of all others
};

/// What a container held at one moment, for a comparison when the container itself has gone on.
struct Snapshot {
    /// The XML that it stood on. Only to be compared, for the wrapper may be gone by now.
    const XMLDataWrapper* document = nullptr;
    bool valid = false;
    /// Values beyond the defaults, here and below: set scalars and the texts of lists.
    std::size_t values = 0;
    /// Of the scalar fields, in the order of the fields.
    std::vector<std::string> scalars;
    /// Of the other fields, in the order of the fields; of a child, one entry or none.
    std::vector<std::vector<SnapshotEntry>> lists;
};

/// Takes time and memory in proportion to the tree.
Snapshot TakeSnapshot(TypedDataContainer& tree);

} // namespace Lanedoc
