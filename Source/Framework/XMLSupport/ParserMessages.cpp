#include "Framework/XMLSupport/ParserMessages.h"

#include "Framework/XMLSupport/DocumentBuilder.h"
#include "Framework/XMLSupport/Utf.h"

#include <algorithm>
#include <array>
#include <string_view>

namespace Framework {

namespace {

constexpr std::size_t kNone = std::string_view::npos;
constexpr std::string_view kBlanks = " \t\r\n";
constexpr std::string_view kNoMarkup = "unexpected \"<!\": expected a comment <!-- --> or <![CDATA[ ]]>";
constexpr std::string_view kOutside = "only comments, instructions and white space may stand outside the root element";

/// A name or reference of the document, cut where it is too long for a sentence.
std::string Shown(std::string_view text) {
    constexpr std::size_t most = 80;
    if (text.size() <= most) {
        return std::string(text);
    }
    std::size_t length = most;
    while (length > 0 && (static_cast<unsigned char>(text[length]) & 0xC0U) == 0x80U) {
        --length;
    }
    return std::string(text.substr(0, length)) + "...";
}

std::string_view WordAt(std::string_view text, std::size_t offset) {
    const std::size_t end = std::min(text.find_first_of(" \t\r\n=>/<", offset), text.size());
    return text.substr(std::min(offset, end), end - std::min(offset, end));
}

/// The character there, empty when its bytes are not UTF-8.
std::string_view CharacterAt(std::string_view text, std::size_t offset) {
    if (FindInvalidUtf8(text.substr(offset, 4)) == 0) {
        return {};
    }
    std::size_t end = offset + 1;
    while (end < text.size() && (static_cast<unsigned char>(text[end]) & 0xC0U) == 0x80U) {
        ++end;
    }
    return text.substr(offset, end - offset);
}

/// The name of a character that XML allows nowhere, empty for the others.
std::string ForbiddenCharacter(std::string_view character) {
    if (character == "\xEF\xBF\xBE" || character == "\xEF\xBF\xBF") {
        return character.back() == '\xBE' ? "U+FFFE" : "U+FFFF";
    }
    const bool isControl = static_cast<unsigned char>(character.front()) < 0x20;
    return isControl && kBlanks.find(character) == kNone ? "U+00" + HexByte(character.front()).substr(2)
                                                         : std::string();
}

/// A character as error texts show it: an error stays one line.
std::string Quoted(std::string_view character) {
    const bool isControl = static_cast<unsigned char>(character.front()) < 0x20;
    return isControl ? "U+00" + HexByte(character.front()).substr(2) : "'" + std::string(character) + "'";
}

/// The last `opening` before the offset is not followed by a `closing`.
bool IsWithin(std::string_view text, std::size_t offset, std::string_view opening, std::string_view closing) {
    const std::string_view before = text.substr(0, offset);
    const std::size_t opened = before.rfind(opening);
    return opened != kNone && before.find(closing, opened + opening.size()) == kNone;
}

/// Start of the reference that has gone wrong right before the offset, or none.
std::size_t BrokenReference(std::string_view text, std::size_t offset) {
    const auto isWithin = [](char byte) {
        return static_cast<unsigned char>(byte) >= 0x80 || (byte >= '0' && byte <= '9') ||
               (byte >= 'A' && byte <= 'Z') || (byte >= 'a' && byte <= 'z') ||
               std::string_view("#:_.-").find(byte) != kNone;
    };
    std::size_t at = offset;
    while (at > 0 && isWithin(text[at - 1])) {
        --at;
    }
    return at > 0 && text[at - 1] == '&' ? at - 1 : kNone;
}

/// Start of the instruction whose target, right before the offset, is "xml" in some case, or none.
std::size_t ReservedTarget(std::string_view before) {
    constexpr std::size_t length = 5; // <?xml
    const std::string_view last = before.substr(before.size() - std::min(before.size(), length));
    const auto isLetter = [&](std::size_t at, char letter) { return (last[at] | 0x20) == letter; };
    return last.size() == length && last.starts_with("<?") && isLetter(2, 'x') && isLetter(3, 'm') && isLetter(4, 'l')
               ? before.size() - length
               : kNone;
}

ParseError InvalidToken(const DocumentData& data, const DocumentBuilder& builder, std::size_t offset) {
    const std::string_view text = data.source.text;
    const std::string shown(CharacterAt(text, offset));
    if (shown.empty()) {
        const bool hasMark = data.source.byteOrderMark && data.source.original.empty();
        return ErrorAt(data, offset,
                       "byte " + HexByte(text[offset]) + " at byte offset " +
                           std::to_string(offset + (hasMark ? 3 : 0)) +
                           " is not valid UTF-8; a document in another encoding must declare it");
    }
    if (const std::string name = ForbiddenCharacter(shown); !name.empty()) {
        return ErrorAt(data, offset, "the character " + name + " is not allowed in XML");
    }
    const std::string_view before = text.substr(0, offset);
    const bool isOutside = builder.OpenElement() == 0;
    if (IsWithin(text, offset, "<!--", "-->")) {
        return ErrorAt(data, offset, "\"--\" is not allowed within a comment: expected --> to end it");
    }
    if (before.ends_with("]]") && shown == ">") {
        return ErrorAt(data, offset - 2, "\"]]>\" is not allowed in text: expected ]]&gt;");
    }
    if (const std::size_t reference = BrokenReference(text, offset); reference != kNone) {
        return ErrorAt(data, reference,
                       "'&' must begin a reference that ends with ';': expected &amp; for a plain '&'");
    }
    if (before.ends_with('<')) {
        return shown == "/" && isOutside
                   ? ErrorAt(data, offset - 1, "an end tag without a start tag")
                   : ErrorAt(data, offset,
                             "unexpected " + Quoted(shown) + " behind '<': expected a name, or &lt; for a plain '<'");
    }
    if (before.ends_with("<!") || before.ends_with("<![")) {
        return ErrorAt(data, before.rfind('<'), std::string(kNoMarkup));
    }
    if (const std::size_t target = ReservedTarget(before); target != kNone) {
        return ErrorAt(
            data, target,
            "an instruction may not be named xml, in whatever case: expected another name, or <?xml in small "
            "letters at the very start of the document");
    }
    if (shown == "<") {
        return ErrorAt(data, offset,
                       "unexpected '<' within a tag: expected '>' to end the tag, or &lt; in an attribute value");
    }
    if (IsWithin(text, offset, "<", ">")) {
        return ErrorAt(data, offset,
                       "unexpected " + Quoted(shown) +
                           " within a tag: expected attributes name=\"value\" with white space between, and '>'");
    }
    return ErrorAt(data, offset,
                   "unexpected " + Quoted(shown) + (isOutside ? ": " + std::string(kOutside) : std::string()));
}

std::string OpenedAt(const DocumentData& data, std::uint32_t element) {
    const Place place = PlaceIn(data.source.text, data.nodes[element].begin);
    return "opened at " + std::to_string(place.line) + ":" + std::to_string(place.column);
}

ParseError Mismatch(const DocumentData& data, std::uint32_t element, std::size_t offset) {
    return ErrorAt(data, offset,
                   "found </" + Shown(WordAt(data.source.text, offset)) + ">, expected </" +
                       Shown(data.names.Name(data.nodes[element].name)) + ">, " + OpenedAt(data, element));
}

ParseError EndTooEarly(const DocumentData& data, std::uint32_t element) {
    const std::size_t last = data.source.text.find_last_not_of(kBlanks);
    const std::size_t end = last == kNone ? 0 : last + 1;
    if (element == 0) {
        return ErrorAt(data, end, "no root element: expected one before the end of the document");
    }
    return ErrorAt(data, end,
                   "the document ends within an element: expected </" +
                       Shown(data.names.Name(data.nodes[element].name)) + ">, " + OpenedAt(data, element));
}

ParseError UnclosedToken(const DocumentData& data, std::size_t offset) {
    struct Token {
        std::string_view opening;
        std::string_view message;
    };
    constexpr std::array tokens{
        Token{"<!--", "the comment is not closed: expected -->"},
        Token{"<!DOCTYPE", kNoDoctype},
        Token{"<!", kNoMarkup},
        Token{"<?", "the instruction is not closed: expected ?>"},
        Token{"</", "the end tag is not closed: expected '>'"},
        Token{"<", "the tag is not closed: expected '>', or the closing quote of an attribute value"},
        Token{"&", "the reference is not closed: expected ';', or &amp; for a plain '&'"},
    };
    const std::string_view rest = std::string_view(data.source.text).substr(offset);
    for (const Token& token : tokens) {
        if (rest.starts_with(token.opening)) {
            return ErrorAt(data, offset, std::string(token.message));
        }
    }
    return ErrorAt(data, offset, "the document ends too early");
}

/// The parser points at the tag when the reference stands in an attribute.
ParseError UnknownReference(const DocumentData& data, std::size_t offset) {
    constexpr std::array<std::string_view, 5> known{"&lt;", "&gt;", "&amp;", "&quot;", "&apos;"};
    const std::string_view text = data.source.text;
    for (std::size_t at = text.find('&', offset); at != kNone; at = text.find('&', at + 1)) {
        const std::string_view reference = text.substr(at, text.find(';', at) - at + 1);
        if (std::find(known.begin(), known.end(), reference) == known.end() && !reference.starts_with("&#")) {
            return ErrorAt(data, at,
                           "unknown reference " + Shown(reference) +
                               ": expected &lt; &gt; &amp; &quot; &apos; or the number of a character");
        }
    }
    return ErrorAt(data, offset, "unknown reference");
}

} // namespace

ParseError ErrorAt(const DocumentData& data, std::size_t offset, const std::string& message) {
    return {data.sourceName, PlaceIn(data.source.text, offset), message};
}

ParseError ParserError(const DocumentData& data, const DocumentBuilder& builder, XML_Error code, std::size_t offset) {
    const std::string_view text = data.source.text;
    offset = std::min(offset, text.size());
    switch (code) {
    case XML_ERROR_INVALID_TOKEN:
    case XML_ERROR_PARTIAL_CHAR:
        return offset < text.size() ? InvalidToken(data, builder, offset)
                                    : ErrorAt(data, offset, "the document ends too early");
    case XML_ERROR_TAG_MISMATCH:
        return Mismatch(data, builder.OpenElement(), offset);
    case XML_ERROR_NO_ELEMENTS:
        return EndTooEarly(data, builder.OpenElement());
    case XML_ERROR_UNCLOSED_TOKEN:
        return UnclosedToken(data, offset);
    case XML_ERROR_UNCLOSED_CDATA_SECTION:
        return ErrorAt(data, builder.IsInSection() ? builder.SectionBegin() : offset,
                       "the CDATA section is not closed: expected ]]>");
    case XML_ERROR_UNDEFINED_ENTITY:
        return UnknownReference(data, offset);
    case XML_ERROR_BAD_CHAR_REF:
        return ErrorAt(data, offset,
                       Shown(text.substr(offset, text.find(';', offset) - offset + 1)) +
                           " does not stand for a character that XML allows");
    case XML_ERROR_DUPLICATE_ATTRIBUTE:
        return ErrorAt(data, offset, "the attribute " + Shown(WordAt(text, offset)) + " stands twice in one tag");
    case XML_ERROR_SYNTAX:
    case XML_ERROR_JUNK_AFTER_DOC_ELEMENT:
        return ErrorAt(data, offset, std::string(kOutside) + ", and a document has one root");
    case XML_ERROR_MISPLACED_XML_PI:
        return ErrorAt(data, offset, "an XML declaration may stand only at the very start of the document");
    case XML_ERROR_XML_DECL:
        return ErrorAt(data, offset,
                       "malformed XML declaration: expected version=\"1.0\", then encoding=\"...\" and "
                       "standalone=\"yes\" or \"no\" if any");
    default:
        return ErrorAt(data, offset, std::string("not well-formed: ") + XML_ErrorString(code));
    }
}

} // namespace Framework
