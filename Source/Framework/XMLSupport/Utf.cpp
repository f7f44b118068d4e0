#include "Framework/XMLSupport/Utf.h"

#include "Framework/XMLSupport/ByteSearch.h"
#include "Framework/XMLSupport/UtfShuffle.h"

#include <algorithm>
#include <cstdint>
#include <cstring>
#include <stdexcept>
#include <type_traits>

namespace Framework {

namespace {

static_assert(std::is_same_v<XMLCh, char16_t>, "Xerces-C must be built with char16_t as its character type");

constexpr std::size_t kLongText = 64;        // worth the start of a search in blocks
constexpr std::size_t kManyCharacters = 200; // worth to be gone through twice, if many bytes at a time
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

/// A character of two bytes, which most of those beyond ASCII are.
bool IsPair(const char* p) noexcept {
    return static_cast<unsigned char>(p[0] - '\xC2') <= 0xDF - 0xC2 && Number(p[1]) < Number('\xC0');
}

XMLCh CharacterOfTriple(const char* p) noexcept {
    return static_cast<XMLCh>(((p[0] & 0xF) << 12) | ((p[1] & 0x3F) << 6) | (p[2] & 0x3F));
}

/// A character of three bytes that XML allows.
bool IsTriple(const char* p) noexcept {
    const XMLCh character = CharacterOfTriple(p);
    return (p[0] & 0xF0) == 0xE0 && Number(p[1]) < Number('\xC0') && Number(p[2]) < Number('\xC0') &&
           character >= 0x800 && (character & 0xF800) != 0xD800 && character < 0xFFFE;
}

XMLCh* PutUnits(XMLCh* out, char32_t character) noexcept {
    if (character < 0x10000) {
        *out++ = static_cast<XMLCh>(character);
        return out;
    }
    const char32_t offset = character - 0x10000;
    *out++ = static_cast<XMLCh>(0xD800 + (offset >> 10));
    *out++ = static_cast<XMLCh>(0xDC00 + (offset & 0x3FF));
    return out;
}

char* PutBytes(char* out, char32_t character) noexcept {
    const auto put = [&out](char32_t byte) { *out++ = static_cast<char>(byte); };
    if (character < 0x80) {
        put(character);
        return out;
    }
    if (character < 0x800) {
        put(0xC0 | (character >> 6));
    } else {
        if (character < 0x10000) {
            put(0xE0 | (character >> 12));
        } else {
            put(0xF0 | (character >> 18));
            put(0x80 | ((character >> 12) & 0x3F));
        }
        put(0x80 | ((character >> 6) & 0x3F));
    }
    put(0x80 | (character & 0x3F));
    return out;
}

constexpr std::size_t kBlock = Bytes::size();

template <typename Number> using Block = simd::fixed_size_simd<Number, kBlock>;

/// How many stand before the first that is marked.
template <typename Mask> std::size_t CountBefore(const Mask& marks) noexcept {
    return simd::none_of(marks) ? kBlock : static_cast<std::size_t>(simd::find_first_set(marks));
}

/// Copies a block whatever it holds, and says how much of its beginning is printable ASCII.
std::size_t CopyBlock(const char* from, XMLCh* out) noexcept {
    const Block<unsigned char> bytes(from, simd::element_aligned);
    simd::static_simd_cast<Block<XMLCh>>(bytes).copy_to(out, simd::element_aligned);
    return CountBefore(Bytes(from, simd::element_aligned) < Number(' ')); // the bytes of longer characters are too
}

/// The same the other way, for ASCII.
std::size_t CopyBlock(const XMLCh* from, char* out) noexcept {
    const Block<XMLCh> units(from, simd::element_aligned);
    simd::static_simd_cast<Block<char>>(units).copy_to(out, simd::element_aligned);
    return CountBefore(units > XMLCh{0x7F});
}

/// Whether the text goes on with several longer characters.
bool IsRunOfLong(const char* p, const char* end) noexcept {
    return static_cast<std::size_t>(end - p) >= WordSize && (WordAt(p) & HighBits) == HighBits;
}

/// The same of units, but for those of surrogates.
bool IsRunOfLong(const XMLCh* p, const XMLCh* end) noexcept {
    const auto isLong = [](XMLCh unit) { return unit >= 0x80 && (unit & 0xF800) != 0xD800; };
    return end - p >= 3 && isLong(p[0]) && isLong(p[1]) && isLong(p[2]);
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
                text, at, [](auto byte) { return byte < ' ' && !(byte == '\t' || byte == '\n' || byte == '\r'); });
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

std::size_t FindForbidden(std::string_view text) noexcept {
    const auto isControl = [](auto byte) {
        return byte < ' ' && byte >= 0 && !(byte == '\t' || byte == '\n' || byte == '\r');
    };
    const auto isSuspect = [isControl](auto byte) { return isControl(byte) || byte == Number('\xEF'); };
    for (std::size_t at = 0; (at = Find<Characters::Any>(text, at, isSuspect)) < text.size(); ++at) {
        const std::string_view character = text.substr(at, 3);
        if (isControl(Number(text[at])) || character == "\xEF\xBF\xBE" || character == "\xEF\xBF\xBF") {
            return at;
        }
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

Utf16Copy CopyXmlUtf16(std::string_view text, XMLCh* out) noexcept {
    const char* p = text.data();
    const char* const end = p + text.size();
    XMLCh* const start = out;
    const bool hasShuffles = text.size() >= kManyCharacters && HasShuffles();
    const char* checkedEnd = nullptr; // of what may stand in XML, once it is known
    while (p != end) {
        if (static_cast<std::size_t>(end - p) >= kBlock) {
            const std::size_t copied = CopyBlock(p, out);
            p += copied;
            out += copied;
            if (copied == kBlock) {
                continue;
            }
        }
        if (hasShuffles && IsRunOfLong(p, end)) {
            if (checkedEnd == nullptr) {
                const std::string_view rest(p, static_cast<std::size_t>(end - p));
                checkedEnd = p + std::min(FindNonXmlText(rest), rest.size());
            }
            const Utf16Copy shuffled = ShuffleToUtf16({p, static_cast<std::size_t>(checkedEnd - p)}, out);
            p += shuffled.bytes;
            out += shuffled.units;
            if (shuffled.bytes > 0) {
                continue;
            }
        }
        do { // longer characters mostly stand together, or alone
            if (end - p > 1 && IsPair(p)) {
                *out++ = static_cast<XMLCh>(((p[0] & 0x1F) << 6) | (p[1] & 0x3F));
                p += 2;
                continue;
            }
            if (end - p > 2 && IsTriple(p)) {
                *out++ = CharacterOfTriple(p);
                p += 3;
                continue;
            }
            const Decoded decoded = Decode(p, end);
            if (decoded.length == 0 || !IsXmlCharacter(decoded.character)) {
                return {static_cast<std::size_t>(p - text.data()), static_cast<std::size_t>(out - start)};
            }
            out = PutUnits(out, decoded.character);
            p += decoded.length;
        } while (p != end && static_cast<unsigned char>(*p) >= 0x80);
    }
    return {text.size(), static_cast<std::size_t>(out - start)};
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
        out = PutUnits(out, decoded.character);
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
    constexpr std::size_t kMostBytes = 4; // of a character
    char room[1024];
    const char* const last = std::end(room) - kBlock - kMostBytes; // where there is room for more
    const auto isHigh = [](XMLCh unit) { return (unit & 0xFC00) == 0xD800; };
    const auto isLow = [](XMLCh unit) { return (unit & 0xFC00) == 0xDC00; };
    const bool hasShuffles = HasShuffles();
    const XMLCh* p = pUnits;
    const XMLCh* const end = p + length;
    while (p != end) {
        char* out = room;
        while (p != end && out <= last) {
            if (static_cast<std::size_t>(end - p) >= kBlock) {
                const std::size_t copied = CopyBlock(p, out);
                p += copied;
                out += copied;
                if (copied == kBlock) {
                    continue;
                }
            }
            if (hasShuffles && IsRunOfLong(p, end)) {
                const Utf8Copy shuffled = ShuffleToUtf8(p, static_cast<std::size_t>(end - p), out,
                                                        static_cast<std::size_t>(std::end(room) - out));
                p += shuffled.units;
                out += shuffled.bytes;
                if (shuffled.units > 0) {
                    continue;
                }
            }
            do { // what is beyond ASCII mostly stands together, or alone
                char32_t character = *p++;
                if (isHigh(static_cast<XMLCh>(character)) && p != end && isLow(*p)) {
                    character = 0x10000 + ((character & 0x3FF) << 10) + (char32_t{*p++} & 0x3FF);
                } else if ((character & 0xF800) == 0xD800) {
                    character = 0xFFFD;
                }
                out = PutBytes(out, character);
            } while (p != end && *p >= 0x80 && out <= last);
        }
        text.append(room, out);
    }
}

std::size_t CountCodePoints(std::string_view text) noexcept {
    return static_cast<std::size_t>(
        std::count_if(text.begin(), text.end(), [](char c) { return (static_cast<unsigned char>(c) & 0xC0) != 0x80; }));
}

} // namespace Framework
