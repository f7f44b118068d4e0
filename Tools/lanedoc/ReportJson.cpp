#include "ReportJson.h"

#include "Place.h"

namespace Lanedoc {

namespace {

using Entry = MergeJournal::Entry;
using Outcome = MergeJournal::Outcome;

Json EntryAsJson(const Entry& entry, std::size_t number) {
    Json json = {{"entry", number},
                 {"outcome", std::string(OutcomeName(entry.Result))},
                 {"action", std::string(ActionName(entry.Asked))}};
    json.update(JsonOf(AsNamed(entry.Place)));
    json["path"] = std::string(entry.Path);
    json["isContainer"] = entry.IsContainer;
    if (entry.Problem.has_value()) {
        const Severity severity = entry.Result == Outcome::Refused ? Severity::Error : Severity::Warning;
        json["problem"] = JsonOf(MessageOf(*entry.Problem, severity));
        return json;
    }
    if (entry.Result == Outcome::Moved) {
        json["to"] = std::string(entry.NewValue);
    } else if (!entry.IsContainer) {
        json["old"] = entry.Result == Outcome::Added ? Json() : Json(std::string(entry.OldValue));
        json["new"] = entry.Result == Outcome::Removed ? Json() : Json(std::string(entry.NewValue));
    }
    if (!entry.Cause.empty()) {
        json["cause"] = std::string(entry.Cause);
    }
    return json;
}

Json OverrideAsJson(const MergeRun& run, const MergedOverride& merged, ReportScope scope) {
    Json entries = Json::array();
    for (std::size_t number = merged.begin; number < merged.end; ++number) {
        const Entry entry = run.Journal().At(number);
        if (scope == ReportScope::Everything || entry.Result != Outcome::Unchanged) {
            entries.push_back(EntryAsJson(entry, number));
        }
    }
    return {{"feature", merged.feature}, {"document", merged.document}, {"entries", std::move(entries)}};
}

Json LostAsJson(const MergeJournal::Lost& lost) {
    return {{"entry", lost.Entry}, {"by", lost.By.has_value() ? Json(*lost.By) : Json()}};
}

Json ConflictAsJson(const MergeJournal::Conflict& conflict) {
    using Kind = MergeJournal::Conflict::Kind;
    const char* const kind = conflict.What == Kind::Values        ? "values"
                             : conflict.What == Kind::RemovedEdit ? "removedEdit"
                                                                  : "editRemoved";
    return {{"kind", kind}, {"first", conflict.First}, {"second", conflict.Second}};
}

} // namespace

std::string ReportAsJson(const MergeRun& run, ReportScope scope) {
    Json json = {{"format", jsonFormat},
                 {"root", run.Input().base->RootName()},
                 {"base", run.Input().base->Name()},
                 {"isComplete", run.Journal().IsComplete()},
                 {"refused", run.Refused()},
                 {"overrides", Json::array()}};
    for (const MergedOverride& merged : run.Overrides()) {
        json["overrides"].push_back(OverrideAsJson(run, merged, scope));
    }
    if (scope == ReportScope::Everything) {
        json["withoutEffect"] = Json::array();
        for (const MergeJournal::Lost& lost : run.Journal().WithoutEffect()) {
            json["withoutEffect"].push_back(LostAsJson(lost));
        }
    }
    json["conflicts"] = Json::array();
    for (const MergeJournal::Conflict& conflict : run.Journal().Conflicts()) {
        json["conflicts"].push_back(ConflictAsJson(conflict));
    }
    return WriteJson(json);
}

} // namespace Lanedoc
