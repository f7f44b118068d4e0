#pragma once

#include <stdexcept>

#include "Framework/XMLSupport/ChildIndex.h"

namespace Framework {

/// A query that cannot be answered: ambiguous, or no query at all. Its text is for people.
class PathError : public std::runtime_error {
public:
    using std::runtime_error::runtime_error;
};

/// The node that a query finds from `context`, or None. `//Name` takes the first element of that name in the document,
/// a plain name the last child of that name, a predicate the first that meets it. Throws PathError.
NodeRef FindByPath(const XmlTree& tree, ChildIndex& index, NodeRef context, std::string_view query);

} // namespace Framework
