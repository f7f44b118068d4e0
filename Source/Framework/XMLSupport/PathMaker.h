#pragma once

#include "Framework/XMLSupport/ChildIndex.h"
#include "Framework/XMLSupport/DomTree.h"

namespace Framework {

/// Makes the nodes that a path names and that are not there.
///
/// A step that finds its node is left as it is. Where the element stands that a step names by position, or the root
/// that bears the name of the head, it gets the attributes of the predicate. Anything else is appended: the head below
/// the root (or as the root of an empty document), a step below its parent, with empty elements before it up to its
/// position. What cannot be made leaves the document as it was: throws std::runtime_error or std::invalid_argument.
class PathMaker {
public:
    PathMaker(const DomTree& tree, ChildIndex& index) : m_tree(tree), m_index(index) {}

    /// `start` is where a relative path begins, None in a document without a root.
    void Make(const QueryPath& path, NodeRef start);

private:
    using Steps = std::vector<PathStep>;

    /// An element that stands and is to get the attributes of its step.
    struct Standing {
        NodeRef element = NodeRef::None;
        NodeRef parent = NodeRef::None;
        const PathStep* step = nullptr;
    };

    NodeRef FindStanding(NodeRef parent, const PathStep& step, bool isHead);
    void SetAttributes(const Standing& standing);
    std::vector<xercesc::DOMNode*> Build(NodeRef parent, const Steps& steps, std::size_t at, bool isHead);
    void Hang(NodeRef parent, bool isHead, const std::vector<xercesc::DOMNode*>& made);
    std::size_t CountMissing(NodeRef parent, const PathStep& step, bool isHead, bool parentIsNew);
    xercesc::DOMNode* NewElementFor(const PathStep& step);

    const DomTree& m_tree;
    ChildIndex& m_index;
};

} // namespace Framework
