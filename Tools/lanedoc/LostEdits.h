#pragma once

#include <vector>

#include "Framework/MergeJournal.h"

namespace Lanedoc {

/// The edits that the result does not show. Keys are not among them: an override gives an entry its key to say which
/// one it means.
std::vector<MergeJournal::Lost> LostEdits(const MergeJournal& journal);

} // namespace Lanedoc
