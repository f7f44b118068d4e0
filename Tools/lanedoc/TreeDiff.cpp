#include "TreeDiff.h"

#include <algorithm>
#include <map>
#include <string_view>
#include <utility>

#include "TreeNode.h"

namespace Lanedoc {

namespace {

constexpr std::size_t none = static_cast<std::size_t>(-1);

/// Which positions can stay where they are so that the fewest move: the longest rising run through `positions`, `none`
/// left out.
std::vector<bool> FindStaying(const std::vector<std::size_t>& positions) {
    std::vector<std::size_t> tails; // the index at which the best run of each length ends
    std::vector<std::size_t> previous(positions.size(), none);
    for (std::size_t i = 0; i < positions.size(); ++i) {
        if (positions[i] == none) {
            continue;
        }
        const auto tail = std::lower_bound(tails.begin(), tails.end(), positions[i],
                                           [&](std::size_t at, std::size_t value) { return positions[at] < value; });
        previous[i] = tail == tails.begin() ? none : *std::prev(tail);
        if (tail == tails.end()) {
            tails.push_back(i);
        } else {
            *tail = i;
        }
    }
    std::vector<bool> staying(positions.size(), false);
    for (std::size_t i = tails.empty() ? none : tails.back(); i != none; i = previous[i]) {
        staying[i] = true;
    }
    return staying;
}

std::string StepOf(const CatalogField& list, const std::vector<SnapshotEntry>& entries, std::size_t position) {
    return list.GetForm() == CatalogField::KeyedList
               ? FieldPath::KeyStep(list.Name(), list.KeyAttribute(), entries[position].key)
               : FieldPath::PositionStep(list.Name(), position + 1);
}

class TreeComparison {
public:
    std::vector<Difference> Run(const Snapshot& before, TypedDataContainer& after) {
        CompareContainers(before, after);
        return std::move(m_differences);
    }

private:
    Difference& Note(Difference::Kind kind, std::string step) {
        Difference& difference = m_differences.emplace_back();
        difference.kind = kind;
        difference.path = m_path;
        difference.path.push_back(std::move(step));
        return difference;
    }

    void NoteAdded(std::string step, TypedDataContainer& container) {
        Note(Difference::Kind::Added, std::move(step)).valuesAfter = TakeSnapshot(container).values;
    }

    void NoteAddedEntry(const CatalogField& list, TypedDataContainer& object, std::size_t position) {
        std::string step = EntryStep(list, object, position);
        if (!HoldsContainers(list)) {
            Difference& difference = Note(Difference::Kind::Added, std::move(step));
            difference.isText = true;
            difference.after = list.EntryText(object, position);
        } else if (TypedDataContainer* const entry = list.Entry(object, position)) {
            NoteAdded(std::move(step), *entry);
        }
    }

    /// Where the entry that was just noted stands now.
    void NotePlace(const CatalogField& list, TypedDataContainer& object, std::size_t position) {
        m_differences.back().isPlaced = true;
        m_differences.back().behindAfter = position == 0 ? "" : EntryStep(list, object, position - 1);
    }

    void NoteRemoved(std::string step, const SnapshotEntry& entry) {
        Difference& difference = Note(Difference::Kind::Removed, std::move(step));
        difference.isText = entry.container == nullptr;
        difference.before = entry.text;
        difference.valuesBefore = difference.isText ? 0 : entry.container->values;
    }

    /// An entry or child that was there and is.
    void CompareBelow(std::string step, const Snapshot& before, TypedDataContainer& after) {
        // What a merge takes over into an object leaves that on the XML it was loaded from.
        const bool isReplaced = before.valid && before.document != after.GetContainedDataPtr();
        const bool isOutermost = isReplaced && !m_isReplaced;
        if (isOutermost) {
            Difference& difference = Note(Difference::Kind::Replaced, step);
            difference.valuesBefore = before.values;
            difference.valuesAfter = TakeSnapshot(after).values;
            m_isReplaced = true;
        }
        m_path.push_back(std::move(step));
        CompareContainers(before, after);
        m_path.pop_back();
        m_isReplaced = m_isReplaced && !isOutermost;
    }

    void CompareContainers(const Snapshot& before, TypedDataContainer& after) {
        std::size_t scalars = 0;
        std::size_t lists = 0;
        for (const CatalogField& field : ContainerCatalog::ClassOf(after).Fields()) {
            if (field.IsScalar()) {
                CompareScalar(field, before.scalars[scalars++], after);
            } else if (field.GetForm() == CatalogField::Child) {
                CompareChild(field, before.lists[lists++], after);
            } else if (field.GetForm() == CatalogField::KeyedList) {
                CompareKeyedList(field, before.lists[lists++], after);
            } else {
                ComparePlainList(field, before.lists[lists++], after);
            }
        }
    }

