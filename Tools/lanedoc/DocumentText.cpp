#include "DocumentText.h"

#include <iconv.h>

#include <algorithm>
#include <array>
#include <optional>

namespace Lanedoc {

namespace {

using namespace std::literals;

/// How a document may begin, and what that says of its encoding.
struct Beginning {
    std::string_view bytes;
    const char* encoding;
    bool isMark;
};

// The longer before the shorter one that it begins with. EBCDIC is here for its declaration, which is the same in all
// its code pages and names the one that is meant.
constexpr std::array beginnings{
    Beginning{"\xEF\xBB\xBF"sv, "UTF-8", true},    Beginning{"\xFF\xFE\0\0"sv, "UTF-32LE", true},
    Beginning{"\0\0\xFE\xFF"sv, "UTF-32BE", true}, Beginning{"\xFF\xFE"sv, "UTF-16LE", true},
    Beginning{"\xFE\xFF"sv, "UTF-16BE", true},     Beginning{"<\0\0\0"sv, "UTF-32LE", false},
    Beginning{"\0\0\0<"sv, "UTF-32BE", false},     Beginning{"<\0"sv, "UTF-16LE", false},
    Beginning{"\0<"sv, "UTF-16BE", false},         Beginning{"\x4C\x6F\xA7\x94"sv, "IBM037", false},
};

/// Nothing when the system does not know the encoding, or the bytes are none of it.
std::optional<std::string> ToUtf8(std::string_view bytes, const std::string& encoding) {
    const iconv_t converter = ::iconv_open("UTF-8", encoding.c_str());
    if (converter == reinterpret_cast<iconv_t>(-1)) { // NOLINT: the interface's own way to say "none"
        return std::nullopt;
    }
    std::string text;
    std::array<char, 1U << 14U> piece{};
    char* from = const_cast<char*>(bytes.data()); // iconv takes a char** for old times' sake and writes nothing there
    std::size_t left = bytes.size();
    bool isWhole = true;
    bool isFlushed = false; // some encodings hold the last character back
    while (isWhole && !isFlushed) {
        isFlushed = left == 0;
        char* to = piece.data();
        std::size_t room = piece.size();
        const std::size_t result =
            ::iconv(converter, isFlushed ? nullptr : &from, isFlushed ? nullptr : &left, &to, &room);
        isWhole = result != static_cast<std::size_t>(-1) || room < piece.size();
        text.append(piece.data(), piece.size() - room);
    }
    ::iconv_close(converter);
    return isWhole ? std::optional(text) : std::nullopt;
}

/// The encoding that the XML declaration names; empty when there is none.
std::string DeclaredEncoding(std::string_view text) {
    const std::string_view declaration = text.starts_with("<?xml") ? text.substr(0, text.find("?>")) : "";
    const std::size_t name = declaration.find("encoding");
    const std::size_t quote = declaration.find_first_of("\"'", name);
    if (name == std::string_view::npos || quote == std::string_view::npos) {
        return {};
    }
    const std::size_t end = declaration.find(declaration[quote], quote + 1);
    return std::string(declaration.substr(quote + 1, end - quote - 1));
}

std::string EncodingOf(std::string_view bytes, const Beginning* beginning) {
    if (beginning == nullptr) {
        return DeclaredEncoding(bytes);
    }
    if (beginning->encoding != "IBM037"sv) {
        return beginning->encoding;
    }
    constexpr std::size_t longestDeclaration = 1000;
    return DeclaredEncoding(ToUtf8(bytes.substr(0, longestDeclaration), beginning->encoding).value_or(""));
}

} // namespace

std::string DocumentText(std::string_view bytes) {
    const auto* const found = std::find_if(beginnings.begin(), beginnings.end(),
                                           [&](const Beginning& each) { return bytes.starts_with(each.bytes); });
    const Beginning* const beginning = found == beginnings.end() ? nullptr : found;
    if (beginning != nullptr && beginning->isMark) {
        bytes.remove_prefix(beginning->bytes.size());
    }
    const std::string encoding = EncodingOf(bytes, beginning);
    const bool isUtf8 = encoding.empty() || encoding == "UTF-8" || encoding == "utf-8";
    return (isUtf8 ? std::nullopt : ToUtf8(bytes, encoding)).value_or(std::string(bytes));
}

} // namespace Lanedoc
