#include "Message.h"

#include "DocPath.h"
#include "NearestName.h"
#include "Output.h"
#include "Place.h"

namespace Lanedoc {

namespace {

std::string AsAttribute(std::string_view name, std::string_view value) {
    return std::string(name).append("=\"").append(value).append("\"");
}

/// A name that may have been meant, as it would stand in the document.
std::string Pasteable(const Finding& finding, const std::string& name) {
    const std::string_view text = finding.Text;
    switch (finding.Code) {
    case FindingCode::UnknownElement:
        return "<" + name + ">";
    case FindingCode::UnknownAttribute:
        return name;
    case FindingCode::UnknownControlWord: // MergeAction="Delete" is ...
    case FindingCode::MissingNeighbour:
        return AsAttribute(text.substr(0, text.find('=')), name);
    case FindingCode::MissingTarget: {
        const std::vector<PathStep> steps = ParsePath(finding.Path);
        const bool hasKey = !steps.empty() && steps.back().selector == PathStep::Selector::Key;
        return hasKey ? AsAttribute(steps.back().keyAttribute, name) : Quoted(name);
    }
    default:
        return Quoted(name);
    }
}

std::string HelpOf(const Finding& finding) {
    if (finding.Near.empty()) {
        return finding.Code == FindingCode::TargetExists ? R"(MergeAction="Merge" changes what is there already)" : "";
    }
    std::vector<std::string> names;
    for (const zelString& name : finding.Near) {
        names.push_back(Pasteable(finding, name));
    }
    return DidYouMean(names);
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
