#include "Framework/LoadLimits.h"

#include <limits>
#include <mutex>

namespace {

// All constant-initialised: limits may be asked for while other static objects are still being built.
constinit std::mutex defaultMutex;
constinit LoadLimits defaultLimits;
constinit thread_local const LoadLimits::Scope* innermostScope = nullptr;

} // namespace

LoadLimits LoadLimits::Default() noexcept {
    const std::lock_guard lock(defaultMutex);
    return defaultLimits;
}

void LoadLimits::SetDefault(const LoadLimits& limits) noexcept {
    const std::lock_guard lock(defaultMutex);
    defaultLimits = limits;
}

LoadLimits LoadLimits::Current() noexcept {
    return innermostScope != nullptr ? innermostScope->m_limits : Default();
}

LoadLimits LoadLimits::None() noexcept {
    constexpr std::size_t lifted = std::numeric_limits<std::size_t>::max();
    LoadLimits limits;
    for (std::size_t* const each : {&limits.bytes, &limits.depth, &limits.attributesPerElement, &limits.bytesPerTag,
                                    &limits.nodes, &limits.memory}) {
        *each = lifted;
    }
    limits.cpuSeconds = std::numeric_limits<double>::infinity();
    return limits;
}

LoadLimits::Scope::Scope(const LoadLimits& limits) noexcept : m_limits(limits), m_outer(innermostScope) {
    innermostScope = this;
}

LoadLimits::Scope::~Scope() {
    innermostScope = m_outer;
}
