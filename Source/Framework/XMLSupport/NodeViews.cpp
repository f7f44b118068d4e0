#include "Framework/XMLSupport/NodeViews.h"

#include "Framework/XMLSupport/NodeFacades.h"
#include "Framework/XMLSupport/TextHash.h"
#include "Framework/XMLSupport/TreeReading.h"
#include "Framework/XMLSupport/Utf.h"
#include "Framework/XMLSupport/XmlMemory.h"
#include "Framework/XMLSupport/XmlRuntime.h"

#include <deque>
#include <functional>
#include <limits>
#include <mutex>
#include <typeinfo>
#include <unordered_map>

namespace Framework {

namespace xalan = XALAN_CPP_NAMESPACE;

namespace {

xalan::XalanDOMString ToXalan(std::string_view text) {
    const std::u16string wide = ToUtf16(text);
    return xalan::XalanDOMString(wide.data(), XmlMemory(), static_cast<xalan::XalanSize_t>(wide.size()));
}

/// From node to view, without an allocation for each; entries are never taken out.
class ViewTable {
public:
    ViewTable() : m_slots(64) {}

    std::size_t Size() const { return m_used; }

    /// The place of the node's view; null there when it has none yet.
    xalan::XalanNode*& At(NodeRef node) {
        if ((m_used + 1) * 4 > m_slots.size() * 3) {
            Grow();
        }
        Slot& slot = m_slots[Position(m_slots, node)];
        if (slot.node == NodeRef::None) {
            slot.node = node;
            ++m_used;
        }
        return slot.view;
    }

private:
    struct Slot {
        NodeRef node = NodeRef::None;
        xalan::XalanNode* view = nullptr;
    };

    static std::size_t Position(const std::vector<Slot>& slots, NodeRef node) {
        // Addresses differ in their middle bits, numbers in the lowest: the multiplication spreads both to the top.
        const std::uint64_t spread = static_cast<std::uint64_t>(node) * 0x9E3779B97F4A7C15U;
        std::size_t position = static_cast<std::size_t>(spread >> 20U) & (slots.size() - 1);
        while (slots[position].node != NodeRef::None && slots[position].node != node) {
            position = (position + 1) & (slots.size() - 1);
        }
        return position;
    }

    void Grow() {
        std::vector<Slot> larger(m_slots.size() * 2);
        for (const Slot& slot : m_slots) {
            if (slot.node != NodeRef::None) {
                larger[Position(larger, slot.node)] = slot;
            }
        }
        m_slots = std::move(larger);
    }

    std::vector<Slot> m_slots; // a power of two, at most three quarters full
    std::size_t m_used = 0;
};

} // namespace

/// Makes the views and keeps them, with all the texts that they gave out.
class ViewStore final : public FacadeHost {
public:
    ViewStore(const XmlTree& tree, NodeOrder order) : m_tree(tree), m_order(order) {}

    void TreeChanged() { m_order = NodeOrder::Unknown; }
    void Limit(std::size_t views) { m_limit = views; }
    void Watch(std::function<void()> look) { m_look = std::move(look); }
    std::size_t CountNodes();

    const XmlTree& Tree() const override { return m_tree; }
    const Text& Empty() const override { return m_empty; }
    bool IsOrdered() const override { return m_order != NodeOrder::Unknown; }
    bool IsFixed() const override { return IsOrdered(); }
    bool SectionsAreTexts() const override { return m_order == NodeOrder::ForXPath; }

    Node* View(NodeRef node) override;
    Node* ViewBehind(NodeRef node) override;
    Node* ViewBefore(NodeRef node) override;
    const Text& ValueOf(NodeRef node, std::atomic<const Text*>& known) override;
    const AttributeList& AttributesOf(NodeRef element, std::atomic<const AttributeList*>& known) override;
    unsigned long Index(NodeRef node) override;

private:
    std::string_view NameOf(NodeRef node, NodeKind kind) const;
    const ViewName& Intern(std::string_view name, NodeKind kind);
    Node* Make(NodeRef node, NodeKind kind);
    bool Fits(NodeRef node, const Node& view);
    void NumberNodes();

    const XmlTree& m_tree;
    std::atomic<NodeOrder> m_order;
    std::size_t m_limit = std::numeric_limits<std::size_t>::max();
    const Text m_empty;

    std::function<void()> m_look;

    std::mutex m_mutex; // guards all that follows
    unsigned m_asked = 0;
    ViewTable m_views;
    std::deque<ViewName> m_names;
    HashedMap<std::string_view, const ViewName*> m_nameIndex;
    std::deque<Text> m_values;
    std::deque<AttributeList> m_attributeLists;
    std::unordered_map<NodeRef, unsigned long> m_indexes;

