#include "Framework/XMLSupport/PathLookup.h"

#include "Framework/XMLSupport/TreeReading.h"
#include "Framework/XMLSupport/XPathFallback.h"

namespace Framework {

namespace {

NodeRef FindHead(ChildIndex& index, const PathStep& head) {
    if (!head.conditions.empty()) {
        return index.FirstInDocument(head.name, head.conditions);
    }
    if (head.position <= 1) {
        return index.FirstInDocument(head.name);
    }
    const std::vector<NodeRef>& all = index.AllInDocument(head.name);
    return head.position <= all.size() ? all[head.position - 1] : NodeRef::None;
}

NodeRef FindStep(const XmlTree& tree, ChildIndex& index, NodeRef parent, const PathStep& step) {
    if (step.isAttribute) {
        return FindAttribute(tree, parent, step.name);
    }
    if (!step.conditions.empty()) {
        return index.First(parent, step.name, step.conditions);
    }
    return step.position > 0 ? index.At(parent, step.name, step.position) : index.Last(parent, step.name);
}

} // namespace

NodeRef FindByPath(const XmlTree& tree, ChildIndex& index, NodeRef context, std::string_view query) {
    if (query.empty()) {
        return context;
    }
    const ParsedPath parsed = ParseQueryPath(query);
    if (parsed.kind == PathKind::Ambiguous) {
        throw PathError("the query " + std::string(query) +
                        " can be read in more than one way; a value holds quotes or brackets");
    }
    if (parsed.kind == PathKind::Other) {
        return EvaluateXPath(tree, context, query);
    }
    NodeRef node = context;
    bool isHead = parsed.path.fromDocument;
    for (const PathStep& step : parsed.path.steps) {
        if (node == NodeRef::None) {
            break;
        }
        node = isHead ? FindHead(index, step) : FindStep(tree, index, node, step);
        isHead = false;
    }
    return node;
}

} // namespace Framework
