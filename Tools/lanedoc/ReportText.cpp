#include "ReportText.h"

#include <algorithm>
#include <array>

#include "Place.h"

namespace Lanedoc {

namespace {

using Entry = MergeJournal::Entry;
using Outcome = MergeJournal::Outcome;

constexpr std::size_t shownOfValue = 48;

class ReportPrinter {
public:
    ReportPrinter(const MergeRun& run, ReportScope scope, const Style& style)
        : m_run(run), m_scope(scope), m_style(style) {}

    std::string Print() {
        for (const MergedOverride& merged : m_run.Overrides()) {
            PrintOverride(merged);
        }
        if (m_scope == ReportScope::Everything) {
            PrintWithoutEffect();
        }
        PrintConflicts();
        return std::move(m_text);
    }

private:
    void PrintOverride(const MergedOverride& merged) {
        Line(m_style.Bold("Feature " + Printable(merged.feature) + ", " + Printable(merged.document)));
        m_counts = {};
        for (std::size_t number = merged.begin; number < merged.end; ++number) {
            const Entry entry = m_run.Journal().At(number);
            if (m_scope == ReportScope::Everything || entry.Result != Outcome::Unchanged) {
                ++m_counts[static_cast<std::size_t>(entry.Result)];
                PrintEntry(entry);
            }
        }
        Line("  " + Counts());
    }

    void PrintEntry(const Entry& entry) {
        std::string line = "  " + Outcomes(entry.Result) + "  " + Where(entry);
        if (const std::string values = ValuesOf(entry, Limit()); !values.empty() && !entry.Problem.has_value()) {
            line += "  " + values;
        }
        const std::string why = entry.Problem.has_value() ? entry.Problem->Text : entry.Cause;
        Line(line + (why.empty() ? "" : "  (" + Printable(why) + ")"));
    }

    std::string Outcomes(Outcome outcome) const {
        constexpr std::size_t width = 9;
        std::string word(OutcomeName(outcome));
        word.resize(std::max(word.size(), width), ' ');
        switch (outcome) {
        case Outcome::Added:
            return m_style.Green(word);
        case Outcome::Removed:
        case Outcome::Refused:
            return m_style.Red(word);
        case Outcome::Unchanged:
        case Outcome::Skipped:
            return m_style.Dim(word);
        default:
            return m_style.Yellow(word);
        }
    }

    static std::string Where(const Entry& entry) {
        return PlaceName(AsNamed(entry.Place)) + "  " +
               (entry.Path.empty() ? std::string("the whole document") : Printable(entry.Path));
    }

    std::string Counts() const {
        std::string text;
        for (std::size_t outcome = 0; outcome < m_counts.size(); ++outcome) {
            if (m_counts[outcome] > 0) {
                text += (text.empty() ? "" : ", ") + std::to_string(m_counts[outcome]) + " " +
                        std::string(OutcomeName(static_cast<Outcome>(outcome)));
            }
        }
        return text.empty() ? "changes nothing" : text;
    }

    void PrintWithoutEffect() {
        const std::vector<MergeJournal::Lost> all = m_run.Journal().WithoutEffect();
        if (all.empty()) {
            return;
        }
        Line(m_style.Bold("Without effect"));
        for (const MergeJournal::Lost& lost : all) {
            const Entry entry = m_run.Journal().At(lost.Entry);
            std::string line = "  " + Where(entry) + "  " + std::string(OutcomeName(entry.Result));
            if (lost.By.has_value()) {
                const Entry by = m_run.Journal().At(*lost.By);
                line += ", undone by feature " + Printable(by.FeatureID) + " at " + PlaceName(AsNamed(by.Place));
            }
            Line(line);
        }
    }

    void PrintConflicts() {
        const std::vector<MergeJournal::Conflict> all = m_run.Journal().Conflicts();
        if (all.empty()) {
            return;
        }
        Line(m_style.Bold("Conflicts"));
        for (const MergeJournal::Conflict& conflict : all) {
            Line("  " + Side(conflict.First) + "  against  " + Side(conflict.Second) + ", which wins");
        }
    }

    std::string Side(std::size_t number) const {
        const Entry entry = m_run.Journal().At(number);
        const std::string values = ValuesOf(entry, Limit());
        return Where(entry) + "  " + std::string(OutcomeName(entry.Result)) + " by feature " +
               Printable(entry.FeatureID) + (values.empty() ? "" : "  " + values);
    }

    std::size_t Limit() const { return m_scope == ReportScope::Everything ? 0 : shownOfValue; }
    void Line(const std::string& line) { m_text += line + '\n'; }

    const MergeRun& m_run;
    ReportScope m_scope;
    const Style& m_style;
    std::string m_text;
    std::array<std::size_t, static_cast<std::size_t>(Outcome::Refused) + 1> m_counts = {};
};

} // namespace

std::string ValuesOf(const Entry& entry, std::size_t limit) {
    if (entry.Result == Outcome::Moved) {
        return "to " + Printable(entry.NewValue);
    }
    if (entry.IsContainer) {
        return entry.Asked == MergeJournal::Action::Clear && entry.Result == Outcome::Changed ? "(by Clear)" : "";
    }
    std::string before = Quoted(entry.OldValue, limit);
    std::string after = Quoted(entry.NewValue, limit);
    switch (entry.Result) {
    case Outcome::Added:
    case Outcome::Unchanged:
        return after;
    case Outcome::Removed:
        return before;
    case Outcome::Changed:
    case Outcome::Replaced:
        return before + " -> " + after;
    default:
        return {};
    }
}

std::string ReportAsText(const MergeRun& run, ReportScope scope, const Style& style) {
    return ReportPrinter(run, scope, style).Print();
}

} // namespace Lanedoc
