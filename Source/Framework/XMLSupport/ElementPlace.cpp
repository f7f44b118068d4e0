#include "Framework/XMLSupport/ElementPlace.h"

#include "Framework/XMLSupport/TreeReading.h"

#include <algorithm>

namespace Framework {

namespace {

constexpr std::string_view kBlanks = " \t\r\n";
constexpr std::size_t npos = std::string_view::npos;

bool IsRemark(NodeKind kind) {
    return kind == NodeKind::Comment || kind == NodeKind::Instruction;
}

class PlaceFinder {
public:
    PlaceFinder(const XmlTree& tree, NodeRef parent) : m_tree(tree), m_parent(parent) {}

    ElementPlace Find(std::span<const std::string_view> order, std::size_t position) {
        FindNeighbours(order, position);
        if (m_earlier != NodeRef::None) {
            return Behind(m_earlier);
        }
        if (m_later != NodeRef::None) {
            return Before(m_later);
        }
        return First();
    }

private:
    void FindNeighbours(std::span<const std::string_view> order, std::size_t position) {
        std::size_t nearest = 0;
        for (NodeRef child = m_tree.FirstChild(m_parent); child != NodeRef::None; child = m_tree.NextSibling(child)) {
            if (m_tree.Kind(child) != NodeKind::Element) {
                continue;
            }
            const auto found = std::find(order.begin(), order.end(), m_tree.Name(child));
            const auto field = static_cast<std::size_t>(found - order.begin());
            if (field < position && (m_earlier == NodeRef::None || field >= nearest)) {
                m_earlier = child;
                nearest = field;
            } else if (field > position && field < order.size() && m_later == NodeRef::None) {
                m_later = child;
            }
        }
    }

    /// The text, when it is white space; else npos stands in its way.
    bool IsBlankNode(NodeRef node) {
        return node != NodeRef::None && m_tree.Kind(node) == NodeKind::Text &&
               m_tree.Value(node, m_room).find_first_not_of(kBlanks) == npos;
    }

    std::size_t LineEnds(NodeRef blank) {
        const std::string_view text = m_tree.Value(blank, m_room);
        return static_cast<std::size_t>(std::count(text.begin(), text.end(), '\n'));
    }

    /// The blanks that set a node off from what stands before it: its line end and indentation, or blanks on one line.
    std::string Lead(NodeRef node) {
        const NodeRef before = m_tree.PreviousSibling(node);
        if (!IsBlankNode(before)) {
            return {};
        }
        const std::string_view text = m_tree.Value(before, m_room);
        const std::size_t line = text.rfind('\n');
        return std::string(line == npos ? text : text.substr(line));
    }

    ElementPlace Behind(NodeRef neighbour) {
        const std::string lead = IsContent() ? std::string() : Lead(neighbour);
        NodeRef last = neighbour;
        for (NodeRef next = m_tree.NextSibling(last); next != NodeRef::None; next = m_tree.NextSibling(next)) {
            if (IsRemark(m_tree.Kind(next))) {
                last = next;
            } else if (!IsBlankNode(next) || LineEnds(next) > 0) {
                break;
            }
        }
        return {m_parent, m_tree.NextSibling(last), lead, {}};
    }

    ElementPlace Before(NodeRef neighbour) {
        const std::string lead = IsContent() ? std::string() : Lead(neighbour);
        NodeRef first = neighbour;
        for (NodeRef before = m_tree.PreviousSibling(first); before != NodeRef::None;
             before = m_tree.PreviousSibling(before)) {
            if (IsRemark(m_tree.Kind(before)) && StandsAlone(before)) {
                first = before;
            } else if (!IsBlankNode(before) || LineEnds(before) > 1) {
                break;
            }
        }
        return {m_parent, first, {}, lead};
    }

    /// Whether nothing but blanks stands before it on its line.
    bool StandsAlone(NodeRef remark) {
        const NodeRef before = m_tree.PreviousSibling(remark);
        return before == NodeRef::None || (IsBlankNode(before) && LineEnds(before) > 0);
    }

    ElementPlace First() {
        const NodeRef first = m_tree.FirstChild(m_parent);
        ElementPlace place{m_parent, first};
        if (IsContent()) {
            return place;
        }
        const NodeRef neighbour = IsBlankNode(first) ? m_tree.NextSibling(first) : first;
        if (neighbour != NodeRef::None) {
            place.blanksBefore = Lead(neighbour);
            return place;
        }
        // Nothing is in it to be set like: a step further in than the element itself.
        const std::string own = first == NodeRef::None ? Lead(m_parent) : std::string(m_tree.Value(first, m_room));
        const std::size_t line = own.rfind('\n');
        if (line == npos) {
            return place;
        }
        const std::string end = own.substr(line);
        place.blanksBefore = end + StepIn(end);
        if (first == NodeRef::None) {
            place.blanksAfter = end;
        }
        return place;
    }

    /// By how much the parent is further in than its own parent.
    std::string StepIn(const std::string& end) {
        const NodeRef above = m_tree.Parent(m_parent);
        const std::string outer = above == NodeRef::None ? std::string() : Lead(above);
        const std::string inner = Lead(m_parent);
        const std::size_t known = outer.empty() ? 1 : outer.size();
        if (inner.size() > known && (outer.empty() || inner.starts_with(outer))) {
            return inner.substr(known);
        }
        return end.find('\t') == npos ? "  " : "\t";
    }

    bool IsContent() {
        for (NodeRef node = m_parent; node != NodeRef::None; node = m_tree.Parent(node)) {
            if (const NodeRef space = FindAttribute(m_tree, node, "xml:space"); space != NodeRef::None) {
                if (m_tree.Value(space, m_room) == "preserve") {
                    return true;
                }
                break;
            }
        }
        for (NodeRef child = m_tree.FirstChild(m_parent); child != NodeRef::None; child = m_tree.NextSibling(child)) {
            if (IsText(m_tree.Kind(child)) && !IsBlankNode(child)) {
                return true;
            }
        }
        return false;
    }

    const XmlTree& m_tree;
    NodeRef m_parent;
    NodeRef m_earlier = NodeRef::None;
    NodeRef m_later = NodeRef::None;
    std::string m_room;
};

} // namespace

ElementPlace PlaceOfField(const XmlTree& tree, NodeRef parent, std::span<const std::string_view> order,
                          std::size_t position) {
    return PlaceFinder(tree, parent).Find(order, position);
}

} // namespace Framework
