#pragma once

#include "Framework/XMLSupport/Utf.h"

#include <algorithm>
#include <cstddef>
#include <experimental/simd>
#include <string_view>

/// Looks through UTF-8 many bytes at a time. What is looked for is a kind of byte: a function of one byte or of many,
/// as signed numbers, of which the bytes of longer characters come before all others.
namespace Framework {

namespace simd = std::experimental;

using Bytes = simd::native_simd<signed char>;

inline signed char Number(char byte) {
    return static_cast<signed char>(byte);
}

/// How many bytes in front of a block tell what it begins with.
constexpr std::size_t kBytesInFront = 3;

/// Whether all is ASCII and well formed characters of two bytes, which is told soonest. The last byte may lead one.
inline bool HasPairsOnly(const char* at) {
    constexpr auto number = [](unsigned byte) { return static_cast<signed char>(byte); };
    const auto inFront = [at](int distance) { return static_cast<unsigned char>(at[-distance]); };
    const Bytes byte(at, simd::element_aligned);
    const Bytes before(at - 1, simd::element_aligned);
    const auto mustFollow = before > number(0xBF) && before < 0;
    const auto follows = byte < number(0xC0);
    const auto isOther = byte >= number(0xE0) && byte < 0;
    const auto isOverlong = (byte | 1) == number(0xC1);
    return inFront(1) < 0xE0 && inFront(2) < 0xE0 && inFront(3) < 0xF0 &&
           simd::none_of((follows != mustFollow) | isOther | isOverlong);
}

/// Whether all is well formed ASCII and characters of two or three bytes, but for such as begin with E0, ED or EF,
/// which is told sooner than IsDoubtful tells of any. The last bytes may lead one.
inline bool HasUsualOnly(const char* at) {
    constexpr auto number = [](unsigned byte) { return static_cast<signed char>(byte); };
    const auto isUsualInFront = [at](int distance) {
        const auto byte = static_cast<unsigned char>(at[-distance]);
        return byte < 0xEF && byte != 0xE0 && byte != 0xED;
    };
    const Bytes byte(at, simd::element_aligned);
    const Bytes before(at - 1, simd::element_aligned);
    const Bytes second(at - 2, simd::element_aligned);
    const auto mustFollow = (before > number(0xBF) && before < 0) || (second > number(0xDF) && second < 0);
    const auto follows = byte < number(0xC0);
    const auto isUnusual = (byte > number(0xEE) && byte < 0) || byte == number(0xE0) || byte == number(0xED);
    const auto isOverlong = (byte | 1) == number(0xC1);
    return isUsualInFront(1) && isUsualInFront(2) && isUsualInFront(3) &&
           simd::none_of((follows != mustFollow) | isUnusual | isOverlong);
}

/// Where a longer character is not well formed, or has to be looked at: what begins with EF BF may not be allowed.
inline Bytes::mask_type IsDoubtful(const char* at) {
    constexpr auto number = [](unsigned byte) { return static_cast<signed char>(byte); };
    const Bytes byte(at, simd::element_aligned);
    const Bytes before(at - 1, simd::element_aligned);
    const Bytes second(at - 2, simd::element_aligned);
    const Bytes third(at - 3, simd::element_aligned);
    const auto follows = byte < number(0xC0);
    const auto mustFollow = (before >= number(0xC0) && before < 0) || (second >= number(0xE0) && second < 0) ||
                            (third >= number(0xF0) && third < 0);
    const auto isOverlong =
        (before == number(0xE0) && byte < number(0xA0)) || (before == number(0xF0) && byte < number(0x90));
    const auto isTooHigh =
        (before == number(0xED) && byte >= number(0xA0)) || (before == number(0xF4) && byte >= number(0x90));
    const auto isLast = before == number(0xEF) && byte == number(0xBF);
    const auto isNone = (byte < 0 && byte > number(0xF4)) || byte == number(0xC0) || byte == number(0xC1);
    return follows != mustFollow || isOverlong || isTooHigh || isLast || isNone;
}

/// Where the last character before `at` begins, when its end is missing; else `at`.
inline std::size_t BeforeBroken(std::string_view text, std::size_t at) {
    if (at == 0 || Number(text[at - 1]) >= 0) {
        return at;
    }
    std::size_t begin = at - 1;
    while (begin > 0 && at - begin < 4 && Number(text[begin]) < Number('\xC0')) {
        --begin;
    }
    return BehindLongCharacters(text.substr(0, at), begin) == at ? at : begin;
}

/// Whether no byte of the blocks, and not the one in front of them, is of a longer character.
inline bool IsAscii(const char* at, std::size_t blocks) {
    Bytes all = 0;
    for (std::size_t i = 0; i < blocks; ++i) {
        all |= Bytes(at + i * Bytes::size(), simd::element_aligned);
    }
    return Number(at[-1]) >= 0 && simd::none_of(all < 0);
}

enum class Characters { Any, WellFormed };

/// The first byte at or behind `at` that is of the kind, or where characters are to be well formed and that is in
/// doubt; else the end of the text.
template <Characters characters, typename Kind> std::size_t Find(std::string_view text, std::size_t at, Kind isOfKind) {
    constexpr std::size_t inFront = characters == Characters::WellFormed ? kBytesInFront : 0;
    for (; at < std::min(inFront, text.size()); ++at) {
        if (isOfKind(Number(text[at]))) {
            return at;
        }
    }
    // Whether a block has longer characters is different from each to the next, and the processor would guess wrong: in
    // a long text some are asked at once. Most end in the first.
    constexpr std::size_t blocksAtOnce = 4;
    const std::size_t longFrom = at + Bytes::size();
    std::size_t asked = 0;
    bool isAscii = true;
    for (; text.size() - at >= Bytes::size(); at += Bytes::size()) {
        const char* const here = text.data() + at;
        const Bytes bytes(here, simd::element_aligned);
        auto found = isOfKind(bytes);
        if constexpr (characters == Characters::WellFormed) {
            if (at < longFrom || text.size() - at < blocksAtOnce * Bytes::size()) {
                isAscii = Number(here[-1]) >= 0 && simd::none_of(bytes < 0);
            } else if (at >= asked) {
                isAscii = IsAscii(here, blocksAtOnce);
                asked = at + blocksAtOnce * Bytes::size();
            }
            if (!isAscii) {
                found = found && bytes > Number('\xFF');
                if (!HasPairsOnly(here) && !HasUsualOnly(here)) {
                    found = found || IsDoubtful(here);
                }
            }
        }
        if (simd::any_of(found)) {
            return at + static_cast<std::size_t>(simd::find_first_set(found));
        }
    }
    if constexpr (characters == Characters::WellFormed) {
        at = BeforeBroken(text, at);
    }
    while (at < text.size() && !isOfKind(Number(text[at]))) {
        ++at;
    }
    return at;
}

/// The end of a plain stretch: `isNotPlain` tells the ASCII that is not.
template <typename Kind> std::size_t EndOfPlain(std::string_view text, std::size_t begin, Kind isNotPlain) {
    for (std::size_t at = begin;;) {
        const std::size_t end = std::max(BeforeBroken(text, Find<Characters::WellFormed>(text, at, isNotPlain)), begin);
        at = BehindLongCharacters(text, end);
        if (at == end) {
            return end;
        }
    }
}

} // namespace Framework
