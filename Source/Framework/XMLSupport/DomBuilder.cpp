#include "Framework/XMLSupport/DomBuilder.h"

#include "Framework/XMLSupport/Utf.h"
#include "Framework/XMLSupport/XmlMemory.h"
#include "Framework/XMLSupport/XmlRuntime.h"

#include <stdexcept>
#include <vector>

#include <xercesc/dom/DOM.hpp>

namespace Framework {

using xercesc::DOMNode;

namespace {

class Builder {
public:
    Builder(const XmlTree& tree, xercesc::DOMDocument& document, const NodePairing& pairing)
        : m_tree(tree), m_document(document), m_pairing(pairing) {}

    void Build();

private:
    DOMNode* Make(NodeRef node);
    DOMNode* MakeElement(NodeRef node);
    void Report(NodeRef node, DOMNode* copy) const {
        if (m_pairing) {
            m_pairing(node, copy);
        }
    }
    const XMLCh* Wide(std::string_view text) {
        m_wide = ToUtf16(text);
        return m_wide.c_str();
    }

    const XmlTree& m_tree;
    xercesc::DOMDocument& m_document;
    const NodePairing& m_pairing;
    std::string m_room;
    std::u16string m_wide;
    std::u16string m_wideName;
};

void Builder::Build() {
    const NodeRef top = m_tree.DocumentNode();
    std::vector<DOMNode*> open{&m_document};
    Report(top, &m_document);
    NodeRef node = m_tree.FirstChild(top);
    while (node != NodeRef::None) {
        DOMNode* const copy = Make(node);
        if (const NodeRef child = m_tree.FirstChild(node); child != NodeRef::None) {
            open.push_back(copy);
            node = child;
            continue;
        }
        open.back()->appendChild(copy);
        NodeRef next = m_tree.NextSibling(node);
        while (next == NodeRef::None && open.size() > 1) {
            // An element is hung up when it is complete: appending looks at every ancestor, and so it has none.
            DOMNode* const complete = open.back();
            open.pop_back();
            open.back()->appendChild(complete);
            node = m_tree.Parent(node);
            next = m_tree.NextSibling(node);
        }
        node = next;
    }
}

DOMNode* Builder::Make(NodeRef node) {
    DOMNode* copy = nullptr;
    switch (m_tree.Kind(node)) {
    case NodeKind::Element:
        return MakeElement(node);
    case NodeKind::Text:
        copy = m_document.createTextNode(Wide(m_tree.Value(node, m_room)));
        break;
    case NodeKind::CData:
        copy = m_document.createCDATASection(Wide(m_tree.Value(node, m_room)));
        break;
    case NodeKind::Comment:
        copy = m_document.createComment(Wide(m_tree.Value(node, m_room)));
        break;
    case NodeKind::Instruction:
        m_wideName = ToUtf16(m_tree.Name(node));
        copy = m_document.createProcessingInstruction(m_wideName.c_str(), Wide(m_tree.Value(node, m_room)));
        break;
    default:
        throw std::runtime_error("a document type cannot be copied");
    }
    Report(node, copy);
    return copy;
}

DOMNode* Builder::MakeElement(NodeRef node) {
    xercesc::DOMElement* const element = m_document.createElement(Wide(m_tree.Name(node)));
    Report(node, element);
    for (NodeRef attribute = m_tree.FirstAttribute(node); attribute != NodeRef::None;
         attribute = m_tree.NextSibling(attribute)) {
        m_wideName = ToUtf16(m_tree.Name(attribute));
        element->setAttribute(m_wideName.c_str(), Wide(m_tree.Value(attribute, m_room)));
        if (m_pairing) {
            m_pairing(attribute, element->getAttributeNode(m_wideName.c_str()));
        }
    }
    return element;
}

} // namespace

DomDocumentPtr NewDomDocument() {
    EnsureXmlRuntime();
    return NewDocumentInXmlMemory();
}

DomDocumentPtr BuildDom(const XmlTree& tree, const NodePairing& pairing) {
    DomDocumentPtr document = NewDomDocument();
    try {
        Builder(tree, *document, pairing).Build();
    } catch (const xercesc::DOMException& error) {
        // It is none of the standard exceptions, which is all that callers expect.
        std::string text = "the tree cannot be copied into a DOM: ";
        const XMLCh* const message = error.getMessage();
        AppendUtf8(text, message, std::char_traits<XMLCh>::length(message));
        throw std::runtime_error(text);
    }
    return document;
}

} // namespace Framework
