#include "Conflicts.h"

#include "Framework/MergeJournal.h"
#include "MessageCodes.h"
#include "Output.h"
#include "Place.h"

namespace Lanedoc {

namespace {

using Conflict = MergeJournal::Conflict;
using Entry = MergeJournal::Entry;

constexpr std::size_t shownOfValue = 48;
/// Places that are told of one message; behind them only their number.
constexpr std::size_t mostNotes = 3;

/// An argument as a shell takes it.
std::string ForShell(const std::string& argument) {
    constexpr const char* plain = "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz0123456789=_-./:,@%+";
    if (!argument.empty() && argument.find_first_not_of(plain) == std::string::npos) {
        return argument;
    }
    std::string quoted = "'";
    for (const char character : argument) {
        quoted += character == '\'' ? std::string("'\\''") : std::string(1, character);
    }
    return quoted + "'";
}

std::string ExplainCommand(const MergeArguments& arguments, const std::string& path) {
    std::string command = "lanedoc explain " + ForShell(arguments.base);
    for (const std::string& change : arguments.overrides) {
        command += " " + ForShell(change);
    }
    return command + " --path " + ForShell(path);
}

/// What an entry did to its target, "sets it to ..." or "removes it".
std::string Deed(const Entry& entry) {
    switch (entry.Result) {
    case MergeJournal::Outcome::Removed:
        return "removes it";
    case MergeJournal::Outcome::Replaced:
        return entry.IsContainer ? "replaces it" : "sets it to " + Quoted(entry.NewValue, shownOfValue);
    case MergeJournal::Outcome::Moved:
        return "moves it";
    default:
        break;
    }
    if (!entry.IsContainer) {
        return "sets it to " + Quoted(entry.NewValue, shownOfValue);
    }
    return entry.Asked == MergeJournal::Action::Clear     ? "clears it"
           : entry.Result == MergeJournal::Outcome::Added ? "adds it"
                                                          : "edits it";
}

class ConflictTeller {
public:
    ConflictTeller(const MergeRun& run, const MergeArguments& arguments, Severity severity)
        : m_run(run), m_arguments(arguments), m_severity(severity) {}

    std::vector<Message> Tell() {
        const Conflict* last = nullptr;
        const std::vector<Conflict> conflicts = m_run.Journal().Conflicts();
        for (const Conflict& conflict : conflicts) {
            const bool isSameEdit = last != nullptr && conflict.What != Conflict::Kind::Values &&
                                    last->What == conflict.What && last->Second == conflict.Second;
            if (isSameEdit) {
                AddNote(conflict);
            } else {
                Begin(conflict);
            }
            last = &conflict;
        }
        End();
        return std::move(m_messages);
    }

private:
    void Begin(const Conflict& conflict) {
        End();
        const Entry first = m_run.Journal().At(conflict.First);
        const Entry second = m_run.Journal().At(conflict.Second);
        Message& message = m_messages.emplace_back();
        message.severity = m_severity;
        message.code = Codes::conflict;
        message.path = second.Path;
        message.place = AsNamed(second.Place);
        message.text = TextOf(conflict, first, second);
        message.help =
            ExplainCommand(m_arguments, conflict.What == Conflict::Kind::RemovedEdit ? first.Path : second.Path);
        m_notes = 0;
        AddNote(conflict);
        if (conflict.What == Conflict::Kind::Values) {
            AddBase(message, second.Path);
        }
    }

    static std::string TextOf(const Conflict& conflict, const Entry& first, const Entry& second) {
        const std::string later = Quoted(second.FeatureID);
        const std::string earlier = Quoted(first.FeatureID);
        switch (conflict.What) {
        case Conflict::Kind::Values:
            return second.Path + " is set by two features: " + later + " wins over " + earlier + " and " + Deed(second);
        case Conflict::Kind::RemovedEdit:
            return second.Path + " is edited by " + earlier + ", and then feature " + later + " " + Deed(second);
        case Conflict::Kind::EditRemoved:
            break;
        }
        return second.Path + " was taken away by " + earlier + ", and then feature " + later + " " + Deed(second);
    }

    void AddNote(const Conflict& conflict) {
        if (++m_notes <= mostNotes) {
            const Entry first = m_run.Journal().At(conflict.First);
            const bool isElsewhere = conflict.What != Conflict::Kind::Values;
            m_messages.back().notes.push_back(
                {AsNamed(first.Place),
                 "feature " + Quoted(first.FeatureID) + " " + Deed(first) + (isElsewhere ? ": " + first.Path : "")});
        }
    }

    void AddBase(Message& message, const std::string& path) const {
        for (const MergeJournal::Writer& writer : m_run.Journal().WritersOf(m_run.Tree(), path)) {
            if (writer.Who == MergeJournal::Writer::Kind::Base) {
                message.notes.push_back({AsNamed(writer.Place), "the base has " + Quoted(writer.Value, shownOfValue)});
                return;
            }
        }
    }

    void End() {
        if (m_notes > mostNotes) {
            m_messages.back().text += " (" + std::to_string(m_notes) + " places)";
        }
        m_notes = 0;
    }

    const MergeRun& m_run;
    const MergeArguments& m_arguments;
    Severity m_severity;
    std::vector<Message> m_messages;
    std::size_t m_notes = 0;
};

} // namespace

std::vector<Message> ConflictMessages(const MergeRun& run, const MergeArguments& arguments, Severity severity) {
    return ConflictTeller(run, arguments, severity).Tell();
}

} // namespace Lanedoc
