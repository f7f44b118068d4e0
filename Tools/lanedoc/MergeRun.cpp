#include "MergeRun.h"

#include <algorithm>
#include <set>
#include <tuple>
#include <utility>

namespace Lanedoc {

namespace {

Message FailedMerge(const zelString& why, const std::string& document) {
    Message message;
    message.code = FindingName(FindingCode::OtherIssue);
    message.place.File = document;
    message.text = why;
    return message;
}

} // namespace

std::size_t MergedOverride::Refused() const {
    return static_cast<std::size_t>(std::count_if(
        messages.begin(), messages.end(), [](const Message& message) { return message.severity == Severity::Error; }));
}

MergeRun::MergeRun(MergeInput& input) : m_input(input), m_tree(input.base->Load()) {
    m_baseMessages = m_issues.TakeMessages(Severity::Warning, input.base->Name());
}

const MergedOverride& MergeRun::MergeNext() {
    const Override& change = m_input.overrides.at(m_overrides.size());
    XMLDataWrapper& document = change.source->Document();
    document.SetCurrentNode(nullptr);
    MergedOverride merged{change.feature, change.source->Name(), false, m_journal.Size(), 0, {}};
    bool isMerged = false;
    {
        const MergeJournal::Recording recording(m_journal);
        isMerged = m_tree->MergeFromDataPacket(nullptr, change.feature, &document, false);
    }
    merged.end = m_journal.Size();
    merged.messages = MessagesOf(merged);
    if (!isMerged && merged.Refused() == 0) {
        merged.messages.push_back(FailedMerge(m_tree->GetLastError(), merged.document));
    }
    merged.replacesAll = isMerged && document.GetStringValue("@MergeAction", false) == "Replace";
    return m_overrides.emplace_back(std::move(merged));
}

std::vector<Message> MergeRun::MessagesOf(const MergedOverride& merged) {
    std::vector<Message> messages;
    // The override log hears of every problem in the journal; when it heard of none, no entry need be read.
    std::vector<Message> logged = m_issues.TakeMessages(Severity::Error, merged.document);
    if (logged.empty()) {
        return messages;
    }
    std::set<std::pair<std::size_t, std::size_t>> told; // places
    for (std::size_t number = merged.begin; number < merged.end; ++number) {
        const MergeJournal::Entry entry = m_journal.At(number);
        if (entry.Problem.has_value()) {
            const bool isRefused = entry.Result == MergeJournal::Outcome::Refused;
            Message& message =
                messages.emplace_back(MessageOf(*entry.Problem, isRefused ? Severity::Error : Severity::Warning));
            if (message.place.File.empty()) { // it is about the override as a whole
                message.place.File = merged.document;
            }
            told.insert({entry.Problem->Place.Line, entry.Problem->Place.Column});
        }
    }
    // It knows more only where memory for the journal ran out. Then nobody can say whether the thing was refused.
    for (Message& message : logged) {
        if (!told.contains({message.place.Line, message.place.Column})) {
            messages.push_back(std::move(message));
        }
    }
    // A merge takes elements before attributes; a person reads from the top.
    std::stable_sort(messages.begin(), messages.end(), [](const Message& one, const Message& other) {
        return std::tie(one.place.Line, one.place.Column) < std::tie(other.place.Line, other.place.Column);
    });
    return messages;
}

std::size_t MergeRun::Refused() const {
    std::size_t refused = 0;
    for (const MergedOverride& merged : m_overrides) {
        refused += merged.Refused();
    }
    return refused;
}

Messages MessagesAbout(MergeInput& input, const MergeArguments& arguments, const Style& style) {
    Messages messages(style, arguments.maxErrors);
    messages.AddSource(*input.base);
    for (const Override& change : input.overrides) {
        messages.AddSource(*change.source);
    }
    return messages;
}

void TellOf(const MergedOverride& merged, Messages& messages, bool quiet) {
    for (const Message& message : merged.messages) {
        if (!quiet || message.severity == Severity::Error) {
            messages.Tell(message);
        }
    }
}

void MergeAll(MergeRun& run, Messages& messages, bool quiet) {
    while (!run.IsDone()) {
        TellOf(run.MergeNext(), messages, quiet);
    }
}

} // namespace Lanedoc
