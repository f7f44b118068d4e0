#pragma once

#include <mutex>

#include <sched.h>

namespace Zelvon {

/// A mutual exclusion. `readLock` and `writeLock` are both `lock` and only tell the kind of access, so readers exclude
/// each other too; each is ended by `unlock`. Not recursive: a thread that holds it must not lock it again.
class SyncMutex {
public:
    SyncMutex() = default;
    SyncMutex(const SyncMutex&) = delete;
    SyncMutex& operator=(const SyncMutex&) = delete;

    /// Waits until no other thread holds the mutex, then holds it.
    void lock() { m_Mutex.lock(); }
    void readLock() { lock(); }
    void writeLock() { lock(); }

    /// Only for the thread that holds the mutex.
    void unlock() { m_Mutex.unlock(); }

private:
    std::mutex m_Mutex;
};

/// Scheduling calls of the operating system.
class LinuxThreadTools {
public:
    LinuxThreadTools() = delete;

    /// Lets other threads that are ready to run go first; returns at once when there are none.
    static void LinuxYieldThread() noexcept { sched_yield(); }
};

} // namespace Zelvon
