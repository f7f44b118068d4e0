#include "Message.h"

#include "NearestName.h"
#include "Output.h"
#include "Place.h"

namespace Lanedoc {

namespace {

std::string HelpOf(const Finding& finding) {
    if (!finding.Near.empty()) {
        return HelpWith({finding.Near.begin(), finding.Near.end()});
    }
    return finding.Code == FindingCode::TargetExists ? R"(MergeAction="Merge" changes what is there already)" : "";
}

} // namespace

std::string HelpWith(const std::vector<std::string>& names) {
    std::vector<std::string> quoted;
    quoted.reserve(names.size());
    for (const std::string& name : names) {
        quoted.push_back(Quoted(name));
    }
    return DidYouMean(quoted);
}

Message MessageOf(const Finding& finding, Severity severity) {
    Message message;
    message.severity = severity;
    message.code = FindingName(finding.Code);
    message.place = AsNamed(finding.Place);
    message.path = finding.Path;
    message.text = finding.Text;
    for (const Finding::Note& note : finding.Notes) {
        message.notes.push_back({AsNamed(note.Place), note.Text});
    }
    message.help = HelpOf(finding);
    return message;
}

Severity SeverityOf(FindingCode code) {
    // What a class reports by itself may have been taken all the same; all else was passed over, refused or misread.
    return code == FindingCode::OtherIssue ? Severity::Warning : Severity::Error;
}

std::string_view SeverityName(Severity severity) {
    return severity == Severity::Error ? "error" : "warning";
}

Json JsonOf(const Message& message) {
    Json json;
    json["severity"] = SeverityName(message.severity);
    json["code"] = message.code;
    json.update(JsonOf(message.place));
    json["path"] = message.path;
    json["text"] = message.text;
    json["notes"] = Json::array();
    for (const Message::Note& note : message.notes) {
        Json& told = json["notes"].emplace_back(JsonOf(note.place));
        told["text"] = note.text;
    }
    if (!message.help.empty()) {
        json["help"] = message.help;
    }
    return json;
}

} // namespace Lanedoc
