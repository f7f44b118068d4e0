#include "Framework/XMLDataWrapper.h"

#include "Commands.h"

#include <memory>
#include <vector>

#include <gtest/gtest.h>
#include <xercesc/dom/DOM.hpp>

namespace Framework {
namespace {

using xercesc::DOMElement;

const char* const kXml = "<r FeatureID='f'>"
                         "<a>first</a><a n=' +12 ' b='Yes'>1<!--c-->2<![CDATA[<3>]]>4<x>no</x><![CDATA[5]]>6</a>"
                         "<b><a>inner</a><c k='1'>c1</c><c k='2'>c2</c><c k='1'>c3</c></b>"
                         "<n>-7</n><d>2.5e1</d><word>seven</word>"
                         "</r>";

std::unique_ptr<XMLDataWrapper> Loaded(const std::string& xml = kXml, bool readOnly = false) {
    auto wrapper = std::make_unique<XMLDataWrapper>();
    EXPECT_TRUE(wrapper->LoadXMLText(xml, readOnly)) << wrapper->GetLastError();
    return wrapper;
}

std::string Value(XMLDataWrapper& wrapper, const char* name, bool fromDocument = false) {
    return wrapper.GetStringValue(name, fromDocument);
}

std::string ListText(XMLDataWrapper& wrapper, const char* query) {
    std::string text;
    for (int i = 0; i < wrapper.GetNodeListLength(query); ++i) {
        EXPECT_NE(wrapper.SelectNodeListItem(i, query), nullptr);
        text += wrapper.GetStringValue("", false) + ";";
    }
    return text;
}

/// A folder of the test's own, gone with it.
class WrapperFiles : public testing::Test {
protected:
    std::string Path(const char* name) const { return (m_folder / name).string(); }

private:
    const TemporaryFolder m_folder;
};

TEST(Wrapper, NamesAreRelativeToTheRootOrTheCurrentNode) {
    const auto wrapper = Loaded();
    EXPECT_FALSE(wrapper->HasCurrentNode());
    EXPECT_EQ(Value(*wrapper, "@FeatureID"), "f");
    EXPECT_EQ(Value(*wrapper, "a"), "12<3>456"); // the last one
    EXPECT_EQ(Value(*wrapper, "b/a"), "inner");
    ASSERT_NE(wrapper->SelectNode("b", false), nullptr);
    EXPECT_TRUE(wrapper->HasCurrentNode());
    EXPECT_EQ(Value(*wrapper, "a"), "inner");
    EXPECT_EQ(Value(*wrapper, "c"), "c3");
    EXPECT_EQ(Value(*wrapper, "c[@k='1' ]"), "c1");
    EXPECT_EQ(Value(*wrapper, "a", true), "12<3>456");
    EXPECT_EQ(Value(*wrapper, "//a"), "first");
    EXPECT_FALSE(wrapper->NodeExists("@FeatureID", false));
    EXPECT_TRUE(wrapper->NodeExists("//r/@FeatureID", true));
    // What is not there changes nothing.
    EXPECT_EQ(wrapper->SelectNode("none", false), nullptr);
    ASSERT_NE(wrapper->SelectNode("c[2]", false), nullptr);
    EXPECT_EQ(Value(*wrapper, ""), "c2");
    EXPECT_EQ(Value(*wrapper, "@k"), "2");
    wrapper->SetCurrentNode(nullptr);
    EXPECT_FALSE(wrapper->HasCurrentNode());
    EXPECT_EQ(Value(*wrapper, "a"), "12<3>456");
}

TEST(Wrapper, ReadsTextsNumbersAndBools) {
    const auto wrapper = Loaded();
    XalanNode* const node = wrapper->GetXalanNode("a", false);
    EXPECT_EQ(wrapper->GetNodeText(node) + wrapper->GetNodeCData(node), "12<3>456<3>45");
    EXPECT_EQ(wrapper->GetNodeCData(wrapper->GetXalanNode("n", false)), "-7");
    EXPECT_EQ(wrapper->GetNodeAttribute(node, "b") + wrapper->GetNodeAttribute(node, "none"), "Yes");
    EXPECT_TRUE(wrapper->GetIntValue("a/@n", false) == 12 && wrapper->GetDoubleValue("d", false) == 25.0);
    EXPECT_TRUE(wrapper->GetBoolValue("a/@b", false) && !wrapper->GetBoolValue("word", false));
}

TEST(Wrapper, KeepsListsUnderTheirQueries) {
    const auto wrapper = Loaded();
    EXPECT_TRUE(wrapper->LoadNodeList("a", "//r/a", 0));
    wrapper->SelectNode("b", false);
    EXPECT_TRUE(wrapper->LoadNodeList("c", "//r/b/c", 0));
    EXPECT_FALSE(wrapper->LoadNodeList("none", "//r/none", 0));
    EXPECT_EQ(ListText(*wrapper, "//r/a"), "first;12<3>456;");
    EXPECT_EQ(ListText(*wrapper, "//r/b/c"), "c1;c2;c3;");
    for (const int position : {-1, 3, 2147483647}) {
        EXPECT_EQ(wrapper->SelectNodeListItem(position, "//r/b/c"), nullptr) << position;
    }
    EXPECT_EQ(Value(*wrapper, ""), "c3");
    wrapper->ReleaseNodeList("//r/a");
    wrapper->ReleaseNodeList("//r/a");
    EXPECT_EQ(wrapper->GetNodeListLength("//r/a"), 0);
    EXPECT_EQ(wrapper->SelectNodeListItem(0, "//r/a"), nullptr);
    // A listing under a query that is in use takes its place, also one that finds nothing.
    wrapper->SetCurrentNode(nullptr);
    EXPECT_TRUE(wrapper->LoadNodeList("n", "//r/b/c", 0));
    EXPECT_EQ(ListText(*wrapper, "//r/b/c"), "-7;");
    wrapper->SetCurrentNode(nullptr);
    EXPECT_FALSE(wrapper->LoadNodeList("none", "//r/b/c", 0));
    EXPECT_EQ(wrapper->GetNodeListLength("//r/b/c"), 0);
}

TEST(Wrapper, WalksAHundredThousandEntries) {
    // Anything that costs the whole list for each entry takes minutes here.
    constexpr int count = 100'000;
    std::string xml = "<r>";
    for (int i = 0; i < count; ++i) {
        xml += "<e k='" + std::to_string(i) + "'>" + std::to_string(i) + "</e>";
    }
    const auto wrapper = Loaded(xml + "</r>");
    ASSERT_TRUE(wrapper->LoadNodeList("e", "//r/e", 0));
    ASSERT_EQ(wrapper->GetNodeListLength("//r/e"), count);
    int right = 0;
    for (int i = 0; i < count; ++i) {
        right += wrapper->SelectNodeListItem(i, "//r/e") != nullptr && wrapper->GetIntValue("@k", false) == i ? 1 : 0;
        const std::string key = std::to_string(i);
        right += wrapper->GetIntValue("//r/e[@k='" + key + "' ]", true) == i ? 1 : 0;
        right += wrapper->GetIntValue("//e[@k='" + key + "' ]", true) == i ? 1 : 0;
        right += wrapper->GetIntValue("//e[" + std::to_string(i + 1) + "]", true) == i ? 1 : 0;
    }
    EXPECT_EQ(right, 4 * count);
}

TEST_F(WrapperFiles, AFailedLoadKeepsTheOldDocument) {
    const auto wrapper = Loaded();
    wrapper->SelectNode("b", false);
    wrapper->LoadNodeList("c", "list", 0);
    EXPECT_FALSE(wrapper->LoadXMLText("<r>\n <a></b>\n</r>", false));
    EXPECT_EQ(wrapper->GetLastErrorNum(), -1);
    EXPECT_EQ(wrapper->GetLastError().find("<text>:2:7: "), 0U) << wrapper->GetLastError();
    const std::string path = Path("bad.xml");
    std::ofstream(path) << "<r>\n&nothing;</r>";
    EXPECT_FALSE(wrapper->LoadXMLFile(path.c_str(), false));
    EXPECT_EQ(wrapper->GetLastError().find(path + ":2:1: "), 0U) << wrapper->GetLastError();
    const std::string nowhere = Path("none/x.xml");
    for (const char* name : {nowhere.c_str(), "", static_cast<const char*>(nullptr)}) {
        EXPECT_FALSE(wrapper->LoadXMLFile(name, false));
        EXPECT_FALSE(wrapper->SaveXMLFile(name));
    }
    EXPECT_EQ(Value(*wrapper, "a"), "inner");
    EXPECT_EQ(wrapper->GetNodeListLength("list"), 3);
    // A load that succeeds leaves nothing of the document before, nor of the error.
    wrapper->SetStoredQuery("//r");
    EXPECT_TRUE(wrapper->LoadXMLText("<s/>", false));
    EXPECT_EQ(wrapper->GetLastErrorNum(), 0);
    EXPECT_EQ(wrapper->GetLastError() + wrapper->GetStoredQuery(), "");
    EXPECT_FALSE(wrapper->HasCurrentNode());
    EXPECT_EQ(wrapper->GetNodeListLength("list"), 0);
    EXPECT_TRUE(wrapper->NodeExists("//s", true));
    EXPECT_FALSE(wrapper->NodeExists("//r", true));
}

TEST(Wrapper, AskingForADomNodeMakesTheDomTheMaster) {
    const auto wrapper = Loaded();
    wrapper->LoadNodeList("a", "list", 0);
    wrapper->SelectNode("b", false);
    XalanNode* const before = wrapper->GetXalanNode("c[2]", false);
    DOMNode* const b = wrapper->GetDOMNode(false, false);
    ASSERT_NE(b, nullptr);
    EXPECT_TRUE(wrapper->HasCurrentNode());
    EXPECT_EQ(wrapper->GetDOMNode("", false), b);
    EXPECT_EQ(wrapper->GetDOMNode("//b", true), b);
    EXPECT_EQ(wrapper->GetDOMNode(true, false), b->getParentNode());
    EXPECT_EQ(Value(*wrapper, "c"), "c3");
    // Lists and nodes from before stand for the same elements.
    EXPECT_EQ(ListText(*wrapper, "list"), "first;12<3>456;");
    wrapper->SetCurrentNode(before);
    EXPECT_EQ(Value(*wrapper, ""), "c2");

    EXPECT_FALSE(wrapper->NodeExists("//new", true));
    DOMDocument& document = *b->getOwnerDocument();
    b->appendChild(document.createElement(u"new"))->setTextContent(u"\u00E9 <");
    static_cast<DOMElement*>(b)->setAttribute(u"k", u"v");
    b->removeChild(b->getFirstChild());
    wrapper->SetCurrentNode(b);
    EXPECT_EQ(Value(*wrapper, "new") + Value(*wrapper, "@k"), "\xC3\xA9 <v");
    EXPECT_FALSE(wrapper->NodeExists("a", false));
    EXPECT_TRUE(wrapper->NodeExists("//new", true));
    EXPECT_EQ(Value(*wrapper, "//b[@k='v' ]/new", true), "\xC3\xA9 <");
    EXPECT_EQ(Value(*wrapper, "*[last()]"), "\xC3\xA9 <"); // by XPath
    EXPECT_FALSE(wrapper->LoadNodeList("a", "list", 0));
    EXPECT_TRUE(wrapper->LoadNodeList("new", "list", 0));
    EXPECT_NE(wrapper->GetXMLText().find("<new>\xC3\xA9 &lt;</new></b>"), std::string::npos) << wrapper->GetXMLText();
    EXPECT_EQ(Value(*Loaded(wrapper->GetXMLText()), "a"), "12<3>456");
}

TEST(Wrapper, TheDomOfAReadOnlyDocumentIsACopy) {
    const auto wrapper = Loaded(kXml, true);
    DOMNode* const b = wrapper->GetDOMNode("//b", true);
    ASSERT_NE(b, nullptr);
    static_cast<DOMElement*>(b)->setAttribute(u"k", u"v");
    EXPECT_FALSE(wrapper->NodeExists("b/@k", false));
    EXPECT_EQ(wrapper->GetXMLText(), kXml);
    // Its nodes stand for those of the document all the same.
    EXPECT_EQ(wrapper->GetDOMNode("b", false), b);
    wrapper->SetCurrentNode(b);
    EXPECT_EQ(Value(*wrapper, "a"), "inner");
}

TEST(Wrapper, ForeignNodesLeaveNoneCurrent) {
    const auto other = Loaded();
    for (const bool readOnly : {false, true}) {
        for (const bool hasDom : {false, true}) {
            const auto wrapper = Loaded(kXml, readOnly);
            if (hasDom) {
                wrapper->GetDOMNode(true, false);
            }
            wrapper->SelectNode("b", false);
            wrapper->SetCurrentNode(other->GetDOMNode("b", false));
            EXPECT_FALSE(wrapper->HasCurrentNode());
            wrapper->SelectNode("b", false);
            wrapper->SetCurrentNode(other->GetXalanNode("b", false));
            EXPECT_FALSE(wrapper->HasCurrentNode());
            EXPECT_EQ(Value(*wrapper, "@FeatureID"), "f");
        }
    }
}

TEST(Wrapper, XPathErrorsAreErrorsAndNoExceptions) {
    for (const char* query : {"a[", "count(a)", "a[@k='x' and @l=' and @m='y' ]", "\xFF|a"}) {
        const auto wrapper = Loaded();
        EXPECT_FALSE(wrapper->NodeExists(query, true)) << query;
        EXPECT_EQ(wrapper->GetLastErrorNum(), -1) << query;
        EXPECT_EQ(wrapper->SelectNode(query, false), nullptr) << query;
        EXPECT_EQ(wrapper->GetXalanNode(query, false), nullptr) << query;
        EXPECT_EQ(wrapper->GetDOMNode(query, true), nullptr) << query;
        EXPECT_EQ(Value(*wrapper, "b/*[2]"), "c1");
    }
}

TEST_F(WrapperFiles, WithoutARootEverythingIsEmpty) {
    FullFunctionXMLDataWrapper none;
    FullFunctionXMLDataWrapper unnamed;
    FullFunctionXMLDataWrapper empty;
    ASSERT_TRUE(unnamed.CreateOutputDocument(nullptr) && empty.CreateOutputDocument(""));
    for (FullFunctionXMLDataWrapper* const wrapper : {&none, &unnamed, &empty}) {
        EXPECT_EQ(wrapper->IsDataLoaded(), wrapper != &none);
        EXPECT_EQ(wrapper->GetOutputDocument() == nullptr, wrapper == &none);
        EXPECT_EQ(wrapper->GetDOMNode(true, true), nullptr);
        EXPECT_FALSE(wrapper->LoadNodeList("a", "list", 0));
        EXPECT_EQ(wrapper->SelectNodeListItem(0, "list"), nullptr);
        for (const char* name : {"a", "@a", "//a", "a[1]", "/a"}) {
            EXPECT_EQ(wrapper->GetDOMNode(name, true), nullptr);
            EXPECT_EQ(wrapper->GetXalanNode(name, false), nullptr);
            EXPECT_EQ(wrapper->SelectNode(name, false), nullptr);
            EXPECT_EQ(wrapper->FindOutputNode(name, true, true), nullptr);
            EXPECT_FALSE(wrapper->NodeExists(name, true));
            EXPECT_EQ(wrapper->GetStringValue(name, false), "");
            EXPECT_FALSE(wrapper->SetQueryValue(name, "v", true));
        }
        EXPECT_EQ(wrapper->GetNodeText(nullptr) + wrapper->GetNodeCData(nullptr), "");
        EXPECT_EQ(wrapper->GetNodeAttribute(nullptr, "a"), "");
        wrapper->SetCurrentNode(static_cast<XalanNode*>(nullptr));
        wrapper->SetCurrentNode(static_cast<DOMNode*>(nullptr));
        EXPECT_FALSE(wrapper->HasCurrentNode());
        EXPECT_EQ(wrapper->GetXMLText(), "");
        EXPECT_EQ(wrapper->GetLastErrorNum(), -1);
        EXPECT_FALSE(wrapper->SaveXMLFile(Path("empty.xml").c_str()));
        EXPECT_FALSE(std::filesystem::exists(Path("empty.xml")));
    }
    EXPECT_TRUE(empty.AppendElementValue(empty.GetOutputDocument(), "Root", "x", true));
    EXPECT_EQ(Value(empty, "", true), "x");
}

TEST(OutputDocument, RefusesWhatIsNotXml) {
    FullFunctionXMLDataWrapper wrapper;
    ASSERT_TRUE(wrapper.CreateOutputDocument("Root"));
    for (const char* name : {"1a", "a b", "<", "\x01", "\xFF"}) {
        EXPECT_FALSE(wrapper.CreateOutputDocument(name)) << name;
        EXPECT_EQ(XMLDataWrapper::CreateNewElement(name, wrapper.GetOutputDocument()), nullptr) << name;
        EXPECT_EQ(XMLDataWrapper::CreateNewAttribute(name, wrapper.GetOutputDocument()), nullptr) << name;
    }
    EXPECT_EQ(XMLDataWrapper::CreateNewAttribute(zelString("a\0b", 3), wrapper.GetOutputDocument()), nullptr);
    DOMNode* const root = wrapper.GetDOMNode("//Root", true);
    ASSERT_NE(root, nullptr); // of the document that stands
    for (const char* text : {"a\x01", "\xC3", "\xEF\xBF\xBF", "\xED\xA0\x80"}) {
        EXPECT_FALSE(wrapper.AppendElementValue(root, "Label", text, true));
        EXPECT_NE(wrapper.GetLastError().find("Label"), std::string::npos) << wrapper.GetLastError();
        DOMNode* const attribute = XMLDataWrapper::CreateNewAttribute("k", wrapper.GetOutputDocument());
        EXPECT_FALSE(XMLDataWrapper::SetAttributeValue(text, attribute));
    }
    EXPECT_FALSE(wrapper.AppendElementValue(root, "a b", "x", true));
    EXPECT_FALSE(wrapper.AppendElementValue(nullptr, "a", "x", true));
    EXPECT_FALSE(wrapper.AppendElementValue(wrapper.GetOutputDocument(), "Second", "x", true));
    EXPECT_EQ(root->getFirstChild(), nullptr);

    EXPECT_TRUE(wrapper.AppendElementValue(root, "Label", "\xC3\xA9 & <", true));
    EXPECT_EQ(Value(wrapper, "Label"), "\xC3\xA9 & <");
    EXPECT_EQ(wrapper.GetXMLText(), "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n<Root>\n"
                                    "  <Label>\xC3\xA9 &amp; &lt;</Label>\n</Root>\n");
}

} // namespace
} // namespace Framework
