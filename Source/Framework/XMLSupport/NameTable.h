#pragma once

#include <array>
#include <cstdint>
#include <deque>
#include <string>
#include <string_view>
#include <vector>

namespace Framework {

/// The distinct names of one document, numbered from 1; 0 is the empty name. Names never move, so views of them stay
/// good as long as the table.
class NameTable {
public:
    NameTable();

    /// The number of the name, which is added when it is new.
    std::uint32_t Intern(std::string_view name);
    /// The number of the name, 0 when it is not in the table.
    std::uint32_t Find(std::string_view name) const;
    std::string_view Name(std::uint32_t number) const { return m_names[number]; }
    /// What the table takes of the heap, in bytes.
    std::size_t Memory() const {
        return m_letters + m_names.size() * sizeof(std::string) + m_slots.capacity() * sizeof(Slot);
    }
    /// Number of different names.
    std::size_t Count() const { return m_names.size() - 1; }

private:
    std::size_t SlotOf(std::string_view name, std::uint32_t hash) const;
    void Grow();

    struct Slot {
        std::uint32_t number = 0; // 0: free
        std::uint32_t hash = 0;
    };
    static std::size_t RecentPlace(std::string_view name) {
        const auto first = static_cast<unsigned char>(name.front());
        const auto last = static_cast<unsigned char>(name.back());
        return (name.size() + 5U * first + 3U * last) % 64;
    }

    std::deque<std::string> m_names;
    std::array<std::uint32_t, 64> m_recent = {}; // a document repeats few names: these need no hashing
    std::size_t m_letters = 0;                   // of names that have a place of their own on the heap
    std::vector<Slot> m_slots;                   // a power of two, at most half full
};

} // namespace Framework
