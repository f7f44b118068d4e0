#include "Framework/XMLSupport/DomBuilder.h"
#include "Framework/XMLSupport/NodeViews.h"
#include "Framework/XMLSupport/Utf.h"
#include "Framework/XMLSupport/XPathFallback.h"
#include "Framework/XMLSupport/XmlRuntime.h"
#include "Repeat.h"
#include "TreeText.h"

#include <map>
#include <set>

#include <gtest/gtest.h>
#include <xalanc/XalanDOM/XalanAttr.hpp>
#include <xalanc/XalanDOM/XalanDocument.hpp>
#include <xalanc/XalanDOM/XalanElement.hpp>
#include <xalanc/XalanDOM/XalanNamedNodeMap.hpp>
#include <xalanc/XalanSourceTree/XalanSourceTreeDocument.hpp>
#include <xercesc/dom/DOM.hpp>
#include <xercesc/framework/MemBufInputSource.hpp>
#include <xercesc/parsers/XercesDOMParser.hpp>

namespace Framework {
namespace {

using Testing::Load;
using Testing::TreeText;
using xalanc::XalanNode;
using xercesc::DOMNode;

const char* const kDocuments[] = {
    "<a/>",
    ("<?pi data?><!-- c --><a b='1' a='&#10;&lt;\"'>t<b/> "
     "<![CDATA[]]>x<![CDATA[y]]><!----><?p?><c>&#13;\n</c></a><!--e-->"),
    "<p:a xmlns:q='u' p:k='v' k=''><q:b/>\xF0\x9F\x98\x80\xC3\xA4<c><d><e k='1' l='2'/></d></c></p:a>",
};

std::string Utf8(const xalanc::XalanDOMString& text) {
    std::string utf8;
    AppendUtf8(utf8, text.c_str(), text.size());
    return utf8;
}

const std::map<NodeKind, XalanNode::NodeType> kTypes = {
    {NodeKind::Element, XalanNode::ELEMENT_NODE},  {NodeKind::Attribute, XalanNode::ATTRIBUTE_NODE},
    {NodeKind::Text, XalanNode::TEXT_NODE},        {NodeKind::CData, XalanNode::CDATA_SECTION_NODE},
    {NodeKind::Comment, XalanNode::COMMENT_NODE},  {NodeKind::Instruction, XalanNode::PROCESSING_INSTRUCTION_NODE},
    {NodeKind::Document, XalanNode::DOCUMENT_NODE}};

/// The view of a node, of its attributes and of all below say what the tree says, and lead back to it.
void CheckView(const XmlTree& tree, NodeRef node) {
    const XalanNode& view = *tree.View(node);
    const NodeKind kind = tree.Kind(node);
    std::string room;
    EXPECT_EQ(view.getNodeType(), kTypes.at(kind));
    EXPECT_TRUE(tree.Name(node).empty() || Utf8(view.getNodeName()) == tree.Name(node));
    EXPECT_TRUE(kind == NodeKind::Element || Utf8(view.getNodeValue()) == tree.Value(node, room));
    EXPECT_EQ(view.getFirstChild(), tree.View(tree.FirstChild(node)));
    EXPECT_EQ(view.getLastChild(), tree.View(tree.LastChild(node)));
    const XmlTree* found = nullptr;
    EXPECT_EQ(NodeViews::Find(&view, found), node);
    EXPECT_EQ(found, &tree);
    if (kind == NodeKind::Attribute) {
        EXPECT_EQ(static_cast<const xalanc::XalanAttr&>(view).getOwnerElement(), tree.View(tree.Parent(node)));
        return;
    }
    EXPECT_EQ(view.getParentNode(), tree.View(tree.Parent(node)));
    EXPECT_EQ(view.getPreviousSibling(), tree.View(tree.PreviousSibling(node)));
    EXPECT_EQ(view.getNextSibling(), tree.View(tree.NextSibling(node)));
    const xalanc::XalanNamedNodeMap* const map = view.getAttributes();
    xalanc::XalanSize_t count = 0;
    for (NodeRef each = tree.FirstAttribute(node); each != NodeRef::None; each = tree.NextSibling(each), ++count) {
        CheckView(tree, each);
        EXPECT_EQ(map->item(count), tree.View(each));
        EXPECT_EQ(map->getNamedItem(tree.View(each)->getNodeName()), tree.View(each));
    }
    EXPECT_EQ(map == nullptr ? 0 : map->getLength(), count);
    for (NodeRef child = tree.FirstChild(node); child != NodeRef::None; child = tree.NextSibling(child)) {
        CheckView(tree, child);
    }
}

TEST(DomBuilder, CopiesTheWholeTreeAndPairsItsNodes) {
    for (const char* const xml : kDocuments) {
        const auto source = Load(xml);
        std::size_t pairs = 0;
        std::set<const DOMNode*> copies;
        const DomTree reader(NewDomDocument());
        DomTree copy(BuildDom(*source, [&](NodeRef node, DOMNode* dom) {
            ++pairs;
            copies.insert(dom);
            EXPECT_EQ(reader.Kind(DomTree::Ref(dom)), source->Kind(node));
            EXPECT_EQ(reader.Name(DomTree::Ref(dom)), source->Name(node));
        }));
        EXPECT_EQ(TreeText(copy), TreeText(*source));
        EXPECT_EQ(pairs, source->NodeCount());
        EXPECT_EQ(copies.size(), pairs);
        // Once more, from DOM to DOM.
        EXPECT_EQ(TreeText(DomTree(BuildDom(copy))), TreeText(*source));
    }
}

TEST(DomTree, SeesChangesAndPassesThroughEntityReferences) {
    EnsureXmlRuntime();
    const std::string xml = "<!DOCTYPE a [<!ENTITY e 'x<b/>y'><!ENTITY f ''><!ENTITY g '&e;'>]><a>1&e;2&f;&g;</a>";
    xercesc::XercesDOMParser parser;
    parser.setCreateEntityReferenceNodes(true);
    parser.parse(xercesc::MemBufInputSource(reinterpret_cast<const XMLByte*>(xml.data()), xml.size(), "t"));
    const DomTree tree(parser.getDocument());
    EXPECT_EQ(TreeText(tree, tree.Root()), "a()['1''x'b()[]'y''2''x'b()[]'y']");
    EXPECT_EQ(tree.Kind(tree.FirstChild(tree.DocumentNode())), NodeKind::Other);
    NodeRef node = tree.LastChild(tree.Root());
    std::string backwards;
    for (std::string room; node != NodeRef::None; node = tree.PreviousSibling(node)) {
        EXPECT_EQ(tree.Parent(node), tree.Root());
        backwards += tree.Kind(node) == NodeKind::Element ? tree.Name(node) : tree.Value(node, room);
    }
    EXPECT_EQ(backwards, "ybx2ybx1");
    CheckView(tree, tree.Root());

    const DomTree other(NewDomDocument());
    EXPECT_TRUE(tree.Holds(parser.getDocument()) && tree.Holds(DomTree::Node(tree.Root())));
    EXPECT_FALSE(other.Holds(DomTree::Node(tree.Root())) || tree.Holds(other.Document()) || tree.Holds(nullptr));

    auto* const root = static_cast<xercesc::DOMElement*>(DomTree::Node(tree.Root()));
    for (const XMLCh* const name : {u"c", u"a", u"b"}) {
        root->setAttribute(name, name);
    }
    NodeRef attribute = tree.NextSibling(tree.FirstAttribute(tree.Root()));
    EXPECT_EQ(tree.Name(attribute), "b");
    root->setAttribute(u"aa", u"");
    EXPECT_EQ(tree.Name(tree.PreviousSibling(attribute)), "aa");
    EXPECT_EQ(tree.Name(tree.NextSibling(attribute)), "c");
    EXPECT_EQ(tree.NextSibling(tree.NextSibling(attribute)), NodeRef::None);
}

TEST(NodeViews, ShowTheTreeAndLeadBackToIt) {
    for (const char* const xml : kDocuments) {
        const auto source = Load(xml);
        const DomTree dom(BuildDom(*source));
        for (const XmlTree* const tree :
             {static_cast<const XmlTree*>(source.get()), static_cast<const XmlTree*>(&dom)}) {
            CheckView(*tree, tree->DocumentNode());
            const XalanNode* const top = tree->View(tree->DocumentNode());
            EXPECT_EQ(static_cast<const xalanc::XalanDocument*>(top)->getDocumentElement(), tree->View(tree->Root()));
        }
    }
    const xalanc::XalanSourceTreeDocument foreign(xalanc::XalanMemMgrs::getDefaultXercesMemMgr());
    const XmlTree* found = nullptr;
    EXPECT_EQ(NodeViews::Find(&foreign, found), NodeRef::None);
    EXPECT_EQ(found, nullptr);
    EXPECT_EQ(NodeViews::Find(nullptr, found), NodeRef::None);
}

TEST(NodeViews, OfADomFollowItsChanges) {
    const DomTree tree(BuildDom(*Load("<a k='1'>old</a>")));
    const XalanNode* const root = tree.View(tree.Root());
    const XalanNode* const text = root->getFirstChild();
    const xalanc::XalanDOMString& old = text->getNodeValue();
    EXPECT_EQ(&text->getNodeValue(), &old);
    auto* const dom = static_cast<xercesc::DOMElement*>(DomTree::Node(tree.Root()));
    dom->getFirstChild()->setNodeValue(u"new");
    EXPECT_EQ(Utf8(text->getNodeValue()), "new");
    EXPECT_EQ(Utf8(old), "old");
    EXPECT_EQ(root->getAttributes()->getLength(), 1U);
    dom->setAttribute(u"j", u"2");
    EXPECT_EQ(root->getAttributes()->getLength(), 2U);
    EXPECT_FALSE(root->isIndexed());

    // Xerces gives the memory of released nodes to the next ones.
    for (const XMLCh* const name : {u"x", u"y", u"z"}) {
        DOMNode* const child = dom->appendChild(tree.Document()->createElement(name));
        EXPECT_EQ(Utf8(root->getLastChild()->getNodeName()), tree.Name(DomTree::Ref(child)));
        CheckView(tree, DomTree::Ref(child));
        dom->removeChild(child)->release();
    }
}

TEST(XPath, SelectsTheFirstNodeInDocumentOrder) {
    const auto source = Load("<r><a k='v' n='1'><b>1</b><b n='2'>2</b><!--c--><?p d?></a>"
                             "<a k='w'><b>3</b><b><![CDATA[4]]></b><c><a k='v'><b>5</b><b>6</b></a></c></a>"
                             "<p:q k='it&apos;s'>\xC3\xA4</p:q></r>");
    const std::pair<const char*, const char*> cases[] = {
        {"//b[.='4']", "b()[{4}]"},
        {"//c/ancestor::*[1]", "a(k=\"w\" )[b()['3']b()[{4}]c()[a(k=\"v\" )[b()['5']b()['6']]]]"},
        {"//b[.='6']/preceding::b", "b()['1']"},
        {"//c | //b", "b()['1']"},
        {"//a/@*[.='1']", "@1"},
        {"//comment()", "!c!"},
        {"//processing-instruction('p')", "?p d?"},
        {"//*[@k=\"it's\"]/text()", "'\xC3\xA4'"},
        {"//nothing", ""},
    };
    const DomTree dom(BuildDom(*source));
    for (const XmlTree* const tree : {static_cast<const XmlTree*>(source.get()), static_cast<const XmlTree*>(&dom)}) {
        const NodeRef deep = EvaluateXPath(*tree, tree->Root(), "//b[.='6']");
        EXPECT_EQ(EvaluateXPath(*tree, deep, "ancestor::*"), tree->Root());
        EXPECT_EQ(EvaluateXPath(*tree, deep, "ancestor-or-self::node()"), tree->DocumentNode());
        EXPECT_EQ(EvaluateXPath(*tree, deep, "preceding::b"), EvaluateXPath(*tree, tree->Root(), "a/b"));
        EXPECT_EQ(EvaluateXPath(*tree, deep, "(. | ancestor::c | /r/a[2])"),
                  EvaluateXPath(*tree, tree->Root(), "a[2]"));
        for (const auto& [expression, expected] : cases) {
            SCOPED_TRACE(expression);
            const NodeRef node = EvaluateXPath(*tree, tree->Root(), expression);
            std::string room;
            if (node == NodeRef::None) {
                EXPECT_STREQ("", expected);
            } else if (tree->Kind(node) == NodeKind::Attribute) {
                EXPECT_EQ("@" + std::string(tree->Value(node, room)), expected);
            } else {
                EXPECT_EQ(TreeText(*tree, node), expected);
            }
        }
    }
}

TEST(XPath, RefusesWhatIsNoneOrTooMuch) {
    const auto tree = Load("<r><a/></r>");
    const std::pair<std::string, const char*> cases[] = {
        {"//a[", "XPath \"//a[\": "},
        {"", "XPath"},
        {"count(//a)", "does not select nodes"},
        {"'text'", "does not select nodes"},
        {"//p:a", "XPath"},
        {"//a[$v]", "XPath"},
        {"//a[nofunction()]", "nofunction"},
        {"//a['x]", "without end"},
        {"//a[.='\x01']", "UTF-8"},
        {"//a[.='\xFF']", "UTF-8"},
        {"//a[.='" + std::string(5000, 'x') + "']", "longer than 4096"},
        {"//a[" + Repeat("(", 101) + "1" + Repeat(")", 101) + "]", "nested deeper"},
        {"a" + Repeat("/.", 501), "500 steps"},
        {"a[" + Repeat("-", 4000) + "1]", "500 steps"},
        {"document('/etc/passwd')", "XPath"},
        {"//a[" + std::string(31, '8') + "]", "30 digits"},
        {"//a[@k=concat('', '1', " + std::string(15, '8') + "." + std::string(15, '8') + ")]", "30 digits"},
        {"//a[string(number('1" + std::string(120, '0') + "'))]", "calculated"},
        {"//a[string-length((1)*(2))]", "calculated"},
        {"//a[contains('', - @k)]", "calculated"},
        {"//a[substring((1 div 2), 1)]", "calculated"},
        {"//a[concat('', 'a',\n@k mod 2)]", "calculated"},
        {"//a[starts-with (sum(//a), '')]", "calculated"},
    };
    testing::internal::CaptureStderr();
    for (const auto& [expression, expected] : cases) {
        SCOPED_TRACE(expression.substr(0, 40));
        try {
            EvaluateXPath(*tree, tree->Root(), expression);
            ADD_FAILURE() << "accepted";
        } catch (const std::runtime_error& error) {
            EXPECT_NE(std::string(error.what()).find(expected), std::string::npos) << error.what();
            EXPECT_LT(std::string(error.what()).size(), 450U);
        }
    }
    EXPECT_EQ(testing::internal::GetCapturedStderr(), "");
    // Brackets in a quoted text do not nest.
    EXPECT_EQ(EvaluateXPath(*tree, tree->Root(), "//a[.='" + Repeat("(", 200) + "']"), NodeRef::None);
    // What is calculated and stays a number, and what only looks as if it were calculated.
    for (const char* const expression : {"//a[string-length(substring(name(), string-length('ab') - 1)) = 1]",
                                         "//a[number(concat('1', '0')) * 2 = 20]", "//a[not(string(self::*[1 + 1]))]",
                                         "//a[string(count(//*)) = '2']", "//a[string(../*[* or last() - 1 = 0]) = '']",
                                         "//a[string(100000000000000000000) != 888888888888888888888888888888]",
                                         "//a[name(//div | //a) = 'a' and 3 mod 2]"}) {
        EXPECT_EQ(EvaluateXPath(*tree, tree->Root(), expression), tree->FirstChild(tree->Root())) << expression;
    }
    // What just passes.
    EXPECT_EQ(EvaluateXPath(*tree, tree->Root(), "a" + Repeat("/.", 500)), tree->FirstChild(tree->Root()));
    EXPECT_EQ(EvaluateXPath(*tree, tree->Root(), "a['" + Repeat("/", 4000) + "']"), tree->FirstChild(tree->Root()));
    EXPECT_NE(EvaluateXPath(*tree, tree->Root(), "//a[" + Repeat("(", 99) + "1" + Repeat(")", 99) + "]"),
              NodeRef::None);
}

TEST(XPath, EndsWhenTheTimeIsOver) {
    const auto tree = Load("<r>" + Repeat("<a/>", 100) + "</r>");
    LoadLimits limits;
    limits.cpuSeconds = 0.05;
    LoadLimits::SetDefault(limits);
    try {
        EvaluateXPath(*tree, tree->Root(), Repeat("//*[", 10) + "b" + Repeat("]", 10)); // would take longer than a life
        ADD_FAILURE() << "accepted";
    } catch (const std::runtime_error& error) {
        EXPECT_NE(std::string(error.what()).find("LoadLimits::cpuSeconds"), std::string::npos) << error.what();
    }
    LoadLimits::SetDefault(LoadLimits());
    EXPECT_NE(EvaluateXPath(*tree, tree->Root(), "//a[last()]"), NodeRef::None);
}

} // namespace
} // namespace Framework
