#pragma once

#include <string>
#include <vector>

namespace Generator {

/// An operation of the base class that every class overrides with one call of the walk of that name.
struct FixedOverride {
    std::string result;
    std::string name;
    std::vector<std::string> parameters;
    std::string body;
};

/// All of them, in the slot order of the base class.
const std::vector<FixedOverride>& FixedOverrides();

} // namespace Generator
