#pragma once

#include <cstddef>
#include <functional>
#include <string>
#include <string_view>
#include <vector>

#include "Repeat.h"

namespace Robustness {

/// What `piece` makes of 0, 1, 2 ..., joined.
std::string Join(std::size_t count, const std::function<std::string(std::size_t)>& piece);

/// `count` different names that one hash function takes for one and the same: h * factor + letter, as it is
/// known with 31, 33, 37 and 38 from several languages and libraries.
std::vector<std::string> CollidingByFactor(std::size_t count, unsigned factor);

/// `count` different names for which std::hash of the GNU library gives the same number, whatever number it starts
/// from, when `prefix` stands before them: maps often put a length or a name in front of a key. All are of one length.
std::vector<std::string> CollidingByStandardHash(std::size_t count, std::string_view prefix = {});

} // namespace Robustness
