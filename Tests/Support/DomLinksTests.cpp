// Hanging nodes without Xerces' casts leaves the DOM as Xerces itself would, and refuses what that refuses.

#include "Framework/XMLSupport/DomLinks.h"

#include <functional>

#include <gtest/gtest.h>
#include <xercesc/dom/DOM.hpp>
#include <xercesc/dom/impl/DOMCasts.hpp>

#include "Framework/XMLSupport/DomBuilder.h"
#include "Framework/ZelString.h"

namespace Framework {
namespace {

using namespace xercesc;

void ByXerces(DOMNode& parent, DOMNode& child) {
    EXPECT_EQ(parent.appendChild(&child), &child);
}
void AtOnce(DOMNode& parent, DOMNode& child) {
    EXPECT_EQ(AppendNode(parent, child), &child);
}
using Append = void (*)(DOMNode& parent, DOMNode& child);

std::string Name(const DOMNode* node) {
    return node == nullptr ? "-" : zelString(node->getNodeName());
}

/// A node and all below it, with what each says of its neighbours.
std::string Look(const DOMNode& node) {
    EXPECT_EQ(ParentOf(node), node.getParentNode());
    std::string text = Name(&node) + "(" + Name(node.getParentNode()) + Name(node.getPreviousSibling()) +
                       Name(node.getNextSibling()) + Name(node.getFirstChild()) + Name(node.getLastChild());
    for (const DOMNode* child = node.getFirstChild(); child != nullptr; child = child->getNextSibling()) {
        text += Look(*child);
    }
    return text + ")";
}

struct Scene {
    Scene() { ByXerces(*document, *root); }
    DOMElement* New(const XMLCh* name) const { return document->createElement(name); }

    DomDocumentPtr document = NewDomDocument();
    DOMElement* root = New(u"root");
    DOMElement* a = New(u"a");
    DOMElement* b = New(u"b");
};

TEST(DomLinks, LeaveTheDomAsXercesDoes) {
    const std::function<void(Scene&, Append)> steps[] = {
        [](Scene& s, Append append) {
            append(*s.a, *s.document->createTextNode(u"t"));
            append(*s.root, *s.a);
            append(*s.root, *s.document->createCDATASection(u"c"));
            append(*s.root, *s.b);
        },
        [](Scene& s, Append append) { // behind, and as, a node of another class
            append(*s.root, *s.document->createComment(u"c"));
            append(*s.root, *s.a);
            append(*s.root, *s.document->createElementNS(u"urn:n", u"n"));
            append(*s.root, *s.b);
            append(*s.root->getLastChild()->getPreviousSibling(), *s.document->createTextNode(u"t"));
        },
        [](Scene& s, Append append) { // from one place to another
            append(*s.root, *s.a);
            append(*s.root, *s.b);
            append(*s.root, *s.a);
            append(*s.b, *s.a);
            s.b->removeChild(s.a);
            append(*s.root, *s.a);
        },
        [](Scene& s, Append append) { // the root, which the document then has no more
            append(*s.a, *s.root);
            append(*s.document, *s.a);
        },
    };
    for (const auto& step : steps) {
        Scene ours, theirs;
        EXPECT_EQ(ParentOf(*ours.a), nullptr);
        step(ours, AtOnce);
        step(theirs, ByXerces);
        EXPECT_EQ(Look(*ours.document), Look(*theirs.document));
        // By this count lists of nodes know that they have to look again.
        EXPECT_EQ(castToParentImpl(ours.root)->changes(), castToParentImpl(theirs.root)->changes());
    }
}

TEST(DomLinks, RefuseWhatXercesRefuses) {
    Scene s, other;
    AtOnce(*s.root, *s.a);
    AtOnce(*s.a, *s.b);
    const std::string before = Look(*s.document);
    EXPECT_THROW(AppendNode(*s.b, *s.a), DOMException); // below itself
    AtOnce(*other.a, *other.b);
    EXPECT_THROW(AppendNode(*other.b, *other.a), DOMException); // the same where it hangs nowhere
    EXPECT_THROW(AppendNode(*s.a, *other.a), DOMException);     // of another document
    castToNodeImpl(s.a)->setReadOnly(true, false);
    EXPECT_THROW(AppendNode(*s.a, *s.New(u"c")), DOMException);
    EXPECT_THROW(AddAttribute(*s.a, *s.document->createAttribute(u"k"), u"v"), DOMException);
    EXPECT_EQ(Look(*s.document), before);
}

TEST(DomLinks, AttributesAreThoseOfXerces) {
    Scene s;
    for (const XMLCh* const name : {u"m", u"z", u"a", u"n"}) {
        DOMAttr* const attribute = s.document->createAttribute(name);
        AddAttribute(*s.root, *attribute, name);
        EXPECT_EQ(s.root->getAttributeNode(name), attribute);
        EXPECT_TRUE(attribute->getOwnerElement() == s.root && attribute->getSpecified());
        EXPECT_EQ(zelString(ValueOf(*attribute)), Name(attribute));
        EXPECT_EQ(zelString(attribute->getValue()), Name(attribute));
        EXPECT_EQ(attribute->getFirstChild()->getParentNode(), attribute);
    }
    std::string names;
    for (XMLSize_t i = 0; i < s.root->getAttributes()->getLength(); ++i) {
        names += Name(s.root->getAttributes()->item(i));
    }
    EXPECT_EQ(names, "amnz");
    DOMAttr* const first = s.root->getAttributeNode(u"m");
    first->appendChild(s.document->createTextNode(u" more"));
    EXPECT_EQ(zelString(ValueOf(*first)), "m more"); // of two texts
    first->setValue(u"set");
    EXPECT_EQ(zelString(ValueOf(*first)), "set");
}

} // namespace
} // namespace Framework
