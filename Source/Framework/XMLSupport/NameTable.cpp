#include "Framework/XMLSupport/NameTable.h"

#include <cstring>
#include <random>
#include <utility>

namespace Framework {

namespace {

struct HashKey {
    std::uint64_t first;
    std::uint64_t second;
};

const HashKey& ProcessKey() {
    static const HashKey key = [] {
        std::random_device device;
        const auto word = [&device] { return (std::uint64_t{device()} << 32U) | device() | 1U; };
        return HashKey{word(), word()};
    }();
    return key;
}

std::uint64_t Mix(std::uint64_t left, std::uint64_t right) {
    __extension__ using Wide = unsigned __int128;
    const Wide product = static_cast<Wide>(left) * right;
    return static_cast<std::uint64_t>(product) ^ static_cast<std::uint64_t>(product >> 64U);
}

std::uint32_t HashOf(std::string_view name) {
    const HashKey& key = ProcessKey();
    std::uint64_t hash = key.first ^ name.size();
    while (name.size() >= sizeof(std::uint64_t)) {
        std::uint64_t word = 0;
        std::memcpy(&word, name.data(), sizeof word);
        hash = Mix(hash ^ word, key.second);
        name.remove_prefix(sizeof word);
    }
    if (!name.empty()) {
        std::uint64_t word = 0;
        std::memcpy(&word, name.data(), name.size());
        hash = Mix(hash ^ word, key.second);
    }
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
    const std::uint32_t hash = HashOf(name);
    std::size_t at = SlotOf(name, hash);
    if (m_slots[at].number == 0) {
        if (m_names.size() * 2 >= m_slots.size()) {
            Grow();
            at = SlotOf(name, hash);
        }
        m_names.emplace_back(name);
        m_slots[at] = {static_cast<std::uint32_t>(m_names.size() - 1), hash};
    }
    return m_slots[at].number;
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
