#pragma once

#include <cstdlib>
#include <string_view>

namespace Robustness {

/// Whether this run takes the full sizes (ctest label "full") or the small ones that every `./test` has time for.
inline bool FullSizes() {
    const char* const sizes = std::getenv("FRAMEWORK_ROBUSTNESS");
    return sizes != nullptr && std::string_view(sizes) == "full";
}

} // namespace Robustness
