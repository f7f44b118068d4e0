#include "Framework/XMLSupport/PathLookup.h"

#include "Framework/XMLSupport/TreeReading.h"
#include "Framework/XMLSupport/XPathFallback.h"

namespace Framework {

namespace {

bool IsWanted(const XmlTree& tree, NodeRef node, const PathStep& step) {
    return node != NodeRef::None && MeetsConditions(tree, node, step.conditions);
}

NodeRef FindHead(const XmlTree& tree, ChildIndex& index, const PathStep& head) {
    if (head.position == 0) {
        return head.conditions.empty() ? index.FirstInDocument(head.name)
                                       : index.FirstInDocument(head.name, head.conditions);
    }
    const NodeRef node = FindPlace(index, NodeRef::None, head, true);
    return IsWanted(tree, node, head) ? node : NodeRef::None;
}

} // namespace

NodeRef FindPlace(ChildIndex& index, NodeRef parent, const PathStep& step, bool isHead) {
    if (!isHead) {
        return index.At(parent, step.name, step.position);
    }
    if (step.position == 1) {
        return index.FirstInDocument(step.name);
    }
    const std::vector<NodeRef>& all = index.AllInDocument(step.name);
    return step.position <= all.size() ? all[step.position - 1] : NodeRef::None;
}

NodeRef FindStep(const XmlTree& tree, ChildIndex& index, NodeRef parent, const PathStep& step, bool isHead) {
    if (isHead) {
        return FindHead(tree, index, step);
    }
    if (step.isAttribute) {
        return FindAttribute(tree, parent, step.name);
    }
    if (step.position == 0) {
        return step.conditions.empty() ? index.Last(parent, step.name)
                                       : index.First(parent, step.name, step.conditions);
    }
    const NodeRef node = FindPlace(index, parent, step, false);
    return IsWanted(tree, node, step) ? node : NodeRef::None;
}

ParsedPath ReadPath(std::string_view query) {
    ParsedPath parsed = ParseQueryPath(query);
    if (parsed.kind == PathKind::Ambiguous) {
        throw PathError("the query " + std::string(query) +
                        " can be read in more than one way; a value holds quotes or brackets");
    }
    return parsed;
}

NodeRef FindByPath(const XmlTree& tree, ChildIndex& index, NodeRef context, std::string_view query) {
    if (query.empty()) {
        return context;
    }
    const ParsedPath parsed = ReadPath(query);
    if (parsed.kind == PathKind::Other) {
        return EvaluateXPath(tree, context, query);
    }
    NodeRef node = context;
    bool isHead = parsed.path.fromDocument;
    for (const PathStep& step : parsed.path.steps) {
        if (node == NodeRef::None) {
            break;
        }
        node = FindStep(tree, index, node, step, isHead);
        isHead = false;
    }
    return node;
}

} // namespace Framework
