#pragma once

#include <stdexcept>

namespace Framework {

/// A query that cannot be answered: ambiguous, or no query at all. Its text is for people.
class PathError : public std::runtime_error {
public:
    using std::runtime_error::runtime_error;
};

} // namespace Framework
