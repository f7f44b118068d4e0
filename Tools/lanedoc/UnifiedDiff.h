#pragma once

#include <cstddef>
#include <string>
#include <string_view>

#include "Output.h"

namespace Lanedoc {

/// How a difference is printed.
struct DiffLook {
    /// Unchanged lines around each change.
    std::size_t context = 3;
    /// For a person's eyes: control characters are made visible. Without it the bytes are exact, as `patch` wants them.
    bool forTerminal = false;
    Style style{false};
};

/// The difference between two texts of one file as a unified diff; empty when there is none.
std::string UnifiedDiff(const std::string& file, std::string_view before, std::string_view after, const DiffLook& look);

} // namespace Lanedoc
