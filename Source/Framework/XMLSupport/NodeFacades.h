#pragma once

#include "Framework/XMLSupport/XmlTree.h"

#include <atomic>
#include <string>
#include <vector>

#include <xalanc/XalanDOM/XalanAttr.hpp>
#include <xalanc/XalanDOM/XalanCDATASection.hpp>
#include <xalanc/XalanDOM/XalanComment.hpp>
#include <xalanc/XalanDOM/XalanDOMException.hpp>
#include <xalanc/XalanDOM/XalanDOMString.hpp>
#include <xalanc/XalanDOM/XalanDocument.hpp>
#include <xalanc/XalanDOM/XalanElement.hpp>
#include <xalanc/XalanDOM/XalanNamedNodeMap.hpp>
#include <xalanc/XalanDOM/XalanProcessingInstruction.hpp>
#include <xalanc/XalanDOM/XalanText.hpp>

namespace Framework {

/// A name as UTF-8 and as the three texts that Xalan asks for; shared by all nodes that bear it.
struct ViewName {
    std::string utf8;
    XALAN_CPP_NAMESPACE::XalanDOMString whole;
    XALAN_CPP_NAMESPACE::XalanDOMString prefix;
    XALAN_CPP_NAMESPACE::XalanDOMString local;
};

class AttributeList;

/// What a facade asks of the object that holds all of them.
class FacadeHost {
public:
    using Node = XALAN_CPP_NAMESPACE::XalanNode;
    using Text = XALAN_CPP_NAMESPACE::XalanDOMString;

    virtual ~FacadeHost() = default;
    virtual const XmlTree& Tree() const = 0;
    virtual Node* View(NodeRef node) = 0;
    /// The first of `node` and the siblings behind or before it that has a view.
    virtual Node* ViewBehind(NodeRef node) = 0;
    virtual Node* ViewBefore(NodeRef node) = 0;
    /// The node's value; `known` keeps what the last call gave.
    virtual const Text& ValueOf(NodeRef node, std::atomic<const Text*>& known) = 0;
    virtual const AttributeList& AttributesOf(NodeRef element, std::atomic<const AttributeList*>& known) = 0;
    virtual const Text& Empty() const = 0;
    virtual bool IsOrdered() const = 0;
    virtual unsigned long Index(NodeRef node) = 0;
    /// True as long as the tree does not change.
    virtual bool IsFixed() const = 0;
    /// True when CDATA sections shall report the type of texts.
    virtual bool SectionsAreTexts() const = 0;
};

/// What the views of all kinds have in common.
template <class Base, XALAN_CPP_NAMESPACE::XalanNode::NodeType type> class Facade : public Base {
public:
    using Node = XALAN_CPP_NAMESPACE::XalanNode;
    using Text = XALAN_CPP_NAMESPACE::XalanDOMString;

    Facade(FacadeHost& host, NodeRef node, const ViewName& name) : m_host(host), m_node(node), m_name(name) {}
    Facade(const Facade&) = delete;
    Facade& operator=(const Facade&) = delete;

    FacadeHost& Host() const { return m_host; }
    NodeRef Ref() const { return m_node; }

    const Text& getNodeName() const override { return m_name.whole; }
    const Text& getNodeValue() const override { return m_host.Empty(); }
    Node::NodeType getNodeType() const override { return type; }
    Node* getParentNode() const override { return m_host.View(m_host.Tree().Parent(m_node)); }
    const XALAN_CPP_NAMESPACE::XalanNodeList* getChildNodes() const override { return nullptr; }
    Node* getFirstChild() const override { return nullptr; }
    Node* getLastChild() const override { return nullptr; }
    Node* getPreviousSibling() const override { return m_host.ViewBefore(m_host.Tree().PreviousSibling(m_node)); }
    Node* getNextSibling() const override { return m_host.ViewBehind(m_host.Tree().NextSibling(m_node)); }
    const XALAN_CPP_NAMESPACE::XalanNamedNodeMap* getAttributes() const override { return nullptr; }
    XALAN_CPP_NAMESPACE::XalanDocument* getOwnerDocument() const override {
        return static_cast<XALAN_CPP_NAMESPACE::XalanDocument*>(m_host.View(m_host.Tree().DocumentNode()));
    }
    const Text& getNamespaceURI() const override { return m_host.Empty(); }
    const Text& getPrefix() const override { return m_name.prefix; }
    const Text& getLocalName() const override { return m_name.local; }
    bool isIndexed() const override { return m_host.IsOrdered(); }
    Node::IndexType getIndex() const override { return m_host.Index(m_node); }

protected:
    Node* FirstChildView() const { return m_host.ViewBehind(m_host.Tree().FirstChild(m_node)); }
    Node* LastChildView() const { return m_host.ViewBefore(m_host.Tree().LastChild(m_node)); }

private:
    FacadeHost& m_host;
    NodeRef m_node;
    const ViewName& m_name;
};

/// The views of nodes that have a value.
template <class Base, XALAN_CPP_NAMESPACE::XalanNode::NodeType type> class ValueFacade : public Facade<Base, type> {
public:
    using Facade<Base, type>::Facade;
    using Text = XALAN_CPP_NAMESPACE::XalanDOMString;

    const Text& getNodeValue() const override { return this->Host().ValueOf(this->Ref(), m_value); }

private:
    mutable std::atomic<const Text*> m_value = nullptr;
};

/// The attributes of one element.
class AttributeList final : public XALAN_CPP_NAMESPACE::XalanNamedNodeMap {
public:
    using Node = XALAN_CPP_NAMESPACE::XalanNode;
    using Text = XALAN_CPP_NAMESPACE::XalanDOMString;

