#pragma once

#include <atomic>

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
    void lock() noexcept {
        int state = Free;
        if (!m_State.compare_exchange_strong(state, Held, std::memory_order_acquire, std::memory_order_relaxed)) {
            WaitAndLock();
        }
    }
    void readLock() noexcept { lock(); }
    void writeLock() noexcept { lock(); }

    /// Only for the thread that holds the mutex.
    void unlock() noexcept {
        if (m_State.exchange(Free, std::memory_order_release) == HeldAndWaitedFor) {
            m_State.notify_one();
        }
    }

private:
    enum : int { Free, Held, HeldAndWaitedFor };

    /// Whoever got here cannot know whether others wait too, so it holds the mutex as one that is waited for.
    void WaitAndLock() noexcept {
        while (m_State.exchange(HeldAndWaitedFor, std::memory_order_acquire) != Free) {
            m_State.wait(HeldAndWaitedFor, std::memory_order_relaxed);
        }
    }

    std::atomic<int> m_State = Free; // a std::mutex is ten times as large, and there is one in each of many small lists
};

/// Scheduling calls of the operating system.
class LinuxThreadTools {
public:
    LinuxThreadTools() = delete;

    /// Lets other threads that are ready to run go first; returns at once when there are none.
    static void LinuxYieldThread() noexcept { sched_yield(); }
};

} // namespace Zelvon
