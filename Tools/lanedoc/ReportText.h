#pragma once

#include <string>

#include "MergeRun.h"
#include "Output.h"

namespace Lanedoc {

enum class ReportScope {
    Everything, ///< every entry of the journal, with whole values, and the edits that the result does not show
    Changes,    ///< what was so already is left out, and long values are cut
};

/// What each override of a merge did, entry by entry, and what features disagree about; for people and for grep.
std::string ReportAsText(const MergeRun& run, ReportScope scope, const Style& style);

/// The old and the new value of an entry as far as it has them, `"old" -> "new"`; texts are cut after `limit`
/// characters, 0 means never.
std::string ValuesOf(const MergeJournal::Entry& entry, std::size_t limit);

} // namespace Lanedoc
