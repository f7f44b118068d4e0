#pragma once

#include "Framework/XMLSupport/XmlTree.h"

#include <string_view>

namespace Framework {

/// The first node, in document order, that an XPath 1.0 expression selects from `context`; None when it selects
/// nothing.
///
/// Throws PathError naming the expression when it is malformed, does not select nodes, or names a variable or
/// a prefix: neither is known here, ask for `*[name()='p:q']`. Also when CheckXPath refuses it, or it takes more
/// processor time than LoadLimits::cpuSeconds. Element and attribute names are compared without their prefix.
///
/// For what the path language cannot say, not for every lookup. Paths with predicates take linear time; unions of large
/// sets and many `//` in a row take what Xalan needs for them.
NodeRef EvaluateXPath(const XmlTree& tree, NodeRef context, std::string_view expression);

} // namespace Framework
