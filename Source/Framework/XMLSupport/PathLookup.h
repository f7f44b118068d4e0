#pragma once

#include "Framework/XMLSupport/ChildIndex.h"
#include "Framework/XMLSupport/PathError.h"

namespace Framework {

/// The node that a query finds from `context`, or None. `//Name` takes the first element of that name in the document,
/// a plain name the last child of that name, a predicate the first that meets it. Throws PathError.
NodeRef FindByPath(const XmlTree& tree, ChildIndex& index, NodeRef context, std::string_view query);

/// Reads a query. Throws PathError when it is ambiguous.
ParsedPath ReadPath(std::string_view query);

/// The node of one step below `parent`, or of the head of a path, which is looked for in the whole document.
NodeRef FindStep(const XmlTree& tree, ChildIndex& index, NodeRef parent, const PathStep& step, bool isHead);

/// The node of that name at the position of a step that has one, whatever its attributes.
NodeRef FindPlace(ChildIndex& index, NodeRef parent, const PathStep& step, bool isHead);

} // namespace Framework
