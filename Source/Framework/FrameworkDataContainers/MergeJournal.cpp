#include "Framework/MergeJournal.h"

#include <algorithm>
#include <array>

#include "Framework/ContainerBase/JournalConflicts.h"
#include "Framework/FrameworkDataContainers/JournalHistory.h"

using namespace Framework;

MergeJournal::MergeJournal() : m_pData(std::make_unique<JournalData>()) {}

MergeJournal::~MergeJournal() = default;

std::size_t MergeJournal::Size() const {
    return m_pData->Records().size();
}

MergeJournal::Entry MergeJournal::At(std::size_t position) const {
    return position < Size() ? m_pData->EntryAt(position) : Entry();
}

bool MergeJournal::IsComplete() const {
    return m_pData->IsComplete();
}

void MergeJournal::Clear() {
    m_pData->Clear();
}

std::vector<std::size_t> MergeJournal::EntriesOf(const zelString& sFeatureID) const {
    std::vector<std::size_t> numbers;
    for (std::size_t i = 0; i < Size(); ++i) {
        if (m_pData->MergeOf(m_pData->At(i)).feature == sFeatureID) {
            numbers.push_back(i);
        }
    }
    return numbers;
}

std::vector<std::size_t> MergeJournal::Problems() const {
    std::vector<std::size_t> numbers;
    for (std::size_t i = 0; i < Size(); ++i) {
        if (m_pData->At(i).problem != 0) {
            numbers.push_back(i);
        }
    }
    return numbers;
}

std::vector<MergeJournal::Writer> MergeJournal::WritersOf(TypedDataContainer& tree, const zelString& sPath) const {
    return WritersIn(*m_pData, tree, sPath);
}

MergeJournal::Writer MergeJournal::OriginOf(TypedDataContainer& tree, const zelString& sPath) const {
    std::vector<Writer> writers = WritersOf(tree, sPath);
    const auto winner = std::find_if(writers.begin(), writers.end(), [](const Writer& writer) { return writer.Wins; });
    return winner == writers.end() ? Writer() : std::move(*winner);
}

std::vector<MergeJournal::Lost> MergeJournal::WithoutEffect() const {
    std::vector<Lost> all = FindDisputes(*m_pData).lost;
    for (std::size_t i = 0; i < Size(); ++i) {
        const Outcome outcome = m_pData->At(i).outcome;
        if (outcome == Outcome::Unchanged || outcome == Outcome::Skipped || outcome == Outcome::Refused) {
            all.push_back({i, {}});
        }
    }
    std::stable_sort(all.begin(), all.end(),
                     [](const Lost& left, const Lost& right) { return left.Entry < right.Entry; });
    return all;
}

std::vector<MergeJournal::Conflict> MergeJournal::Conflicts() const {
    return FindDisputes(*m_pData).conflicts;
}

std::string_view ActionName(MergeJournal::Action action) {
    constexpr std::array<std::string_view, 6> names = {"Merge", "Add", "Replace", "Remove", "Clear", "Place"};
    return names[static_cast<std::size_t>(action)];
}

std::string_view OutcomeName(MergeJournal::Outcome outcome) {
    constexpr std::array<std::string_view, 8> names = {"added", "changed",   "replaced", "removed",
                                                       "moved", "unchanged", "skipped",  "refused"};
    return names[static_cast<std::size_t>(outcome)];
}
