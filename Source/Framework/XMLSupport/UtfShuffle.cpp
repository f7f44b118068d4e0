#include "Framework/XMLSupport/UtfShuffle.h"

#if defined(__x86_64__)

#include <array>
#include <bit>
#include <cstdint>

#include <immintrin.h>

#define FRAMEWORK_WITH_SHUFFLES [[gnu::target("ssse3,popcnt")]]

namespace Framework {

namespace {

using Shuffle = std::array<std::uint8_t, 16>;

constexpr std::uint8_t kZero = 0x80; // what a shuffle makes a byte of zero from

// --- to UTF-16: what is done depends on where the characters of the next twelve bytes end

constexpr unsigned kWindow = 12;
constexpr unsigned kPairs = 6;   // characters of a window that are of one or two bytes, each brought into 16 bits
constexpr unsigned kTriples = 4; // characters of one to three bytes, each brought into 32 bits
constexpr unsigned kPairShuffles = 1U << kPairs;
constexpr unsigned kTripleShuffles = 81; // three lengths of four characters
constexpr std::uint8_t kNone = 0xFF;     // a character of four bytes is among the first
constexpr int kFewLong = 40;             // bytes of 64: not worth it

struct Step {
    std::uint8_t shuffle = kNone;
    std::uint8_t bytes = 0; ///< that it takes
};

/// The lengths of the characters of which `ends` marks the last bytes, up to `most` of them; false when one is longer
/// than `longest`.
constexpr bool TakeLengths(unsigned ends, std::array<unsigned, kPairs>& lengths, unsigned most, unsigned longest) {
    unsigned begin = 0;
    for (unsigned i = 0; i < most; ++i) {
        unsigned length = 1;
        while (length <= longest && (ends >> (begin + length - 1) & 1U) == 0) {
            ++length;
        }
        if (length > longest) {
            return false;
        }
        lengths[i] = length;
        begin += length;
    }
    return true;
}

constexpr Step StepFor(unsigned ends) {
    std::array<unsigned, kPairs> lengths{};
    const bool isOfPairs = TakeLengths(ends, lengths, kPairs, 2);
    if (!isOfPairs && !TakeLengths(ends, lengths, kTriples, 3)) {
        return {};
    }
    Step step{static_cast<std::uint8_t>(isOfPairs ? 0 : kPairShuffles), 0};
    unsigned weight = 1;
    for (unsigned i = 0; i < (isOfPairs ? kPairs : kTriples); ++i) {
        step.shuffle = static_cast<std::uint8_t>(step.shuffle + (lengths[i] - 1) * weight);
        step.bytes = static_cast<std::uint8_t>(step.bytes + lengths[i]);
        weight *= isOfPairs ? 2 : 3;
    }
    return step;
}

constexpr auto kSteps = [] {
    std::array<Step, 1U << kWindow> steps{};
    for (unsigned ends = 0; ends < steps.size(); ++ends) {
        steps[ends] = StepFor(ends);
    }
    return steps;
}();

/// Brings the bytes of each character, the last one first, into a number of its own.
constexpr auto kToNumbers = [] {
    std::array<Shuffle, kPairShuffles + kTripleShuffles> shuffles{};
    for (unsigned number = 0; number < shuffles.size(); ++number) {
        const bool isOfPairs = number < kPairShuffles;
        const unsigned most = isOfPairs ? 2 : 3;
        const unsigned width = isOfPairs ? 2 : 4;
        unsigned left = isOfPairs ? number : number - kPairShuffles;
        unsigned from = 0;
        shuffles[number].fill(kZero);
        for (unsigned i = 0; i < (isOfPairs ? kPairs : kTriples); ++i) {
            const unsigned length = left % most + 1;
            left /= most;
            for (unsigned j = 0; j < length; ++j) {
                shuffles[number][i * width + j] = static_cast<std::uint8_t>(from + length - 1 - j);
            }
            from += length;
        }
    }
    return shuffles;
}();

// --- to UTF-8: four units at a time, each brought into 32 bits whose lowest bytes are those of the character, the last
// one first

constexpr unsigned kUnits = 4;

struct Packing {
    Shuffle shuffle{};
    std::uint8_t bytes = 0;
};

/// By which of the units are of one byte, in the lower four bits, and which of three.
constexpr auto kPackings = [] {
    std::array<Packing, 1U << (2 * kUnits)> packings{};
    for (unsigned lengths = 0; lengths < packings.size(); ++lengths) {
        Packing& packing = packings[lengths];
        packing.shuffle.fill(kZero);
        for (unsigned i = 0; i < kUnits; ++i) {
            const bool isOne = (lengths >> i & 1U) != 0;
            const bool isThree = (lengths >> (kUnits + i) & 1U) != 0;
            for (unsigned j = isOne ? 1 : isThree ? 3 : 2; j > 0; --j) {
                packing.shuffle[packing.bytes++] = static_cast<std::uint8_t>(4 * i + j - 1);
            }
        }
    }
    return packings;
}();

FRAMEWORK_WITH_SHUFFLES __m128i Load(const void* from) noexcept {
    return _mm_loadu_si128(static_cast<const __m128i*>(from));
}

FRAMEWORK_WITH_SHUFFLES void Store(void* to, __m128i value) noexcept {
    _mm_storeu_si128(static_cast<__m128i*>(to), value);
}

FRAMEWORK_WITH_SHUFFLES __m128i Shuffled(__m128i bytes, const Shuffle& shuffle) noexcept {
    return _mm_shuffle_epi8(bytes, Load(shuffle.data()));
}

FRAMEWORK_WITH_SHUFFLES void WidenAscii(const char* from, XMLCh* to) noexcept {
    const __m128i bytes = Load(from);
    Store(to, _mm_unpacklo_epi8(bytes, _mm_setzero_si128()));
    Store(to + 8, _mm_unpackhi_epi8(bytes, _mm_setzero_si128()));
}

/// Where characters end: a byte does not go on with the one before it.
FRAMEWORK_WITH_SHUFFLES std::uint64_t EndsIn(const char* block) noexcept {
    std::uint64_t begins = 0;
    for (unsigned i = 0; i < 4; ++i) {
        const __m128i goesOn = _mm_cmplt_epi8(Load(block + 1 + 16 * i), _mm_set1_epi8(-64));
        begins |= static_cast<std::uint64_t>(~_mm_movemask_epi8(goesOn) & 0xFFFF) << (16 * i);
    }
    return begins;
}

/// How many of the bytes are not ASCII.
FRAMEWORK_WITH_SHUFFLES int CountLong(const char* block) noexcept {
    int count = 0;
    for (unsigned i = 0; i < 4; ++i) {
        count += std::popcount(static_cast<unsigned>(_mm_movemask_epi8(Load(block + 16 * i))));
    }
    return count;
}

/// The characters of one step; how many.
FRAMEWORK_WITH_SHUFFLES unsigned Take(const char* from, const Step& step, XMLCh* out) noexcept {
    const __m128i numbers = Shuffled(Load(from), kToNumbers[step.shuffle]);
    if (step.shuffle < kPairShuffles) {
        const __m128i last = _mm_and_si128(numbers, _mm_set1_epi16(0x7F));
        const __m128i lead = _mm_and_si128(numbers, _mm_set1_epi16(0x1F00));
        Store(out, _mm_or_si128(last, _mm_srli_epi16(lead, 2)));
        return kPairs;
    }
    const __m128i last = _mm_and_si128(numbers, _mm_set1_epi32(0x7F));
    const __m128i middle = _mm_and_si128(numbers, _mm_set1_epi32(0x3F00));
    const __m128i lead = _mm_and_si128(numbers, _mm_set1_epi32(0x0F0000));
    const __m128i units = _mm_or_si128(last, _mm_or_si128(_mm_srli_epi32(middle, 2), _mm_srli_epi32(lead, 4)));
    constexpr Shuffle lower = {0, 1, 4, 5, 8, 9, 12, 13, kZero, kZero, kZero, kZero, kZero, kZero, kZero, kZero};
    Store(out, Shuffled(units, lower));
    return kTriples;
}

XMLCh* TakeOne(const char* from, unsigned length, XMLCh* out) noexcept {
    const auto byteAt = [from](unsigned i) { return static_cast<std::uint32_t>(static_cast<unsigned char>(from[i])); };
    std::uint32_t character = length == 1 ? byteAt(0) : byteAt(0) & (0x7FU >> length);
    for (unsigned i = 1; i < length; ++i) {
        character = character << 6U | (byteAt(i) & 0x3FU);
    }
    if (length < 4) {
        *out++ = static_cast<XMLCh>(character);
        return out;
    }
    *out++ = static_cast<XMLCh>(0xD7C0 + (character >> 10U)); // 0xD800, less what is above the first plane
    *out++ = static_cast<XMLCh>(0xDC00 + (character & 0x3FFU));
    return out;
}

} // namespace

bool HasShuffles() noexcept {
    static const bool has = __builtin_cpu_supports("ssse3") != 0 && __builtin_cpu_supports("popcnt") != 0;
    return has;
}

FRAMEWORK_WITH_SHUFFLES Utf16Copy ShuffleToUtf16(std::string_view text, XMLCh* out) noexcept {
    constexpr unsigned block = 64;
    constexpr unsigned loaded = 16; // at once
    XMLCh* const start = out;
    std::size_t at = 0;
    while (text.size() - at >= block + loaded) {
        const char* const from = text.data() + at;
        if (CountLong(from) < kFewLong) {
            break;
        }
        const std::uint64_t ends = EndsIn(from);
        unsigned done = 0;
        while (done <= block - kWindow) {
            const auto next = static_cast<unsigned>(ends >> done) & ((1U << kWindow) - 1);
            const Step step = kSteps[next];
            if (next == (1U << kWindow) - 1) {
                WidenAscii(from + done, out);
                out += kWindow;
                done += kWindow;
            } else if (step.shuffle != kNone) {
                out += Take(from + done, step, out);
                done += step.bytes;
            } else {
                const auto length = static_cast<unsigned>(std::countr_zero(next)) + 1;
                out = TakeOne(from + done, length, out);
                done += length;
            }
        }
        at += done;
    }
    return {at, static_cast<std::size_t>(out - start)};
}

FRAMEWORK_WITH_SHUFFLES Utf8Copy ShuffleToUtf8(const XMLCh* units, std::size_t length, char* out,
                                               std::size_t room) noexcept {
    const __m128i zero = _mm_setzero_si128();
    std::size_t at = 0;
    std::size_t bytes = 0;
    for (; length - at >= kUnits && room - bytes >= sizeof(Shuffle); at += kUnits) {
        const __m128i four = _mm_loadl_epi64(reinterpret_cast<const __m128i*>(units + at));
        const __m128i isSurrogate =
            _mm_cmpeq_epi16(_mm_and_si128(four, _mm_set1_epi16(-0x800)), _mm_set1_epi16(-0x2800)); // F800, D800
        const __m128i numbers = _mm_unpacklo_epi16(four, zero);
        const __m128i isOne = _mm_cmplt_epi32(numbers, _mm_set1_epi32(0x80));
        const __m128i isThree = _mm_cmpgt_epi32(numbers, _mm_set1_epi32(0x7FF));
        const int ones = _mm_movemask_ps(_mm_castsi128_ps(isOne));
        if (ones == 0xF || (_mm_movemask_epi8(isSurrogate) & 0xFF) != 0) {
            break;
        }
        const __m128i sixBits = _mm_set1_epi32(0x3F);
        const __m128i goesOn = _mm_set1_epi32(0x80);
        // The last byte: of one byte alone as it is.
        const __m128i last =
            _mm_or_si128(_mm_and_si128(isOne, numbers),
                         _mm_andnot_si128(isOne, _mm_or_si128(_mm_and_si128(numbers, sixBits), goesOn)));
        // The one before: it leads two, or goes on among three.
        const __m128i second =
            _mm_or_si128(_mm_and_si128(_mm_srli_epi32(numbers, 6), sixBits),
                         _mm_sub_epi32(_mm_set1_epi32(0xC0), _mm_and_si128(isThree, _mm_set1_epi32(0x40))));
        const __m128i first = _mm_or_si128(_mm_srli_epi32(numbers, 12), _mm_set1_epi32(0xE0));
        const __m128i all = _mm_or_si128(last, _mm_or_si128(_mm_slli_epi32(second, 8), _mm_slli_epi32(first, 16)));
        const Packing& packing =
            kPackings[static_cast<unsigned>(ones | _mm_movemask_ps(_mm_castsi128_ps(isThree)) << kUnits)];
        Store(out + bytes, Shuffled(all, packing.shuffle));
        bytes += packing.bytes;
    }
    return {at, bytes};
}

} // namespace Framework

#else

namespace Framework {

bool HasShuffles() noexcept {
    return false;
}

Utf16Copy ShuffleToUtf16(std::string_view, XMLCh*) noexcept {
    return {0, 0};
}

Utf8Copy ShuffleToUtf8(const XMLCh*, std::size_t, char*, std::size_t) noexcept {
    return {0, 0};
}

} // namespace Framework

#endif
