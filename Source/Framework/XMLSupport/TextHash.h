#pragma once

#include <cstddef>
#include <functional>
#include <string>
#include <string_view>
#include <unordered_map>
#include <unordered_set>

namespace Framework {

/// The hash for whatever comes out of a document. It is keyed anew in each process: of the standard library's one it is
/// known how to write texts that all have the same hash, and a table of these takes the square of their number.
struct TextHash {
    using is_transparent = void;
    std::size_t operator()(std::string_view text) const noexcept;
};

template <typename Key, typename Value> using HashedMap = std::unordered_map<Key, Value, TextHash, std::equal_to<>>;
template <typename Key> using HashedSet = std::unordered_set<Key, TextHash, std::equal_to<>>;

} // namespace Framework
