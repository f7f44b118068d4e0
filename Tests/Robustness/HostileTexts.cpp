#include "Robustness/HostileTexts.h"

#include <bit>
#include <stdexcept>
#include <utility>

namespace Robustness {

namespace {

using Pair = std::pair<std::string, std::string>;

constexpr std::size_t kBlock = 8;

/// Twins of one block, "ab-G_fjF" and "abp-" with U+0100 and U+00B7. The hash takes a block at a time, and with every
/// second start it makes the same of both but for the top bit of its state. That difference survives what it does next,
/// so that a second pair takes it away again: texts that differ in an even number of blocks have the same hash.
std::vector<Pair> TwinNames(std::size_t count) {
    const std::hash<std::string> hash;
    std::vector<Pair> twins;
    for (char first = 'a'; first <= 'z'; ++first) {
        for (char second = 'a'; second <= 'z' && twins.size() < count; ++second) {
            const std::string start{first, second};
            const Pair twin{start + "-G_fjF", start + "p-\xC4\x80\xC2\xB7"};
            if (hash(twin.first + twin.first) == hash(twin.second + twin.second)) {
                twins.push_back(twin);
            }
        }
    }
    if (twins.size() < count) {
        throw std::runtime_error("no texts are known that collide in this hash");
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
