#pragma once

#include "Framework/XMLSupport/XmlTree.h"

#include <array>
#include <cstdint>
#include <memory>
#include <string>
#include <unordered_map>

#include <xercesc/util/XercesDefs.hpp>

XERCES_CPP_NAMESPACE_BEGIN
class DOMDocument;
class DOMNode;
XERCES_CPP_NAMESPACE_END

namespace Framework {

class NodeViews;

struct ReleaseDomDocument {
    void operator()(xercesc::DOMDocument* document) const noexcept;
};

/// A DOM document that is released with its owner, and all its nodes with it.
using DomDocumentPtr = std::unique_ptr<xercesc::DOMDocument, ReleaseDomDocument>;

/// A Xerces DOM read as an XmlTree; the DOM may change between calls.
///
/// Entity references are passed through: their content stands where they do. Document types are of kind Other. Xerces
/// keeps attributes sorted by name. Half a surrogate pair reads as U+FFFD. One thread at a time, reading included.
class DomTree final : public XmlTree {
public:
    /// Reads the document of a caller, which must outlive the tree.
    explicit DomTree(xercesc::DOMDocument* document);
    explicit DomTree(DomDocumentPtr document);
    ~DomTree() override;
    DomTree(const DomTree&) = delete;
    DomTree& operator=(const DomTree&) = delete;

    xercesc::DOMDocument* Document() const { return m_document; }

    /// The way between a node and its reference; null and None go with each other.
    static xercesc::DOMNode* Node(NodeRef node);
    static NodeRef Ref(const xercesc::DOMNode* node);

    /// For who goes over a tree from node to node: Xerces makes nodes one behind the other in memory, mostly in the
    /// order of the document, so what will be read soon is fetched while this node is.
    static void FetchAhead(NodeRef node) {
        constexpr std::uintptr_t ahead = 2048;
        constexpr std::uintptr_t line = 64;
        for (std::uintptr_t at = ahead; at < ahead + 5 * line; at += line) { // about what one node more takes
            __builtin_prefetch(reinterpret_cast<const void*>(static_cast<std::uintptr_t>(node) + at));
        }
    }

    /// True for the document and every node made by it, wherever that hangs. `node` must be a living node.
    bool Holds(const xercesc::DOMNode* node) const;

    NodeRef DocumentNode() const override;
    NodeRef Root() const override;
    NodeKind Kind(NodeRef node) const override;
    std::string_view Name(NodeRef node) const override;
    NodeRef Parent(NodeRef node) const override;
    NodeRef FirstChild(NodeRef node) const override;
    NodeRef LastChild(NodeRef node) const override;
    NodeRef NextSibling(NodeRef node) const override;
    NodeRef PreviousSibling(NodeRef node) const override;
    NodeRef FirstAttribute(NodeRef element) const override;
    std::string_view Value(NodeRef node, std::string& room) const override;
    XALAN_CPP_NAMESPACE::XalanNode* View(NodeRef node) const override;

    /// True when the node's value holds half a surrogate pair, which Value cannot show and no file can hold.
    static bool HasLoneSurrogate(NodeRef node);

private:
    NodeRef AttributeBeside(const xercesc::DOMNode* attribute, bool next) const;

    DomDocumentPtr m_owned;
    xercesc::DOMDocument* m_document;
    /// By the address of the UTF-16 name: the document keeps one of each for as long as it lives.
    mutable std::unordered_map<const XMLCh*, std::string> m_names;
    /// Some of them, each where its address puts it: the writer asks for one name after the other, few in all.
    mutable std::array<std::pair<const XMLCh*, const std::string*>, 64> m_recentNames = {};
    /// Where the attribute that was read last stands in the list of its element, which cannot be asked.
    mutable const xercesc::DOMNode* m_lastAttribute = nullptr;
    mutable XMLSize_t m_lastIndex = 0;
    mutable std::unique_ptr<NodeViews> m_views;
};

} // namespace Framework
