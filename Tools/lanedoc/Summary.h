#pragma once

#include <string>
#include <vector>

#include "Output.h"
#include "TreeDiff.h"

namespace Lanedoc {

/// What became of one override.
struct FeatureReport {
    std::string feature;
    std::string document; ///< as the person named it
    bool replacesAll = false;
    std::vector<Difference> differences;
    std::vector<std::string> refusals; ///< `line:column: why`
};

/// The report for people: a title, the differences in groups by the steps they share, what was refused, and the counts.
/// Of what is below `depth` steps, 0 for any, only the counts.
std::string SummaryOf(const FeatureReport& report, std::size_t depth, const Style& style);

} // namespace Lanedoc
