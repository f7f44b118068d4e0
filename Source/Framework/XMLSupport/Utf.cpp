#include "Framework/XMLSupport/Utf.h"

#include "Framework/XMLSupport/ByteSearch.h"

#include <algorithm>
#include <cstdint>
#include <cstring>
#include <stdexcept>
#include <type_traits>

namespace Framework {

namespace {

static_assert(std::is_same_v<XMLCh, char16_t>, "Xerces-C must be built with char16_t as its character type");

constexpr std::size_t kLongText = 64; // worth the start of a search in blocks
constexpr std::size_t WordSize = sizeof(std::uint64_t);
constexpr std::uint64_t HighBits = 0x8080808080808080U;
constexpr std::uint64_t Blanks = 0x2020202020202020U;

std::uint64_t WordAt(const char* p) noexcept {
    std::uint64_t word;
    std::memcpy(&word, p, WordSize);
    return word;
}

/// End of the run of ASCII that starts at `p`, short of it by less than a word.
const char* SkipAscii(const char* p, const char* end) noexcept {
    while (static_cast<std::size_t>(end - p) >= WordSize && (WordAt(p) & HighBits) == 0) {
        p += WordSize;
    }
    return p;
}

/// End of the run of ASCII that starts at `p`.
const char* BehindAscii(const char* p, const char* end) noexcept {
    return std::find_if(SkipAscii(p, end), end, [](char c) { return (static_cast<unsigned char>(c) & 0x80U) != 0; });
}

/// End of such a run of UTF-16, short of it by less than a word.
const XMLCh* SkipAscii(const XMLCh* p, const XMLCh* end) noexcept {
    constexpr std::ptrdiff_t unitsInWord = WordSize / sizeof(XMLCh);
    constexpr std::uint64_t beyondAscii = 0xFF80FF80FF80FF80U;
    std::uint64_t word = 0;
    while (end - p >= unitsInWord && (std::memcpy(&word, p, WordSize), (word & beyondAscii) == 0)) {
        p += unitsInWord;
    }
    return p;
}

/// The same for printable ASCII. Subtracting sets a byte's high bit when the byte, or a borrow from one below it, is
/// less than a blank: it may stop early, never late.
const char* SkipPrintableAscii(const char* p, const char* end) noexcept {
    while (static_cast<std::size_t>(end - p) >= WordSize && ((WordAt(p) | (WordAt(p) - Blanks)) & HighBits) == 0) {
        p += WordSize;
    }
    return p;
}

struct Decoded {
    char32_t character;
    std::size_t length; ///< bytes of the sequence; 0 when it is malformed
};

Decoded Decode(const char* p, const char* end) noexcept {
    constexpr Decoded Malformed{0, 0};
    const auto byteAt = [p](std::size_t i) { return static_cast<char32_t>(static_cast<unsigned char>(p[i])); };
    const char32_t lead = byteAt(0);
    if (lead < 0x80) {
        return {lead, 1};
    }
    const std::size_t length = lead >= 0xF0 ? 4 : lead >= 0xE0 ? 3 : 2;
    if (lead < 0xC2 || lead > 0xF4 || static_cast<std::size_t>(end - p) < length) {
        return Malformed;
    }
    char32_t character = lead & (0x7FU >> length);
    for (std::size_t i = 1; i < length; ++i) {
        if ((byteAt(i) & 0xC0) != 0x80) {
            return Malformed;
        }
        character = (character << 6) | (byteAt(i) & 0x3F);
    }
    const char32_t least = length == 4 ? 0x10000 : length == 3 ? 0x800 : 0x80;
    if (character < least || character > 0x10FFFF || (character >= 0xD800 && character <= 0xDFFF)) {
        return Malformed;
    }
    return {character, length};
}

bool IsXmlCharacter(char32_t character) noexcept {
    if (character < 0x20) {
        return character == '\t' || character == '\n' || character == '\r';
    }
    return character != 0xFFFE && character != 0xFFFF;
}

void AppendCharacter(std::string& text, char32_t character) {
    const auto append = [&text](char32_t byte) { text.push_back(static_cast<char>(byte)); };
    if (character < 0x80) {
        append(character);
        return;
    }
    if (character < 0x800) {
        append(0xC0 | (character >> 6));
    } else {
        if (character < 0x10000) {
            append(0xE0 | (character >> 12));
        } else {
            append(0xF0 | (character >> 18));
            append(0x80 | ((character >> 12) & 0x3F));
        }
        append(0x80 | ((character >> 6) & 0x3F));
    }
    append(0x80 | (character & 0x3F));
}

} // namespace

std::size_t FindInvalidUtf8(std::string_view text) noexcept {
    const char* p = text.data();
    const char* const end = p + text.size();
    while ((p = SkipAscii(p, end)) != end) {
        const Decoded decoded = Decode(p, end);
        if (decoded.length == 0) {
            return static_cast<std::size_t>(p - text.data());
        }
        p += decoded.length;
    }
    return std::string_view::npos;
}

std::size_t BehindLongCharacters(std::string_view text, std::size_t offset) noexcept {
    const char* p = text.data() + offset;
    const char* const end = text.data() + text.size();
    while (p != end && static_cast<unsigned char>(*p) >= 0x80) {
        const Decoded decoded = Decode(p, end);
        if (decoded.length == 0 || !IsXmlCharacter(decoded.character)) {
            break;
        }
        p += decoded.length;
    }
    return static_cast<std::size_t>(p - text.data());
}

std::size_t FindNonXmlText(std::string_view text) noexcept {
    const char* p = text.data();
    const char* const end = p + text.size();
    while ((p = SkipPrintableAscii(p, end)) != end) {
        const auto at = static_cast<std::size_t>(p - text.data());
        if (text.size() - at >= kLongText) {
            const std::size_t stop = EndOfPlain(
                text, at, [](auto byte) { return byte < ' ' && byte != '\t' && byte != '\n' && byte != '\r'; });
            return stop == text.size() ? std::string_view::npos : stop;
        }
        const Decoded decoded = Decode(p, end);
        if (decoded.length == 0 || !IsXmlCharacter(decoded.character)) {
            return at;
        }
        p += decoded.length;
    }
    return std::string_view::npos;
}

std::size_t Utf16Length(std::string_view text) {
    const char* p = text.data();
    const char* const end = p + text.size();
    std::size_t units = 0;
    while (p != end) {
        const char* const behind = BehindAscii(p, end);
        units += static_cast<std::size_t>(behind - p);
        p = behind;
        if (p == end) {
            break;
        }
        const Decoded decoded = Decode(p, end);
        if (decoded.length == 0) {
            throw std::invalid_argument("text is not UTF-8: malformed sequence at byte offset " +
                                        std::to_string(p - text.data()));
        }
        units += decoded.length == 4 ? 2 : 1;
        p += decoded.length;
    }
    return units;
}

void CopyUtf16(std::string_view text, XMLCh* out) noexcept {
    const char* p = text.data();
    const char* const end = p + text.size();
    while (p != end) {
        const char* const behind = BehindAscii(p, end);
        out = std::transform(p, behind, out, [](char c) { return static_cast<XMLCh>(c); });
        p = behind;
        if (p == end) {
            break;
        }
        const Decoded decoded = Decode(p, end);
        if (decoded.length == 4) {
            const char32_t offset = decoded.character - 0x10000;
            *out++ = static_cast<XMLCh>(0xD800 + (offset >> 10));
            *out++ = static_cast<XMLCh>(0xDC00 + (offset & 0x3FF));
        } else {
            *out++ = static_cast<XMLCh>(decoded.character);
        }
        p += decoded.length;
    }
}

bool CopyPrintableAscii(std::string_view text, XMLCh* out) noexcept {
    const char* p = text.data();
    const char* const end = p + text.size();
    const auto unit = [](char c) { return static_cast<XMLCh>(static_cast<unsigned char>(c)); };
    for (; static_cast<std::size_t>(end - p) >= WordSize; p += WordSize, out += WordSize) {
        if (((WordAt(p) | (WordAt(p) - Blanks)) & HighBits) != 0) {
            return false;
        }
        for (std::size_t i = 0; i < WordSize; ++i) {
            out[i] = unit(p[i]);
        }
    }
    bool isPrintable = true;
    for (; p != end; ++p) {
        isPrintable = isPrintable && *p >= 0x20; // what is beyond ASCII is negative
        *out++ = unit(*p);
    }
    return isPrintable;
}

std::u16string ToUtf16(std::string_view text) {
    std::u16string units(Utf16Length(text), u'\0');
    CopyUtf16(text, units.data());
    return units;
}

void AppendUtf8(std::string& text, const XMLCh* pUnits, std::size_t length) {
    const auto isHigh = [](XMLCh unit) { return (unit & 0xFC00) == 0xD800; };
    const auto isLow = [](XMLCh unit) { return (unit & 0xFC00) == 0xDC00; };
    const XMLCh* const end = pUnits + length;
    for (std::size_t i = 0; i < length; ++i) {
        const XMLCh unit = pUnits[i];
        char32_t character = unit;
        if (unit < 0x80) { // nearly always, and then a whole run of it
            const XMLCh* const start = pUnits + i;
            const XMLCh* const behind =
                std::find_if(SkipAscii(start, end), end, [](XMLCh next) { return next >= 0x80; });
            const std::size_t before = text.size();
            text.resize(before + static_cast<std::size_t>(behind - start));
            std::transform(start, behind, text.data() + before, [](XMLCh next) { return static_cast<char>(next); });
            i = static_cast<std::size_t>(behind - pUnits) - 1;
            continue;
        }
        if (isHigh(unit) && i + 1 < length && isLow(pUnits[i + 1])) {
            ++i;
            character = 0x10000 + ((char32_t{unit} & 0x3FF) << 10) + (char32_t{pUnits[i]} & 0x3FF);
        } else if (isHigh(unit) || isLow(unit)) {
            character = 0xFFFD;
        }
        AppendCharacter(text, character);
    }
}

std::size_t CountCodePoints(std::string_view text) noexcept {
    return static_cast<std::size_t>(
        std::count_if(text.begin(), text.end(), [](char c) { return (static_cast<unsigned char>(c) & 0xC0) != 0x80; }));
}

} // namespace Framework
