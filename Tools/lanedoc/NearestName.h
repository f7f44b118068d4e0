#pragma once

#include <string>
#include <vector>

#include "Framework/NearestNames.h"

namespace Lanedoc {

/// `did you mean A, B or C?`; empty when there is none.
std::string DidYouMean(const std::vector<std::string>& names);

/// `A, B, C`, and how many more there are behind `limit`.
std::string JoinNames(const std::vector<std::string>& names, std::size_t limit = 12);

} // namespace Lanedoc
