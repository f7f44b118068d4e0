#include "Framework/XMLSupport/XmlWriter.h"

#include "Framework/XMLSupport/DomBuilder.h"
#include "Framework/XMLSupport/Utf.h"
#include "Framework/XMLSupport/XmlEscapes.h"
#include "TreeText.h"

#include <functional>
#include <random>

#include <gtest/gtest.h>
#include <xercesc/dom/DOM.hpp>

namespace Framework {
namespace {

using Testing::Load;
using Testing::Reading;
using Testing::TreeText;
using xercesc::DOMDocument;
using xercesc::DOMElement;

constexpr WriteOptions kBare{.declaration = false, .indent = false};
constexpr WriteOptions kIndented{.declaration = false, .indent = true};

DOMElement* AddElement(DOMDocument& document, xercesc::DOMNode& parent, const XMLCh* name) {
    DOMElement* const element = document.createElement(name);
    parent.appendChild(element);
    return element;
}

std::string Write(DOMDocument& document, const WriteOptions& options = kBare) {
    const DomTree tree(&document);
    return WriteXml(tree, tree.DocumentNode(), options);
}

const std::vector<std::string>& NastyTexts() {
    static const std::vector<std::string> texts = {
        "plain",
        "a & b < c > d \" e ' f",
        "]]>",
        "]]",
        "]",
        "]]]>",
        "]]>]]>",
        "a]]>b",
        ">",
        "]]\r>",
        "\r",
        "\r\n",
        "a\rb\r\rc\r",
        "]]>\r]]>",
        "\t tab\nline\n",
        "  ",
        "&amp; &#13; <![CDATA[x]]> <!-- --> <?a?>",
        "\x7F \xC2\x80 \xC2\x85 \xE2\x80\xA8 \xEF\xBF\xBD \xF0\x9F\x98\x80 \xF4\x8F\xBF\xBF",
        "\xEE\x80\x80\xED\x9F\xBF"};
    return texts;
}

/// Content of any shape, with neighbouring texts, which only a DOM can hold.
void Grow(DOMDocument& document, DOMElement& parent, std::minstd_rand& random, int depth) {
    const auto& texts = NastyTexts();
    for (std::size_t count = random() % 5; count > 0; --count) {
        const std::u16string text = ToUtf16(texts[random() % texts.size()]);
        switch (random() % 4) {
        case 0:
            parent.appendChild(document.createTextNode(text.c_str()));
            break;
        case 1:
            parent.appendChild(document.createCDATASection(text.c_str()));
            break;
        default: {
            DOMElement* const child = AddElement(document, parent, u"e");
            child->setAttribute(u"k", text.c_str());
            if (depth > 0) {
                Grow(document, *child, random, depth - 1);
            }
        }
        }
    }
}

TEST(XmlWriter, MixedContentOfAnyShapeSurvives) {
    for (unsigned seed = 1; seed <= 200; ++seed) {
        std::minstd_rand random(seed);
        const DomDocumentPtr document = NewDomDocument();
        Grow(*document, *AddElement(*document, *document, u"r"), random, 4);
        const auto read = Load(Write(*document));
        ASSERT_EQ(Reading(*read), Reading(DomTree(document.get()))) << "seed " << seed;
    }
}

TEST(XmlWriter, IndentsWhereNoTextStands) {
    const std::pair<const char*, const char*> cases[] = {
        {"<a>\n\n<b>\t<c/></b> <c>t</c></a>", "<a>\n  <b>\n    <c/>\n  </b>\n  <c>t</c>\n</a>\n"},
        {"<!--x--><a><!--y--><b/><?p q?></a>", "<!--x-->\n<a>\n  <!--y-->\n  <b/>\n  <?p q?>\n</a>\n"},
        // Mixed content stays as it is, and all below.
        {"<a><m>t <b> <c/> </b></m><n><c/></n></a>", "<a>\n  <m>t <b> <c/> </b></m>\n  <n>\n    <c/>\n  </n>\n</a>\n"},
        {"<a><b/>&#160;</a>", "<a><b/>\xC2\xA0</a>\n"},
        // A section is text, whatever is in it, and blanks alone are a value.
        {"<a><b/><![CDATA[ ]]></a>", "<a><b/><![CDATA[ ]]></a>\n"},
        {"<a>  </a>", "<a>  </a>\n"},
    };
    for (const auto& [xml, expected] : cases) {
        const auto tree = Load(xml);
        const std::string written = WriteXml(*tree, tree->DocumentNode(), kIndented);
        EXPECT_EQ(written, expected);
        const auto read = Load(written);
        EXPECT_EQ(WriteXml(*read, read->DocumentNode(), kIndented), expected);
    }
}

struct Refusal {
    const char* what;
    std::function<void(DOMDocument&, DOMElement&)> spoil;
    const char* expected;
};

TEST(XmlWriter, RefusesWhatWouldNotLoadAndNamesTheElement) {
    const auto text = [](const XMLCh* value) {
        return [value](DOMDocument& d, DOMElement& e) { e.appendChild(d.createTextNode(value)); };
    };
    const Refusal refusals[] = {
        {"control character", text(u"a\u0001"), "StateTable/State[2]/Value: character U+0001"},
        {"noncharacter", text(u"\uFFFE"), "State[2]/Value: character U+FFFE"},
        {"high surrogate",
         text(u"\xD83D"
              u"a"),
         "State[2]/Value: half a surrogate pair"},
        {"CDATA", [](auto& d, auto& e) { e.appendChild(d.createCDATASection(u"\u001F")); }, "Value: character U+001F"},
        {"attribute", [](auto&, auto& e) { e.setAttribute(u"k", u"\u000B"); }, "State[2]/Value/@k: character U+000B"},
        {"comment --", [](auto& d, auto& e) { e.appendChild(d.createComment(u"a--b")); }, "State[2]/Value: a comment"},
        {"instruction", [](auto& d, auto& e) { e.appendChild(d.createProcessingInstruction(u"p", u"a?>b")); },
         "State[2]/Value: a processing instruction"},
        {"target", [](auto& d, auto& e) { e.appendChild(d.createProcessingInstruction(u"XmL", u"")); },
         "State[2]/Value: a processing instruction"},
        {"name that only the DOM takes", [](auto& d, auto& e) { e.appendChild(d.createElement(u"\u0132")); },
         "State[2]/Value/\xC4\xB2: that is no XML name"},
        {"same name twice",
         [](auto&, auto& e) {
             e.setAttribute(u"p:k", u"1");
             e.setAttributeNS(u"urn:u", u"p:k", u"2");
         },
         "State[2]/Value: attribute p:k"},
    };
    for (const Refusal& refusal : refusals) {
        SCOPED_TRACE(refusal.what);
        const DomDocumentPtr document = NewDomDocument();
        DOMElement* const root = AddElement(*document, *document, u"StateTable");
        AddElement(*document, *root, u"State");
        DOMElement* const value = AddElement(*document, *AddElement(*document, *root, u"State"), u"Value");
        ASSERT_NO_THROW(Write(*document));
        refusal.spoil(*document, *value);
        try {
            ADD_FAILURE() << Write(*document);
        } catch (const WriteError& error) {
            EXPECT_NE(std::string(error.what()).find(refusal.expected), std::string::npos) << error.what();
        }
    }
    EXPECT_THROW(Write(*NewDomDocument()), WriteError);
}

TEST(XmlWriter, EveryNameItLetsThroughLoads) {
    std::string xml = "<r>";
    int names = 0;
    for (char32_t c = 1; c < 0x10000; ++c) {
        const XMLCh unit = static_cast<XMLCh>(c);
        std::string character;
        AppendUtf8(character, &unit, 1);
        for (const std::string& name : {character, "a" + character}) {
            if (IsXmlName(name)) {
                xml.append("<").append(name).append("/>");
                ++names;
            }
        }
    }
    EXPECT_GT(names, 60000);
    const auto tree = Load(xml + "</r>");
    EXPECT_EQ(WriteXml(*tree, tree->DocumentNode(), kBare), xml + "</r>\n");
    EXPECT_NO_THROW(BuildDom(*tree));
    EXPECT_FALSE(IsXmlName("") || IsXmlName("1a") || IsXmlName("a b"));
}

} // namespace
} // namespace Framework
