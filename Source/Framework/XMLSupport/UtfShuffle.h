#pragma once

#include "Framework/XMLSupport/Utf.h"

/// Turns texts with many long characters several characters at a time, by the byte shuffles that nearly all processors
/// of the x86 kind have. Each turns as much from the beginning as it can: the rest is for who goes character by
/// character.
namespace Framework {

/// Whether this processor has them; where it has not, nothing else here may be called.
bool HasShuffles() noexcept;

/// The text must be well formed, and there must be room for as many units as it has bytes. Stops within the last 80
/// bytes, and where few are not ASCII, behind a whole character.
Utf16Copy ShuffleToUtf16(std::string_view text, XMLCh* out) noexcept;

/// How far units were turned into UTF-8.
struct Utf8Copy {
    std::size_t units;
    std::size_t bytes; ///< that they gave
};

/// Stops at a surrogate, before four units of ASCII, among the last three units, and when less than 16 of the `room`
/// bytes are left.
Utf8Copy ShuffleToUtf8(const XMLCh* units, std::size_t length, char* out, std::size_t room) noexcept;

} // namespace Framework
