#pragma once

#include <ctime>

namespace Bench {

inline double Seconds(clockid_t clock) {
    timespec now{};
    clock_gettime(clock, &now);
    return static_cast<double>(now.tv_sec) + 1e-9 * static_cast<double>(now.tv_nsec);
}

/// Processor time of the calling thread: what other programs do on the machine is not in it, but for cold caches.
inline double ThreadSeconds() {
    return Seconds(CLOCK_THREAD_CPUTIME_ID);
}
inline double WallSeconds() {
    return Seconds(CLOCK_MONOTONIC);
}

} // namespace Bench
