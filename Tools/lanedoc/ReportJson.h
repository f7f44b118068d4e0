#pragma once

#include "JsonStream.h"
#include "MergeRun.h"
#include "ReportText.h"

namespace Lanedoc {

/// The same as ReportAsText for programs, described in Docs/JsonFormat.md.
void WriteReportAsJson(const MergeRun& run, ReportScope scope, JsonStream& json);

} // namespace Lanedoc
