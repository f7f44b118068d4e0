#include "Framework/FrameworkDataContainers/Walks/FieldNodes.h"

#include "Framework/XMLSupport/TreeReading.h"

#include <algorithm>

namespace Framework {

namespace {

bool IsTextList(const FieldRow& row) {
    return row.list != nullptr && row.value != FieldValue::Container;
}

/// Not those that stand for an object, which remembers its node itself.
bool HasElements(std::span<const FieldRow> rows) {
    return std::any_of(rows.begin(), rows.end(),
                       [](const FieldRow& row) { return row.form == FieldForm::Element || IsTextList(row); });
}

} // namespace

FieldNodes::FieldNodes(const XmlTree& tree, const FieldTable& table, NodeRef own, const std::vector<NodeRef>& earlier)
    : m_rows(table.rows), m_single(table.rows.size(), NodeRef::None) {
    for (const NodeRef element : earlier) {
        TakeElements(tree, element);
    }
    TakeElements(tree, own);
    TakeAttributes(tree, own);
}

const std::vector<NodeRef>& FieldNodes::List(const FieldRow& row) const {
    static const std::vector<NodeRef> none;
    const auto found = m_lists.find(IndexOf(row));
    return found == m_lists.end() ? none : found->second;
}

void FieldNodes::TakeElements(const XmlTree& tree, NodeRef element) {
    if (!HasElements(m_rows)) {
        return; // such an object may have a long list of others below it
    }
    for (std::size_t i = 0; i < m_rows.size(); ++i) {
        if (!m_rows[i].loadText.empty()) {
            m_single[i] = NodeRef::None; // every load assigns that text first
        }
    }
    for (NodeRef child = tree.FirstChild(element); child != NodeRef::None; child = tree.NextSibling(child)) {
        if (tree.Kind(child) != NodeKind::Element) {
            continue;
        }
        const std::string_view name = tree.Name(child);
        for (std::size_t i = 0; i < m_rows.size(); ++i) {
            const FieldRow& row = m_rows[i];
            if (row.form == FieldForm::Attribute || row.name != name) {
                continue;
            }
            if (row.form == FieldForm::Element) {
                m_single[i] = child;
            } else if (IsTextList(row)) {
                m_lists[i].push_back(child);
            }
        }
    }
}

void FieldNodes::TakeAttributes(const XmlTree& tree, NodeRef element) {
    for (NodeRef attribute = tree.FirstAttribute(element); attribute != NodeRef::None;
         attribute = tree.NextSibling(attribute)) {
        const std::string_view name = tree.Name(attribute);
        for (std::size_t i = 0; i < m_rows.size(); ++i) {
            if (m_rows[i].form == FieldForm::Attribute && m_rows[i].name == name) {
                m_single[i] = attribute;
            }
        }
    }
}

NodeRef KeyedTextNodes::Of(const Entry& entry, bool& isOwn) {
    const NodeRef own = ContainerAccess::TextNode(entry, m_object);
    isOwn = own != NodeRef::None;
    if (isOwn) {
        return own;
    }
    IndexKeys();
    NodeRef node = NodeRef::None;
    if (m_countsOnly) {
        const int number = SupportFunc::GetIntValue(entry.ElementName);
        const bool isThere = number > 0 && static_cast<std::size_t>(number) <= m_nodes.size() &&
                             SupportFunc::GetStrValue(static_cast<long>(number)) == entry.ElementName;
        node = isThere ? m_nodes[static_cast<std::size_t>(number) - 1] : NodeRef::None;
    } else if (const auto found = m_byKey.find(entry.ElementName); found != m_byKey.end()) {
        node = found->second;
    }
    return m_taken.contains(node) ? NodeRef::None : node;
}

void KeyedTextNodes::IndexKeys() {
    if (m_isIndexed) {
        return;
    }
    m_isIndexed = true;
    for (const Entry* const entry : m_object.*m_row.member.keyedTexts) {
        if (entry != nullptr) {
            m_taken.insert(ContainerAccess::TextNode(*entry, m_object));
        }
    }
    std::string room;
    m_byKey.reserve(m_nodes.size());
    for (const NodeRef node : m_nodes) {
        const NodeRef key = FindAttribute(m_tree, node, m_row.keyAttribute);
        if (key != NodeRef::None) {
            m_byKey.try_emplace(std::string(m_tree.Value(key, room)), node);
        }
    }
    m_countsOnly = m_row.numberedKeys && m_byKey.empty();
}

} // namespace Framework