    std::deque<ElementView> m_elements;
    std::deque<AttributeView> m_attributes;
    std::deque<TextView> m_texts;
    std::deque<CDataView> m_sections;
    std::deque<CommentView> m_comments;
    std::deque<InstructionView> m_instructions;
    std::deque<DocumentView> m_documents;
};

namespace {

NodeKind KindOf(const xalan::XalanNode& view) {
    switch (view.getNodeType()) {
    case xalan::XalanNode::ELEMENT_NODE:
        return NodeKind::Element;
    case xalan::XalanNode::ATTRIBUTE_NODE:
        return NodeKind::Attribute;
    case xalan::XalanNode::TEXT_NODE:
        return NodeKind::Text;
    case xalan::XalanNode::CDATA_SECTION_NODE:
        return NodeKind::CData;
    case xalan::XalanNode::COMMENT_NODE:
        return NodeKind::Comment;
    case xalan::XalanNode::PROCESSING_INSTRUCTION_NODE:
        return NodeKind::Instruction;
    default:
        return NodeKind::Document;
    }
}

} // namespace

std::string_view ViewStore::NameOf(NodeRef node, NodeKind kind) const {
    switch (kind) {
    case NodeKind::Text:
        return "#text";
    case NodeKind::CData:
        return "#cdata-section";
    case NodeKind::Comment:
        return "#comment";
    case NodeKind::Document:
        return "#document";
    default:
        return m_tree.Name(node);
    }
}

const ViewName& ViewStore::Intern(std::string_view name, NodeKind kind) {
    if (const auto known = m_nameIndex.find(name); known != m_nameIndex.end()) {
        return *known->second;
    }
    const bool real = kind == NodeKind::Element || kind == NodeKind::Attribute || kind == NodeKind::Instruction;
    const std::size_t colon = real ? name.find(':') : std::string_view::npos;
    std::string utf8(name);
    Text whole = ToXalan(name);
    Text prefix = ToXalan(colon == std::string_view::npos ? "" : name.substr(0, colon));
    Text local = ToXalan(!real ? "" : colon == std::string_view::npos ? name : name.substr(colon + 1));
    // Swapped into place: a copy would take its memory from Xerces' own manager.
    ViewName& kept = m_names.emplace_back();
    kept.utf8.swap(utf8);
    kept.whole.swap(whole);
    kept.prefix.swap(prefix);
    kept.local.swap(local);
    m_nameIndex.emplace(kept.utf8, &kept);
    return kept;
}

FacadeHost::Node* ViewStore::Make(NodeRef node, NodeKind kind) {
    if (kind == NodeKind::None || kind == NodeKind::Other) {
        return nullptr;
    }
    const ViewName& name = Intern(NameOf(node, kind), kind);
    switch (kind) {
    case NodeKind::Element:
        return &m_elements.emplace_back(*this, node, name);
    case NodeKind::Attribute:
        return &m_attributes.emplace_back(*this, node, name);
    case NodeKind::Text:
        return &m_texts.emplace_back(*this, node, name);
    case NodeKind::CData:
        return &m_sections.emplace_back(*this, node, name);
    case NodeKind::Comment:
        return &m_comments.emplace_back(*this, node, name);
    case NodeKind::Instruction:
        return &m_instructions.emplace_back(*this, node, name);
    default:
        return &m_documents.emplace_back(*this, node, name);
    }
}

/// In a tree that changes, another node may have come to stand at an address that was free again.
bool ViewStore::Fits(NodeRef node, const Node& view) {
    const NodeKind kind = m_tree.Kind(node);
    return KindOf(view) == kind && &view.getNodeName() == &Intern(NameOf(node, kind), kind).whole;
}

FacadeHost::Node* ViewStore::View(NodeRef node) {
    if (node == NodeRef::None) {
        return nullptr;
    }
    const std::lock_guard lock(m_mutex);
    if (m_views.Size() > m_limit) {
        throw TooManyViews();
    }
    constexpr unsigned viewsPerLook = 4096;
    if (++m_asked % viewsPerLook == 0 && m_look) {
        m_look();
    }
    Node*& view = m_views.At(node);
    if (view == nullptr || (!IsFixed() && !Fits(node, *view))) {
        view = Make(node, m_tree.Kind(node));
    }
    return view;
}

FacadeHost::Node* ViewStore::ViewBehind(NodeRef node) {
    Node* view = View(node);
    while (view == nullptr && node != NodeRef::None) {
        node = m_tree.NextSibling(node);
        view = View(node);
    }
    return view;
}

FacadeHost::Node* ViewStore::ViewBefore(NodeRef node) {
    Node* view = View(node);
    while (view == nullptr && node != NodeRef::None) {
        node = m_tree.PreviousSibling(node);
        view = View(node);
    }
    return view;
}

const FacadeHost::Text& ViewStore::ValueOf(NodeRef node, std::atomic<const Text*>& known) {
    if (const Text* text = known.load(std::memory_order_acquire); text != nullptr && IsFixed()) {
        return *text;
    }
    const std::lock_guard lock(m_mutex);
    std::string room;
    Text text = ToXalan(m_tree.Value(node, room));
    if (const Text* before = known.load(std::memory_order_relaxed); before != nullptr && *before == text) {
        return *before;
    }
    // A text that was given out stays: its caller may still read it.
    Text& kept = m_values.emplace_back();
    kept.swap(text);
    known.store(&kept, std::memory_order_release);
    return kept;
}

const AttributeList& ViewStore::AttributesOf(NodeRef element, std::atomic<const AttributeList*>& known) {
    if (const AttributeList* list = known.load(std::memory_order_acquire); list != nullptr) {
        return *list;
    }
    AttributeList made(*this, element);
    const std::lock_guard lock(m_mutex);
    if (const AttributeList* list = known.load(std::memory_order_relaxed); list != nullptr) {
        return *list;
    }
    const AttributeList& kept = m_attributeLists.emplace_back(std::move(made));
    known.store(&kept, std::memory_order_release);
    return kept;
}

void ViewStore::NumberNodes() {
    std::unordered_map<NodeRef, unsigned long> indexes;
    unsigned long index = 0;
    const NodeRef top = m_tree.DocumentNode();
    for (NodeRef node = top; node != NodeRef::None; node = NextInOrder(m_tree, node, top)) {
        indexes.emplace(node, ++index);
        if (m_tree.Kind(node) != NodeKind::Element) {
            continue;
        }
        for (NodeRef attribute = m_tree.FirstAttribute(node); attribute != NodeRef::None;
             attribute = m_tree.NextSibling(attribute)) {
            indexes.emplace(attribute, ++index);
        }
    }
    m_indexes.swap(indexes);
}

std::size_t ViewStore::CountNodes() {
    const std::lock_guard lock(m_mutex);
    if (m_indexes.empty()) {
        NumberNodes();
    }
    return m_indexes.size();
}

unsigned long ViewStore::Index(NodeRef node) {
    switch (m_order) {
    case NodeOrder::Numbers:
        return static_cast<unsigned long>(node);
    case NodeOrder::ForXPath: {
        const std::lock_guard lock(m_mutex);
        if (m_indexes.empty()) {
            NumberNodes();
        }
        return m_indexes.at(node);
    }
    default:
        return 0;
    }
}

NodeViews::NodeViews(const XmlTree& tree, NodeOrder order) {
    // Xalan's texts take their memory from Xerces.
    EnsureXmlRuntime();
    m_store = std::make_unique<ViewStore>(tree, order);
}

NodeViews::~NodeViews() = default;

xalan::XalanNode* NodeViews::View(NodeRef node) const {
    return m_store->View(node);
}

void NodeViews::Limit(std::size_t views) {
    m_store->Limit(views);
}

void NodeViews::Watch(std::function<void()> look) {
    m_store->Watch(std::move(look));
}

std::size_t NodeViews::CountNodes() const {
    return m_store->CountNodes();
}

void NodeViews::TreeChanged() {
    m_store->TreeChanged();
}

namespace {

template <class View> bool IsOurs(const xalan::XalanNode& view, NodeRef& node, const XmlTree*& tree) {
    // The classes are final, so that comparing types is enough.
    if (typeid(view) != typeid(View)) {
        return false;
    }
    const auto& ours = static_cast<const View&>(view);
    node = ours.Ref();
    tree = &ours.Host().Tree();
    return true;
}

template <class... Views> bool IsOneOf(const xalan::XalanNode& view, NodeRef& node, const XmlTree*& tree) {
    return (IsOurs<Views>(view, node, tree) || ...);
}

} // namespace

NodeRef NodeViews::Find(const xalan::XalanNode* view, const XmlTree*& tree) {
    NodeRef node = NodeRef::None;
    tree = nullptr;
    if (view != nullptr) {
        IsOneOf<ElementView, AttributeView, TextView, CDataView, CommentView, InstructionView, DocumentView>(
            *view, node, tree);
    }
    return node;
}

} // namespace Framework
