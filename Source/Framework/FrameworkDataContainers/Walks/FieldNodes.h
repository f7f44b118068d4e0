#pragma once

#include <unordered_map>
#include <unordered_set>
#include <vector>

#include "Framework/ContainerBase/ContainerAccess.h"
#include "Framework/FrameworkDataContainers/Walks/FieldTable.h"
#include "Framework/XMLSupport/TextHash.h"

namespace Framework {

/// The nodes from which a load fills the fields of one class, found in one pass over an element. An object that was
/// populated from several elements, because its own stands more than once, has in the last what that holds and the rest
/// from those before.
class FieldNodes {
public:
    FieldNodes(const XmlTree& tree, const FieldTable& table, NodeRef own, const std::vector<NodeRef>& earlier);

    /// Of an attribute or element, None when it is absent.
    NodeRef Single(const FieldRow& row) const { return m_single[IndexOf(row)]; }
    /// Of a list of texts, in order.
    const std::vector<NodeRef>& List(const FieldRow& row) const;

private:
    std::size_t IndexOf(const FieldRow& row) const { return static_cast<std::size_t>(&row - m_rows.data()); }
    void TakeElements(const XmlTree& tree, NodeRef element);
    void TakeAttributes(const XmlTree& tree, NodeRef element);

    std::span<const FieldRow> m_rows;
    std::vector<NodeRef> m_single;
    std::unordered_map<std::size_t, std::vector<NodeRef>> m_lists;
};

/// Where the entries of one keyed list of strings stand: at the node they were loaded from or written to last, else at
/// the first with their key that no other entry has.
class KeyedTextNodes {
public:
    using Entry = ContainerAccess::TextEntry;

    KeyedTextNodes(const TypedDataContainer& object, const FieldRow& row, const XmlTree& tree,
                   const std::vector<NodeRef>& nodes)
        : m_object(object), m_row(row), m_tree(tree), m_nodes(nodes) {}

    /// None when there is none. `isOwn` tells whether the entry was loaded from it or written to it.
    NodeRef Of(const Entry& entry, bool& isOwn);

private:
    void IndexKeys();

    const TypedDataContainer& m_object;
    const FieldRow& m_row;
    const XmlTree& m_tree;
    const std::vector<NodeRef>& m_nodes;
    bool m_isIndexed = false;
    bool m_countsOnly = false; ///< no element carries its number: the n-th has number n
    HashedMap<std::string, NodeRef> m_byKey;
    std::unordered_set<NodeRef> m_taken;
};

} // namespace Framework
