#pragma once

#include <vector>

#include "MergeRun.h"

namespace Lanedoc {

/// What features disagree about, each told where the later one, which wins, has its say. All that one edit takes away
/// or brings back is one message.
std::vector<Message> ConflictMessages(const MergeRun& run, const MergeArguments& arguments, Severity severity);

} // namespace Lanedoc
