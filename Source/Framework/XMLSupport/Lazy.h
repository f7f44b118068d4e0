#pragma once

#include <atomic>
#include <memory>
#include <mutex>

namespace Framework {

/// An object that is made when it is first asked for, by whichever thread comes first; the others wait. When making it
/// throws, the next call tries again.
///
/// Not std::call_once: an exception on its way through that makes the C library look for memory of its own, and ends
/// the process where there is none.
template <typename Type> class Lazy {
public:
    template <typename Make> Type& Get(Make make) {
        if (Type* const made = m_made.load(std::memory_order_acquire)) {
            return *made;
        }
        const std::lock_guard lock(m_mutex);
        if (m_owned == nullptr) {
            m_owned = make();
            m_made.store(m_owned.get(), std::memory_order_release);
        }
        return *m_owned;
    }

    /// Null when nobody has asked for it yet.
    Type* IfMade() const { return m_made.load(std::memory_order_acquire); }

private:
    std::atomic<Type*> m_made = nullptr;
    std::unique_ptr<Type> m_owned;
    std::mutex m_mutex;
};

} // namespace Framework
