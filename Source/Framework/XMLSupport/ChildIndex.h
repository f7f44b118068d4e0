#pragma once

#include <string>
#include <unordered_map>
#include <vector>

#include "Framework/XMLSupport/QueryPath.h"
#include "Framework/XMLSupport/TextHash.h"
#include "Framework/XMLSupport/XmlTree.h"

namespace Framework {

/// Finds children by name, position and attribute values in about constant time, so that a query for each entry of a
/// list costs the list once and not its square. What is asked about a parent first is what gets indexed. Children that
/// were appended since are taken in when the parent is asked about again; any other change of the tree must be told, or
/// ends the use of the index. One thread at a time.
class ChildIndex {
public:
    explicit ChildIndex(const XmlTree& tree) : m_tree(&tree) {}

    /// Attributes of children of this parent were changed.
    void ForgetAttributes(NodeRef parent);
    /// One attribute of one child of this parent was changed: what was not asked by it stays.
    void ForgetAttribute(NodeRef parent, std::string_view attribute);
    /// Elements came somewhere in the document: what is known about it as a whole no longer holds.
    void ForgetDocument();

    /// The last child of that name.
    NodeRef Last(NodeRef parent, std::string_view name);
    /// The child of that name at a position from 1.
    NodeRef At(NodeRef parent, std::string_view name, std::size_t position);
    /// The first child of that name whose attributes have these values.
    NodeRef First(NodeRef parent, std::string_view name, const std::vector<PathCondition>& conditions);
    /// The first element of the document of that name, the first with these values, and all in document order.
    NodeRef FirstInDocument(std::string_view name);
    NodeRef FirstInDocument(std::string_view name, const std::vector<PathCondition>& conditions);
    const std::vector<NodeRef>& AllInDocument(std::string_view name);
    /// Number of children of that name.
    std::size_t Count(NodeRef parent, std::string_view name);

private:
    using Nodes = std::vector<NodeRef>;
    /// By the name and the names of the attributes asked for, then by the values of these attributes.
    struct FirstByValues {
        HashedMap<std::string, NodeRef> nodes;
        std::size_t taken = 0; ///< how many of the nodes of that name are in it
    };
    using ByValues = HashedMap<std::string, FirstByValues>;
    struct Parent {
        HashedMap<std::string_view, Nodes> byName;
        ByValues byValues;
        NodeRef last = NodeRef::None; ///< the last child that was taken in
    };

    NodeRef FirstOf(const Nodes& named, ByValues& byValues, std::string_view name,
                    const std::vector<PathCondition>& conditions);
    bool IsNarrow(NodeRef parent) const;
    Parent& ParentOf(NodeRef parent);
    const Nodes& Named(NodeRef parent, std::string_view name);

    const XmlTree* m_tree;
    std::unordered_map<NodeRef, Parent> m_parents;
    HashedMap<std::string_view, Nodes> m_inDocument;
    ByValues m_inDocumentByValues;
};

/// Whether the element has every one of these attributes with exactly that value.
bool MeetsConditions(const XmlTree& tree, NodeRef element, const std::vector<PathCondition>& conditions);

} // namespace Framework
