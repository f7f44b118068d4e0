#include "Framework/XMLSupport/ChildIndex.h"

#include "Framework/XMLSupport/TreeReading.h"

namespace Framework {

namespace {

/// Appends a text so that two different lists of texts never give the same key.
void AppendToKey(std::string& key, std::string_view text) {
    key += std::to_string(text.size());
    key += ':';
    key += text;
}

template <typename Test> NodeRef FirstChildThat(const XmlTree& tree, NodeRef parent, std::string_view name, Test test) {
    for (NodeRef child = tree.FirstChild(parent); child != NodeRef::None; child = tree.NextSibling(child)) {
        if (tree.Kind(child) == NodeKind::Element && tree.Name(child) == name && test(child)) {
            return child;
        }
    }
    return NodeRef::None;
}

} // namespace

bool MeetsConditions(const XmlTree& tree, NodeRef element, const std::vector<PathCondition>& conditions) {
    std::string room;
    for (const PathCondition& condition : conditions) {
        const NodeRef attribute = FindAttribute(tree, element, condition.attribute);
        if (attribute == NodeRef::None || tree.Value(attribute, room) != condition.value) {
            return false;
        }
    }
    return true;
}

/// Few children are looked through faster than they are indexed, and most elements have few.
bool ChildIndex::IsNarrow(NodeRef parent) const {
    constexpr int few = 24;
    int count = 0;
    for (NodeRef child = m_tree->FirstChild(parent); child != NodeRef::None; child = m_tree->NextSibling(child)) {
        if (++count > few) {
            return false;
        }
    }
    return true;
}

ChildIndex::Parent& ChildIndex::ParentOf(NodeRef parent) {
    Parent& known = m_parents[parent];
    NodeRef child = known.last == NodeRef::None ? m_tree->FirstChild(parent) : m_tree->NextSibling(known.last);
    for (; child != NodeRef::None; child = m_tree->NextSibling(child)) {
        if (m_tree->Kind(child) == NodeKind::Element) {
            known.byName[m_tree->Name(child)].push_back(child);
        }
        known.last = child; // child by child: memory may run out on the way
    }
    return known;
}

void ChildIndex::ForgetAttributes(NodeRef parent) {
    if (const auto known = m_parents.find(parent); known != m_parents.end()) {
        known->second.byValues.clear();
    }
}

void ChildIndex::ForgetAttribute(NodeRef parent, std::string_view attribute) {
    std::string part;
    AppendToKey(part, attribute);
    const auto forget = [&part](ByValues& byValues) {
        std::erase_if(byValues, [&part](const auto& item) { return item.first.find(part) != std::string::npos; });
    };
    forget(m_inDocumentByValues);
    if (const auto known = m_parents.find(parent); known != m_parents.end()) {
        forget(known->second.byValues);
    }
}

void ChildIndex::ForgetDocument() {
    m_inDocument.clear();
    m_inDocumentByValues.clear();
}

const ChildIndex::Nodes& ChildIndex::Named(NodeRef parent, std::string_view name) {
    static const Nodes none;
    const Parent& indexed = ParentOf(parent);
    const auto found = indexed.byName.find(name);
    return found == indexed.byName.end() ? none : found->second;
}

NodeRef ChildIndex::Last(NodeRef parent, std::string_view name) {
    if (IsNarrow(parent)) {
        return LastChildNamed(*m_tree, parent, name);
    }
    const Nodes& named = Named(parent, name);
    return named.empty() ? NodeRef::None : named.back();
}

NodeRef ChildIndex::At(NodeRef parent, std::string_view name, std::size_t position) {
    if (IsNarrow(parent)) {
        return FirstChildThat(*m_tree, parent, name, [&position](NodeRef) { return --position == 0; });
    }
    const Nodes& named = Named(parent, name);
    return position == 0 || position > named.size() ? NodeRef::None : named[position - 1];
}

std::size_t ChildIndex::Count(NodeRef parent, std::string_view name) {
    if (!IsNarrow(parent)) {
        return Named(parent, name).size();
    }
    std::size_t count = 0;
    FirstChildThat(*m_tree, parent, name, [&count](NodeRef) {
        ++count;
        return false;
    });
    return count;
}

NodeRef ChildIndex::First(NodeRef parent, std::string_view name, const std::vector<PathCondition>& conditions) {
    if (IsNarrow(parent)) {
        return FirstChildThat(*m_tree, parent, name,
                              [&](NodeRef child) { return MeetsConditions(*m_tree, child, conditions); });
    }
    const Nodes& named = Named(parent, name);
    return FirstOf(named, m_parents[parent].byValues, name, conditions);
}

NodeRef ChildIndex::FirstOf(const Nodes& named, ByValues& byValues, std::string_view name,
                            const std::vector<PathCondition>& conditions) {
    std::string attributes;
    std::string values;
    AppendToKey(attributes, name);
    for (const PathCondition& condition : conditions) {
        AppendToKey(attributes, condition.attribute);
        AppendToKey(values, condition.value);
    }
    FirstByValues& known = byValues[std::move(attributes)];
    std::string room;
    for (; known.taken < named.size(); ++known.taken) {
        const NodeRef node = named[known.taken];
        std::string key;
        bool hasAll = true;
        for (const PathCondition& condition : conditions) {
            const NodeRef attribute = FindAttribute(*m_tree, node, condition.attribute);
            hasAll = hasAll && attribute != NodeRef::None;
            if (hasAll) {
                AppendToKey(key, m_tree->Value(attribute, room));
            }
        }
        if (hasAll) {
            known.nodes.try_emplace(std::move(key), node); // the first of equal ones stays
        }
    }
    const auto found = known.nodes.find(values);
    return found == known.nodes.end() ? NodeRef::None : found->second;
}

const std::vector<NodeRef>& ChildIndex::AllInDocument(std::string_view name) {
    static const Nodes none;
    if (m_inDocument.empty()) {
        const NodeRef root = m_tree->Root();
        HashedMap<std::string_view, Nodes> made;
        for (NodeRef node = root; node != NodeRef::None; node = NextInOrder(*m_tree, node, root)) {
            if (m_tree->Kind(node) == NodeKind::Element) {
                made[m_tree->Name(node)].push_back(node);
            }
        }
        m_inDocument = std::move(made);
    }
    const auto found = m_inDocument.find(name);
    return found == m_inDocument.end() ? none : found->second;
}

NodeRef ChildIndex::FirstInDocument(std::string_view name) {
    const NodeRef root = m_tree->Root();
    if (root != NodeRef::None && m_tree->Name(root) == name) {
        return root;
    }
    const Nodes& all = AllInDocument(name);
    return all.empty() ? NodeRef::None : all.front();
}

NodeRef ChildIndex::FirstInDocument(std::string_view name, const std::vector<PathCondition>& conditions) {
    const NodeRef root = m_tree->Root();
    if (root != NodeRef::None && m_tree->Name(root) == name && MeetsConditions(*m_tree, root, conditions)) {
        return root;
    }
    return FirstOf(AllInDocument(name), m_inDocumentByValues, name, conditions);
}

} // namespace Framework
