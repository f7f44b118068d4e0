#include "BaseLosses.h"

#include "LostParts.h"
#include "MessageCodes.h"
#include "NearestName.h"
#include "Output.h"

namespace Lanedoc {

namespace {

constexpr const char* fate = "will not be in the result";

std::string CodeOf(LostPart::Kind kind) {
    switch (kind) {
    case LostPart::Kind::Element:
        return std::string(FindingName(FindingCode::UnknownElement));
    case LostPart::Kind::Attribute:
        return std::string(FindingName(FindingCode::UnknownAttribute));
    case LostPart::Kind::Text:
        return std::string(FindingName(FindingCode::StrayText));
    case LostPart::Kind::Comment:
        return std::string(Codes::lostComment);
    case LostPart::Kind::Instruction:
        break;
    }
    return std::string(Codes::lostInstruction);
}

std::string Described(const LostPart& part) {
    const std::string count = std::to_string(part.count);
    if (part.kind == LostPart::Kind::Comment || part.kind == LostPart::Kind::Instruction) {
        const std::string what = part.kind == LostPart::Kind::Comment ? "comment" : "processing instruction";
        return part.count == 1 ? "a " + what + " " + fate : count + " " + what + "s " + fate + ", the first is here";
    }
    const std::string what = part.kind == LostPart::Kind::Element     ? "element " + part.name + " in "
                             : part.kind == LostPart::Kind::Attribute ? "attribute " + part.name + " of "
                                                                      : "text in ";
    return "the " + what + part.owner + " is no field and " + fate +
           (part.count == 1 ? "" : " (" + count + " times, first here)");
}

/// How much of its line is underlined: what opens the part.
std::size_t LengthOf(const LostPart& part) {
    switch (part.kind) {
    case LostPart::Kind::Element:
        return 1 + Width(part.name);
    case LostPart::Kind::Attribute:
        return Width(part.name);
    case LostPart::Kind::Comment:
        return std::string_view("<!--").size();
    default:
        return 1;
    }
}

Message MessageOf(const LostPart& part, const std::string& document) {
    Message message;
    message.severity = Severity::Warning;
    message.code = CodeOf(part.kind);
    message.place.File = document;
    message.place.Line = static_cast<unsigned int>(part.line);
    message.place.Column = static_cast<unsigned int>(part.column);
    message.place.Length = static_cast<unsigned int>(LengthOf(part));
    message.text = Described(part);
    std::vector<std::string> names;
    for (const std::string& name : part.near) {
        names.push_back(part.kind == LostPart::Kind::Element ? "<" + name + ">" : name);
    }
    message.help = DidYouMean(names);
    return message;
}

} // namespace

std::vector<Message> LossesIn(Source& base) {
    std::vector<Message> messages;
    for (const LostPart& part : FindLostParts(std::string(base.Document().GetXMLText()), base.Class())) {
        messages.push_back(MessageOf(part, base.Name()));
    }
    return messages;
}

} // namespace Lanedoc
