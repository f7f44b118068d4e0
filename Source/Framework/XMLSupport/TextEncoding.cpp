#include "Framework/XMLSupport/TextEncoding.h"

#include "Framework/XMLSupport/LimitMessages.h"
#include "Framework/XMLSupport/ParseError.h"

#include <iconv.h>

#include <algorithm>
#include <array>
#include <cerrno>
#include <utility>

namespace Framework {

namespace {

using namespace std::literals;

constexpr std::string_view kUtf8Mark = "\xEF\xBB\xBF";
constexpr std::string_view kUtf8 = "UTF-8";
/// "<?xm" in every code page of EBCDIC.
constexpr std::string_view kEbcdicDeclaration = "\x4C\x6F\xA7\x94";

struct Signature {
    std::string_view bytes;
    std::string_view encoding;
    bool isMark;
};

// The longer before the shorter one that it begins with.
constexpr std::array kSignatures{
    Signature{kUtf8Mark, kUtf8, true},
    Signature{"\xFF\xFE\0\0"sv, "UTF-32LE", true},
    Signature{"\0\0\xFE\xFF"sv, "UTF-32BE", true},
    Signature{"\xFF\xFE"sv, "UTF-16LE", true},
    Signature{"\xFE\xFF"sv, "UTF-16BE", true},
    Signature{"<\0\0\0"sv, "UTF-32LE", false},
    Signature{"\0\0\0<"sv, "UTF-32BE", false},
    Signature{"<\0"sv, "UTF-16LE", false},
    Signature{"\0<"sv, "UTF-16BE", false},
};

char Lower(char letter) {
    return letter >= 'A' && letter <= 'Z' ? static_cast<char>(letter - 'A' + 'a') : letter;
}

bool SameName(std::string_view left, std::string_view right) {
    return std::equal(left.begin(), left.end(), right.begin(), right.end(),
                      [](char one, char other) { return Lower(one) == Lower(other); });
}

bool IsBlank(char byte) {
    return byte == ' ' || byte == '\t' || byte == '\r' || byte == '\n';
}

bool IsEncodingName(std::string_view name) {
    const auto isLetter = [](char byte) { return Lower(byte) >= 'a' && Lower(byte) <= 'z'; };
    return !name.empty() && isLetter(name.front()) && std::all_of(name.begin(), name.end(), [&](char byte) {
        return isLetter(byte) || (byte >= '0' && byte <= '9') || byte == '.' || byte == '_' || byte == '-';
    });
}

/// The XML declaration at the start of the text, empty when there is none.
std::string_view Declaration(std::string_view text) {
    if (!text.starts_with("<?xml") || text.size() == 5 || !IsBlank(text[5])) {
        return {};
    }
    const std::size_t end = text.find("?>");
    return end == std::string_view::npos ? std::string_view() : text.substr(0, end + 2);
}

/// The encoding that a declaration names, a view into it. Empty also for a malformed one: the parser has the better
/// words then.
std::string_view DeclaredEncoding(std::string_view declaration) {
    std::size_t at = 5;
    const auto skipBlanks = [&] {
        while (at < declaration.size() && IsBlank(declaration[at])) {
            ++at;
        }
    };
    for (;;) {
        skipBlanks();
        const std::size_t nameBegin = at;
        while (at < declaration.size() && Lower(declaration[at]) >= 'a' && Lower(declaration[at]) <= 'z') {
            ++at;
        }
        const std::string_view name = declaration.substr(std::min(nameBegin, declaration.size()), at - nameBegin);
        skipBlanks();
        if (name.empty() || at >= declaration.size() || declaration[at++] != '=') {
            return {};
        }
        skipBlanks();
        if (at >= declaration.size() || (declaration[at] != '"' && declaration[at] != '\'')) {
            return {};
        }
        const std::size_t valueEnd = declaration.find(declaration[at], at + 1);
        if (valueEnd == std::string_view::npos) {
            return {};
        }
        const std::string_view value = declaration.substr(at + 1, valueEnd - at - 1);
        if (name == "encoding") {
            return IsEncodingName(value) ? value : std::string_view();
        }
        at = valueEnd + 1;
    }
}

class Converter {
public:
    Converter(const std::string& to, const std::string& from) : m_handle(::iconv_open(to.c_str(), from.c_str())) {
        if (!IsKnown() && errno == ENOMEM) {
            throw std::bad_alloc();
        }
    }
    ~Converter() {
        if (IsKnown()) {
            ::iconv_close(m_handle);
        }
    }
    Converter(const Converter&) = delete;
    Converter& operator=(const Converter&) = delete;

    bool IsKnown() const {
        return m_handle != reinterpret_cast<iconv_t>(-1); // NOLINT: the interface's own way to say "none"
    }

    enum class Outcome { Complete, Invalid, CutOff, TooLarge };

