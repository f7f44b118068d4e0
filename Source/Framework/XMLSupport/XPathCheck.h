#pragma once

#include <stdexcept>
#include <string_view>

namespace Framework {

/// Why an expression is not given to Xalan.
class XPathProblem : public std::runtime_error {
public:
    using std::runtime_error::runtime_error;
};

/// Throws XPathProblem for an expression that Xalan cannot stand: longer than 4 KB, with brackets nested deeper than
/// 100 or more than 500 steps and operators, as it recurses on those, and 256 KB of stack are enough for these. And for
/// one that may turn a large number into a text, as it writes that into 100 bytes of its stack, whatever its length. So
/// a number has no more than 30 digits, and where a function takes a text, there can be no number that is calculated.
/// What is no XPath at all is left to Xalan.
void CheckXPath(std::string_view expression);

} // namespace Framework
