#pragma once

#include <ctime>

namespace Framework {

/// Processor time that the calling thread has spent so far.
inline double ThreadSeconds() {
    timespec now{};
    ::clock_gettime(CLOCK_THREAD_CPUTIME_ID, &now);
    return static_cast<double>(now.tv_sec) + static_cast<double>(now.tv_nsec) * 1e-9;
}

} // namespace Framework
