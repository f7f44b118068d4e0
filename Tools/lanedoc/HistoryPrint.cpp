#include "HistoryPrint.h"

#include <algorithm>

#include "JsonValue.h"
#include "Place.h"
#include "ReportText.h"

namespace Lanedoc {

namespace {

using Outcome = MergeJournal::Outcome;

std::string WhoOf(const HistoryStep& step) {
    return step.who == MergeJournal::Writer::Kind::Feature ? Printable(step.feature) : WhoName(step.who);
}

std::string PlaceOf(const HistoryStep& step) {
    const std::string place = PlaceName(step.place);
    return place.empty() ? "-" : place;
}

std::string DeedOf(const HistoryStep& step, const std::string& historyPath) {
    if (step.value.has_value()) {
        const bool isMade = step.who == MergeJournal::Writer::Kind::Default && !step.feature.empty();
        return Quoted(*step.value) + (step.isReset ? "  (reset)" : "") +
               (isMade ? "  (in what " + Printable(step.feature) + " made)" : "");
    }
    if (!step.entry.has_value()) {
        return "removed";
    }
    const MergeJournal::Entry& entry = *step.entry;
    std::string deed(OutcomeName(entry.Result));
    if (entry.Problem.has_value()) {
        return deed + ": " + Printable(entry.Problem->Text);
    }
    if (entry.Path != historyPath && entry.Path.starts_with(historyPath + "[")) {
        deed += " " + Printable(entry.Path);
    }
    const std::string values = ValuesOf(entry, 0);
    return values.empty() || entry.Result == Outcome::Removed ? deed : deed + " " + values;
}

std::string Padded(const std::string& text, std::size_t width) {
    return text + std::string(width - std::min(width, Width(text)), ' ');
}

Json StepAsJson(const HistoryStep& step) {
    Json json = {{"who", WhoName(step.who)}};
    json["feature"] = step.feature.empty() ? Json() : Json(step.feature);
    json.update(JsonOf(step.place));
    if (step.entry.has_value()) {
        json["outcome"] = std::string(OutcomeName(step.entry->Result));
        json["path"] = std::string(step.entry->Path);
    }
    if (step.entry.has_value() && step.entry->Problem.has_value()) {
        const Severity severity = step.entry->Result == Outcome::Refused ? Severity::Error : Severity::Warning;
        json["problem"] = JsonOf(MessageOf(*step.entry->Problem, severity));
    } else {
        json["value"] = step.value.has_value() ? Json(*step.value) : Json();
        json["isReset"] = step.isReset;
    }
    json["wins"] = step.wins;
    return json;
}

} // namespace

std::string HistoryAsText(const History& history, const Style& style) {
    std::size_t whoWidth = 0;
    std::size_t placeWidth = 0;
    for (const HistoryStep& step : history.steps) {
        whoWidth = std::max(whoWidth, Width(WhoOf(step)));
        placeWidth = std::max(placeWidth, Width(PlaceOf(step)));
    }
    std::string text = style.Bold(history.path.empty() ? "the whole document" : Printable(history.path)) +
                       (!history.isThere            ? " is not there"
                        : history.value.has_value() ? " is " + Quoted(*history.value)
                                                    : "") +
                       '\n';
    for (const HistoryStep& step : history.steps) {
        const std::string line = Padded(PlaceOf(step), placeWidth) + "  " + Padded(WhoOf(step), whoWidth) + "  " +
                                 DeedOf(step, history.path);
        text += (step.wins ? "* " + style.Green(line) : "  " + line) + '\n';
    }
    return text;
}

std::string HistoryAsJson(const History& history, const std::string& rootName) {
    Json json = {{"format", jsonFormat},
                 {"root", rootName},
                 {"path", history.path},
                 {"isThere", history.isThere},
                 {"value", history.value.has_value() ? Json(*history.value) : Json()},
                 {"history", Json::array()}};
    for (const HistoryStep& step : history.steps) {
        json["history"].push_back(StepAsJson(step));
    }
    return WriteJson(json);
}

} // namespace Lanedoc
