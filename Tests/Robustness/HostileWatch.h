#pragma once

#include <cstddef>
#include <functional>
#include <string>
#include <string_view>
#include <vector>

namespace Robustness {

/// Built with a sanitizer: memory figures mean nothing then, and everything takes many times as long.
#if defined(__SANITIZE_ADDRESS__) || defined(__SANITIZE_THREAD__)
inline constexpr bool kSanitized = true;
#else
inline constexpr bool kSanitized = false;
#endif

struct Cost {
    double milliseconds = 0; ///< of processor time
    double megabytes = 0;    ///< above what the process held before
};

/// What a watched process can say while it works. Kept in memory that its parent shares: nothing is lost when it dies.
class Watch {
public:
    explicit Watch(struct WatchBoard& board) : m_board(board) {}

    /// Names the step that begins: told when the process does not come back from it.
    void At(std::string_view step);
    void Fail(const std::string& failure);
    /// A fact for the parent.
    void Tell(const std::string& fact);
    Cost Measure(const std::function<void()>& work);

private:
    struct WatchBoard& m_board;
};

struct Watched {
    std::vector<std::string> failures; ///< what the work found, and how the process died if it did
    std::vector<std::string> facts;
    /// Every system call that reaches beyond memory, time and open descriptors: "openat /etc/passwd",
    /// "connect 127.0.0.1:80". In the order of the calls.
    std::vector<std::string> reached;
};

/// Runs the work in a process of its own, which is ended when it uses more processor time than given. From the moment
/// the work begins the kernel hands every system call but the harmless ones to the watch, whoever makes it; they are
/// carried out all the same, but for those that start programs or processes. (A call made while signals are blocked
/// ends the process.)
Watched RunWatched(unsigned mostSeconds, const std::function<void(Watch&)>& work);

} // namespace Robustness
