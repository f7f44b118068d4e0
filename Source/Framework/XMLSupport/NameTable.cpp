#include "Framework/XMLSupport/NameTable.h"

#include "Framework/XMLSupport/TextHash.h"

#include <utility>

namespace Framework {

namespace {

std::uint32_t HashOf(std::string_view name) {
    const std::uint64_t hash = TextHash()(name);
    return static_cast<std::uint32_t>(hash ^ (hash >> 32U));
}

} // namespace

NameTable::NameTable() : m_names(1), m_slots(32) {}

std::size_t NameTable::SlotOf(std::string_view name, std::uint32_t hash) const {
    const std::size_t mask = m_slots.size() - 1;
    std::size_t at = hash & mask;
    while (m_slots[at].number != 0 && (m_slots[at].hash != hash || m_names[m_slots[at].number] != name)) {
        at = (at + 1) & mask;
    }
    return at;
}

std::uint32_t NameTable::Find(std::string_view name) const {
    return name.empty() ? 0 : m_slots[SlotOf(name, HashOf(name))].number;
}

std::uint32_t NameTable::Intern(std::string_view name) {
    if (name.empty()) {
        return 0;
    }
    std::uint32_t& recent = m_recent[RecentPlace(name)];
    if (m_names[recent] == name) {
        return recent;
    }
    const std::uint32_t hash = HashOf(name);
    std::size_t at = SlotOf(name, hash);
    if (m_slots[at].number == 0) {
        if (m_names.size() * 2 >= m_slots.size()) {
            Grow();
            at = SlotOf(name, hash);
        }
        const std::string& kept = m_names.emplace_back(name);
        constexpr std::size_t withoutHeap = 15;
        m_letters += kept.size() > withoutHeap ? kept.capacity() + 1 : 0;
        m_slots[at] = {static_cast<std::uint32_t>(m_names.size() - 1), hash};
    }
    return recent = m_slots[at].number;
}

void NameTable::Grow() {
    std::vector<Slot> slots(m_slots.size() * 2);
    const std::size_t mask = slots.size() - 1;
    for (const Slot& slot : m_slots) {
        if (slot.number != 0) {
            std::size_t at = slot.hash & mask;
            while (slots[at].number != 0) {
                at = (at + 1) & mask;
            }
            slots[at] = slot;
        }
    }
    m_slots = std::move(slots);
}

} // namespace Framework