    AttributeList(FacadeHost& host, NodeRef element) : m_host(host), m_element(element), m_views(Collect()) {}

    Node* item(XALAN_CPP_NAMESPACE::XalanSize_t index) const override;
    Node* getNamedItem(const Text& name) const override;
    XALAN_CPP_NAMESPACE::XalanSize_t getLength() const override;
    Node* getNamedItemNS(const Text& namespaceURI, const Text& localName) const override;

private:
    std::vector<Node*> Collect() const;

    FacadeHost& m_host;
    NodeRef m_element;
    std::vector<Node*> m_views;
};

class ElementView final
    : public Facade<XALAN_CPP_NAMESPACE::XalanElement, XALAN_CPP_NAMESPACE::XalanNode::ELEMENT_NODE> {
public:
    using Facade::Facade;
    const XALAN_CPP_NAMESPACE::XalanNodeList* getChildNodes() const override;
    Node* getFirstChild() const override { return FirstChildView(); }
    Node* getLastChild() const override { return LastChildView(); }
    const XALAN_CPP_NAMESPACE::XalanNamedNodeMap* getAttributes() const override {
        return &Host().AttributesOf(Ref(), m_attributes);
    }
    const Text& getTagName() const override { return getNodeName(); }

private:
    mutable std::atomic<const AttributeList*> m_attributes = nullptr;
};
static_assert(sizeof(ElementView) <= 40, "a document may have a hundred thousand of them");

class DocumentView final
    : public Facade<XALAN_CPP_NAMESPACE::XalanDocument, XALAN_CPP_NAMESPACE::XalanNode::DOCUMENT_NODE> {
public:
    using Facade::Facade;
    const XALAN_CPP_NAMESPACE::XalanNodeList* getChildNodes() const override;
    Node* getParentNode() const override { return nullptr; }
    Node* getPreviousSibling() const override { return nullptr; }
    Node* getNextSibling() const override { return nullptr; }
    Node* getFirstChild() const override { return FirstChildView(); }
    Node* getLastChild() const override { return LastChildView(); }
    XALAN_CPP_NAMESPACE::XalanDocument* getOwnerDocument() const override { return nullptr; }
    XALAN_CPP_NAMESPACE::XalanElement* getDocumentElement() const override {
        return static_cast<XALAN_CPP_NAMESPACE::XalanElement*>(Host().View(Host().Tree().Root()));
    }
    XALAN_CPP_NAMESPACE::XalanElement* getElementById(const Text&) const override { return nullptr; }
};

class AttributeView final
    : public ValueFacade<XALAN_CPP_NAMESPACE::XalanAttr, XALAN_CPP_NAMESPACE::XalanNode::ATTRIBUTE_NODE> {
public:
    using ValueFacade::ValueFacade;
    Node* getParentNode() const override { return nullptr; }
    Node* getPreviousSibling() const override { return nullptr; }
    Node* getNextSibling() const override { return nullptr; }
    const Text& getName() const override { return getNodeName(); }
    const Text& getValue() const override { return getNodeValue(); }
    XALAN_CPP_NAMESPACE::XalanElement* getOwnerElement() const override {
        return static_cast<XALAN_CPP_NAMESPACE::XalanElement*>(Host().View(Host().Tree().Parent(Ref())));
    }
};

/// Text and CDATA sections.
template <class Base, XALAN_CPP_NAMESPACE::XalanNode::NodeType type> class TextFacade : public ValueFacade<Base, type> {
public:
    using ValueFacade<Base, type>::ValueFacade;
    const XALAN_CPP_NAMESPACE::XalanDOMString& getData() const override { return this->getNodeValue(); }
    bool isWhitespace() const override {
        std::string room;
        return this->Host().Tree().Value(this->Ref(), room).find_first_not_of(" \t\r\n") == std::string_view::npos;
    }
};

class TextView final : public TextFacade<XALAN_CPP_NAMESPACE::XalanText, XALAN_CPP_NAMESPACE::XalanNode::TEXT_NODE> {
public:
    using TextFacade::TextFacade;
};

class CDataView final
    : public TextFacade<XALAN_CPP_NAMESPACE::XalanCDATASection, XALAN_CPP_NAMESPACE::XalanNode::CDATA_SECTION_NODE> {
public:
    using TextFacade::TextFacade;
    Node::NodeType getNodeType() const override {
        return Host().SectionsAreTexts() ? Node::TEXT_NODE : Node::CDATA_SECTION_NODE;
    }
};

class CommentView final
    : public ValueFacade<XALAN_CPP_NAMESPACE::XalanComment, XALAN_CPP_NAMESPACE::XalanNode::COMMENT_NODE> {
public:
    using ValueFacade::ValueFacade;
    const Text& getData() const override { return getNodeValue(); }
};

class InstructionView final : public ValueFacade<XALAN_CPP_NAMESPACE::XalanProcessingInstruction,
                                                 XALAN_CPP_NAMESPACE::XalanNode::PROCESSING_INSTRUCTION_NODE> {
public:
    using ValueFacade::ValueFacade;
    const Text& getTarget() const override { return getNodeName(); }
    const Text& getData() const override { return getNodeValue(); }
};

} // namespace Framework
