#pragma once

#include <algorithm>
#include <functional>
#include <map>
#include <mutex>
#include <new>
#include <type_traits>
#include <utility>
#include <vector>

#include "Framework/SyncTools.h"

namespace Zelvon {

/// A mutex together with the object that it guards: the monitor itself is the lock. The object is not owned.
template <typename T, typename Mutex> class SyncMonitor : public Mutex {
public:
    /// `pGuarded` must outlive every use that is made of it through this monitor.
    explicit SyncMonitor(T* pGuarded) noexcept : m_pGuarded(pGuarded) {}

protected:
    T* m_pGuarded;
};

/// A map with a lock of its own, for values that are pointers. Who owns the values is the user's matter: they are
/// deleted by `clearMap(true)` alone; the destructor deletes none.
///
/// Each operation locks for itself and gives the lock back however it ends, also when a copy of a key or value throws.
/// Not copyable: the monitor points at the map inside.
template <typename K, typename V> class SyncMap : public SyncMonitor<std::map<K, V>, SyncMutex> {
    static_assert(std::is_pointer_v<V>, "a SyncMap holds pointers");

public:
    SyncMap() : SyncMonitor<std::map<K, V>, SyncMutex>(&m_Map) {}

    /// Looks `key` up. Found: `value` takes the stored pointer, and the result is true. Else `value` is untouched and
    /// the result is false. With `bLock` false the caller holds the lock already.
    bool getValue(const K& key, V& value, bool bLock) {
        std::unique_lock<SyncMutex> guard;
        if (bLock) {
            guard = ReadGuard();
        }
        const auto found = m_Map.find(key);
        if (found == m_Map.end()) {
            return false;
        }
        value = found->second;
        return true;
    }

    /// Puts `value` under `key`. A key that was there: its pointer is replaced, not deleted, `*previousValue` takes the
    /// old one unless `previousValue` is null, and the result is true. A new key: the result is false. When memory runs
    /// out, std::bad_alloc is thrown and the map is as it was.
    bool setValue(const K& key, const V& value, V* previousValue) {
        const auto guard = WriteGuard();
        const auto [entry, inserted] = m_Map.try_emplace(key, value);
        if (inserted) {
            return false;
        }
        const V previous = std::exchange(entry->second, value);
        if (previousValue) {
            *previousValue = previous;
        }
        return true;
    }

    /// Empties the map; with `bDelete` true it deletes the values first, in key order and under the lock. A value under
    /// several keys is deleted once, under the first of them. An exception from a destructor is dropped, and the next
    /// value's turn comes. Destructors must not use this map. Throws nothing.
    void clearMap(bool bDelete) noexcept {
        const auto guard = WriteGuard();
        if (bDelete) {
            KeepFirstOfEachValue();
            for (auto& entry : m_Map) {
                DeleteValue(std::exchange(entry.second, nullptr));
            }
        }
        m_Map.clear();
    }

    /// The map itself, unguarded: the caller holds the lock for as long as it uses what this returns, or knows that no
    /// other thread uses the map.
    std::map<K, V>& contents() noexcept { return m_Map; }
    const std::map<K, V>& contents() const noexcept { return m_Map; }

private:
    std::unique_lock<SyncMutex> ReadGuard() {
        this->readLock();
        return std::unique_lock<SyncMutex>(*this, std::adopt_lock);
    }

    std::unique_lock<SyncMutex> WriteGuard() {
        this->writeLock();
        return std::unique_lock<SyncMutex>(*this, std::adopt_lock);
    }

    static void DeleteValue(V value) noexcept {
        static_assert(sizeof(std::remove_pointer_t<V>) > 0, "the class must be known to be deleted");
        try {
            delete value;
        } catch (...) {
            // One entry that fails to end must not keep the others alive.
        }
    }

    /// Nulls every pointer that stands under an earlier key too.
    void KeepFirstOfEachValue() noexcept {
        try {
            std::vector<V*> slots;
            slots.reserve(m_Map.size());
            for (auto& entry : m_Map) {
                slots.push_back(&entry.second);
            }
            std::stable_sort(slots.begin(), slots.end(), [](V* a, V* b) { return std::less<V>()(*a, *b); });
            V last = nullptr;
            for (V* slot : slots) {
                if (*slot == last) {
                    *slot = nullptr;
                } else {
                    last = *slot;
                }
            }
        } catch (const std::bad_alloc&) {
            KeepFirstOfEachValueInPlace();
        }
    }

    /// Slow, but asks for no memory: a map must come empty also when there is none.
    void KeepFirstOfEachValueInPlace() noexcept {
        for (auto first = m_Map.begin(); first != m_Map.end(); ++first) {
            for (auto later = std::next(first); first->second && later != m_Map.end(); ++later) {
                if (later->second == first->second) {
                    later->second = nullptr;
                }
            }
        }
    }

    std::map<K, V> m_Map;
};

} // namespace Zelvon
