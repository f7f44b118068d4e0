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

/// What a watched process can say while it works. Kept in memory that its parent shares: nothing is lost when it dies.
class Watch {
public:
    explicit Watch(struct WatchBoard& board) : m_board(board) {}

    /// Names the step that begins: told when the process does not come back from it.
    void At(std::string_view step);
    void Fail(const std::string& failure);
    /// The most memory that the work takes, above what the process held before.
    double MegabytesOf(const std::function<void()>& work);

private:
    struct WatchBoard& m_board;
};

struct Watched {
    std::vector<std::string> failures; ///< what the work found, and how the process died if it did
    /// Every system call that reaches beyond memory, time and open descriptors: "openat /etc/passwd", or its number
    /// where it takes no path. In the order of the calls.
    std::vector<std::string> reached;
};

/// Runs the work in a process of its own, which is ended when it uses more processor time than given. From the moment
/// the work begins the kernel hands every system call but the harmless ones to the watch, whoever makes it; those with
/// a path are carried out all the same, any other is refused. (A call made while signals are blocked ends the process.)
Watched RunWatched(unsigned mostSeconds, const std::function<void(Watch&)>& work);

} // namespace Robustness
