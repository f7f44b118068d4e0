#pragma once

/// Memory that runs out on demand, for this thread alone. While an object of this class lives, request number `k` from
/// its start on is refused, or that and every later one.
///
/// Requests are those of every operator new of the process: Xerces, Xalan and the standard library come to it too. With
/// Level::Malloc they are those of malloc, calloc and realloc, and so also the C libraries'; the sanitizers have a
/// malloc of their own, under which nothing is refused at that level.
class FailingMemory {
public:
    enum class Level { New, Malloc };

    FailingMemory(long k, bool fromThenOn, Level level = Level::New);
    ~FailingMemory();
    FailingMemory(const FailingMemory&) = delete;
    FailingMemory& operator=(const FailingMemory&) = delete;

    /// Whether a request was refused so far.
    static bool HasFailed();
    static bool CanFailMalloc();
};
