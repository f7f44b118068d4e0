#pragma once

#include <cstddef>
#include <cstdint>
#include <utility>
#include <vector>

namespace Bench {

/// Numbers that look like chance and are the same on every machine; the distributions of the standard library are not.
class Random {
public:
    explicit Random(std::uint64_t seed) : m_state(seed) {}

    std::uint64_t Next() {
        m_state += 0x9E3779B97F4A7C15;
        std::uint64_t mixed = m_state;
        mixed = (mixed ^ (mixed >> 30)) * 0xBF58476D1CE4E5B9;
        mixed = (mixed ^ (mixed >> 27)) * 0x94D049BB133111EB;
        return mixed ^ (mixed >> 31);
    }
    /// From 0 to `end` - 1.
    std::size_t Below(std::size_t end) { return static_cast<std::size_t>(Next() % end); }
    /// True once in `times`.
    bool Once(std::size_t times) { return Below(times) == 0; }

private:
    std::uint64_t m_state;
};

/// Into an order that is not that of the document, and the same on every machine.
template <typename Item> void Shuffle(std::vector<Item>& items) {
    Random random(items.size());
    for (std::size_t i = items.size(); i > 1; --i) {
        std::swap(items[i - 1], items[random.Below(i)]);
    }
}

} // namespace Bench
