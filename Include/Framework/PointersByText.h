#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <utility>
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

    /// Makes room for a key that will be added when its value is ready. Few entries are found sooner close to the
    /// object whose table this is than behind all that belongs to their values. Throws std::bad_alloc.
    void MakeRoomFor(std::string_view key);

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
    /// that stands under several keys once, under the first. Does without memory where there is none, but is slower
    /// then. `work` must not throw, nor use this table.
    template <typename Work> void TakeOutInOrder(Work work) noexcept {
        PointersByText taken;
        std::swap(taken.m_block, m_block);
        Table* const table = taken.AsTable();
        std::array<void*, kFew> few;
        const std::size_t count = table == nullptr ? taken.OrderFew(few) : OrderOnce(*table);
        for (std::size_t i = 0; i < count; ++i) {
            if (void* const value = table == nullptr ? few[i] : table->words[table->slots[i]]) {
                work(value);
            }
        }
    }

    void Clear() noexcept;

private:
    static constexpr std::size_t kFew = 8;

    // Many lists have no entry, and most few: the table itself is one pointer. Entries stand in words, each its
    // pointer, then the bytes of the key's length and of the key: few behind their block.
    struct Block {
        std::uint32_t room = 0; // words; 0: it is a Table
        std::uint32_t used = 0; // words, slots
    };
    // A slot has the word of an entry in its lower bits and, so that other keys are mostly told without a look at them,
    // a part of the hash in those above; 0: free. So small, the slots of some 100,000 keys stay in a processor's cache.
    using Slot = std::uint32_t;
    struct Table : Block {
        std::vector<Slot> slots; // a power of two
        std::vector<void*> words;
        std::uint32_t entryBits = 0; // of a slot
        std::uint32_t gone = 0;      // slots of what was taken out, still part of the chains of others

        std::size_t EntryOf(Slot slot) const noexcept { return slot & ((Slot{1} << entryBits) - 1); }
    };

    bool IsTable() const noexcept { return m_block != nullptr && m_block->room == 0; }
    Table* AsTable() const noexcept { return IsTable() ? static_cast<Table*>(m_block) : nullptr; }
    void** Words() const noexcept { return reinterpret_cast<void**>(m_block + 1); }
    std::size_t UsedWords() const noexcept { return m_block == nullptr ? 0 : m_block->used; }

    // A place is a slot of the table, else the word of the entry's pointer.
    std::size_t Places() const noexcept { return IsTable() ? static_cast<Table*>(m_block)->slots.size() : UsedWords(); }
    std::size_t Next(std::size_t place) const noexcept;
    bool IsTaken(std::size_t place) const noexcept;
    Entry At(std::size_t place) const noexcept;
    bool RemoveAt(std::size_t place) noexcept;
    std::size_t PlaceInFew(std::string_view key) const noexcept;
    static std::size_t PlaceInTable(const Table& table, std::string_view key) noexcept;
    void AddToFew(std::string_view key, void* value);
    void MakeRoomInFew(std::size_t words);
    static void MakeEmpty(Table& table, std::size_t entries, std::size_t words);
    static void AddToTable(Table& table, std::string_view key, void* value);
    static void Enter(Table& table, std::size_t entry) noexcept;
    void MakeTable();
    void MakeRoomInTable(std::size_t words);
    void CopyTo(Table& fresh) const;
    static void Free(Block* block) noexcept;
    std::size_t OrderFew(std::array<void*, kFew>& values) const noexcept;
    static std::size_t OrderOnce(Table& table) noexcept;

    Block* m_block = nullptr;
};

} // namespace Zelvon
