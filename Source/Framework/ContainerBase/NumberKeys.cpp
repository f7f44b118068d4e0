#include "Framework/ContainerBase/NumberKeys.h"

#include "Framework/ContainerBase/ContainerAccess.h"
#include "Framework/ContainerBase/JournalData.h"
#include "Framework/XMLSupport/TreeReading.h"

namespace Framework {

NumberKeys::List NumberKeys::ReadList(const Entries& entries, std::string_view keyAttribute) {
    List list{entries.data(), entries.size(), {}};
    for (std::size_t position = 0; position < entries.size(); ++position) {
        if (TypedDataContainer* const entry = entries[position]) { // null: removed in a merge that is going on
            list.positions.try_emplace(AttributeTextOf(*entry, keyAttribute), position);
        }
    }
    return list;
}

TypedDataContainer* NumberKeys::Entry(const Entries& entries, std::string_view keyAttribute, std::string_view number) {
    const auto known = m_lists.find(&entries);
    if (known != m_lists.end() && known->second.begin == entries.data() && known->second.length == entries.size()) {
        const auto found = known->second.positions.find(number);
        if (found == known->second.positions.end()) {
            return nullptr;
        }
        TypedDataContainer* const entry = entries[found->second];
        if (entry != nullptr && AttributeTextOf(*entry, keyAttribute) == number) {
            return entry;
        }
    }
    const List& list = m_lists[&entries] = ReadList(entries, keyAttribute);
    const auto found = list.positions.find(number);
    return found == list.positions.end() ? nullptr : entries[found->second];
}

HashedMap<std::string, NodeRef> NumberKeys::ReadElements(const XmlTree& tree, ChildIndex& children, NodeRef parent,
                                                         std::string_view name, std::string_view keyAttribute) {
    HashedMap<std::string, NodeRef> elements;
    const std::size_t count = children.Count(parent, name);
    std::string room;
    for (std::size_t position = 1; position <= count; ++position) {
        const NodeRef element = children.At(parent, name, position);
        elements.try_emplace(std::string(KeyInPath(AttributeOf(tree, element, keyAttribute), true, room)), element);
    }
    return elements;
}

NodeRef NumberKeys::Element(const XmlTree& tree, ChildIndex& children, NodeRef parent, std::string_view name,
                            std::string_view keyAttribute, std::string_view number) {
    const auto place = std::make_tuple(&tree, parent, std::string(name));
    auto known = m_elements.find(place);
    if (known == m_elements.end()) {
        known = m_elements.emplace(place, ReadElements(tree, children, parent, name, keyAttribute)).first;
    }
    const auto found = known->second.find(number);
    return found == known->second.end() ? NodeRef::None : found->second;
}

} // namespace Framework
