#include "Robustness/HostileTexts.h"

#include <bit>
#include <cstdint>
#include <cstring>
#include <utility>

namespace Robustness {

namespace {

using Pair = std::pair<std::string, std::string>;

// The hash takes eight bytes at a time: it scrambles them by a function that can be turned round, mixes them in by
// exclusive or, and multiplies by an odd number. A difference of the top bit alone survives that multiplication as the
// same difference, so that a second one takes it away again: texts that differ in an even number of blocks, each time
// by the top bit of what the scrambling makes of it, have the same hash.
constexpr std::uint64_t kFactor = 0xC6A4A7935BD1E995U;
constexpr std::uint64_t kTopBit = std::uint64_t{1} << 63U;
constexpr std::size_t kBlock = sizeof(std::uint64_t);

constexpr std::uint64_t ShiftMix(std::uint64_t value) {
    return value ^ (value >> 47U); // undoes itself
}

constexpr std::uint64_t InverseOf(std::uint64_t odd) {
    std::uint64_t inverse = odd;
    for (int round = 0; round < 6; ++round) {
        inverse *= 2 - odd * inverse;
    }
    return inverse;
}

/// The block that the scrambling takes to the same as the given one but for the top bit.
std::uint64_t Twin(std::uint64_t block) {
    constexpr std::uint64_t inverse = InverseOf(kFactor);
    const std::uint64_t scrambled = ShiftMix(block * kFactor) * kFactor;
    return ShiftMix((scrambled ^ kTopBit) * inverse) * inverse;
}

/// Twins that can stand in names, "ab-G_fjF" and "abp-" with U+0100 and U+00B7: few others are UTF-8 on both sides.
std::vector<Pair> TwinNames(std::size_t count) {
    std::vector<Pair> twins;
    for (char first = 'a'; first <= 'z'; ++first) {
        for (char second = 'a'; second <= 'z' && twins.size() < count; ++second) {
            const std::string start{first, second};
            const std::string one = start + "-G_fjF";
            std::uint64_t block = 0;
            std::memcpy(&block, one.data(), kBlock);
            block = Twin(block);
            std::string other(kBlock, ' ');
            std::memcpy(other.data(), &block, kBlock);
            if (other == start + "p-\xC4\x80\xC2\xB7") { // for every second start it is something else
                twins.emplace_back(one, other);
            }
        }
    }
    return twins;
}

/// The texts that come from taking the first or the second of each pair, as the bits of a number say.
std::vector<std::string> Choices(std::size_t count, const std::string& start, const std::vector<Pair>& pairs,
                                 const std::function<std::size_t(std::size_t)>& bits) {
    std::vector<std::string> texts(count, start);
    for (std::size_t number = 0; number < count; ++number) {
        for (std::size_t bit = 0; bit < pairs.size(); ++bit) {
            texts[number] += (bits(number) >> bit & 1U) == 0 ? pairs[bit].first : pairs[bit].second;
        }
    }
    return texts;
}

} // namespace

std::string Join(std::size_t count, const std::function<std::string(std::size_t)>& piece) {
    std::string text;
    for (std::size_t number = 0; number < count; ++number) {
        text += piece(number);
    }
    return text;
}

std::vector<std::string> CollidingByFactor(std::size_t count, unsigned factor) {
    const std::string one{'A', static_cast<char>('C' + factor)};
    const std::vector<Pair> pairs(std::bit_width(count), Pair{one, "BC"});
    return Choices(count, "", pairs, [](std::size_t number) { return number; });
}

std::vector<std::string> CollidingByStandardHash(std::size_t count, std::string_view prefix) {
    const std::vector<Pair> pairs = TwinNames(static_cast<std::size_t>(std::bit_width(count)) + 1);
    const std::string start((kBlock - prefix.size() % kBlock) % kBlock,
                            'x'); // so that blocks begin where the hash's do
    return Choices(count, start, pairs, [](std::size_t number) {
        return number << 1U | (static_cast<std::size_t>(std::popcount(number)) & 1U); // an even number of differences
    });
}

} // namespace Robustness
