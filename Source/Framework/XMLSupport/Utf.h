#pragma once

#include <cstddef>
#include <string>
#include <string_view>

#include <xercesc/util/XercesDefs.hpp>

namespace Framework {

/// UTF-8 here is strict: overlong forms, surrogates and anything above U+10FFFF are malformed.

/// Offset of the first malformed sequence, npos when there is none.
std::size_t FindInvalidUtf8(std::string_view text) noexcept;

/// Offset of the first malformed sequence or character that XML 1.0 does not allow, npos when there is none.
std::size_t FindNonXmlText(std::string_view text) noexcept;

/// The same for a text that is known to be well formed.
std::size_t FindForbidden(std::string_view text) noexcept;

/// Behind the characters beyond ASCII, well formed and allowed in XML 1.0, that stand at the offset; the offset itself
/// when there is none.
std::size_t BehindLongCharacters(std::string_view text, std::size_t offset) noexcept;

inline bool IsXmlText(std::string_view text) noexcept {
    return FindNonXmlText(text) == std::string_view::npos;
}

/// Number of UTF-16 units of the text. Throws std::invalid_argument, naming the offset, when it is malformed.
std::size_t Utf16Length(std::string_view text);

/// Writes the units that Utf16Length counted, without a closing zero. The text must be well formed.
void CopyUtf16(std::string_view text, XMLCh* out) noexcept;

/// How far a text was turned into UTF-16.
struct Utf16Copy {
    std::size_t bytes; ///< of the text
    std::size_t units; ///< that they gave
};

/// Checks and turns a text at once, up to the first malformed sequence or character that XML 1.0 does not allow. Needs
/// room for as many units as the text has bytes, writes over all of it, and no closing zero.
Utf16Copy CopyXmlUtf16(std::string_view text, XMLCh* out) noexcept;

/// Writes a text that is of printable ASCII alone, without a closing zero. False, and nothing of use written, for any
/// other.
bool CopyPrintableAscii(std::string_view text, XMLCh* out) noexcept;

/// Throws std::invalid_argument, naming the offset, when the text is malformed.
std::u16string ToUtf16(std::string_view text);

/// Half a surrogate pair becomes U+FFFD.
void AppendUtf8(std::string& text, const XMLCh* pUnits, std::size_t length);

/// Number of characters of well formed text.
std::size_t CountCodePoints(std::string_view text) noexcept;

} // namespace Framework
