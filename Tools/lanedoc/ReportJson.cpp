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

void WriteOverride(const MergeRun& run, const MergedOverride& merged, ReportScope scope, JsonStream& json) {
    json.OpenObject();
    json.Add("feature", merged.feature);
    json.Add("document", merged.document);
    json.OpenArray("entries");
    for (std::size_t number = merged.begin; number < merged.end; ++number) {
        const Entry entry = run.Journal().At(number);
        if (scope == ReportScope::Everything || entry.Result != Outcome::Unchanged) {
            json.Add(EntryAsJson(entry, number));
        }
    }
    json.Close();
    json.Close();
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

void WriteReportAsJson(const MergeRun& run, ReportScope scope, JsonStream& json) {
    json.OpenObject();
    json.Add("format", jsonFormat);
    json.Add("root", run.Input().base->RootName());
    json.Add("base", run.Input().base->Name());
    json.Add("isComplete", run.Journal().IsComplete());
    json.Add("refused", run.Refused());
    json.OpenArray("overrides");
    for (const MergedOverride& merged : run.Overrides()) {
        WriteOverride(run, merged, scope, json);
    }
    json.Close();
    if (scope == ReportScope::Everything) {
        json.OpenArray("withoutEffect");
        for (const MergeJournal::Lost& lost : run.Journal().WithoutEffect()) {
            json.Add(LostAsJson(lost));
        }
        json.Close();
    }
    json.OpenArray("conflicts");
    for (const MergeJournal::Conflict& conflict : run.Journal().Conflicts()) {
        json.Add(ConflictAsJson(conflict));
    }
    json.Close();
    json.Close();
}

} // namespace Lanedoc
