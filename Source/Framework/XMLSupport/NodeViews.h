#pragma once

#include "Framework/XMLSupport/XmlTree.h"

#include <cstddef>
#include <exception>
#include <functional>
#include <memory>

namespace Framework {

class ViewStore;

/// What the views may tell Xalan about document order.
enum class NodeOrder : std::uint8_t {
    /// Nothing, and the tree may change under the views: no text is taken from an earlier call.
    Unknown,
    /// The numbers of the nodes are in document order, attributes behind their element.
    Numbers,
    /// The tree is walked once, when somebody asks. And CDATA sections call themselves texts, for Xalan's text() passes
    /// over
    /// sections.
    ForXPath,
};

/// Thrown when more views are asked for than allowed.
class TooManyViews : public std::exception {
public:
    const char* what() const noexcept override { return "too many nodes are looked at"; }
};

/// The nodes of an XmlTree in the shape of Xalan's interface, for its XPath and for callers who read XalanNode.
///
/// Views are made when they are asked for, keep their address, and live as long as this object. Asking is safe from
/// many threads as far as reading the tree is. Names, values and lists are made on the first call for them.
///
/// Attributes have no parent and no siblings (getOwnerElement leads back), as in the DOM; nodes of kind Other are
/// passed over. getChildNodes throws NOT_SUPPORTED_ERR on elements and the document, as Xalan's own tree does: use
/// getFirstChild and getNextSibling. Namespaces are not processed: getNamespaceURI is empty, getLocalName is what
/// stands behind the colon.
class NodeViews {
public:
    /// `tree` must outlive the views.
    explicit NodeViews(const XmlTree& tree, NodeOrder order = NodeOrder::Unknown);
    ~NodeViews();
    NodeViews(const NodeViews&) = delete;
    NodeViews& operator=(const NodeViews&) = delete;

    /// Null for None and for a node of kind Other.
    XALAN_CPP_NAMESPACE::XalanNode* View(NodeRef node) const;

    /// The tree is no longer what it was: from now on the order counts as Unknown. Not while others read.
    void TreeChanged();

    /// From now on no more than so many views are made, then TooManyViews is thrown. Not while others read.
    void Limit(std::size_t views);

    /// From now on `look` is called now and then as views are asked for, and may throw. Not while others read.
    void Watch(std::function<void()> look);

    /// The number of nodes in the tree, attributes included; ForXPath only, which needs the walk anyhow.
    std::size_t CountNodes() const;

    /// The node that a view stands for, and its tree; None and null when it is no view of ours.
    static NodeRef Find(const XALAN_CPP_NAMESPACE::XalanNode* view, const XmlTree*& tree);

private:
    std::unique_ptr<ViewStore> m_store;
};

} // namespace Framework
