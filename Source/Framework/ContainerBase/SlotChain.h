#pragma once

#include <algorithm>
#include <cstdint>
#include <vector>

namespace Framework {

/// The order of a list's entries as a chain of numbered slots, so that an entry moves, goes or is replaced in constant
/// time; and a hash table from an entry to its slots, of which it may have several. Both are flat: at a hundred
/// thousand entries, nodes of their own would cost more than all else that a merge does.
///
/// Slot 0 is the anchor: it stands before the first slot and behind the last. Slots and table change without allocating
/// once Reserve made the room.
template <typename Entry> class SlotChain {
public:
    using Number = std::uint32_t;

    void Clear() noexcept {
        m_slots.clear();
        m_table.clear();
        m_used = 0;
    }

    /// Makes room, so that as many calls of Append and Replace cannot fail.
    void Reserve(std::size_t count) {
        if (m_slots.empty()) {
            m_slots.push_back({nullptr, 0, 0});
        }
        if (m_slots.size() + count > m_slots.capacity()) {
            m_slots.reserve(2 * (m_slots.size() + count));
        }
        while (2 * (m_used + count) >= m_table.size()) {
            Grow();
        }
    }

    /// At the end.
    void Append(Entry* entry) {
        Reserve(1);
        const auto number = static_cast<Number>(m_slots.size());
        m_slots.push_back({entry, number, number});
        LinkBefore(number, 0);
        Enter(number);
    }

    /// The number of the slot that was appended n-th is n.
    std::size_t Last() const { return m_slots.empty() ? 0 : m_slots.size() - 1; }
    Entry* At(Number slot) const { return m_slots[slot].entry; }
    Number Next(Number slot) const { return m_slots[slot].next; }

    /// A slot of the entry, which is not null; 0 when it has none.
    Number Find(const Entry* entry) const {
        std::size_t place = Home(entry);
        while (!m_table.empty() && m_table[place] != 0 && m_slots[m_table[place]].entry != entry) {
            place = PlaceBehind(place);
        }
        return m_table.empty() ? 0 : m_table[place];
    }

    /// All its slots.
    std::vector<Number> FindAll(const Entry* entry) const {
        std::vector<Number> all;
        for (std::size_t place = Home(entry); !m_table.empty() && m_table[place] != 0; place = PlaceBehind(place)) {
            if (m_slots[m_table[place]].entry == entry) {
                all.push_back(m_table[place]);
            }
        }
        std::sort(all.begin(), all.end()); // a replaced slot may be met twice
        all.erase(std::unique(all.begin(), all.end()), all.end());
        return all;
    }

    /// Needs room made by Reserve.
    void Replace(Number slot, Entry* entry) noexcept {
        m_slots[slot].entry = entry; // its number stays under the old entry too, where it is no longer found
        Enter(slot);
    }

    void Remove(Number slot) noexcept {
        m_slots[slot].entry = nullptr;
        Unlink(slot);
    }

    /// To stand before another slot, at the end when that is the anchor.
    void Move(Number slot, Number before) noexcept {
        if (slot != before) {
            Unlink(slot);
            LinkBefore(slot, before);
        }
    }

private:
    struct Slot {
        Entry* entry;
        Number previous;
        Number next;
    };

    std::size_t Home(const Entry* entry) const {
        const std::uint64_t mixed = (reinterpret_cast<std::uintptr_t>(entry) >> 4) * 0x9E3779B97F4A7C15U;
        return m_table.empty() ? 0 : static_cast<std::size_t>(mixed >> 32) & (m_table.size() - 1);
    }

    std::size_t PlaceBehind(std::size_t place) const { return (place + 1) & (m_table.size() - 1); }

    void Enter(Number slot) noexcept {
        if (m_slots[slot].entry == nullptr) {
            return; // nobody looks for it
        }
        std::size_t place = Home(m_slots[slot].entry);
        while (m_table[place] != 0) {
            place = PlaceBehind(place);
        }
        m_table[place] = slot;
        ++m_used;
    }

    void Grow() {
        std::vector<Number> larger(m_table.empty() ? 64 : 2 * m_table.size());
        m_table.swap(larger);
        m_used = 0;
        for (Number slot = 1; slot < m_slots.size(); ++slot) {
            Enter(slot);
        }
    }

    void Unlink(Number slot) noexcept {
        m_slots[m_slots[slot].previous].next = m_slots[slot].next;
        m_slots[m_slots[slot].next].previous = m_slots[slot].previous;
    }

    void LinkBefore(Number slot, Number next) noexcept {
        m_slots[slot].previous = m_slots[next].previous;
        m_slots[slot].next = next;
        m_slots[m_slots[slot].previous].next = slot;
        m_slots[next].previous = slot;
    }

    std::vector<Slot> m_slots;
    std::vector<Number> m_table; ///< slot numbers by entry, 0 where free; its size is a power of two
    std::size_t m_used = 0;
};

} // namespace Framework
