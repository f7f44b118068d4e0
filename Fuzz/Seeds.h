#pragma once

#include <string>
#include <vector>

#include "Target.h"

namespace Fuzz {

struct Seed {
    std::string name; ///< of a file; unique for the target
    std::string bytes;
};

/// What the fuzzing of a target begins with and its test replays: made from the example documents and from the
/// catalogue, and the files in Seeds/<target>; then the files in Inputs/<target>, which found a defect once.
std::vector<Seed> SeedsOf(const Target& target);

} // namespace Fuzz
