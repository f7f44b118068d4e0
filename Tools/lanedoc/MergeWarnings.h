#pragma once

#include <cstddef>

#include "Source.h"

namespace Lanedoc {

/// Lines of warnings about one document; behind them only the number of the rest is told.
constexpr std::size_t mostWarnings = 10;

/// Tells on standard error what the merged document will not hold of the base, because no field names it.
void WarnOfLossesIn(Source& base);
/// Tells on standard error which parts of an override no field takes: a slip of the hand more often than not.
void WarnOfUnknownIn(Source& change);

} // namespace Lanedoc
