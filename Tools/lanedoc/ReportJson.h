#pragma once

#include <string>

#include "MergeRun.h"
#include "ReportText.h"

namespace Lanedoc {

/// The same as ReportAsText for programs, described in Docs/JsonFormat.md.
std::string ReportAsJson(const MergeRun& run, ReportScope scope);

} // namespace Lanedoc
