#include "Framework/LoadLimits.h"

#include <limits>
#include <mutex>

namespace {

// Both constant-initialised: limits may be asked for while other static objects are still being built.
constinit std::mutex defaultMutex;
constinit LoadLimits defaultLimits;

} // namespace

LoadLimits LoadLimits::Default() noexcept {
    const std::lock_guard lock(defaultMutex);
    return defaultLimits;
}

void LoadLimits::SetDefault(const LoadLimits& limits) noexcept {
    const std::lock_guard lock(defaultMutex);
    defaultLimits = limits;
}

LoadLimits LoadLimits::None() noexcept {
    constexpr std::size_t lifted = std::numeric_limits<std::size_t>::max();
    return {lifted, lifted, lifted, lifted, std::numeric_limits<double>::infinity()};
}
