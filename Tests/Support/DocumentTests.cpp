#include "Framework/LoadLimits.h"
#include "Framework/XMLSupport/Document.h"
#include "Framework/XMLSupport/ParseError.h"
#include "Framework/XMLSupport/TextEncoding.h"
#include "Support/RandomXml.h"
#include "Support/TreeText.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <iterator>
#include <sstream>
#include <string>
#include <string_view>
#include <vector>

namespace Framework {
namespace {

using namespace std::literals;
using Testing::TreeText;

std::shared_ptr<const Document> Parse(std::string bytes, const LoadLimits& limits = LoadLimits()) {
    return Document::Parse(std::move(bytes), "doc.xml", limits);
}

std::string_view Slice(const Document& document, ByteRange range) {
    return std::string_view(document.Source()).substr(range.begin, range.Size());
}

/// Start and end tag, and that children cover all that stands between them.
void CheckElement(const Document& document, NodeRef node) {
    const std::string& source = document.Source();
    const ByteRange range = document.Range(node);
    const std::string_view raw = Slice(document, range);
    const std::string name(document.Name(node));
    const std::string_view tag = Slice(document, document.StartTag(node));
    ASSERT_TRUE(tag.starts_with("<" + name) && tag.ends_with(">") && raw.starts_with(tag)) << raw;
    std::uint32_t at = document.StartTag(node).end;
    for (NodeRef each = document.FirstChild(node); each != NodeRef::None; each = document.NextSibling(each)) {
        ASSERT_EQ(document.Parent(each), node);
        ASSERT_EQ(document.Range(each).begin, at);
        at = document.Range(each).end;
    }
    if (raw == tag) {
        ASSERT_TRUE(tag.ends_with("/>") && at == range.end) << raw;
    } else {
        ASSERT_EQ(source.compare(at, 2 + name.size(), "</" + name), 0) << raw;
        ASSERT_EQ(source.find('>', at), range.end - 1) << raw;
    }
}

/// Everything that must hold for the links and ranges of any document, whatever is in it.
void CheckTree(const Document& document) {
    const std::string& source = document.Source();
    std::string room;
    std::size_t roots = 0;
    for (std::size_t number = 1; number <= document.NodeCount(); ++number) {
        const NodeRef node{number};
        const NodeKind kind = document.Kind(node);
        const ByteRange range = document.Range(node);
        const std::string_view raw = Slice(document, range);
        const std::string_view value = document.Value(node, room);
        const std::string name(document.Name(node));
        const NodeRef parent = document.Parent(node);
        if (source.size() < 10'000) { // one answer is linear
            ASSERT_EQ(document.PlaceOf(node), PlaceIn(source, range.begin));
        }
        ASSERT_EQ(document.NameNumber(node), document.NumberOfName(name));
        if (const NodeRef next = document.NextSibling(node); next != NodeRef::None) {
            ASSERT_EQ(document.PreviousSibling(next), node);
            ASSERT_EQ(document.Parent(next), parent);
            ASSERT_LT(node, next);
        } else if (kind != NodeKind::Attribute && parent != NodeRef::None) {
            ASSERT_EQ(document.LastChild(parent), node);
        }
        switch (kind) {
        case NodeKind::Element:
            CheckElement(document, node);
            roots += node == document.Root() ? 1 : 0;
            break;
        case NodeKind::Attribute: {
            const std::string_view written = Slice(document, document.ValueRange(node));
            ASSERT_TRUE(raw.starts_with(name) && raw.back() == *(written.data() - 1)) << raw;
            ASSERT_TRUE(raw.ends_with(std::string(written) + raw.back()) && written.find(raw.back()) == raw.npos);
            ASSERT_GT(range.begin, document.Range(parent).begin);
            ASSERT_LT(range.end, document.StartTag(parent).end);
            break;
        }
        case NodeKind::Text:
            ASSERT_TRUE(!raw.empty() && raw.find('<') == raw.npos) << raw;
            ASSERT_EQ(raw == value, raw.find_first_of("&\r") == raw.npos);
            ASSERT_NE(document.Kind(document.NextSibling(node)), NodeKind::Text);
            break;
        case NodeKind::CData:
        case NodeKind::Comment:
        case NodeKind::Instruction: {
            const auto& [opening, closing] = kind == NodeKind::CData     ? std::pair("<![CDATA["s, "]]>")
                                             : kind == NodeKind::Comment ? std::pair("<!--"s, "-->")
                                                                         : std::pair("<?" + name, "?>");
            ASSERT_TRUE(raw.starts_with(opening) && raw.ends_with(closing)) << raw;
            break;
        }
        default:
            ASSERT_EQ(node, document.DocumentNode());
            ASSERT_EQ(raw, source);
        }
    }
    ASSERT_EQ(roots, 1U);
}

TEST(Document, ReadsOddButWellFormedDocuments) {
    const std::pair<const char*, const char*> cases[] = {
        {"<a  k = 'v>' \n j=\"'\"/>", "a(j=\"'\" k=\"v>\" )[]"},
        {"<a>]]&gt;]</a>", "a()[']]>]']"},
        {"<a><![CDATA[]]><![CDATA[<b>]]]]>t</a>", "a()[{}{<b>]]}'t']"},
        {"<!--1\r2--> <?p 1\r\n2?>\n<a/> <!--e-->\n", "!1\n2!?p 1\n2?a()[]!e!"},
        {"<?xml version='1.0' standalone='yes'?><p:a xmlns:q='u'><?p?><q:b/></p:a>",
         "p:a(xmlns:q=\"u\" )[?p ?q:b()[]]"},
        {"<\xC3\xA4 \xC3\xB6='\xF0\x9F\x99\x82'>&#x1F642;</\xC3\xA4>",
         "\xC3\xA4(\xC3\xB6=\"\xF0\x9F\x99\x82\" )['\xF0\x9F\x99\x82']"},
    };
    for (const auto& [source, tree] : cases) {
        SCOPED_TRACE(source);
        const auto document = Parse(source);
        EXPECT_EQ(TreeText(*document), "()[" + std::string(tree) + "]");
        EXPECT_EQ(document->Bytes(), source);
        CheckTree(*document);
    }
}

TEST(Document, CountsLinesAndColumnsAsPeopleDo) {
    const auto document =
        Parse("<a>\r\n\t<b/>\r<c/>\n\n \xC3\xA4\xF0\x9F\x99\x82<d k='1'/>" + std::string(600, 'x') + "<e/></a>");
    const std::pair<const char*, Place> cases[] = {{"<a>", {1, 1}},  {"\r\n", {1, 4}},  {"<b/>", {2, 2}},
                                                   {"\r<c", {2, 6}}, {"<c/>", {3, 1}},  {"\n ", {4, 1}},
                                                   {"<d", {5, 4}},   {"</a>", {5, 618}}};
    for (const auto& [node, place] : cases) {
        EXPECT_EQ(document->PlaceAt(document->Source().find(node)), place) << node;
    }
    EXPECT_EQ(document->PlaceAt(1U << 30U), document->PlaceAt(document->Source().size()));
}

TEST(Document, ReadsRandomDocumentsAsTheyWereWritten) {
    for (unsigned seed = 0; seed < 300; ++seed) {
        RandomWriter writer(seed);
        writer.Element(5);
        SCOPED_TRACE(writer.Text());
        const auto document = Parse(writer.Text());
        ASSERT_EQ(TreeText(*document, document->Root()), writer.Tree());
        CheckTree(*document);
        if (HasFatalFailure()) {
            return;
        }
    }
}

/// What loading makes of a text: the tree and the ranges of its nodes, or the refusal.
std::string Outcome(const std::string& bytes, const LoadLimits& limits) {
    try {
        const std::shared_ptr<const Document> document = Parse(bytes, limits);
        std::string outcome = TreeText(*document);
        for (std::size_t number = 1; number <= document->NodeCount(); ++number) {
            const ByteRange range = document->Range(NodeRef{number});
            outcome += " " + std::to_string(range.begin) + "-" + std::to_string(range.end);
        }
        return outcome;
    } catch (const ParseError& error) {
        return error.what();
    }
}

/// Under which the text comes to the parser in pieces, for want of memory for another copy.
LoadLimits FewMemory(const std::string& text) {
    LoadLimits limits;
    limits.memory = 16 * text.size() - 1;
    return limits;
}

// The parser gets an abridged text, unless memory is short. Whatever slips in anywhere, that must not be seen: no
// document passes for well formed because of what is left out, and all that is told of it stays the same.
TEST(Document, ReadsAbridgedWhatItReadsInWhole) {
    const std::string padding = "<!--" + std::string(2'500, '.') + "-->";
    const std::string head = "<?xml version='1.0'?>\n<r k=\"plain words, \xC3\xA9t\xC3\xA9\">";
    const std::string body =
        "\n plain words, \xC3\xA9t\xC3\xA9 and \xE4\xBD\xA0\xE5\xA5\xBD<a/>plain words &amp; more of "
        "these ]] and \r\n the last of them\xF0\x9F\x99\x82<b \xC3\xA4='x>y'\n l=''>1</b>\t<!-- one of these, "
        "\xC3\xA9 --><![CDATA[plain words & \xC3\xA9t\xC3\xA9, and then >some]]><?t plain "
        "words?>12345678901234567\xC3\xA9"
        "</r> \n";
    std::istringstream words("< > & ; ]]> ] ' \" / x \x01 <!-- --> <![CDATA[ <? ?> &lt; &# </r> \xC3 \xA9 \xC0\xAF "
                             "\xE0\x9F\xBF \xE0\xA0\x80 \xED\x9F\xBF \xED\xA0\x80 \xEF\xBF\xBD \xEF\xBF\xBE "
                             "\xEF\xBC\x8C \xF0\x9F\x99\x82 \xF4\x90\x80\x80 \xD0\xB4\xD0\xB0");
    std::vector<std::string> slips{"", " ", "\r", "<!DOCTYPE a>", "<?xml version='1.0'?>"};
    slips.insert(slips.end(), std::istream_iterator<std::string>(words), {});
    std::size_t loaded = 0;
    std::size_t refused = 0;
    for (const std::string& slip : slips) {
        for (std::size_t at = 0; at <= head.size() + body.size(); ++at) {
            const std::size_t inBody = std::max(at, head.size()) - head.size();
            std::string text = std::string(head).insert(std::min(at, head.size()), at < head.size() ? slip : "") +
                               padding + std::string(body).insert(inBody, at < head.size() ? "" : slip);
            const std::string expected = Outcome(text, FewMemory(text));
            ASSERT_EQ(Outcome(text, LoadLimits()), expected) << "\"" << slip << "\" at " << at;
            ++(expected.starts_with("doc.xml:") ? refused : loaded);
        }
    }
    EXPECT_GT(loaded, 1'000U);
    EXPECT_GT(refused, 1'000U);
}

// Whatever stands where two pieces meet must read as it does in one.
TEST(DocumentPieces, ReadAsOneDocument) {
    const std::string part = "<p k='a&amp;b>' l=\"\t\n\">t\r\nu]] &lt;&#13;<!-- <x ]]> --><![CDATA[<y>]] &amp; -->\r]]>"
                             "<?i <z ?>\xE2\x82\xAC]<q/>\r<q >\r\n</q\n>v&#x20AC;</p>";
    for (std::size_t shift = 0; shift < part.size(); ++shift) {
        const std::string text = "<r>" + std::string(65'536 - shift, 'x') + part + part;
        for (const char* const end : {"</r>", "</wrong>", "&"}) {
            ASSERT_EQ(Outcome(text + end, FewMemory(text)), Outcome(text + end, LoadLimits())) << shift;
        }
    }
}

// A long text is given in pieces, and of what does not end no more than a beginning: with the same result.
TEST(DocumentPieces, MayEndInALongTextAndLeaveOutWhatHasNoEnd) {
    const std::string filling = std::string(70'000, 'a') + "]]\r\n\xE2\x82\xAC";
    const std::string text = filling + "&amp;" + filling + "&#x20AC;" + filling + "&lt;" + filling + filling;
    const std::string open = "<r k='>'>\n";
    for (const std::string& bytes :
         {open + text + "</r>", open + text + "<b/>" + text + "</r>", open + text, open + "<!--" + text,
          open + "<?i " + text, open + "<![CDATA[" + text, open + "&" + std::string(400'000, 'a'),
          open + text + "&" + std::string(400'000, 'a') + "</r>", open + text + "& " + text + "</r>",
          open + text + "&amp" + text + "</r>", open + text + "\x01" + text + "</r>"}) {
        const std::string expected = Outcome(bytes, LoadLimits());
        EXPECT_EQ(Outcome(bytes, FewMemory(bytes)), expected) << expected.substr(0, 200);
    }
}

} // namespace
} // namespace Framework
