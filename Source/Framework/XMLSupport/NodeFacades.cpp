#include "Framework/XMLSupport/NodeFacades.h"

namespace Framework {

namespace xalan = XALAN_CPP_NAMESPACE;

namespace {

[[noreturn]] const xalan::XalanNodeList* NoNodeList() {
    throw xalan::XalanDOMException(xalan::XalanDOMException::NOT_SUPPORTED_ERR);
}

template <class Matches> xalan::XalanNode* FirstThat(const std::vector<xalan::XalanNode*>& views, Matches matches) {
    for (xalan::XalanNode* view : views) {
        if (matches(*view)) {
            return view;
        }
    }
    return nullptr;
}

} // namespace

const xalan::XalanNodeList* ElementView::getChildNodes() const {
    return NoNodeList();
}

const xalan::XalanNodeList* DocumentView::getChildNodes() const {
    return NoNodeList();
}

std::vector<xalan::XalanNode*> AttributeList::Collect() const {
    std::vector<Node*> views;
    const XmlTree& tree = m_host.Tree();
    for (NodeRef attribute = tree.FirstAttribute(m_element); attribute != NodeRef::None;
         attribute = tree.NextSibling(attribute)) {
        views.push_back(m_host.View(attribute));
    }
    return views;
}

// The list of a tree that changes is read anew each time; those of elements are short.

xalan::XalanNode* AttributeList::item(xalan::XalanSize_t index) const {
    if (m_host.IsFixed()) {
        return index < m_views.size() ? m_views[index] : nullptr;
    }
    const std::vector<Node*> views = Collect();
    return index < views.size() ? views[index] : nullptr;
}

xalan::XalanSize_t AttributeList::getLength() const {
    return static_cast<xalan::XalanSize_t>(m_host.IsFixed() ? m_views.size() : Collect().size());
}

xalan::XalanNode* AttributeList::getNamedItem(const Text& name) const {
    const auto matches = [&](const Node& view) { return view.getNodeName() == name; };
    return m_host.IsFixed() ? FirstThat(m_views, matches) : FirstThat(Collect(), matches);
}

xalan::XalanNode* AttributeList::getNamedItemNS(const Text& namespaceURI, const Text& localName) const {
    const auto matches = [&](const Node& view) {
        return view.getNamespaceURI() == namespaceURI && view.getLocalName() == localName;
    };
    return m_host.IsFixed() ? FirstThat(m_views, matches) : FirstThat(Collect(), matches);
}

} // namespace Framework
