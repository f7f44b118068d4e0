#pragma once

#include <cstddef>
#include <string_view>
#include <vector>

namespace Lanedoc {

/// Lines that gave way to others, counted from 0: first to one behind the last, of the old and of the new text.
struct LineChange {
    std::size_t oldBegin;
    std::size_t oldEnd;
    std::size_t newBegin;
    std::size_t newEnd;
};

/// The lines of a text, each with its own line end; the last one may have none.
std::vector<std::string_view> SplitLines(std::string_view text);

/// What turns one list of lines into the other, in order, with unchanged lines between any two changes. Few changes
/// among many lines are found in the fewest lines; the time is linear in the lines in any case.
std::vector<LineChange> CompareLines(const std::vector<std::string_view>& oldLines,
                                     const std::vector<std::string_view>& newLines);

} // namespace Lanedoc
