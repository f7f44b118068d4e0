#include "Framework/LoadLimits.h"
#include "Framework/XMLSupport/Document.h"
#include "Framework/XMLSupport/ParseError.h"
#include "Framework/XMLSupport/TextEncoding.h"

#include <gtest/gtest.h>

#include <string>
#include <string_view>
#include <thread>
#include <vector>

namespace Framework {
namespace {

using namespace std::literals;

/// what() of the refusal, or that there was none.
std::string Refusal(std::string bytes, const LoadLimits& limits = LoadLimits()) {
    try {
        Document::Parse(std::move(bytes), "f", limits);
    } catch (const ParseError& error) {
        EXPECT_EQ(error.SourceName(), "f");
        EXPECT_EQ(error.what(), "f:" + std::to_string(error.Where().line) + ":" + std::to_string(error.Where().column) +
                                    ": " + error.Message());
        return error.what();
    }
    return "accepted";
}

std::string Encoded(std::string_view text, const std::string& encoding, bool mark) {
    return EncodeDocument(text, encoding, mark).value();
}

struct RefusalCase {
    std::string source;
    std::string_view start; // of what()
};

void CheckRefusals(const std::vector<RefusalCase>& cases) {
    for (const RefusalCase& each : cases) {
        const std::string what = Refusal(each.source);
        EXPECT_TRUE(what.starts_with(each.start))
            << testing::PrintToString(each.source) << "\n  " << what << "\n  " << each.start;
    }
}

TEST(DocumentRefusal, RefusesWrongEncodingsWithTheirPlace) {
    CheckRefusals({
        {"<?xml version='1.0' encoding='UTF-16'?><a/>",
         "f:1:31: the declaration says UTF-16, but is not written in it"},
        {"<?xml version='1.0' encoding='ucs-4'?><a/>", "f:1:31: the declaration says ucs-4, but is not"},
        {"<?xml version='1.0' encoding='IBM037'?><a/>", "f:1:31: the declaration says IBM037, but is not"},
        {"<?xml version='1.0' encoding='x-none'?><a/>", "f:1:31: unknown encoding x-none, expected"},
        {"<?xml version='1.0' encoding='-'?><a/>", "f:1:31: malformed XML declaration: expected version"},
        {"\xEF\xBB\xBF<?xml version='1.0'\nencoding='ISO-8859-1'?><a/>",
         "f:2:11: the declaration says ISO-8859-1, but the byte order mark of the document say"},
        {Encoded("<?xml version='1.0' encoding='UTF-8'?><a/>", "UTF-16LE", true),
         "f:1:31: the declaration says UTF-8, but"},
        {Encoded("<?xml version='1.0' encoding='UTF-16BE'?><a/>", "UTF-16LE", false),
         "f:1:31: the declaration says UTF-16BE, but the first bytes of the document say UTF-16LE"},
        {"<?xml version='1.0' encoding='us-ascii'?>\n<a>\xE9</a>",
         "f:2:4: byte 0xE9 at byte offset 45 is not part of a char"},
        {"<?xml version='1.0' encoding='windows-1252'?><a>\x81</a>", "f:1:49: byte 0x81 at byte offset 48 is not"},
        {"<?xml version='1.0' encoding='Shift_JIS'?><a>\x83", "f:1:46: the document ends in the middle of a character"},
        {"\xFF\xFE<\0a\0>\0\n\0\x3D\xD8<\0"s, "f:2:1: byte 0x3D at byte offset 10 is not"},
        {"\xFF\xFE<\0a"s, "f:1:2: the document ends in the middle of a character (byte offset 4"},
        {"\xFF\xFE\0\0<\0\0\0\0\xD8\0\0"s, "f:1:2: byte 0x00 at byte offset 8"},
        {"<a>\n\xE9t\xE9</a>", "f:2:1: byte 0xE9 at byte offset 4 is not valid UTF-8; a document in another"},
        {"\xEF\xBB\xBF<a>\xC0\x80</a>", "f:1:4: byte 0xC0 at byte offset 6 is not valid UTF-8"},
        {"<a>\xED\xA0\x80</a>", "f:1:4: byte 0xED at byte offset 3 is not valid UTF-8"},
        {"<a>\xC3", "f:1:4: byte 0xC3 at byte offset 3 is not valid UTF-8"},
        {"<a>\xEF\xBF\xBE</a>", "f:1:4: the character U+FFFE is not allowed in XML"},
        {"\xEF\xBB\xBF\xEF\xBB\xBF<a/>", "f:1:1: a second byte order mark"},
        {"<a/>\n\0"s, "f:2:1: NUL character at offset 5 of the text"},
        {"<a k='\0'/>"s, "f:1:7: NUL character"},
        {Encoded("<a>\0</a>"sv, "UTF-16LE", true), "f:1:4: NUL character at offset 3"},
    });
}

TEST(DocumentRefusal, RefusesWhatIsNotWellFormedWhereAPersonWouldLook) {
    CheckRefusals({
        {"", "f:1:1: no root element: the document is empty"},
        {"\xEF\xBB\xBF", "f:1:1: no root element"},
        {" \n<!--c-->\n\n", "f:2:9: no root element: expected one before the end"},
        {"<a>\n <b>\n  </c>\n</a>", "f:3:5: found </c>, expected </b>, opened at 2:2"},
        {"<a>\n <b>x</b>\n\n", "f:2:10: the document ends within an element: expected </a>, opened at 1:1"},
        {"<a>\n<b k='1", "f:2:1: the tag is not closed: expected '>'"},
        {"<a>\n</a", "f:2:1: the end tag is not closed: expected '>'"},
        {"<a>\n<!-- </a>", "f:2:1: the comment is not closed: expected -->"},
        {"<a>\n<?p </a>", "f:2:1: the instruction is not closed: expected ?>"},
        {"<a>\n<![CDATA[1\n2</a>", "f:2:1: the CDATA section is not closed: expected ]]>"},
        {"<a>\n<![CDATA[", "f:2:1: the CDATA section is not closed: expected ]]>"},
        {"<a>&lt", "f:1:4: the reference is not closed: expected ';'"},
        {"<a>&x;</a>", "f:1:4: unknown reference &x;: expected &lt;"},
        {"<a>\n<b j='&lt;&#65;' k='1 &euro;'/></a>", "f:2:23: unknown reference &euro;: expected"},
        {"<a k='&#0;'/>", "f:1:7: &#0; does not stand for a character"},
        {"<a>&#xD800;</a>", "f:1:4: &#xD800; does not stand for a character"},
        {"<a>M & N</a>", "f:1:6: '&' must begin a reference that ends with ';': expected &amp;"},
        {"<a k='1 &lt 2'/>", "f:1:9: '&' must begin a reference"},
        {"<a k='<'/>", "f:1:7: unexpected '<' within a tag: expected '>' to end the tag, or &lt;"},
        {"<a>\n<b\n</a>", "f:3:1: unexpected '<' within a tag: expected '>'"},
        {"<a>1 < 2</a>", "f:1:7: unexpected ' ' behind '<': expected a name, or &lt;"},
        {"<a k=v/>", "f:1:6: unexpected 'v' within a tag: expected attributes name=\"value\""},
        {"<a k/>", "f:1:5: unexpected '/' within a tag"},
        {"<a/\r\n>", "f:1:4: unexpected U+000D within a tag"},
        {"<a k='1'j='2'/>", "f:1:9: unexpected 'j' within a tag"},
        {"<a k='1'\n k='2'/>", "f:2:2: the attribute k stands twice"},
        {"<a>]]></a>", "f:1:4: \"]]>\" is not allowed in text: expected ]]&gt;"},
        {"<a><!-- 1 &a-- 2 --></a>", "f:1:15: \"--\" is not allowed within a comment"},
        {"<a>\x01</a>", "f:1:4: the character U+0001 is not allowed in XML"},
        {"<a k='\x1F'/>", "f:1:7: the character U+001F is not allowed in XML"},
        {"<a><!x></a>", "f:1:4: unexpected \"<!\": expected a comment"},
        {"text", "f:1:1: only comments, instructions and white space may stand outside"},
        {"<a/>\ntext", "f:2:1: only comments, instructions and white space may stand outside"},
        {"<a/><b/>", "f:1:5: only comments, instructions and white space may stand outside"},
        {"<a/>\n</a>", "f:2:1: an end tag without a start tag"},
        {"\n<?xml version='1.0'?><a/>", "f:2:1: an XML declaration may stand only at the very start"},
        {"<?xml encoding='UTF-8'?><a/>", "f:1:7: malformed XML declaration: expected version=\"1.0\""},
        {"<?xml version='1.1'?><a/>", "f:1:16: XML version \"1.1\" is not supported: expected \"1.0\""},
        {"<?xml version='1.0'?>\n<!DOCTYPE a><a/>", "f:2:1: a document type (DOCTYPE) is not allowed"},
        {"<!DOCTYPE a [<!ENTITY x 'y'>]><a>&x;</a>", "f:1:1: a document type (DOCTYPE) is not allowed"},
        {"<!DOCTYP", "f:1:1: unexpected \"<!\": expected a comment"},
        {"<a>\n<![CDATA", "f:2:1: unexpected \"<!\": expected a comment"},
        {"<!DOCTYPE", "f:1:1: a document type (DOCTYPE) is not allowed"},
        {"<!-- -->\n<!DOCTYPE a SYSTEM 'none.dtd'><a/>", "f:2:1: a document type (DOCTYPE) is not allowed"},
        {"<a></" + std::string(500, 'b') + ">", "f:1:6: found </"
                                                "bbbbbbbbbb"},
    });
    EXPECT_LT(Refusal("<a></" + std::string(500, 'b') + ">").size(), 200U);
}

std::string Nested(std::size_t depth) {
    std::string text;
    for (std::size_t level = 0; level < depth; ++level) {
        text += "<e>";
    }
    for (std::size_t level = 0; level < depth; ++level) {
        text += "</e>";
    }
    return text;
}

std::string Attributes(std::size_t count) {
    std::string text = "<a";
    for (std::size_t number = 0; number < count; ++number) {
        text += " k" + std::to_string(number) + "=''";
    }
    return text + "/>";
}

TEST(DocumentRefusal, RefusesWhatPassesALimitAndTellsHowToRaiseIt) {
    LoadLimits small;
    small.bytes = 1000;
    small.nodes = 5;
    EXPECT_EQ(Refusal(std::string(1001, ' '), small), "f:1:1: the document has 1001 bytes, the limit is 1000; raise "
                                                      "LoadLimits::bytes with LoadLimits::Scope or SetDefault");
    EXPECT_EQ(Refusal("<a k='1'>x<b/>\n</a>", small), "accepted");
    EXPECT_EQ(Refusal("<a k='1'>x<b/>\n<b/></a>", small),
              "f:2:1: the document has too many nodes, the limit is 5; raise "
              "LoadLimits::nodes with LoadLimits::Scope or SetDefault");
    EXPECT_EQ(Refusal(Nested(256)), "accepted");
    EXPECT_EQ(Refusal(Nested(257)),
              "f:1:769: elements are nested too deeply, the limit is 256; raise LoadLimits::depth "
              "with LoadLimits::Scope or SetDefault");
    EXPECT_EQ(Refusal(Attributes(1000)), "accepted");
    EXPECT_TRUE(
        Refusal(Attributes(1001)).starts_with("f:1:7894: too many attributes in one tag, the limit is 1000; raise"));
    std::string items = "<a>";
    for (int number = 0; number < 3000; ++number) {
        items += "<i/>";
    }
    items += "</a>";
    LoadLimits hasty;
    hasty.cpuSeconds = 0;
    const std::string what = Refusal(items, hasty);
    EXPECT_NE(what.find("the limit is 0 s; raise LoadLimits::cpuSeconds"), what.npos) << what;
    hasty.cpuSeconds = 1000;
    EXPECT_EQ(Refusal(items, hasty), "accepted");
    EXPECT_EQ(Refusal(Nested(5000), LoadLimits::None()), "accepted");
    EXPECT_EQ(Refusal(Attributes(5000), LoadLimits::None()), "accepted");
}

TEST(DocumentRefusal, RefusesTagsThatCostTheParserTooMuch) {
    LoadLimits limits;
    limits.bytesPerTag = 20;
    limits.attributesPerElement = 2;
    const std::vector<std::pair<std::string, std::string>> cases = {
        {"<a k='0123456789abc'/>", "f:1:1: a tag has too many bytes, the limit is 20; raise LoadLimits::bytesPerTag"},
        {"<a>\n<b k='>>>>>>>>>>>>>>>>'/></a>", "f:2:1: a tag has too many bytes"},
        {"<a><b></b                 ></a>", "f:1:7: a tag has too many bytes"},
        {"<a>\n<bbbbbbbbbbbbbbbbbbbbbbbbbbbbb", "f:2:1: a tag has too many bytes"},
        {"<a>\n<b k='' l='' \nm=''/></a>", "f:3:1: too many attributes in one tag, the limit is 2; raise"},
        {"<a b='' c='' d ='<'/>", "f:1:14: too many attributes in one tag"},
        {"<a><b></c><b k='0123456789abc'/></a>", "f:1:9: found </c>"}, // what comes first is told
        {"<!DOCTYPE a ''  '' '' '' '' '' '' '' '' ''><a/>", "f:1:1: a document type (DOCTYPE) is not allowed"},
        {"<a>\n<!--<b k='' l='' m=''>--><![CDATA[<b k='' l='' m=''/>]]><?p <b k='' l='' m=''?>'' '' '' '' '' ''</a>",
         "accepted"},
        {"<a k='>>=&gt;' l=''/>", "f:1:1: a tag has too many bytes"},
        {"<a k='>\"' \tl='>'\n/>", "accepted"},
    };
    for (const auto& [text, start] : cases) {
        EXPECT_TRUE(Refusal(text, limits).starts_with(start)) << text << "\n" << Refusal(text, limits);
    }
}

TEST(DocumentRefusal, RefusesWhatTakesTooMuchMemory) {
    std::string text = "<a>\n";
    for (int number = 0; number < 100'000; ++number) {
        text += "<n" + std::to_string(number) + "/>";
    }
    text += "</a>";
    LoadLimits limits;
    for (const std::size_t most : {text.size(), text.size() * 2, text.size() * 4}) {
        limits.memory = most;
        const std::string what = Refusal(text, limits);
        EXPECT_TRUE(what.starts_with("f:2:")) << what;
        EXPECT_NE(what.find(": parsing takes too much memory, the limit is " + std::to_string(most) +
                            " bytes; raise LoadLimits::memory"),
                  what.npos)
            << what;
    }
    EXPECT_EQ(Refusal(text), "accepted");
    limits.memory = 100; // already the conversion to UTF-8
    EXPECT_TRUE(Refusal(Encoded("<a>0123456789012345678901234567890123456789</a>", "UTF-16LE", true), limits)
                    .starts_with("f:1:1: parsing takes too much memory"));
}

TEST(DocumentRefusal, LimitsHoldForTheProcessOrForOneThreadsBlock) {
    const LoadLimits before = LoadLimits::Default();
    EXPECT_EQ(before.depth, 256U);
    LoadLimits other;
    other.depth = 3;
    LoadLimits::SetDefault(other);
    EXPECT_EQ(LoadLimits::Default().depth, 3U);
    {
        other.depth = 5;
        const LoadLimits::Scope outer(other);
        {
            const LoadLimits::Scope inner(LoadLimits::None());
            EXPECT_GT(LoadLimits::Current().depth, 256U);
        }
        EXPECT_EQ(LoadLimits::Current().depth, 5U);
        std::thread([] { EXPECT_EQ(LoadLimits::Current().depth, 3U); }).join();
    }
    EXPECT_EQ(LoadLimits::Current().depth, 3U);
    LoadLimits::SetDefault(before);
    EXPECT_EQ(LoadLimits::Default().depth, 256U);
}

} // namespace
} // namespace Framework
