#pragma once

#include "Framework/XMLSupport/XmlTree.h"

#include <span>
#include <string>
#include <string_view>

namespace Framework {

/// Where a new element goes, and the blanks that set it like its neighbours.
struct ElementPlace {
    NodeRef parent = NodeRef::None;
    NodeRef next = NodeRef::None; ///< the node it comes before, None at the end
    std::string blanksBefore{};
    std::string blanksAfter{};
};

/// The place of field `position` in an element whose fields have that order: behind the last element of the nearest
/// earlier field that is there, else before the first of a later one, else first of all. A comment at the end of the
/// neighbour's line, or on lines right above it, stays with the neighbour. Where white space is content (xml:space, or
/// text beside the elements) none is added.
ElementPlace PlaceOfField(const XmlTree& tree, NodeRef parent, std::span<const std::string_view> order,
                          std::size_t position);

} // namespace Framework
