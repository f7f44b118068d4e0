#pragma once

#include <algorithm>
#include <functional>
#include <map>
#include <memory>
#include <mutex>
#include <new>
#include <string>
#include <string_view>
#include <type_traits>
#include <utility>
#include <vector>

#include "Framework/PointersByText.h"
#include "Framework/SyncTools.h"

namespace Zelvon {

/// A mutex together with the object that it guards: the monitor itself is the lock. The object is not owned.
template <typename T, typename Mutex> class SyncMonitor : public Mutex {
public:
    /// `pGuarded` must outlive every use that is made of it through this monitor; null when there is none yet.
    explicit SyncMonitor(T* pGuarded) noexcept : m_pGuarded(pGuarded) {}

protected:
    T* m_pGuarded; ///< null until there is one
};

/// A map with a lock of its own, for values that are pointers. Who owns the values is the user's matter: they are
/// deleted by `clearMap(true)` alone; the destructor deletes none.
///
/// Each operation locks for itself and gives the lock back however it ends, also when a copy of a key or value throws.
/// Not copyable.
///
/// Keys that are texts are looked up in a hash table; the std::map is made, and used from then on, when `contents` is
/// first called. Other keys stand in it from the start.
template <typename K, typename V> class SyncMap : public SyncMonitor<std::map<K, V>, SyncMutex> {
    static_assert(std::is_pointer_v<V>, "a SyncMap holds pointers");
    using Map = std::map<K, V>;
    static constexpr bool hasTextKeys = std::is_base_of_v<std::string, K>;

public:
    SyncMap() : SyncMonitor<Map, SyncMutex>(nullptr) {
        if constexpr (!hasTextKeys) {
            this->m_pGuarded = new Map;
        }
    }
    ~SyncMap() { delete this->m_pGuarded; }
    SyncMap(const SyncMap&) = delete;
    SyncMap& operator=(const SyncMap&) = delete;

    /// Looks `key` up. Found: `value` takes the stored pointer, and the result is true. Else `value` is untouched and
    /// the result is false. With `bLock` false the caller holds the lock already.
    bool getValue(const K& key, V& value, bool bLock) {
        std::unique_lock<SyncMutex> guard;
        if (bLock) {
            guard = ReadGuard();
        }
        if (this->m_pGuarded == nullptr) {
            void* const* const found = m_Texts.Find(TextOf(key));
            if (found != nullptr) {
                value = static_cast<V>(*found);
            }
            return found != nullptr;
        }
        const auto found = this->m_pGuarded->find(key);
        if (found == this->m_pGuarded->end()) {
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
        V previous = nullptr;
        if (this->m_pGuarded != nullptr) {
            const auto [entry, inserted] = this->m_pGuarded->try_emplace(key, value);
            if (inserted) {
                return false;
            }
            previous = std::exchange(entry->second, value);
        } else if (void** const found = m_Texts.AddOrFind(TextOf(key), value)) {
            previous = static_cast<V>(std::exchange(*found, value));
        } else {
            return false;
        }
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
            if (this->m_pGuarded != nullptr) {
                KeepFirstOfEachValue(*this->m_pGuarded);
                for (auto& entry : *this->m_pGuarded) {
                    DeleteValue(std::exchange(entry.second, nullptr));
                }
            }
            m_Texts.TakeOutInOrder([](void* value) { DeleteValue(static_cast<V>(value)); });
        }
        m_Texts.Clear();
        if (this->m_pGuarded != nullptr) {
            this->m_pGuarded->clear();
        }
    }

    /// The value under a text; null when there is none. With `bLock` false the caller holds the lock already.
    V findValue(std::string_view key, bool bLock) requires hasTextKeys {
        std::unique_lock<SyncMutex> guard;
        if (bLock) {
            guard = ReadGuard();
        }
        if (this->m_pGuarded != nullptr) {
            const auto found = this->m_pGuarded->find(K(key.data(), key.size()));
            return found == this->m_pGuarded->end() ? nullptr : found->second;
        }
        void* const* const found = m_Texts.Find(key);
        return found == nullptr ? nullptr : static_cast<V>(*found);
    }

    /// Makes room for a value that addValue will bring, unless it stands in the std::map. Throws std::bad_alloc.
    void makeRoomFor(std::string_view key) requires hasTextKeys {
        const auto guard = WriteGuard();
        if (this->m_pGuarded == nullptr) {
            m_Texts.MakeRoomFor(key);
        }
    }

    /// Puts `value` under a text that is not there, which the caller has just found out. Fails as setValue does.
    void addValue(std::string_view key, V value) requires hasTextKeys {
        const auto guard = WriteGuard();
        if (this->m_pGuarded != nullptr) {
            this->m_pGuarded->emplace(K(key.data(), key.size()), value);
        } else {
            m_Texts.AddAbsent(key, value);
        }
    }

    // The following lock nothing: the caller holds the lock, or knows that no other thread uses the map.

    /// Number of keys.
    std::size_t size() const noexcept {
        return this->m_pGuarded == nullptr ? m_Texts.Size() : this->m_pGuarded->size();
    }

    /// Takes a key out; its value is not deleted. False when it is not there.
    bool removeKey(const K& key) {
        return this->m_pGuarded == nullptr ? m_Texts.Remove(TextOf(key)) : this->m_pGuarded->erase(key) != 0;
    }

    /// Takes out all keys that lead to a value of which `test` says so; needs no memory.
    template <typename Test> void removeValuesIf(Test test) {
        if (this->m_pGuarded == nullptr) {
            m_Texts.RemoveIf([&](const PointersByText::Entry& entry) { return test(static_cast<V>(entry.value)); });
        } else {
            std::erase_if(*this->m_pGuarded, [&](const auto& item) { return test(item.second); });
        }
    }

    /// Hands every value to `work`, once for each of its keys, in no order that means anything.
    template <typename Work> void forEachValue(Work work) const {
        if (this->m_pGuarded == nullptr) {
            m_Texts.ForEach([&](const PointersByText::Entry& entry) { work(static_cast<V>(entry.value)); });
        } else {
            for (const auto& item : *this->m_pGuarded) {
                work(item.second);
            }
        }
    }

    /// The std::map itself, which is the map from then on. Throws std::bad_alloc; all is as it was then.
    Map& contents() {
        if (this->m_pGuarded == nullptr) {
            auto made = std::make_unique<Map>();
            if constexpr (hasTextKeys) {
                m_Texts.ForEach([&](const PointersByText::Entry& entry) {
                    made->emplace(K(entry.key.data(), entry.key.size()), static_cast<V>(entry.value));
                });
            }
            m_Texts.Clear();
            this->m_pGuarded = made.release();
        }
        return *this->m_pGuarded;
    }

private:
    static std::string_view TextOf([[maybe_unused]] const K& key) noexcept {
        if constexpr (hasTextKeys) {
            return {key.data(), key.size()};
        } else {
            return {}; // never asked for: such keys stand in the std::map
        }
    }

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
    static void KeepFirstOfEachValue(Map& map) noexcept {
        try {
            std::vector<V*> slots;
            slots.reserve(map.size());
            for (auto& entry : map) {
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
            KeepFirstOfEachValueInPlace(map);
        }
    }

    /// Slow, but asks for no memory: a map must come empty also when there is none.
    static void KeepFirstOfEachValueInPlace(Map& map) noexcept {
        for (auto first = map.begin(); first != map.end(); ++first) {
            for (auto later = std::next(first); first->second && later != map.end(); ++later) {
                if (later->second == first->second) {
                    later->second = nullptr;
                }
            }
        }
    }

    PointersByText m_Texts; // unused once there is the std::map
};

} // namespace Zelvon
