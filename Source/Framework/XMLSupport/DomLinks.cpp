#include "Framework/XMLSupport/DomLinks.h"

#include <typeinfo>

#include <xercesc/dom/impl/DOMAttrImpl.hpp>
#include <xercesc/dom/impl/DOMCDATASectionImpl.hpp>
#include <xercesc/dom/impl/DOMCasts.hpp>
#include <xercesc/dom/impl/DOMDocumentImpl.hpp>
#include <xercesc/dom/impl/DOMElementImpl.hpp>
#include <xercesc/dom/impl/DOMNodeVector.hpp>
#include <xercesc/dom/impl/DOMTextImpl.hpp>

namespace Framework {

using namespace xercesc;

namespace {

/// By address: were a class known by two, it would only be taken for another one.
template <typename Class> bool IsExactly(const DOMNode& node) {
    return &typeid(node) == &typeid(Class);
}

/// What a node is made of, as far as it hangs below another; null for a node of another class.
struct Parts {
    DOMNodeImpl* node = nullptr;
    DOMChildNode* child = nullptr;
};

template <typename Class> Parts PartsAs(DOMNode& node) {
    auto& known = static_cast<Class&>(node);
    return {known.Class::getNodeImpl(), known.Class::getChildNodeImpl()};
}

Parts PartsOf(DOMNode& node) {
    if (IsExactly<DOMElementImpl>(node)) {
        return PartsAs<DOMElementImpl>(node);
    }
    if (IsExactly<DOMTextImpl>(node)) {
        return PartsAs<DOMTextImpl>(node);
    }
    if (IsExactly<DOMCDATASectionImpl>(node)) {
        return PartsAs<DOMCDATASectionImpl>(node);
    }
    return {};
}

DOMChildNode& Siblings(DOMNode& node) {
    const Parts parts = PartsOf(node);
    return parts.child != nullptr ? *parts.child : *castToChildImpl(&node);
}

bool IsOrStandsBelow(const DOMNode& node, const DOMNode& other) {
    const DOMNode* above = &node;
    while (above != nullptr && above != &other) {
        above = ParentOf(*above);
    }
    return above != nullptr;
}

/// And is of the document of that parent: what hangs nowhere has its document for its owner.
bool HangsNowhere(const DOMNodeImpl& node, const DOMParentNode& parent) {
    return !node.isOwned() && node.fOwnerNode == parent.fOwnerDocument;
}

/// Behind the parent's last child.
void Hang(DOMNode& parent, DOMParentNode& children, DOMNode& child, const Parts& parts) {
    parts.node->fOwnerNode = &parent;
    parts.node->isOwned(true);
    if (children.fFirstChild == nullptr) {
        children.fFirstChild = &child;
        parts.node->isFirstChild(true);
        parts.child->previousSibling = &child;
    } else { // the first child keeps the last one as its previous
        DOMChildNode& first = Siblings(*children.fFirstChild);
        Siblings(*first.previousSibling).nextSibling = &child;
        parts.child->previousSibling = first.previousSibling;
        first.previousSibling = &child;
    }
    children.changed(); // lists of nodes that callers hold look again
}

/// The sorted attributes of an element, which only Xerces' own classes can reach.
struct AttributeList : DOMAttrMapImpl {
    static void Insert(DOMAttrMapImpl& map, DOMAttr& attribute) {
        constexpr XMLSize_t usual = 8;
        map.reserve(usual); // only where there is no list yet
        const int found = map.findNamePoint(attribute.getNodeName());
        DOMNodeVector& nodes = *(map.*(&AttributeList::fNodes));
        nodes.insertElementAt(&attribute, static_cast<XMLSize_t>(-1 - found)); // so it tells where a new name belongs
    }
};

} // namespace

DOMNode* AppendNode(DOMNode& parent, DOMNode& child) {
    const Parts parts = PartsOf(child);
    if (parts.node == nullptr || !IsExactly<DOMElementImpl>(parent)) {
        return parent.appendChild(&child);
    }
    auto& element = static_cast<DOMElementImpl&>(parent);
    // All that Xerces refuses, or has to take from another place first. A range never changes by what comes last.
    if (element.fNode.isReadOnly() || !HangsNowhere(*parts.node, element.fParent) || IsOrStandsBelow(parent, child)) {
        return parent.appendChild(&child);
    }
    Hang(parent, element.fParent, child, parts);
    return &child;
}

void AddAttribute(DOMElement& element, DOMAttr& attribute, const XMLCh* value) {
    if (!IsExactly<DOMElementImpl>(element) || !IsExactly<DOMAttrImpl>(attribute)) {
        attribute.setValue(value);
        element.setAttributeNode(&attribute);
        return;
    }
    auto& owner = static_cast<DOMElementImpl&>(element);
    auto& added = static_cast<DOMAttrImpl&>(attribute);
    DOMNode* const text = added.fParent.fOwnerDocument->createTextNode(value);
    const Parts parts = PartsOf(*text);
    if (owner.fNode.isReadOnly() || owner.fAttributes == nullptr || added.fParent.fFirstChild != nullptr ||
        parts.node == nullptr || !HangsNowhere(added.fNode, owner.fParent)) {
        attribute.setValue(value);
        element.setAttributeNode(&attribute);
        return;
    }
    Hang(attribute, added.fParent, *text, parts);
    added.fNode.isSpecified(true);
    AttributeList::Insert(*owner.fAttributes, attribute);
    added.fNode.fOwnerNode = &element;
    added.fNode.isOwned(true);
}

const XMLCh* ValueOf(const DOMAttr& attribute) {
    if (IsExactly<DOMAttrImpl>(attribute)) {
        DOMNode* const child = static_cast<const DOMAttrImpl&>(attribute).fParent.fFirstChild;
        if (child != nullptr && IsExactly<DOMTextImpl>(*child) && child->getNextSibling() == nullptr) {
            return child->getNodeValue();
        }
    }
    return attribute.getValue();
}

DOMNode* ParentOf(const DOMNode& node) {
    const DOMNodeImpl* const known = PartsOf(const_cast<DOMNode&>(node)).node;
    if (known == nullptr) {
        return node.getParentNode();
    }
    return known->isOwned() ? known->fOwnerNode : nullptr;
}

} // namespace Framework
