#pragma once

#include <map>
#include <string>
#include <tuple>
#include <unordered_map>
#include <vector>

#include "Framework/TypedDataContainer.h"
#include "Framework/XMLSupport/ChildIndex.h"

namespace Framework {

/// Lists whose keys are numbers, by the number as paths have it: a key may be written otherwise, as "007" is 7, and a
/// list is looked up by what is written. A list is gone through once, and not for every key that is asked for.
class NumberKeys {
public:
    using Entries = std::vector<TypedDataContainer*>;

    /// The first entry that has this number; null when there is none. A list is known again by its place and length,
    /// so whoever knows that lists have changed says so by ForgetEntries.
    TypedDataContainer* Entry(const Entries& entries, std::string_view keyAttribute, std::string_view number);
    void ForgetEntries() { m_lists.clear(); }

    /// The first element of that name below `parent` whose key is read as this number. The document does not change.
    NodeRef Element(const XmlTree& tree, ChildIndex& children, NodeRef parent, std::string_view name,
                    std::string_view keyAttribute, std::string_view number);

private:
    struct List {
        TypedDataContainer* const* begin = nullptr;
        std::size_t length = 0;
        HashedMap<std::string, std::size_t> positions;
    };

    static List ReadList(const Entries& entries, std::string_view keyAttribute);
    static HashedMap<std::string, NodeRef> ReadElements(const XmlTree& tree, ChildIndex& children, NodeRef parent,
                                                        std::string_view name, std::string_view keyAttribute);

    std::unordered_map<const Entries*, List> m_lists;
    /// By the parent and the name of the elements.
    std::map<std::tuple<const XmlTree*, NodeRef, std::string>, HashedMap<std::string, NodeRef>> m_elements;
};

} // namespace Framework
