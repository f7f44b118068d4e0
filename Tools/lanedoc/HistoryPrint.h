#pragma once

#include <string>

#include "History.h"
#include "Output.h"

namespace Lanedoc {

/// A line for each step, the winning one marked, in columns.
std::string HistoryAsText(const History& history, const Style& style);
/// The same for programs, described in Docs/JsonFormat.md.
std::string HistoryAsJson(const History& history, const std::string& rootName);

} // namespace Lanedoc
