#include "Framework/XMLSupport/PathMaker.h"

#include <algorithm>
#include <map>
#include <stdexcept>
#include <utility>

#include <xercesc/dom/DOM.hpp>

#include "Framework/XMLSupport/DomNodes.h"
#include "Framework/XMLSupport/PathLookup.h"
#include "Framework/XMLSupport/XmlEscapes.h"

namespace Framework {

namespace {

/// An element with both values cannot be, so it would be made anew each time.
void CheckValues(const std::vector<PathCondition>& conditions) {
    std::map<std::string_view, std::string_view> values;
    for (const PathCondition& condition : conditions) {
        if (values.try_emplace(condition.attribute, condition.value).first->second != condition.value) {
            throw std::runtime_error("the attribute " + condition.attribute + " is to have two values");
        }
    }
}

/// Xerces takes names that no parser of ours reads back.
void CheckName(const std::string& name) {
    if (!IsXmlName(name)) {
        throw std::runtime_error(name + " is no XML name");
    }
}

void AppendAll(DOMNode& parent, const std::vector<DOMNode*>& children) {
    for (DOMNode* const child : children) {
        parent.appendChild(child);
    }
}

} // namespace

/// Everything is found and built before anything is changed, as each step may yet turn out to be one that cannot be
/// made.
void PathMaker::Make(const QueryPath& path, NodeRef start) {
    std::vector<Standing> standing;
    NodeRef node = start;
    for (std::size_t at = 0; at < path.steps.size(); ++at) {
        const PathStep& step = path.steps[at];
        const bool isHead = at == 0 && path.fromDocument;
        if (node == NodeRef::None && !isHead) {
            throw std::runtime_error("the document has no root to begin at");
        }
        NodeRef found = FindStep(m_tree, m_index, node, step, isHead);
        if (found == NodeRef::None) {
            found = FindStanding(node, step, isHead);
            if (found == NodeRef::None) {
                const std::vector<DOMNode*> made = Build(node, path.steps, at, isHead);
                std::for_each(standing.begin(), standing.end(), [this](const Standing& each) { SetAttributes(each); });
                Hang(node, isHead, made);
                return;
            }
            NewElementFor(step); // throws for attributes that cannot be set
            standing.push_back({found, node, &step});
        }
        node = found;
    }
    std::for_each(standing.begin(), standing.end(), [this](const Standing& each) { SetAttributes(each); });
}

/// The element that a step means although it has other attributes.
NodeRef PathMaker::FindStanding(NodeRef parent, const PathStep& step, bool isHead) {
    if (step.position != 0) {
        return FindPlace(m_index, parent, step, isHead);
    }
    const NodeRef root = m_tree.Root();
    return isHead && root != NodeRef::None && m_tree.Name(root) == step.name ? root : NodeRef::None;
}

void PathMaker::SetAttributes(const Standing& standing) {
    for (const PathCondition& condition : standing.step->conditions) {
        SetAttribute(*DomTree::Node(standing.element), *m_tree.Document(), condition.attribute, condition.value);
    }
    m_index.ForgetAttributes(standing.parent);
}

/// The steps from `at` on, each below the one before, of which the first is still to be hung. They are built from the
/// innermost out, as appending looks at every ancestor.
std::vector<DOMNode*> PathMaker::Build(NodeRef parent, const Steps& steps, std::size_t at, bool isHead) {
    std::vector<DOMNode*> made;
    for (std::size_t next = steps.size(); next-- > at;) {
        const std::vector<DOMNode*> inner = std::exchange(made, {});
        for (std::size_t i = CountMissing(parent, steps[next], isHead && next == at, next != at); i > 1; --i) {
            made.push_back(NewElement(*m_tree.Document(), steps[next].name));
        }
        made.push_back(NewElementFor(steps[next]));
        AppendAll(*made.back(), inner);
    }
    if (isHead && m_tree.Root() == NodeRef::None && made.size() > 1) {
        throw std::runtime_error("a document has one root");
    }
    return made;
}

void PathMaker::Hang(NodeRef parent, bool isHead, const std::vector<DOMNode*>& made) {
    const NodeRef root = m_tree.Root();
    DOMNode* const hook = !isHead                 ? DomTree::Node(parent)
                          : root == NodeRef::None ? m_tree.Document()
                                                  : DomTree::Node(root);
    AppendAll(*hook, made);
}

std::size_t PathMaker::CountMissing(NodeRef parent, const PathStep& step, bool isHead, bool parentIsNew) {
    if (step.position == 0) {
        return 1;
    }
    const std::size_t there = parentIsNew ? 0
                              : isHead    ? m_index.AllInDocument(step.name).size()
                                          : m_index.Count(parent, step.name);
    constexpr std::size_t most = 1000; // so that a wrong number does not fill the memory
    if (step.position - there > most) {
        throw std::runtime_error(step.name + " cannot be created at this position: there are only " +
                                 std::to_string(there));
    }
    return step.position - there;
}

DOMNode* PathMaker::NewElementFor(const PathStep& step) {
    if (step.isAttribute) {
        throw std::runtime_error("the attribute " + step.name + " is no element to create");
    }
    CheckValues(step.conditions);
    DOMNode* const element = NewElement(*m_tree.Document(), step.name);
    CheckName(step.name);
    for (const PathCondition& condition : step.conditions) {
        SetAttribute(*element, *m_tree.Document(), condition.attribute, condition.value);
        CheckName(condition.attribute);
    }
    return element;
}

} // namespace Framework
