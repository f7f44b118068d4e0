#pragma once

#include "Framework/ContainerBase/JournalData.h"

namespace Framework {

/// All who wrote a value, in order: MergeJournal::WritersOf.
std::vector<MergeJournal::Writer> WritersIn(const JournalData& journal, TypedDataContainer& tree,
                                            std::string_view path);

} // namespace Framework
