#pragma once

#include <iosfwd>
#include <string>
#include <vector>

#include "Results.h"
#include "Works.h"

namespace Bench {

enum class Format { Text, Markdown };

/// Prints all results as one table: ratios to the parse by Xerces DOM of the same document, by work; packets as
/// thousands per second; memory; growth; threads. Beside our own rows stand the figures that they must reach, and aim
/// at. What was not measured is left out.
void PrintReport(std::ostream& to, const Results& results, const Works& works, const std::vector<Document>& documents,
                 Format format);

} // namespace Bench
