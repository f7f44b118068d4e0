#pragma once

#include <string>

#include "MergeRun.h"
#include "Provenance.h"

namespace Lanedoc {

/// Writes the merged document: to standard output for "-", into a device or a pipe as it is, else over the file, as a
/// whole or not at all. Throws a Failure.
void WriteMerged(const MergeRun& run, Provenance provenance, const std::string& output);

} // namespace Lanedoc
