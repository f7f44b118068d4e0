#include "TreeDiff.h"

#include <algorithm>
#include <unordered_map>
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

class TreeComparison {
public:
    std::vector<Difference> Run(TypedDataContainer& before, TypedDataContainer& after) {
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

    void NoteContainer(Difference::Kind kind, std::string step, TypedDataContainer& container) {
        Note(kind, std::move(step)).values = CountValues(container);
    }

    void NoteEntry(Difference::Kind kind, const CatalogField& list, TypedDataContainer& object, std::size_t position) {
        std::string step = EntryStep(list, object, position);
        if (HoldsContainers(list)) {
            if (TypedDataContainer* const entry = list.Entry(object, position)) {
                NoteContainer(kind, std::move(step), *entry);
            }
            return;
        }
        Difference& difference = Note(kind, std::move(step));
        difference.isText = true;
        (kind == Difference::Kind::Added ? difference.after : difference.before) = list.EntryText(object, position);
    }

    void CompareBelow(std::string step, TypedDataContainer& before, TypedDataContainer& after) {
        m_path.push_back(std::move(step));
        CompareContainers(before, after);
        m_path.pop_back();
    }

    void CompareContainers(TypedDataContainer& before, TypedDataContainer& after) {
        for (const CatalogField& field : ContainerCatalog::ClassOf(after).Fields()) {
            if (field.IsScalar()) {
                CompareScalar(field, before, after);
            } else if (field.GetForm() == CatalogField::Child) {
                CompareChild(field, before, after);
            } else if (field.GetForm() == CatalogField::KeyedList) {
                CompareKeyedList(field, before, after);
            } else {
                ComparePlainList(field, before, after);
            }
        }
    }

    void CompareScalar(const CatalogField& field, TypedDataContainer& before, TypedDataContainer& after) {
        const zelString textBefore = field.GetText(before);
        const zelString textAfter = field.GetText(after);
        if (textBefore != textAfter) {
            Difference& difference = Note(Difference::Kind::Changed, std::string(field.Name()));
            difference.isText = true;
            difference.before = textBefore;
            difference.after = textAfter;
            difference.beforeIsDefault = !field.StandsInDocument(before);
        }
    }

    void CompareChild(const CatalogField& field, TypedDataContainer& before, TypedDataContainer& after) {
        TypedDataContainer* const childBefore = field.GetChild(before);
        TypedDataContainer* const childAfter = field.GetChild(after);
        std::string step(field.Name());
        if (childBefore != nullptr && childAfter != nullptr) {
            CompareBelow(std::move(step), *childBefore, *childAfter);
        } else if (childAfter != nullptr) {
            NoteContainer(Difference::Kind::Added, std::move(step), *childAfter);
        } else if (childBefore != nullptr) {
            NoteContainer(Difference::Kind::Removed, std::move(step), *childBefore);
        }
    }

    void CompareEntries(const CatalogField& list, TypedDataContainer& before, std::size_t positionBefore,
                        TypedDataContainer& after, std::size_t positionAfter) {
        std::string step = EntryStep(list, after, positionAfter);
        if (HoldsContainers(list)) {
            TypedDataContainer* const entryBefore = list.Entry(before, positionBefore);
            TypedDataContainer* const entryAfter = list.Entry(after, positionAfter);
            if (entryBefore != nullptr && entryAfter != nullptr) {
                CompareBelow(std::move(step), *entryBefore, *entryAfter);
            }
            return;
        }
        const zelString textBefore = list.EntryText(before, positionBefore);
        const zelString textAfter = list.EntryText(after, positionAfter);
        if (textBefore != textAfter) {
            Difference& difference = Note(Difference::Kind::Changed, std::move(step));
            difference.isText = true;
            difference.before = textBefore;
            difference.after = textAfter;
        }
    }

    void CompareKeyedList(const CatalogField& list, TypedDataContainer& before, TypedDataContainer& after) {
        // Entries of the tree before that are not yet found again, the first of a key last: keys may be the same once
        // they are read as numbers.
        std::unordered_map<std::string, std::vector<std::size_t>> left;
        for (std::size_t i = list.Length(before); i-- > 0;) {
            left[list.EntryKey(before, i)].push_back(i);
        }
        std::vector<std::size_t> positions(list.Length(after), none);
        for (std::size_t i = 0; i < positions.size(); ++i) {
            const auto found = left.find(list.EntryKey(after, i));
            if (found != left.end() && !found->second.empty()) {
                positions[i] = found->second.back();
                found->second.pop_back();
            }
        }
        const std::vector<bool> staying = FindStaying(positions);
        for (std::size_t i = 0; i < positions.size(); ++i) {
            if (positions[i] == none) {
                NoteEntry(Difference::Kind::Added, list, after, i);
                continue;
            }
            if (!staying[i]) {
                Note(Difference::Kind::Moved, EntryStep(list, after, i)).behind =
                    i == 0 ? std::string() : EntryStep(list, after, i - 1);
            }
            CompareEntries(list, before, positions[i], after, i);
        }
        NoteRemoved(list, before, left);
    }

    void NoteRemoved(const CatalogField& list, TypedDataContainer& before,
                     const std::unordered_map<std::string, std::vector<std::size_t>>& left) {
        std::vector<std::size_t> removed;
        for (const auto& [key, entries] : left) {
            removed.insert(removed.end(), entries.begin(), entries.end());
        }
        std::sort(removed.begin(), removed.end());
        for (const std::size_t position : removed) {
            NoteEntry(Difference::Kind::Removed, list, before, position);
        }
    }

    void ComparePlainList(const CatalogField& list, TypedDataContainer& before, TypedDataContainer& after) {
        const std::size_t lengthBefore = list.Length(before);
        const std::size_t lengthAfter = list.Length(after);
        for (std::size_t i = 0; i < std::min(lengthBefore, lengthAfter); ++i) {
            CompareEntries(list, before, i, after, i);
        }
        for (std::size_t i = lengthBefore; i < lengthAfter; ++i) {
            NoteEntry(Difference::Kind::Added, list, after, i);
        }
        for (std::size_t i = lengthAfter; i < lengthBefore; ++i) {
            NoteEntry(Difference::Kind::Removed, list, before, i);
        }
    }

    std::vector<std::string> m_path;
    std::vector<Difference> m_differences;
};

} // namespace

std::vector<Difference> CompareTrees(TypedDataContainer& before, TypedDataContainer& after) {
    return TreeComparison().Run(before, after);
}

std::size_t CountValues(TypedDataContainer& tree) {
    std::size_t count = 0;
    for (const CatalogField& field : ContainerCatalog::ClassOf(tree).Fields()) {
        if (field.IsScalar()) {
            count += field.GetText(tree) != field.DefaultText() ? 1U : 0U;
        } else if (!field.IsList()) {
            TypedDataContainer* const child = field.GetChild(tree);
            count += child == nullptr ? 0U : CountValues(*child);
        } else if (!HoldsContainers(field)) {
            count += field.Length(tree);
        } else {
            for (std::size_t i = 0; i < field.Length(tree); ++i) {
                TypedDataContainer* const entry = field.Entry(tree, i);
                count += entry == nullptr ? 0U : CountValues(*entry);
            }
        }
    }
    return count;
}

} // namespace Lanedoc
