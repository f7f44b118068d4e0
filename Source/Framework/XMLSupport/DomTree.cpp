#include "Framework/XMLSupport/DomTree.h"

#include "Framework/XMLSupport/DomLinks.h"
#include "Framework/XMLSupport/NodeViews.h"
#include "Framework/XMLSupport/Utf.h"

#include <xercesc/dom/DOM.hpp>
#include <xercesc/util/XMLString.hpp>

namespace Framework {

using xercesc::DOMNode;

namespace {

using Step = DOMNode* (DOMNode::*)() const;

bool IsReference(const DOMNode* node) {
    return node->getNodeType() == DOMNode::ENTITY_REFERENCE_NODE;
}

/// The neighbour on the same level, out of entity references that end here.
DOMNode* Beside(const DOMNode* node, Step along) {
    for (;;) {
        if (DOMNode* const beside = (node->*along)(); beside != nullptr) {
            return beside;
        }
        node = ParentOf(*node);
        if (node == nullptr || !IsReference(node)) {
            return nullptr;
        }
    }
}

/// The node, or what stands in its place when it is an entity reference.
DOMNode* Through(DOMNode* node, Step into, Step along) {
    while (node != nullptr && IsReference(node)) {
        DOMNode* const inner = (node->*into)();
        node = inner != nullptr ? inner : Beside(node, along);
    }
    return node;
}

DOMNode* Forward(DOMNode* node) {
    return Through(node, &DOMNode::getFirstChild, &DOMNode::getNextSibling);
}

DOMNode* Backward(DOMNode* node) {
    return Through(node, &DOMNode::getLastChild, &DOMNode::getPreviousSibling);
}

bool IsAttribute(const DOMNode* node) {
    return node->getNodeType() == DOMNode::ATTRIBUTE_NODE;
}

/// It knows how long its value is.
bool HasLength(const DOMNode* node) {
    const auto type = node->getNodeType();
    return type == DOMNode::TEXT_NODE || type == DOMNode::CDATA_SECTION_NODE || type == DOMNode::COMMENT_NODE;
}

bool HasChildren(const DOMNode* node) {
    return node->getNodeType() == DOMNode::ELEMENT_NODE || node->getNodeType() == DOMNode::DOCUMENT_NODE;
}

} // namespace

void ReleaseDomDocument::operator()(xercesc::DOMDocument* document) const noexcept {
    try {
        document->release(); // tells a host's data handlers
    } catch (...) {          // nobody is left to be told
    }
}

DomTree::DomTree(xercesc::DOMDocument* document) : m_document(document) {}

DomTree::DomTree(DomDocumentPtr document) : m_owned(std::move(document)), m_document(m_owned.get()) {}

DomTree::~DomTree() = default;

DOMNode* DomTree::Node(NodeRef node) {
    return reinterpret_cast<DOMNode*>(node);
}

NodeRef DomTree::Ref(const DOMNode* node) {
    return NodeRef{reinterpret_cast<std::uintptr_t>(node)};
}

bool DomTree::Holds(const DOMNode* node) const {
    return node != nullptr && (node == m_document || node->getOwnerDocument() == m_document);
}

NodeRef DomTree::DocumentNode() const {
    return Ref(m_document);
}

NodeRef DomTree::Root() const {
    return Ref(m_document->getDocumentElement());
}

NodeKind DomTree::Kind(NodeRef node) const {
    if (node == NodeRef::None) {
        return NodeKind::None;
    }
    switch (Node(node)->getNodeType()) {
    case DOMNode::ELEMENT_NODE:
        return NodeKind::Element;
    case DOMNode::ATTRIBUTE_NODE:
        return NodeKind::Attribute;
    case DOMNode::TEXT_NODE:
        return NodeKind::Text;
    case DOMNode::CDATA_SECTION_NODE:
        return NodeKind::CData;
    case DOMNode::COMMENT_NODE:
        return NodeKind::Comment;
    case DOMNode::PROCESSING_INSTRUCTION_NODE:
        return NodeKind::Instruction;
    case DOMNode::DOCUMENT_NODE:
        return NodeKind::Document;
    default:
        return NodeKind::Other;
    }
}

std::string_view DomTree::Name(NodeRef node) const {
    switch (Kind(node)) {
    case NodeKind::Element:
    case NodeKind::Attribute:
    case NodeKind::Instruction:
        break;
    default:
        return {};
    }
    const XMLCh* const name = Node(node)->getNodeName();
    auto& recent = m_recentNames[(reinterpret_cast<std::uintptr_t>(name) >> 4U) % m_recentNames.size()];
    if (recent.first == name) {
        return *recent.second;
    }
    auto known = m_names.find(name);
    if (known == m_names.end()) {
        std::string utf8;
        AppendUtf8(utf8, name, xercesc::XMLString::stringLen(name));
        known = m_names.emplace(name, std::move(utf8)).first;
    }
    recent = {name, &known->second};
    return known->second;
}

NodeRef DomTree::Parent(NodeRef node) const {
    if (node == NodeRef::None) {
        return NodeRef::None;
    }
    const DOMNode* const dom = Node(node);
    if (IsAttribute(dom)) {
        return Ref(static_cast<const xercesc::DOMAttr*>(dom)->getOwnerElement());
    }
    const DOMNode* parent = ParentOf(*dom);
    while (parent != nullptr && IsReference(parent)) {
        parent = ParentOf(*parent);
    }
    return Ref(parent);
}

NodeRef DomTree::FirstChild(NodeRef node) const {
    return node != NodeRef::None && HasChildren(Node(node)) ? Ref(Forward(Node(node)->getFirstChild())) : NodeRef::None;
}

NodeRef DomTree::LastChild(NodeRef node) const {
    return node != NodeRef::None && HasChildren(Node(node)) ? Ref(Backward(Node(node)->getLastChild())) : NodeRef::None;
}

NodeRef DomTree::NextSibling(NodeRef node) const {
    if (node == NodeRef::None) {
        return NodeRef::None;
    }
    const DOMNode* const dom = Node(node);
    return IsAttribute(dom) ? AttributeBeside(dom, true) : Ref(Forward(Beside(dom, &DOMNode::getNextSibling)));
}

NodeRef DomTree::PreviousSibling(NodeRef node) const {
    if (node == NodeRef::None) {
        return NodeRef::None;
    }
    const DOMNode* const dom = Node(node);
    return IsAttribute(dom) ? AttributeBeside(dom, false) : Ref(Backward(Beside(dom, &DOMNode::getPreviousSibling)));
}

NodeRef DomTree::FirstAttribute(NodeRef element) const {
    if (Kind(element) != NodeKind::Element) {
        return NodeRef::None;
    }
    m_lastIndex = 0;
    m_lastAttribute = Node(element)->getAttributes()->item(0);
    return Ref(m_lastAttribute);
}

NodeRef DomTree::AttributeBeside(const DOMNode* attribute, bool next) const {
    const DOMNode* const element = static_cast<const xercesc::DOMAttr*>(attribute)->getOwnerElement();
    if (element == nullptr) {
        return NodeRef::None;
    }
    const xercesc::DOMNamedNodeMap* const attributes = element->getAttributes();
    const XMLSize_t count = attributes->getLength();
    XMLSize_t index = attribute == m_lastAttribute ? m_lastIndex : count;
    // The list may have changed since; otherwise reading on costs no search.
    if (index >= count || attributes->item(index) != attribute) {
        index = 0;
        while (index < count && attributes->item(index) != attribute) {
            ++index;
        }
    }
    if (next ? index + 1 >= count : index == 0) {
        return NodeRef::None;
    }
    m_lastIndex = next ? index + 1 : index - 1;
    m_lastAttribute = attributes->item(m_lastIndex);
    return Ref(m_lastAttribute);
}

std::string_view DomTree::Value(NodeRef node, std::string& room) const {
    room.clear();
    if (node == NodeRef::None) {
        return room;
    }
    const DOMNode* const dom = Node(node);
    const XMLCh* const value =
        IsAttribute(dom) ? ValueOf(static_cast<const xercesc::DOMAttr&>(*dom)) : dom->getNodeValue();
    if (value != nullptr) {
        AppendUtf8(room, value,
                   HasLength(dom) ? static_cast<const xercesc::DOMCharacterData*>(dom)->getLength()
                                  : xercesc::XMLString::stringLen(value));
    }
    return room;
}

XALAN_CPP_NAMESPACE::XalanNode* DomTree::View(NodeRef node) const {
    if (m_views == nullptr) {
        m_views = std::make_unique<NodeViews>(*this, NodeOrder::Unknown);
    }
    return m_views->View(node);
}

bool DomTree::HasLoneSurrogate(NodeRef node) {
    const XMLCh* unit = node == NodeRef::None ? nullptr : Node(node)->getNodeValue();
    if (unit == nullptr) {
        return false;
    }
    for (; *unit != 0; ++unit) {
        const bool high = (*unit & 0xFC00) == 0xD800;
        if (high && (unit[1] & 0xFC00) == 0xDC00) {
            ++unit;
        } else if (high || (*unit & 0xFC00) == 0xDC00) {
            return true;
        }
    }
    return false;
}

} // namespace Framework
