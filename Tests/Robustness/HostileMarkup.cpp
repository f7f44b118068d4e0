// Documents that are not well formed, or barely: characters, encodings of characters, and markup.

#include "Robustness/HostileDocuments.h"
#include "Robustness/HostileTexts.h"

namespace Robustness {

namespace {

using namespace std::literals;

/// The text in UTF-16 or UTF-32, the units in the given order of bytes. Of the text every byte is a unit, so that units
/// above 0xFF have to come by `odd`, which stands where the text has a "#".
std::string Wide(std::string_view text, std::size_t width, bool bigEndian, std::uint32_t odd) {
    std::string bytes;
    for (const char letter : text) {
        const std::uint32_t unit = letter == '#' ? odd : static_cast<unsigned char>(letter);
        for (std::size_t byte = 0; byte < width; ++byte) {
            const std::size_t place = bigEndian ? width - 1 - byte : byte;
            bytes += static_cast<char>(unit >> (8 * place) & 255U);
        }
    }
    return bytes;
}

struct Place {
    const char* name;
    std::string before;
    std::string behind;
};

void AddBadUtf8(HostileDocuments& documents) {
    struct Bad {
        const char* name;
        std::string bytes;
        const char* shown;
    };
    const Bad kinds[] = {
        {"continuation without a start", "\x80", "0x80"},
        {"slash in two bytes", "\xC0\xAF", "0xC0"},
        {"slash in three bytes", "\xE0\x80\xAF", "0xE0"},
        {"slash in four bytes", "\xF0\x80\x80\xAF", "0xF0"},
        {"start of two bytes alone", "\xC3", "0xC3"},
        {"start of three bytes, one following", "\xE2\x82", "0xE2"},
        {"start of four bytes, two following", "\xF0\x9F\x99", "0xF0"},
        {"surrogates in three bytes each", "\xED\xA0\xBD\xED\xB9\x82", "0xED"},
        {"past the last character", "\xF4\x90\x80\x80", "0xF4"},
        {"five bytes", "\xF8\x88\x80\x80\x80", "0xF8"},
        {"six bytes", "\xFC\x84\x80\x80\x80\x80", "0xFC"},
        {"0xFE", "\xFE", "0xFE"},
    };
    const Place places[] = {
        {"a text", "<b>", "</b>"},      {"an attribute", "<b c='", "'/>"}, {"a name", "<b", "/>"},
        {"a comment", "<!-- ", " -->"}, {"a section", "<![CDATA[", "]]>"}, {"an instruction", "<?b ", " ?>"},
    };
    for (const Bad& kind : kinds) {
        for (const Place& place : places) {
            const std::string text = InRoot(place.before + kind.bytes + place.behind);
            documents.push_back(Fixed("bad UTF-8 in "s + place.name + ": " + kind.name,
                                      "2:" + std::to_string(place.before.size() + 1) + ": byte " + kind.shown +
                                          " at byte offset " + std::to_string(text.find(kind.bytes)) +
                                          " is not valid UTF-8",
                                      text));
        }
    }
}

/// What stands in a text of a document in a wide encoding, and is none of its characters.
void AddBadUnits(HostileDocuments& documents) {
    struct Bad {
        const char* name;
        std::size_t width;
        std::uint32_t unit;
        const char* refusal;
    };
    const Bad kinds[] = {
        {"high surrogate in UTF-16", 2, 0xD83D, "2:1: byte 0x"},
        {"low surrogate in UTF-16", 2, 0xDE42, "2:1: byte 0x"},
        {"U+FFFE in UTF-16", 2, 0xFFFE, "2:1: the character U+FFFE is not allowed"},
        {"U+FFFF in UTF-16", 2, 0xFFFF, "2:1: the character U+FFFF is not allowed"},
        {"NUL in UTF-16", 2, 0, "2:1: NUL character"},
        {"U+0001 in UTF-16", 2, 1, "2:1: the character U+0001 is not allowed"},
        {"surrogate in UTF-32", 4, 0xD83D, "2:1: byte 0x"},
        {"past the last character in UTF-32", 4, 0x110000, "2:1: byte 0x"},
        {"highest number in UTF-32", 4, 0xFFFFFFFF, "2:1: byte 0x"},
        {"U+FFFE in UTF-32", 4, 0xFFFE, "2:1: the character U+FFFE is not allowed"},
        {"NUL in UTF-32", 4, 0, "2:1: NUL character"},
    };
    for (const Bad& kind : kinds) {
        for (const bool bigEndian : {false, true}) {
            documents.push_back(Fixed(kind.name + (bigEndian ? "BE"s : "LE"s), kind.refusal,
                                      Wide(InValue("#"), kind.width, bigEndian, kind.unit)));
        }
    }
}

} // namespace

HostileDocuments CharacterDocuments() {
    HostileDocuments documents{
        Fixed("NUL in front", "1:1: NUL character at offset 0", "\0 "s + InValue("x")),
        Fixed("NUL in front of the root", "1:93: the document ends in the middle of a character", "\0"s + InValue("x")),
        Fixed("NUL in a text", "2:2: NUL character at offset 98", InValue("a\0b"sv)),
        Fixed("NUL in a name", "2:3: NUL character", InRoot("<b\0/>"sv)),
        Fixed("NUL in a comment", "2:5: NUL character", InRoot("<!--\0-->"sv)),
        Fixed("NUL behind the root", "3:1: NUL character", InValue("x") + "\n\0"s),
        Fixed("another document behind a NUL", "3:1: NUL character", InValue("x") + "\n\0<a/>"s),
        Fixed("control character in a text", "2:2: the character U+0008 is not allowed in XML", InValue("a\bb")),
        Fixed("control character in an attribute", "2:4: the character U+001F is not allowed", InTag("a='\x1F'")),
        Fixed("control character in a comment", "2:5: the character U+001B is not allowed", InRoot("<!--\x1B-->")),
        Fixed("control character in a section", "2:10: the character U+000C is not allowed", InRoot("<![CDATA[\f]]>")),
        Fixed("form feed between attributes", "2:1: the character U+000C is not allowed", InTag("\fa=''")),
        Fixed("U+FFFE in a text", "2:1: the character U+FFFE is not allowed", InValue("\xEF\xBF\xBE")),
        Fixed("U+FFFF in a text", "2:1: the character U+FFFF is not allowed", InValue("\xEF\xBF\xBF")),
        Fixed("byte order mark within a text", "",
              InValue("a\xEF\xBB\xBF"
                      "b")),
        Fixed("delete, controls of Latin-1, noncharacters", "",
              InValue("\x7F\xC2\x80\xC2\x85\xC2\x9F\xEF\xB7\x90\xF0\x9F\xBF\xBE\xF4\x8F\xBF\xBF")),
        Fixed("directions, joiners, private characters", "",
              InValue("\xE2\x80\xAE\xE2\x80\x8D\xE2\x81\xA6\xEE\x80\x80\xF3\xA0\x81\x81\xF4\x80\x80\x80")),
        Fixed("blanks that are none", "2:1: unexpected '\xC2\xA0' within a tag",
              InTag("\xC2\xA0"
                    "a=''")),
        Fixed("digits that are none", "",
              "<ItemHandlerLogData>\n<BaseWeight>\xD9\xA1\xD9\xA2</BaseWeight></ItemHandlerLogData>"),
    };
    documents.back().root = "ItemHandlerLogData";
    AddBadUtf8(documents);
    AddBadUnits(documents);
    return documents;
}

HostileDocuments MarkupDocuments() {
    const std::string rest = InValue("x");
    const auto declared = [&](std::string name, std::string refusal, const std::string& declaration) {
        return Fixed(std::move(name), std::move(refusal), declaration + rest);
    };
    const auto inRoot = [](std::string name, std::string refusal, const std::string& inside) {
        return Fixed(std::move(name), std::move(refusal), InRoot(inside));
    };
    return {
        Fixed("empty file", "1:1: no root element: the document is empty", ""),
        Fixed("byte order mark alone", "1:1: no root element", "\xEF\xBB\xBF"),
        Fixed("byte order mark of UTF-16 alone", "1:1: no root element", "\xFF\xFE"),
        Fixed("two byte order marks", "1:1: a second byte order mark", "\xEF\xBB\xBF\xEF\xBB\xBF" + rest),
        Fixed("two byte order marks of UTF-16", "1:1: a second byte order mark", Wide("##" + rest, 2, false, 0xFEFF)),
        Fixed("blanks alone", "1:1: no root element", " \n\t\r\n"),
        Fixed("comment alone", "1:9: no root element", "<!-- -->\n"),
        Fixed("declaration alone", "1:22: no root element", "<?xml version='1.0'?>"),
        Fixed("less-than alone", "1:1: the tag is not closed", "<"),
        Fixed("words", "1:1: only comments, instructions and white space", "Not found\n"),
        Fixed("JSON", "1:1: unexpected '{': only comments, instructions", "{\"TranslationConfig\": {}}"),
        Fixed("picture", "3:1: NUL character at offset 8", "\x89PNG\r\n\x1A\n\0\0\0\rIHDR"s),
        Fixed("compressed file", "1:3: NUL character at offset 3", "\x1F\x8B\x08\0\0\0\0\0\0\x03\xB3\xB1"s),
        Fixed("program", "1:8: NUL character",
              "\x7F"
              "ELF\x02\x01\x01\0\0\0\0\0\0\0\0\0\x03\0>\0"s),
        Fixed("page of the web", "1:1: a document type (DOCTYPE) is not allowed", "<!DOCTYPE html><html><br></html>"),
        declared("XML 1.1", "1:16: XML version \"1.1\" is not supported", "<?xml version='1.1'?>"),
        Fixed("XML 1.1 with control characters", "1:16: XML version \"1.1\" is not supported",
              "<?xml version='1.1'?>" + InValue("&#1;")),
        declared("XML 2.0", "1:16: XML version \"2.0\" is not supported", "<?xml version='2.0'?>"),
        declared("version without a number", "1:", "<?xml version=''?>"),
        declared("declaration behind a blank", "1:2: an XML declaration may stand only", " <?xml version='1.0'?>"),
        declared("declaration behind a comment", "1:9: an XML declaration may", "<!-- --><?xml version='1.0'?>"),
        declared("declaration twice", "1:22: an XML declaration may", Repeat("<?xml version='1.0'?>", 2)),
        inRoot("declaration within the root", "2:1: an XML declaration may", "<?xml version='1.0'?>"),
        declared("declaration in capitals", "1:1: an instruction may not be named xml", "<?XML version='1.0'?>"),
        declared("declaration without version", "1:7: malformed XML declaration", "<?xml encoding='UTF-8'?>"),
        declared("declaration without quotes", "1:15: malformed XML declaration", "<?xml version=1.0?>"),
        declared("declaration without anything", "1:6: malformed XML declaration", "<?xml?>"),
        declared("declaration without end", "1:", "<?xml version='1.0'>"),
        declared("standalone neither yes nor no", "1:33: malformed XML declaration",
                 "<?xml version='1.0' standalone='maybe'?>"),
        declared("standalone in front of the encoding", "1:37: malformed XML declaration",
                 "<?xml version='1.0' standalone='no' encoding='UTF-8'?>"),
        declared("standalone within the encoding", "1:36: malformed XML declaration",
                 "<?xml version='1.0' encoding='UTF-8 standalone'?>"),
        declared("encoding twice", "1:38: malformed", "<?xml version='1.0' encoding='UTF-8' encoding='UTF-8'?>"),
        declared("unknown encoding", "1:31: unknown encoding Klingon", "<?xml version='1.0' encoding='Klingon'?>"),
        declared("encoding with options", "1:36: malformed XML declaration",
                 "<?xml version='1.0' encoding='UTF-8//IGNORE'?>"),
        declared("encoding that is a path", "1:33: malformed XML declaration",
                 "<?xml version='1.0' encoding='../../etc/passwd'?>"),
        declared("encoding of the system", "1:31: unknown encoding char", "<?xml version='1.0' encoding='char'?>"),
        Fixed("two roots", "3:1: only comments, instructions and white space", rest + "\n" + rest),
        Fixed("text behind the root", "3:1: only comments", rest + "\ntail"),
        Fixed("reference behind the root", "2:", rest + "&#32;"),
        Fixed("section behind the root", "2:", rest + "<![CDATA[ ]]>"),
        Fixed("end tag behind the root", "3:1: an end tag without a start tag", rest + "\n</a>"),
        Fixed("root that does not end", "1:20: the document ends within an element", "<TranslationConfig>"),
        Fixed("another root", "1:1: no element TranslationConfig in this document, whose root is Translations",
              "<Translations/>"),
        Fixed("root in small letters", "1:1: no element TranslationConfig in this document", "<translationconfig/>"),
        Fixed("root with a prefix", "1:1: no element TranslationConfig", "<t:TranslationConfig xmlns:t='u'/>"),
        inRoot("element not closed", "2:74: found </TranslationConfig>, expected </a>, opened at 2:1", "<a>"),
        inRoot("elements that overlap", "2:9: found </a>, expected </b>, opened at 2:4", "<a><b></a></b>"),
        inRoot("end in another case", "2:6: found </A>, expected </a>", "<a></A>"),
        inRoot("end tag with an attribute", "2:8: unexpected 'b' within a tag", "<a></a b='c'>"),
        inRoot("blank behind less-than", "2:2: unexpected ' ' behind '<'", "< a/>"),
        inRoot("blank in an empty tag", "2:", "<a/ >"),
        inRoot("name that begins with a digit", "2:2: unexpected '1' behind '<'", "<1a/>"),
        inRoot("name that begins with a hyphen", "2:2: unexpected '-' behind '<'", "<-a/>"),
        inRoot("tag without name", "2:2: unexpected '>' behind '<'", "<>"),
        inRoot("tag within a tag", "2:4: unexpected '<' within a tag", "<a <b/>/>"),
        inRoot("attribute twice", "2:9: the attribute b stands twice", "<a b=''\tb=''/>"),
        inRoot("attribute without value", "2:5: unexpected '/' within a tag", "<a b/>"),
        inRoot("attribute without quotes", "2:6: unexpected 'c' within a tag", "<a b=c/>"),
        inRoot("attributes without blank", "2:8: unexpected 'c' within a tag", "<a b=''c=''/>"),
        inRoot("less-than in an attribute", "2:7: unexpected '<' within a tag", "<a b='<'/>"),
        inRoot("quotes that differ", "2:10: unexpected '<' within a tag", "<a b='\"/>"),
        inRoot("end of a section in a text", "2:1: \"]]>\" is not allowed in text", "]]>"),
        inRoot("section within a section", "2:", "<![CDATA[<![CDATA[]]>]]>"),
        inRoot("section in small letters", "2:1: unexpected \"<!\"", "<![cdata[]]>"),
        inRoot("hyphens in a comment", "2:8: \"--\" is not allowed within a comment", "<!-- -- -->"),
        inRoot("comment that ends in three hyphens", "2:8: \"--\" is not allowed within a comment", "<!-- --->"),
        inRoot("comment within a comment", "2:", "<!-- <!-- --> -->"),
        inRoot("instruction without target", "2:3: ", "<? ?>"),
        inRoot("instruction in the name of XML", "2:1: an instruction may not be named xml", "<?xMl ?>"),
        inRoot("ampersand", "2:3: '&' must begin a reference", "A & B"),
        inRoot("reference without end", "2:1: '&' must begin a reference", "&lt b"),
        inRoot("prefix that is not bound", "", "<p:a p:b=''/>"),
        inRoot("prefix bound to nothing", "", "<p:a xmlns:p=''/>"),
        inRoot("prefix of XML bound anew", "",
               "<a xmlns:xml='u' xmlns:xmlns='v' xmlns='http://www.w3.org/2000/xmlns/'/>"),
        inRoot("attribute twice by two prefixes", "", "<a xmlns:p='u' xmlns:q='u' p:b='' q:b=''/>"),
        inRoot("colons", "", "<:a:b: :c:='' ::=''/>"),
        inRoot("empty elements of every field", "",
               "<TranslationText/><TranslationText><TranslationKeyMap/><TranslationKeyMap><Translation/>"
               "<Translation><ResultValue/><Doc/></Translation></TranslationKeyMap></TranslationText>"),
    };
}

} // namespace Robustness
