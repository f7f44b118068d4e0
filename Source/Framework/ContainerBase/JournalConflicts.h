#pragma once

#include "Framework/ContainerBase/JournalData.h"

namespace Framework {

struct JournalDisputes {
    std::vector<MergeJournal::Conflict> conflicts;
    std::vector<MergeJournal::Lost> lost; ///< what a later feature undid
};

/// Goes through a journal from its beginning and keeps, for each path, the edit that stands. Takes time in proportion
/// to the journal.
JournalDisputes FindDisputes(const JournalData& journal);

} // namespace Framework
