#include "Framework/ContainerBase/JournalConflicts.h"

#include <algorithm>

#include "Framework/ContainerBase/JournalIndex.h"

namespace Framework {

namespace {

using Action = MergeJournal::Action;
using Outcome = MergeJournal::Outcome;
using Conflict = MergeJournal::Conflict;

class DisputeSearch {
public:
    using Number = JournalIndex::Number;

    explicit DisputeSearch(const JournalData& journal)
        : m_journal(journal), m_index(journal.Index()), m_standing(m_index.PlaceCount()) {}

    JournalDisputes Run() {
        for (std::size_t record = 0; record < m_journal.Records().size(); ++record) {
            Take(static_cast<Number>(record));
        }
        return std::move(m_found);
    }

private:
    static constexpr Number kNone = JournalIndex::kNone;

    /// The edits that stand at one path, by number.
    struct Standing {
        Number edit = kNone;    ///< of the value, or of the container as a whole
        Number move = kNone;    ///< of its place in the list
        Number removal = kNone; ///< it is gone
        std::size_t live = 0;   ///< how many of these there are, here and below
    };

    const std::string& FeatureOf(Number record) const { return m_journal.MergeOf(m_journal.At(record)).feature; }

    void Take(Number number) {
        const JournalData::Record& record = m_journal.At(number);
        if (record.problem != 0 || record.outcome == Outcome::Unchanged || record.outcome == Outcome::Skipped ||
            record.outcome == Outcome::Refused) {
            return;
        }
        const Number place = m_index.PlaceOf(number);
        if (record.action == Action::Place) {
            TakeMove(place, number);
        } else if (record.isContainer) {
            TakeContainer(place, number, record);
        } else {
            TakeValue(place, number, record);
        }
    }

    void TakeMove(Number place, Number number) {
        Number& before = m_standing[place].move;
        if (before != kNone && FeatureOf(before) != FeatureOf(number)) {
            Dispute(Conflict::Kind::Values, before, number);
        }
        Stand(place, before, number);
    }

    void TakeValue(Number place, Number number, const JournalData::Record& record) {
        Standing& standing = m_standing[place];
        if (standing.removal != kNone && FeatureOf(standing.removal) != FeatureOf(number)) {
            Dispute(Conflict::Kind::EditRemoved, standing.removal, number);
        }
        Fall(place, standing.removal);
        if (standing.edit != kNone && FeatureOf(standing.edit) != FeatureOf(number)) {
            Dispute(record.outcome == Outcome::Removed ? Conflict::Kind::RemovedEdit : Conflict::Kind::Values,
                    standing.edit, number);
        }
        if (record.outcome == Outcome::Removed) {
            Fall(place, standing.edit);
            Fall(place, standing.move);
            Stand(place, standing.removal, number);
        } else {
            Stand(place, standing.edit, number);
        }
    }

    void TakeContainer(Number place, Number number, const JournalData::Record& record) {
        if (record.outcome == Outcome::Added) {
            Number& removal = m_standing[place].removal;
            if (removal != kNone && FeatureOf(removal) != FeatureOf(number)) {
                Dispute(Conflict::Kind::EditRemoved, removal, number);
            }
            Fall(place, removal);
        } else {
            Overthrow(place, number, record.action == Action::Clear);
        }
        if (record.outcome == Outcome::Removed) {
            Stand(place, m_standing[place].removal, number);
        } else {
            Stand(place, m_standing[place].edit, number);
        }
    }

    /// Nothing stands any more of what was done at that place and below. A Clear keeps the container, its place and its
    /// attributes.
    void Overthrow(Number place, Number number, bool isClear) {
        std::vector<std::pair<std::string, Number>> firstOf; // of each feature
        std::vector<Number> places{place};
        while (!places.empty()) {
            const Number at = places.back();
            places.pop_back();
            if (m_standing[at].live == 0) {
                continue;
            }
            places.insert(places.end(), m_index.Below(at).begin(), m_index.Below(at).end());
            const bool isKept = isClear && (at == place || (m_index.Parent(at) == place && IsAttribute(at)));
            if (!isKept) {
                for (Number* const standing : {&m_standing[at].edit, &m_standing[at].move}) {
                    Overthrow(at, *standing, number, firstOf);
                }
                Fall(at, m_standing[at].removal);
            }
        }
        for (const auto& [feature, first] : firstOf) {
            m_found.conflicts.push_back({Conflict::Kind::RemovedEdit, first, number});
        }
    }

    void Overthrow(Number place, Number& standing, Number number,
                   std::vector<std::pair<std::string, Number>>& firstOf) {
        if (standing == kNone) {
            return;
        }
        if (const std::string& feature = FeatureOf(standing); feature != FeatureOf(number)) {
            m_found.lost.push_back({standing, number});
            const auto known =
                std::find_if(firstOf.begin(), firstOf.end(), [&](const auto& first) { return first.first == feature; });
            if (known == firstOf.end()) {
                firstOf.emplace_back(feature, standing);
            } else {
                known->second = std::min(known->second, standing);
            }
        }
        Fall(place, standing);
    }

    bool IsAttribute(Number place) const {
        const std::vector<Number>& records = m_index.RecordsAt(place);
        return !records.empty() && m_journal.At(records.front()).isAttribute;
    }

    void Dispute(Conflict::Kind kind, Number first, Number second) {
        m_found.conflicts.push_back({kind, first, second});
        if (kind != Conflict::Kind::EditRemoved || m_journal.At(first).outcome == Outcome::Removed) {
            m_found.lost.push_back({first, second});
        }
    }

    void Stand(Number place, Number& standing, Number number) {
        if (standing == kNone) {
            Count(place, 1);
        }
        standing = number;
    }

    void Fall(Number place, Number& standing) {
        if (standing != kNone) {
            Count(place, -1);
            standing = kNone;
        }
    }

    void Count(Number place, int difference) {
        for (; place != kNone; place = m_index.Parent(place)) {
            m_standing[place].live += static_cast<std::size_t>(static_cast<std::ptrdiff_t>(difference));
        }
    }

    const JournalData& m_journal;
    const JournalIndex& m_index;
    std::vector<Standing> m_standing;
    JournalDisputes m_found;
};

} // namespace

JournalDisputes FindDisputes(const JournalData& journal) {
    return DisputeSearch(journal).Run();
}

} // namespace Framework
