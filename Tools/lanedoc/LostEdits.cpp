#include "LostEdits.h"

#include <string_view>

#include "DocPath.h"

namespace Lanedoc {

namespace {

bool IsKeyOfEntry(const MergeJournal::Entry& entry) {
    if (entry.IsContainer || entry.Field.empty() || !entry.Path.ends_with("/" + entry.Field)) {
        return false;
    }
    const std::string_view holder = std::string_view(entry.Path).substr(0, entry.Path.size() - entry.Field.size() - 1);
    return ParsePath(holder).back().keyAttribute == entry.Field;
}

} // namespace

std::vector<MergeJournal::Lost> LostEdits(const MergeJournal& journal) {
    std::vector<MergeJournal::Lost> lost = journal.WithoutEffect();
    std::erase_if(lost, [&](const MergeJournal::Lost& edit) {
        return !edit.By.has_value() && IsKeyOfEntry(journal.At(edit.Entry));
    });
    return lost;
}

} // namespace Lanedoc
