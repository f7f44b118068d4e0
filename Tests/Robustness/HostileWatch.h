#pragma once

#include <functional>
#include <string>
#include <vector>

#include <sys/resource.h>

namespace Robustness {

/// Built with a sanitizer: memory figures mean nothing then, and everything takes many times as long.
#if defined(__SANITIZE_ADDRESS__) || defined(__SANITIZE_THREAD__)
inline constexpr bool kSanitized = true;
#else
inline constexpr bool kSanitized = false;
#endif

/// The most memory that the work takes, above what the process held before.
double MegabytesOf(const std::function<void()>& work);

/// The files that the work opens or tries to, in this order, by the fault shim; "*" stands for a socket.
std::vector<std::string> ReachedBy(const std::string& log, const std::function<void()>& work);

/// While it lives no bomb that goes off hurts others: the process ends first.
class ProcessLimits {
public:
    ProcessLimits();
    ~ProcessLimits();
    ProcessLimits(const ProcessLimits&) = delete;
    ProcessLimits& operator=(const ProcessLimits&) = delete;

    /// So much processor time from here on.
    void GiveSeconds(rlim_t seconds) const;

private:
    rlimit m_memory = {}; ///< as they were
    rlimit m_time = {};
};

} // namespace Robustness
