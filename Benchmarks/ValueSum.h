#pragma once

#include <cstddef>
#include <cstdint>
#include <string_view>

namespace Bench {

/// How many values a document holds, and a sum over all of them that does not depend on their order. Two documents with
/// equal sums hold the same values under the same names.
struct ValueSum {
    std::size_t count = 0;
    std::uint64_t sum = 0;

    bool operator==(const ValueSum&) const = default;
};

/// Reads with expat alone, so that no contender is measured by itself. Counted are attributes, and texts of elements
/// without children; not what is empty, false or zero, which some contenders write and others leave out, and no
/// attributes with a prefix. Numbers count by value: some write 1.84 as 1.8400000000000001. Throws what is not
/// well-formed.
ValueSum SumOfValues(std::string_view xml);

} // namespace Bench
