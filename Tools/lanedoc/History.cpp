#include "History.h"

#include <algorithm>

#include "DocPath.h"
#include "Failure.h"
#include "Place.h"
#include "TreeNode.h"

namespace Lanedoc {

namespace {

using Entry = MergeJournal::Entry;
using Outcome = MergeJournal::Outcome;
using Writer = MergeJournal::Writer;

std::string AsJournalHasIt(const std::string& path) {
    std::string joined;
    for (const PathStep& step : ParsePath(path)) {
        joined = FieldPath::Join(joined, FormatStep(step));
    }
    return joined;
}

/// The part, or none when it is not in the tree. What cannot be in it, as its class has no such field, is a Failure.
std::optional<TreeNode> FindPart(TypedDataContainer& tree, const std::string& path, std::string& whyAbsent) {
    try {
        return FindNode(tree, path);
    } catch (const Failure& failure) {
        if (failure.Code() != ExitCode::AnswerIsNo) {
            throw;
        }
        whyAbsent = failure.what();
        return std::nullopt;
    }
}

HistoryStep StepOf(const Writer& writer, const MergeJournal& journal, const std::string& path) {
    HistoryStep step;
    step.who = writer.Who;
    step.feature = writer.FeatureID;
    step.place = AsNamed(writer.Place);
    step.path = path;
    if (!writer.IsRemoval) {
        step.value = writer.Value;
    }
    step.isReset = writer.IsReset;
    step.wins = writer.Wins;
    if (writer.Entry.has_value()) {
        step.entry = journal.At(*writer.Entry);
    }
    return step;
}

HistoryStep StepOf(const Entry& entry) {
    HistoryStep step;
    step.feature = entry.FeatureID;
    step.place = AsNamed(entry.Place);
    step.path = entry.Path;
    step.entry = entry;
    return step;
}

/// Whether an entry of the journal has to do with a part as a whole, or was an attempt at it.
bool IsAbout(const Entry& entry, const std::string& path, bool isList) {
    if (entry.Path == path) {
        return entry.Problem.has_value() || (entry.IsContainer && entry.Result != Outcome::Unchanged);
    }
    const bool isInList = isList && entry.Path.starts_with(path + "[");
    return isInList && entry.Result != Outcome::Unchanged && ParsePath(entry.Path).size() == ParsePath(path).size();
}

class HistoryMaker {
public:
    HistoryMaker(const MergeRun& run, const std::string& path) : m_journal(run.Journal()), m_tree(run.Tree()) {
        m_node = FindPart(m_tree, path, m_whyAbsent);
        m_history.path = m_node.has_value() ? m_node->path : AsJournalHasIt(path);
        m_history.isThere = m_node.has_value();
    }

    History Make() {
        const bool isValue = IsKind(TreeNode::Kind::Scalar) || IsKind(TreeNode::Kind::Text);
        if (isValue) {
            m_history.value = m_node->kind == TreeNode::Kind::Scalar
                                  ? m_node->field->GetText(*m_node->object)
                                  : m_node->field->EntryText(*m_node->object, m_node->position);
        }
        if (isValue || !m_node.has_value()) {
            m_writers = m_journal.WritersOf(m_tree, m_history.path);
        }
        PutInOrder();
        if (m_history.steps.empty()) {
            RefuseUntouched();
        }
        return std::move(m_history);
    }

private:
    bool IsKind(TreeNode::Kind kind) const { return m_node.has_value() && m_node->kind == kind; }

    /// Writers and attempts come in the order in which they happened.
    void PutInOrder() {
        auto writer = m_writers.begin();
        const auto takeWriters = [&](std::size_t before) {
            const auto isBefore = [before](const Writer& each) { return !each.Entry || *each.Entry < before; };
            for (; writer != m_writers.end() && isBefore(*writer); ++writer) { // the base has no entry
                m_history.steps.push_back(StepOf(*writer, m_journal, m_history.path));
            }
        };
        const bool isValue = !m_writers.empty();
        for (std::size_t number = 0; number < m_journal.Size(); ++number) {
            const Entry entry = m_journal.At(number);
            if (IsAbout(entry, m_history.path, IsKind(TreeNode::Kind::List)) &&
                (!isValue || entry.Problem.has_value())) {
                takeWriters(number);
                m_history.steps.push_back(StepOf(entry));
            }
        }
        takeWriters(m_journal.Size() + 1);
    }

    [[noreturn]] void RefuseUntouched() const {
        if (!m_node.has_value()) {
            throw Failure(ExitCode::AnswerIsNo, m_whyAbsent);
        }
        if (m_node->kind != TreeNode::Kind::List) {
            RefuseContainer(*m_node);
        }
        if (m_node->field->Length(*m_node->object) == 0) {
            throw Failure(ExitCode::AnswerIsNo, "lanedoc: " + Printable(m_node->path) + " is an empty list");
        }
        if (HoldsContainers(*m_node->field)) {
            RefuseContainerList(*m_node);
        }
        throw Failure(ExitCode::WrongUse, "lanedoc: error: " + Printable(m_node->path) +
                                              " is a list that no feature touched; name an entry, as in " +
                                              Printable(FirstEntryPath(*m_node)));
    }

    const MergeJournal& m_journal;
    TypedDataContainer& m_tree;
    std::optional<TreeNode> m_node;
    std::string m_whyAbsent;
    std::vector<Writer> m_writers;
    History m_history;
};

} // namespace

History HistoryOf(const MergeRun& run, const std::string& path) {
    return HistoryMaker(run, path).Make();
}

const char* WhoName(Writer::Kind who) {
    switch (who) {
    case Writer::Kind::Default:
        return "default";
    case Writer::Kind::Base:
        return "base";
    case Writer::Kind::Feature:
        break;
    }
    return "feature";
}

} // namespace Lanedoc
