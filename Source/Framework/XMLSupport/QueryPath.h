#pragma once

#include <limits>
#include <string>
#include <string_view>
#include <vector>

namespace Framework {

/// One comparison of a predicate: the attribute must be there and have exactly that text.
struct PathCondition {
    std::string attribute;
    std::string value;
    bool operator==(const PathCondition&) const = default;
};

struct PathStep {
    std::string name;
    bool isAttribute = false;
    std::size_t position = 0; ///< from 1; 0 when the step counts nothing, nowhere for a place that cannot be
    std::vector<PathCondition> conditions; ///< of the element at that position when there is one

    static constexpr std::size_t nowhere = std::numeric_limits<std::size_t>::max();
};

/// `//Name/Step[@k='v'  and @k2='v2' ]/Step[n]/Step[n][@k='v']/@attribute`, or the same without the head, relative to a
/// node.
struct QueryPath {
    bool fromDocument = false;
    std::vector<PathStep> steps;
};

enum class PathKind { Simple, Ambiguous, Other };

struct ParsedPath {
    PathKind kind = PathKind::Other;
    QueryPath path; ///< of a simple one
};

/// Reads a query of the small path language, in linear time. Values are not escaped in it, so they may hold quotes,
/// brackets and slashes: of several ways to read the text the one with the most quoted values counts, so that values
/// without quotes always read as XPath reads them. It is Ambiguous when two ways have as many, and Other when there is
/// none and XPath has to answer.
ParsedPath ParseQueryPath(std::string_view text);

} // namespace Framework
