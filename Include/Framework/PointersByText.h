#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "Framework/FrameworkExport.h"

namespace Zelvon {

/// A table from texts to pointers: what a keyed list is looked up in. A look-up touches two places in memory, however
/// many entries there are; few entries stand one behind the other in a single one and are looked through.
/// Texts are hashed with a key of the process, so that nobody can write a document whose keys all collide.
///
/// The texts are copied, the pointers are not owned, and may be null. Not copyable. One thread at a time.
class FRAMEWORK_API PointersByText {
public:
    struct Entry {
        std::string_view key; ///< into the table: good until it is changed
        void* value;
    };

    PointersByText() noexcept;
    ~PointersByText();
    PointersByText(const PointersByText&) = delete;
    PointersByText& operator=(const PointersByText&) = delete;

    std::size_t Size() const noexcept;

    /// Where the pointer under `key` stands, to be read and replaced; null when the key is not there. Good until the
    /// table is changed.
    void** Find(std::string_view key) const noexcept;

    /// Adds `value` under `key` and returns null; where the key is there already it changes nothing and returns what
    /// Find does. Throws std::bad_alloc, and std::length_error when all keys together would have 4
    /// GiB; the table is then as it was.
    void** AddOrFind(std::string_view key, void* value);

    /// Adds a key of which the caller knows that it is not there. Fails as AddOrFind does.
    void AddAbsent(std::string_view key, void* value);

    /// Takes a key out. False when it is not there.
    bool Remove(std::string_view key) noexcept;

    /// Takes out all entries that `test` says so of.
    template <typename Test> void RemoveIf(Test test) {
        for (std::size_t place = 0; place < Places();) {
            const bool goes = IsTaken(place) && test(At(place));
            place = goes && RemoveAt(place) ? place : Next(place);
        }
    }

    /// Hands every entry to `work`, in no order that means anything.
    template <typename Work> void ForEach(Work work) const {
        for (std::size_t place = 0; place < Places(); place = Next(place)) {
            if (IsTaken(place)) {
                work(At(place));
            }
        }
    }

    /// Empties the table, and hands every pointer that is not null to `work` in the order of the bytes of the keys; one
    /// that stands under several keys once, under the first. Needs no memory. `work` must not throw, nor use this
    /// table.
    template <typename Work> void TakeOutInOrder(Work work) noexcept {
        PointersByText taken;
        taken.m_few.swap(m_few);
        taken.m_table.swap(m_table);
        std::array<void*, kFew> few;
        const std::size_t count = taken.m_table == nullptr ? taken.OrderFew(few) : OrderOnce(*taken.m_table);
        for (std::size_t i = 0; i < count; ++i) {
            if (void* const value = taken.m_table == nullptr ? few[i] : taken.m_table->slots[i].value) {
                work(value);
            }
        }
    }

    void Clear() noexcept;

private:
    static constexpr std::size_t kFew = 8;

    struct Slot {
        void* value = nullptr;
        std::uint32_t text = 0; // where the key stands among the texts; 0: free
        std::uint32_t hash = 0;
    };
    struct Table {
        std::vector<Slot> slots; // a power of two
        std::string texts;       // each behind its length
        std::uint32_t used = 0;
        std::uint32_t gone = 0; // taken out, their places still part of the chains of others
    };

    // A place is one in the table, else that of the entry's pointer in m_few.
    std::size_t Places() const noexcept { return m_table == nullptr ? m_few.size() : m_table->slots.size(); }
    std::size_t Next(std::size_t place) const noexcept;
    bool IsTaken(std::size_t place) const noexcept;
    Entry At(std::size_t place) const noexcept;
    bool RemoveAt(std::size_t place) noexcept;
    std::size_t PlaceInFew(std::string_view key) const noexcept;
    std::size_t PlaceInTable(std::string_view key, std::uint32_t hash) const noexcept;
    void AddToFew(std::string_view key, void* value);
    void AddToTable(std::size_t place, std::string_view key, std::uint32_t hash, void* value);
    bool MakeTable();
    void MakeRoom();
    void MoveTo(Table& larger) const;
    std::size_t OrderFew(std::array<void*, kFew>& values) const noexcept;
    static std::size_t OrderOnce(Table& table) noexcept;

    std::vector<void*> m_few;       // of each entry the pointer, then the bytes of the key's length and of the key
    std::unique_ptr<Table> m_table; // once there are more
};

} // namespace Zelvon
