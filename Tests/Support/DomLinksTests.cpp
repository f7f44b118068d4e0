// Hanging nodes without Xerces' casts leaves the DOM as Xerces itself would, and refuses what that refuses.

#include "Framework/XMLSupport/DomLinks.h"

#include <random>

#include <gtest/gtest.h>
#include <xercesc/dom/DOM.hpp>
#include <xercesc/dom/impl/DOMCasts.hpp>

#include "Framework/XMLSupport/DomBuilder.h"
#include "Framework/ZelString.h"

namespace Framework {
namespace {

using namespace xercesc;

std::string Name(const DOMNode* node) {
    return node == nullptr ? "-" : zelString(node->getNodeName());
}

/// A node and all below it, with what each says of its neighbours.
std::string Look(const DOMNode& node) {
    EXPECT_EQ(ParentOf(node), node.getParentNode());
    std::string text = Name(&node) + "(" + Name(node.getParentNode()) + Name(node.getPreviousSibling()) +
                       Name(node.getNextSibling()) + Name(node.getFirstChild()) + Name(node.getLastChild());
    const DOMNamedNodeMap* const attributes = node.getAttributes();
    for (XMLSize_t i = 0; attributes != nullptr && i < attributes->getLength(); ++i) {
        const auto& attribute = static_cast<const DOMAttr&>(*attributes->item(i));
        EXPECT_EQ(zelString(ValueOf(attribute)), zelString(attribute.getValue()));
        EXPECT_EQ(attribute.getOwnerElement(), &node);
        EXPECT_EQ(attribute.getFirstChild()->getParentNode(), &attribute);
        text += " " + Name(&attribute) + "=" + zelString(attribute.getValue()) + (attribute.getSpecified() ? "" : "?");
    }
    for (const DOMNode* child = node.getFirstChild(); child != nullptr; child = child->getNextSibling()) {
        text += Look(*child);
    }
    return text + ")";
}

/// A document and nodes of every kind that may be hung into it, or may not.
struct Scene {
    Scene() {
        document->appendChild(root);
        nodes = {document.get(),
                 root,
                 document->createElement(u"a"),
                 document->createElement(u"b"),
                 document->createElement(u"c"),
                 document->createElementNS(u"urn:n", u"n"),
                 document->createTextNode(u"t"),
                 document->createCDATASection(u"t"),
                 document->createComment(u"t"),
                 document->createElement(u"fixed"),
                 other->createElement(u"foreign")};
        castToNodeImpl(nodes[9])->setReadOnly(true, false);
    }
    /// The code of what is thrown, or 0.
    int Append(std::size_t parent, std::size_t child, DOMNode* (*append)(DOMNode& parent, DOMNode& child)) const {
        try {
            EXPECT_EQ(append(*nodes[parent], *nodes[child]), nodes[child]);
            return 0;
        } catch (const DOMException& refused) {
            return refused.code;
        }
    }
    std::string Text() const {
        std::string text;
        for (DOMNode* const node : nodes) {
            text += Look(*node) + "\n";
        }
        // By this count lists of nodes know that they have to look again.
        return text + std::to_string(castToParentImpl(root)->changes());
    }

    DomDocumentPtr document = NewDomDocument();
    DomDocumentPtr other = NewDomDocument();
    DOMElement* root = document->createElement(u"root");
    std::vector<DOMNode*> nodes;
};

TEST(DomLinks, LeaveTheDomAsXercesDoes) {
    std::minstd_rand random(1);
    for (int round = 0; round < 300; ++round) {
        const Scene ours, theirs;
        for (int step = 0; step < 12; ++step) {
            const std::size_t parent = random() % ours.nodes.size();
            // Never the node itself, which Xerces forgets to refuse.
            const std::size_t child = (parent + 1 + random() % (ours.nodes.size() - 1)) % ours.nodes.size();
            ASSERT_EQ(
                ours.Append(parent, child, &AppendNode),
                theirs.Append(parent, child, [](DOMNode& node, DOMNode& last) { return node.appendChild(&last); }))
                << Name(ours.nodes[child]) << " into " << Name(ours.nodes[parent]);
            ASSERT_EQ(ours.Text(), theirs.Text());
        }
    }
}

TEST(DomLinks, AttributesAreThoseOfXerces) {
    const Scene ours, theirs;
    for (const XMLCh* const name : {u"m", u"z", u"a", u"n"}) {
        AddAttribute(*ours.root, *ours.document->createAttribute(name), name);
        theirs.root->setAttribute(name, name);
        ASSERT_EQ(ours.Text(), theirs.Text());
    }
    DOMAttr* const first = ours.root->getAttributeNode(u"m");
    first->appendChild(ours.document->createTextNode(u" more"));
    EXPECT_EQ(zelString(ValueOf(*first)), "m more"); // of two texts
    castToNodeImpl(ours.root)->setReadOnly(true, false);
    EXPECT_THROW(AddAttribute(*ours.root, *ours.document->createAttribute(u"k"), u"v"), DOMException);
}

} // namespace
} // namespace Framework
