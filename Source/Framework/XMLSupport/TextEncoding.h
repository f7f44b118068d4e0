#pragma once

#include "Framework/LoadLimits.h"

#include <deque>
#include <optional>
#include <string>
#include <string_view>
#include <unordered_map>

namespace Framework {

/// More than this no document may have, in bytes or as UTF-8: ranges and the parser count in 31 bits.
inline constexpr std::size_t kMostDocumentBytes = std::size_t{1} << 30U;

/// A document's text as UTF-8, and what is needed to give its bytes back.
struct DecodedText {
    /// Without byte order mark.
    std::string text;
    /// The bytes as they came; empty when `text`, behind the mark if there is one, is just that.
    std::string original;
    /// As iconv knows it, with the byte order named: "UTF-8", "UTF-16LE", "Windows-1252".
    std::string encoding = "UTF-8";
    bool byteOrderMark = false;
};

/// Detects the encoding of a document and turns it into UTF-8. A byte order mark decides, else `<` with its zero bytes,
/// else the declaration, which may stand in ASCII or in what EBCDIC's code pages have in common, else it is UTF-8.
/// Throws ParseError when these contradict each other, the bytes are not of that encoding, or it would take more memory
/// than the limit; text that is UTF-8 already is not checked, the parser does that.
DecodedText DecodeDocument(std::string bytes, const std::string& sourceName, const LoadLimits& limits);

/// "0xE9": a byte as error texts name it.
std::string HexByte(char byte);

/// The way back: nothing when a character does not exist in the encoding.
std::optional<std::string> EncodeDocument(std::string_view text, const std::string& encoding, bool byteOrderMark);

/// Answers for one encoding which characters can stand in a text of it: those that come back as they went in.
class EncodedCharacters {
public:
    explicit EncodedCharacters(std::string encoding);

    /// Offset of the first character (UTF-8) that cannot stand in it, npos when all can.
    std::size_t FindMissing(std::string_view text);

private:
    bool Has(std::string_view character);

    std::string m_encoding;
    bool m_hasAll;
    std::unordered_map<std::string_view, bool> m_asked;
    std::deque<std::string> m_characters;
};

} // namespace Framework