    void CompareScalar(const CatalogField& field, const std::string& before, TypedDataContainer& after) {
        const zelString textAfter = field.GetText(after);
        if (before == textAfter) {
            return;
        }
        Difference& difference = Note(Difference::Kind::Changed, std::string(field.Name()));
        difference.isText = true;
        difference.before = before;
        difference.after = textAfter;
        const bool wasDefault = before == field.DefaultText() || before == field.LoadText();
        difference.beforeIsDefault = wasDefault && (m_isReplaced || !field.StandsInDocument(after));
    }

    void CompareChild(const CatalogField& field, const std::vector<SnapshotEntry>& before, TypedDataContainer& after) {
        TypedDataContainer* const child = field.GetChild(after);
        std::string step(field.Name());
        if (!before.empty() && child != nullptr) {
            CompareBelow(std::move(step), *before.front().container, *child);
        } else if (child != nullptr) {
            NoteAdded(std::move(step), *child);
        } else if (!before.empty()) {
            NoteRemoved(std::move(step), before.front());
        }
    }

    void CompareEntries(const CatalogField& list, const SnapshotEntry& before, TypedDataContainer& after,
                        std::size_t position) {
        std::string step = EntryStep(list, after, position);
        if (HoldsContainers(list)) {
            TypedDataContainer* const entry = list.Entry(after, position);
            if (before.container != nullptr && entry != nullptr) {
                CompareBelow(std::move(step), *before.container, *entry);
            }
            return;
        }
        const zelString text = list.EntryText(after, position);
        if (before.text != text) {
            Difference& difference = Note(Difference::Kind::Changed, std::move(step));
            difference.isText = true;
            difference.before = before.text;
            difference.after = text;
        }
    }

    void CompareKeyedList(const CatalogField& list, const std::vector<SnapshotEntry>& before,
                          TypedDataContainer& after) {
        // Entries from before that are not yet found again, the first of a key last: keys may be the same once they are
        // read as numbers. Not by their hashes: in a document these may be made to meet.
        std::map<std::string_view, std::vector<std::size_t>> left;
        for (std::size_t i = before.size(); i-- > 0;) {
            left[before[i].key].push_back(i);
        }
        std::vector<bool> isRemoved(before.size(), true);
        std::vector<std::size_t> positions(list.Length(after), none);
        for (std::size_t i = 0; i < positions.size(); ++i) {
            const auto found = left.find(list.EntryKey(after, i));
            if (found != left.end() && !found->second.empty()) {
                positions[i] = found->second.back();
                isRemoved[positions[i]] = false;
                found->second.pop_back();
            }
        }
        const auto lastOld = std::find_if(positions.rbegin(), positions.rend(), [](auto at) { return at != none; });
        const auto endOfOld = static_cast<std::size_t>(positions.rend() - lastOld);
        const std::vector<bool> staying = FindStaying(positions);
        for (std::size_t i = 0; i < positions.size(); ++i) {
            if (positions[i] == none) {
                NoteAddedEntry(list, after, i);
                if (i < endOfOld) {
                    NotePlace(list, after, i);
                }
                continue;
            }
            if (!staying[i]) {
                Note(Difference::Kind::Moved, EntryStep(list, after, i)).behindBefore =
                    positions[i] == 0 ? "" : StepOf(list, before, positions[i] - 1);
                NotePlace(list, after, i);
            }
            CompareEntries(list, before[positions[i]], after, i);
        }
        for (std::size_t i = 0; i < before.size(); ++i) {
            if (isRemoved[i]) {
                NoteRemoved(StepOf(list, before, i), before[i]);
            }
        }
    }

    void ComparePlainList(const CatalogField& list, const std::vector<SnapshotEntry>& before,
                          TypedDataContainer& after) {
        const std::size_t length = list.Length(after);
        for (std::size_t i = 0; i < std::min(before.size(), length); ++i) {
            CompareEntries(list, before[i], after, i);
        }
        for (std::size_t i = before.size(); i < length; ++i) {
            NoteAddedEntry(list, after, i);
        }
        for (std::size_t i = length; i < before.size(); ++i) {
            NoteRemoved(StepOf(list, before, i), before[i]);
        }
    }

    std::vector<std::string> m_path;
    bool m_isReplaced = false; // the container at hand, or one that it is in
    std::vector<Difference> m_differences;
};

} // namespace

std::vector<Difference> CompareTrees(const Snapshot& before, TypedDataContainer& after) {
    return TreeComparison().Run(before, after);
}

} // namespace Lanedoc
