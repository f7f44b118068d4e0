#pragma once

#include <optional>
#include <string>
#include <vector>

#include "MergeRun.h"

namespace Lanedoc {

/// One who gave a value, added or removed a part, or tried to.
struct HistoryStep {
    MergeJournal::Writer::Kind who = MergeJournal::Writer::Kind::Feature;
    std::string feature; ///< empty for the base; for nobody: that made what holds the value, if any
    DocumentPlace place;
    std::string path;                 ///< of the part, which is an entry where the history is that of a list
    std::optional<std::string> value; ///< that it gave
    bool isReset = false;             ///< the value is the default again
    bool wins = false;
    std::optional<MergeJournal::Entry> entry; ///< of a feature
};

/// All who had to do with one part of a merged document, in their order.
struct History {
    std::string path; ///< as the journal has it
    bool isThere = true;
    std::optional<std::string> value; ///< of a scalar or text that is there
    std::vector<HistoryStep> steps;
};

/// The history of a value, a container or a list. Throws a Failure when there is no such field, the part neither is
/// there nor was taken away, or is a container or list that no feature touched as a whole.
History HistoryOf(const MergeRun& run, const std::string& path);

/// "default", "base" or "feature".
const char* WhoName(MergeJournal::Writer::Kind who);

} // namespace Lanedoc