    /// Appends the converted bytes to `out`; `consumed` tells how many bytes of `in` are good.
    Outcome Convert(std::string_view in, std::string& out, std::size_t& consumed,
                    std::size_t most = kMostDocumentBytes) {
        char* from = const_cast<char*>(in.data()); // iconv takes a char** for old times' sake and writes nothing there
        std::size_t left = in.size();
        std::size_t written = out.size();
        out.resize(written + in.size() + in.size() / 8 + 16);
        bool flushing = false;
        for (;;) {
            char* to = out.data() + written;
            std::size_t room = out.size() - written;
            const std::size_t result =
                ::iconv(m_handle, flushing ? nullptr : &from, flushing ? nullptr : &left, &to, &room);
            const int error = result == static_cast<std::size_t>(-1) ? errno : 0;
            written = out.size() - room;
            consumed = in.size() - left;
            if (error == E2BIG && out.size() <= most) {
                out.resize(out.size() + out.size() / 2);
                continue;
            }
            if (error == 0 && !flushing) {
                flushing = true; // some encodings hold the last character back
                continue;
            }
            out.resize(written);
            if (error == E2BIG || written > most) {
                return Outcome::TooLarge;
            }
            return error == 0 ? Outcome::Complete : error == EINVAL ? Outcome::CutOff : Outcome::Invalid;
        }
    }

private:
    iconv_t m_handle;
};

/// Turns what follows the first `skipped` bytes (the byte order mark) into UTF-8.
std::string ToUtf8(const std::string& bytes, std::size_t skipped, const std::string& encoding,
                   const std::string& sourceName, const LoadLimits& limits) {
    std::string text;
    std::size_t consumed = 0;
    const std::string_view in = std::string_view(bytes).substr(skipped);
    const std::size_t memoryLeft = limits.memory - std::min(limits.memory, bytes.size());
    const Converter::Outcome outcome =
        Converter("UTF-8", encoding).Convert(in, text, consumed, std::min(memoryLeft, kMostDocumentBytes));
    const std::string offset = std::to_string(skipped + consumed);
    switch (outcome) {
    case Converter::Outcome::Complete:
        return text;
    case Converter::Outcome::TooLarge:
        if (memoryLeft < kMostDocumentBytes) {
            throw ParseError(sourceName, {1, 1}, MemoryPassed(limits));
        }
        throw ParseError(sourceName, {1, 1}, "the document is larger than 1 GiB as UTF-8, the most that can be loaded");
    case Converter::Outcome::CutOff:
        throw ParseError(sourceName, PlaceIn(text, text.size()),
                         "the document ends in the middle of a character (byte offset " + offset + ", encoding " +
                             encoding + ")");
    case Converter::Outcome::Invalid:
        break;
    }
    throw ParseError(sourceName, PlaceIn(text, text.size()),
                     "byte " + HexByte(in[consumed]) + " at byte offset " + offset + " is not part of a character in " +
                         encoding + ", the encoding of the document");
}

bool Agree(std::string_view declared, std::string_view detected) {
    if (detected == kUtf8) {
        return SameName(declared, kUtf8) || SameName(declared, "UTF8");
    }
    const bool isWide = detected.starts_with("UTF-32");
    return SameName(declared, detected) || SameName(declared, detected.substr(0, 6)) ||
           SameName(declared, isWide ? "ISO-10646-UCS-4" : "ISO-10646-UCS-2") ||
           SameName(declared, isWide ? "UCS-4" : "UCS-2");
}

/// Refuses a declaration that names another encoding than the first bytes of the document show.
void CheckDeclared(const DecodedText& source, const std::string& sourceName) {
    const std::string_view declared = DeclaredEncoding(Declaration(source.text));
    if (declared.empty() || Agree(declared, source.encoding)) {
        return;
    }
    const auto offset = static_cast<std::size_t>(declared.data() - source.text.data());
    throw ParseError(sourceName, PlaceIn(source.text, offset),
                     "the declaration says " + std::string(declared) + ", but the " +
                         (source.byteOrderMark ? "byte order mark" : "first bytes") + " of the document say " +
                         source.encoding);
}

/// A document without byte order mark whose declaration can be read as ASCII.
DecodedText DecodeByDeclaration(std::string bytes, const std::string& sourceName, const LoadLimits& limits) {
    const std::string_view declaration = Declaration(bytes);
    const std::string_view declared = DeclaredEncoding(declaration);
    DecodedText source;
    if (declared.empty() || Agree(declared, kUtf8)) {
        source.text = std::move(bytes);
        return source;
    }
    source.encoding = declared;
    const auto refuse = [&](const std::string& message) {
        const auto offset = static_cast<std::size_t>(declared.data() - bytes.data());
        throw ParseError(sourceName, PlaceIn(bytes, offset), message);
    };
    Converter converter("UTF-8", source.encoding);
    if (!converter.IsKnown()) {
        refuse("unknown encoding " + source.encoding + ", expected UTF-8 or another one that this system can convert");
    }
    std::string asText;
    std::size_t consumed = 0;
    if (converter.Convert(declaration, asText, consumed) != Converter::Outcome::Complete || asText != declaration) {
        refuse("the declaration says " + source.encoding + ", but is not written in it itself");
    }
    source.text = ToUtf8(bytes, 0, source.encoding, sourceName, limits);
    if (source.text != bytes) {
        source.original = std::move(bytes);
    }
    return source;
}

/// A document whose declaration is in EBCDIC. The characters of declarations are the same in all its code pages.
DecodedText DecodeEbcdic(std::string bytes, const std::string& sourceName, const LoadLimits& limits) {
    constexpr std::size_t longestDeclaration = 1000;
    std::string declaration;
    std::size_t consumed = 0;
    Converter("UTF-8", "IBM037").Convert(std::string_view(bytes).substr(0, longestDeclaration), declaration, consumed);
    DecodedText source;
    source.encoding = DeclaredEncoding(Declaration(declaration));
    const auto refuse = [&](const std::string& message) { throw ParseError(sourceName, {1, 1}, message); };
    if (source.encoding.empty()) {
        refuse("the document begins in EBCDIC, but its declaration names no encoding");
    }
    if (!Converter("UTF-8", source.encoding).IsKnown()) {
        refuse("unknown encoding " + source.encoding + ", expected one that this system can convert");
    }
    source.text = ToUtf8(bytes, 0, source.encoding, sourceName, limits);
    if (DeclaredEncoding(Declaration(source.text)) != source.encoding) {
        refuse("the declaration says " + source.encoding + ", but is not written in it itself");
    }
    source.original = std::move(bytes);
    return source;
}

} // namespace

std::string HexByte(char byte) {
    constexpr std::string_view digits = "0123456789ABCDEF";
    const auto value = static_cast<unsigned char>(byte);
    return {'0', 'x', digits[value >> 4U], digits[value & 15U]};
}

DecodedText DecodeDocument(std::string bytes, const std::string& sourceName, const LoadLimits& limits) {
    if (bytes.size() > kMostDocumentBytes) {
        throw ParseError(sourceName, {1, 1}, "the document is larger than 1 GiB, the most that can be loaded");
    }
    const auto* const signature = std::find_if(kSignatures.begin(), kSignatures.end(),
                                               [&](const Signature& each) { return bytes.starts_with(each.bytes); });
    if (signature == kSignatures.end()) {
        return bytes.starts_with(kEbcdicDeclaration) ? DecodeEbcdic(std::move(bytes), sourceName, limits)
                                                     : DecodeByDeclaration(std::move(bytes), sourceName, limits);
    }
    DecodedText source;
    source.encoding = signature->encoding;
    source.byteOrderMark = signature->isMark;
    const std::size_t skipped = signature->isMark ? signature->bytes.size() : 0;
    if (source.encoding == kUtf8) {
        source.text = std::move(bytes);
        source.text.erase(0, skipped);
    } else {
        source.text = ToUtf8(bytes, skipped, source.encoding, sourceName, limits);
        source.original = std::move(bytes);
    }
    CheckDeclared(source, sourceName);
    return source;
}

std::optional<std::string> EncodeDocument(std::string_view text, const std::string& encoding, bool byteOrderMark) {
    std::string marked;
    if (byteOrderMark) {
        marked.append(kUtf8Mark).append(text);
        text = marked;
    }
    if (encoding == kUtf8) {
        return std::string(text);
    }
    std::string bytes;
    std::size_t consumed = 0;
    Converter converter(encoding, "UTF-8");
    if (!converter.IsKnown() || converter.Convert(text, bytes, consumed) != Converter::Outcome::Complete) {
        return std::nullopt;
    }
    return bytes;
}

EncodedCharacters::EncodedCharacters(std::string encoding)
    : m_encoding(std::move(encoding)), m_hasAll(m_encoding.starts_with("UTF-")) {}

bool EncodedCharacters::Has(std::string_view character) {
    const std::optional<std::string> bytes = EncodeDocument(character, m_encoding, false);
    std::string back;
    std::size_t consumed = 0;
    return bytes.has_value() &&
           Converter("UTF-8", m_encoding).Convert(*bytes, back, consumed) == Converter::Outcome::Complete &&
           back == character;
}

std::size_t EncodedCharacters::FindMissing(std::string_view text) {
    if (m_hasAll) {
        return std::string_view::npos;
    }
    const auto isContinued = [&](std::size_t at) {
        return at < text.size() && (static_cast<unsigned char>(text[at]) & 0xC0U) == 0x80U;
    };
    for (std::size_t at = 0; at < text.size();) {
        std::size_t end = at + 1;
        while (isContinued(end)) {
            ++end;
        }
        const std::string_view character = text.substr(at, end - at);
        auto asked = m_asked.find(character);
        if (asked == m_asked.end()) {
            asked = m_asked.emplace(m_characters.emplace_back(character), Has(character)).first;
        }
        if (!asked->second) {
            return at;
        }
        at = end;
    }
    return std::string_view::npos;
}

} // namespace Framework
