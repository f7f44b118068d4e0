#pragma once

#include <string>
#include <vector>

#include "Output.h"
#include "TreeDiff.h"

namespace Lanedoc {

/// What a feature did, for people: a title, the differences in groups by the steps they share, and the counts.
std::string SummaryOf(const std::string& feature, const std::vector<Difference>& differences, const Style& style);

} // namespace Lanedoc
