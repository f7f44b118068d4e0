// Documents that are well formed and far too much: of depth, of attributes, of names that look alike to a hash, of
// bytes in one place.

#include "Robustness/HostileDocuments.h"
#include "Robustness/HostileTexts.h"
#include "Robustness/Sizes.h"

namespace Robustness {

namespace {

constexpr std::size_t kMega = 1'000'000;

constexpr const char* kTooDeep = "2:766: elements are nested too deeply, the limit is 256; raise LoadLimits::depth";
constexpr const char* kTooManyAttributes = "the limit is 1000; raise LoadLimits::attributesPerElement";

std::string Nested(std::size_t depth) {
    return InRoot(Repeat("<a>", depth) + Repeat("</a>", depth));
}

std::string Numbered(std::string_view start, std::size_t number, std::string_view end) {
    return std::string(start) + std::to_string(number) + std::string(end);
}

/// A tag with that many attributes, which are more than a tag may have; the one too many begins in that column.
HostileDocument Attributes(std::string name, std::size_t column, std::size_t small, std::size_t full,
                           const std::function<std::string(std::size_t)>& attribute) {
    return {std::move(name), "2:" + std::to_string(column) + ": too many attributes in one tag, " + kTooManyAttributes,
            [attribute](std::size_t size) { return InTag(Join(size, attribute)); }, small, full};
}

HostileDocument Sized(std::string name, std::size_t small, std::size_t full,
                      std::function<std::string(std::size_t)> text, std::string root = "TranslationConfig") {
    return {std::move(name), "", std::move(text), small, full, std::move(root)};
}

/// Entries of a keyed list, of texts or of elements, with these keys.
std::string KeyedTexts(const std::vector<std::string>& keys) {
    return "<StateProcessingRoot>" +
           Join(keys.size(),
                [&](std::size_t number) {
                    return "<RevisionHistory fileName='" + keys[number] + "'>t</RevisionHistory>\n";
                }) +
           "</StateProcessingRoot>";
}
std::string KeyedElements(const std::vector<std::string>& keys) {
    return "<VendraConfig>" +
           Join(keys.size(), [&](std::size_t number) { return "<Config Name='" + keys[number] + "'/>\n"; }) +
           "</VendraConfig>";
}
std::string ElementsNamed(const std::vector<std::string>& names) {
    return InRoot(Join(names.size(), [&](std::size_t number) { return "<" + names[number] + "/>"; }));
}

} // namespace

HostileDocuments DepthDocuments() {
    const auto bomb = [](std::string name, std::size_t size, std::function<std::string(std::size_t)> text) {
        return HostileDocument{std::move(name),     kTooDeep,      std::move(text), size, size,
                               "TranslationConfig", kBombMegabytes};
    };
    return {
        bomb("depth 1,000", 1'000, &Nested),
        bomb("depth 10,000", 10'000, &Nested),
        bomb("depth 100,000", 100'000, &Nested),
        bomb("depth 1,000,000", kMega, &Nested),
        bomb("depth without ends", 100'000, [](std::size_t size) { return InRoot(Repeat("<a>", size)); }),
        Fixed("depth just allowed", "", Nested(255)),
        {"depth with attributes", "2:2296: elements are nested too deeply",
         [](std::size_t size) { return InRoot(Repeat("<a b='c'>", size) + Repeat("</a>", size)); }, 1'000, 100'000,
         "TranslationConfig", kBombMegabytes},
        {"depth without limits", "", &Nested, 20'000, kMega, "TranslationConfig", 0, true},
        {"depth of fields within fields", "2:3264: elements are nested too deeply",
         [](std::size_t size) { return InValue(Repeat("<ResultValue>", size) + Repeat("</ResultValue>", size)); },
         1'000, 100'000, "TranslationConfig", kBombMegabytes},
    };
}

HostileDocuments FloodDocuments() {
    const std::vector<std::string> alike = CollidingByFactor(20'000, 31);
    return {
        Attributes("100,000 attributes", 8'892, 20'000, 100'000,
                   [](std::size_t number) { return Numbered(" a", number, "='b'"); }),
        Attributes("1,000,000 attributes", 8'892, 50'000, kMega,
                   [](std::size_t number) { return Numbered(" a", number, "='b'"); }),
        Attributes("20,000 namespaces", 14'892, 20'000, 20'000,
                   [](std::size_t number) { return Numbered(" xmlns:n", number, "='u'"); }),
        Attributes("attributes that look alike", 35'002, 20'000, 20'000,
                   [alike](std::size_t number) { return " " + alike[number] + "='b'"; }),
        Fixed("attributes just allowed", "",
              InTag(Join(1000, [](std::size_t n) { return Numbered(" a", n, "='b'"); }))),
        Sized("elements with many attributes", 100, 10'000,
              [](std::size_t size) {
                  return InRoot(
                      Repeat("<a" + Join(200, [](std::size_t n) { return Numbered(" a", n, "='b'"); }) + "/>", size));
              }),
        Sized(
            "1,000,000 names", 30'000, kMega,
            [](std::size_t size) { return InRoot(Join(size, [](std::size_t n) { return Numbered("<n", n, "/>"); })); }),
        Sized("1,000,000 siblings", 10'000, kMega, [](std::size_t size) { return InRoot(Repeat("<a/>\n", size)); }),
        Sized("1,000,000 entries of a plain list", 5'000, kMega,
              [](std::size_t size) {
                  return InValue("</ResultValue>" + Repeat("<Doc>d</Doc>", size) + "<ResultValue>");
              }),
        Sized("children that stand again and again", 5'000, kMega,
              [](std::size_t size) { return InRoot(Repeat("<TranslationText/>", size)); }),
        Sized(
            "100,000 equal keys", 1'000, 100'000,
            [](std::size_t size) { return KeyedElements(std::vector<std::string>(size, "k")); }, "VendraConfig"),
        Sized(
            "100,000 keys", 1'000, 100'000,
            [](std::size_t size) {
                std::vector<std::string> keys(size);
                for (std::size_t number = 0; number < size; ++number) {
                    keys[number] = Numbered("key", number, "");
                }
                return KeyedElements(keys);
            },
            "VendraConfig"),
        Sized("comments within a text", 3'000, 50'000,
              [](std::size_t size) { return InValue(Repeat("a<!---->", size)); }),
        Sized("instructions within a text", 3'000, 50'000,
              [](std::size_t size) { return InValue(Repeat("a<?b?>", size)); }),
        Sized("empty sections within a text", 3'000, 50'000,
              [](std::size_t size) { return InValue(Repeat("<![CDATA[]]>", size)); }),
        Sized("sections and texts in turn", 3'000, 50'000,
              [](std::size_t size) { return InValue(Repeat("a<![CDATA[<b>]]>", size)); }),
        Sized("elements within a text", 3'000, 50'000, [](std::size_t size) { return InValue(Repeat("a<b/>", size)); }),
        Sized("comments in front of the root", 3'000, 1'000'000,
              [](std::size_t size) { return InProlog(Repeat("<!---->", size)); }),
        Sized("comments behind the root", 3'000, 1'000'000,
              [](std::size_t size) { return InValue("x") + Repeat("<!---->", size); }),
        {"20,000,000 nodes",
         "2:79999993: the document has too many nodes, the limit is 20000000; raise LoadLimits::nodes",
         [](std::size_t size) { return size < 20 * kMega ? InRoot("<a>") : InRoot(Repeat("<a/>", size)); }, 0,
         21 * kMega},
    };
}

HostileDocuments CollisionDocuments() {
    HostileDocuments documents;
    for (const unsigned factor : {31U, 33U, 37U, 38U}) {
        documents.push_back(
            Sized("names that look alike to a hash with " + std::to_string(factor), 3'000, 100'000,
                  [factor](std::size_t size) { return ElementsNamed(CollidingByFactor(size, factor)); }));
    }
    documents.push_back(Sized(
        "keys that look alike to a hash with 31", 1'000, 100'000,
        [](std::size_t size) { return KeyedElements(CollidingByFactor(size, 31)); }, "VendraConfig"));
    for (const char* const prefix : {"", "148:"}) {
        const std::string how = *prefix == '\0' ? "" : " with their length in front";
        const auto alike = [prefix](std::size_t size) { return CollidingByStandardHash(size, prefix); };
        documents.push_back(Sized("names that look alike to the standard hash" + how, 3'000, 100'000,
                                  [alike](std::size_t size) { return ElementsNamed(alike(size)); }));
        documents.push_back(Sized(
            "keys that look alike to the standard hash" + how, 1'000, 100'000,
            [alike](std::size_t size) { return KeyedElements(alike(size)); }, "VendraConfig"));
        documents.push_back(Sized(
            "keys of texts that look alike to the standard hash" + how, 1'000, 100'000,
            [alike](std::size_t size) { return KeyedTexts(alike(size)); }, "StateProcessingRoot"));
    }
    return documents;
}

HostileDocuments HugeDocuments() {
    using Around = std::function<std::string(const std::string&)>;
    constexpr std::size_t small = kMega;
    constexpr std::size_t full = 100 * kMega;
    const std::string tooLong = ": a tag has too many bytes, the limit is 16777216; raise LoadLimits::bytesPerTag";
    const auto loads = [](std::string name, std::string_view piece, const Around& around,
                          const char* root = "TranslationConfig") {
        return Sized(
            std::move(name), small, full,
            [around, piece](std::size_t size) { return around(Repeat(piece, size / piece.size())); }, root);
    };
    // Of tags only the small ones load.
    const auto tag = [&](std::string name, const std::string& place, std::string_view piece, const Around& around,
                         const char* root = "TranslationConfig") {
        HostileDocument document = loads(std::move(name), piece, around, root);
        document.refusal = FullSizes() ? place + tooLong : "";
        return document;
    };
    const auto open = [](std::string name, std::string refusal, const std::string& start) {
        return HostileDocument{
            std::move(name), std::move(refusal),
            [start](std::size_t size) { return "<TranslationConfig>\n" + start + Repeat("a", size); }, small, full};
    };
    const auto openTag = [&](std::string name, const std::string& refusal, const std::string& start) {
        return open(std::move(name), FullSizes() ? "2:1" + tooLong : refusal, start);
    };
    using Text = const std::string&;
    return {
        loads("huge text", "a", &InValue),
        loads("huge text of lines", "\r\n", &InValue),
        loads("huge text of brackets", "]", &InValue),
        loads("huge text in Thai", "\xE0\xB8\x81", &InValue),
        loads("huge comment", "a", [](Text huge) { return InRoot("<!--" + huge + "-->"); }),
        loads("huge instruction", "a", [](Text huge) { return InRoot("<?a " + huge + "?>"); }),
        loads("huge name of an instruction", "a", [](Text huge) { return InRoot("<?" + huge + "?>"); }),
        loads("huge section", "a", [](Text huge) { return InValue("<![CDATA[" + huge + "]]>"); }),
        loads("blanks behind the root", "\n", [](Text huge) { return InValue("x") + huge; }),
        loads("blanks in the declaration", " ",
              [](Text huge) { return "<?xml version='1.0'" + huge + "?>" + InValue("x"); }),
        loads(
            "huge number", "9",
            [](Text huge) { return "<ItemHandlerLogData><BaseWeight>" + huge + "</BaseWeight></ItemHandlerLogData>"; },
            "ItemHandlerLogData"),
        tag("huge attribute", "1:88", "a", [](Text huge) { return InTag("a='" + huge + "'"); }),
        tag(
            "huge key", "1:15", "a",
            [](Text huge) { return "<VendraConfig><Config Name='" + huge + "'/></VendraConfig>"; }, "VendraConfig"),
        tag("huge name of an element", "2:1", "a", [](Text huge) { return InRoot("<" + huge + "/>"); }),
        tag("huge name of an attribute", "1:88", "a", [](Text huge) { return InTag(huge + "=''"); }),
        tag("blanks in a tag", "1:88", " ", [](Text huge) { return InTag("a=''" + huge); }),
        open("text without end", "2:", ""),
        open("comment without end", "2:1: the comment is not closed", "<!--"),
        open("instruction without end", "2:1: the instruction is not closed", "<?b "),
        open("section without end", "2:1: the CDATA section is not closed", "<![CDATA["),
        open("reference without end", "2:1: the reference is not closed", "&"),
        openTag("tag without end", "2:1: the tag is not closed", "<b "),
        openTag("name without end", "2:1: the tag is not closed", "<b"),
        openTag("attribute without end", "2:1: the tag is not closed", "<b c='"),
        openTag("attribute without blanks", "2:8: unexpected 'a' within a tag", "<b c=''"),
        openTag("end tag without end", "2:1: the end tag is not closed", "</"),
        // Refused unread.
        {"more bytes than allowed",
         "1:1: the document has 270000000 bytes, the limit is 268435456; raise LoadLimits::bytes",
         [](std::size_t size) { return Repeat(" ", size); }, 0, 270 * kMega},
    };
}

} // namespace Robustness
