#include "Framework/XMLSupport/XmlEscapes.h"

#include "Framework/XMLSupport/ByteSearch.h"

#include <algorithm>
#include <cstdint>
#include <cstdio>
#include <cstring>
#include <memory>
#include <new>

#include <expat.h>

namespace Framework {

namespace {

std::string_view Reference(char character) {
    switch (character) {
    case '&':
        return "&amp;";
    case '<':
        return "&lt;";
    case '>':
        return "&gt;";
    case '"':
        return "&quot;";
    case '\'':
        return "&apos;";
    case '\t':
        return "&#9;";
    case '\n':
        return "&#10;";
    default:
        return "&#13;";
    }
}

/// Copies what needs no escape in one piece each.
template <typename Kind> void AppendEscaped(std::string& xml, std::string_view text, Kind isSpecial) {
    for (std::size_t begin = 0;;) {
        const std::size_t at = Find<Characters::Any>(text, begin, isSpecial);
        xml.append(text, begin, at - begin);
        if (at == text.size()) {
            return;
        }
        xml.append(Reference(text[at]));
        begin = at + 1;
    }
}

bool IsPlainNameStart(char c) {
    return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z') || c == '_' || c == ':';
}

bool IsPlainNameCharacter(char c) {
    return IsPlainNameStart(c) || (c >= '0' && c <= '9') || c == '-' || c == '.';
}

/// Which letters a name may have differs between the editions of XML 1.0, and between Xerces and expat. What loads
/// again is what counts.
bool ParserTakesName(std::string_view name) {
    constexpr std::size_t kLongest = std::size_t{1} << 20U;
    if (name.size() > kLongest) {
        return false;
    }
    const std::unique_ptr<XML_ParserStruct, decltype(&XML_ParserFree)> parser(XML_ParserCreate("UTF-8"),
                                                                              &XML_ParserFree);
    if (parser == nullptr) {
        throw std::bad_alloc();
    }
    const std::string xml = "<" + std::string(name) + "/>";
    return XML_Parse(parser.get(), xml.data(), static_cast<int>(xml.size()), XML_TRUE) == XML_STATUS_OK;
}

} // namespace

std::string DescribeForbidden(std::string_view text) {
    const std::size_t at = FindNonXmlText(text);
    if (at == std::string_view::npos) {
        return {};
    }
    char room[32];
    const auto first = static_cast<unsigned char>(text[at]);
    // U+FFFE and U+FFFF are the only ones of more than one byte that are well formed.
    const std::string_view noncharacter = text.substr(at, 3);
    if (first < 0x20) {
        std::snprintf(room, sizeof room, "character U+%04X", first);
    } else if (noncharacter == "\xEF\xBF\xBE" || noncharacter == "\xEF\xBF\xBF") {
        std::snprintf(room, sizeof room, "character U+FFF%c", noncharacter.back() == '\xBE' ? 'E' : 'F');
    } else {
        std::snprintf(room, sizeof room, "byte 0x%02X, not UTF-8", first);
    }
    return room;
}

bool IsXmlName(std::string_view name) {
    if (name.empty()) {
        return false;
    }
    const auto isPlain = [](char c) { return IsPlainNameCharacter(c); };
    if (std::all_of(name.begin(), name.end(), isPlain)) {
        return IsPlainNameStart(name.front());
    }
    const auto isBeyondAscii = [](char c) { return static_cast<unsigned char>(c) > 0x7F; };
    const bool mayBe = std::all_of(name.begin(), name.end(), [&](char c) { return isPlain(c) || isBeyondAscii(c); });
    return mayBe && ParserTakesName(name);
}

bool NeedsNoEscape(std::string_view text) {
    constexpr std::size_t kLongText = 64; // worth the start of a search in blocks
    if (text.size() >= kLongText) {
        const auto isSpecial = [](auto byte) {
            return byte < ' ' || byte == '&' || byte == '<' || byte == '>' || byte == '"';
        };
        return Find<Characters::Any>(text, 0, isSpecial) == text.size();
    }
    constexpr std::uint64_t kOnes = 0x0101010101010101U;
    constexpr std::uint64_t kHighBits = 0x80 * kOnes;
    // The high bit of a byte that is 0, and perhaps of one above it.
    const auto zeros = [](std::uint64_t word) { return (word - kOnes) & ~word; };
    const auto isPlain = [&](std::uint64_t word) {
        const std::uint64_t belowBlank = word - 0x20 * kOnes;
        const std::uint64_t special = zeros(word ^ '&' * kOnes) | zeros(word ^ '<' * kOnes) |
                                      zeros(word ^ '>' * kOnes) | zeros(word ^ '"' * kOnes);
        return ((word | belowBlank | special) & kHighBits) == 0;
    };
    const char* at = text.data();
    std::uint64_t word = 0;
    for (std::size_t left = text.size(); left != 0;) {
        const std::size_t count = std::min(left, sizeof word);
        word = 0x20 * kOnes; // blanks where the text ends
        std::memcpy(&word, at, count);
        if (!isPlain(word)) {
            return false;
        }
        at += count;
        left -= count;
    }
    return true;
}

void AppendEscapedText(std::string& xml, std::string_view text) {
    AppendEscaped(xml, text, [](auto byte) { return byte == '&' || byte == '<' || byte == '>' || byte == '\r'; });
}

void AppendEscapedAttribute(std::string& xml, std::string_view value, char quote) {
    AppendEscaped(xml, value, [quote = Number(quote)](auto byte) {
        return byte == '&' || byte == '<' || byte == quote || byte == '\t' || byte == '\n' || byte == '\r';
    });
}

void AppendCData(std::string& xml, std::string_view text) {
    constexpr std::string_view kOpen = "<![CDATA[";
    constexpr std::string_view kClose = "]]>";
    xml.append(kOpen);
    std::size_t begin = 0;
    for (std::size_t at; (at = text.find_first_of(">\r", begin)) != std::string_view::npos; begin = at + 1) {
        xml.append(text, begin, at - begin);
        if (text[at] == '\r') {
            xml.append(kClose).append(Reference('\r')).append(kOpen);
            continue;
        }
        if (at >= 2 && text.substr(at - 2, 2) == "]]") {
            xml.append(kClose).append(kOpen);
        }
        xml.push_back('>');
    }
    xml.append(text, begin).append(kClose);
}

} // namespace Framework
