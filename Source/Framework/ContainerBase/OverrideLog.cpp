#include "Framework/ContainerBase/OverrideLog.h"

#include <atomic>
#include <cstdio>
#include <mutex>

#include "Framework/ContainerBase/ContainerAccess.h"
#include "Framework/ContainerBase/JournalData.h"
#include "Framework/NearestNames.h"
#include "Framework/XMLSupport/NodePlace.h"

namespace Framework {

namespace {

thread_local const OverridePlace* innermostPlace = nullptr;
thread_local std::size_t loggedIssues = 0;

struct Handler {
    TypedDataContainer::OverrideIssueHandler function = nullptr;
    void* context = nullptr;
};

std::mutex& HandlerMutex() {
    static std::mutex mutex;
    return mutex;
}

Handler& InstalledHandler() {
    static Handler handler;
    return handler;
}

void PrintIssue(const OverrideIssue& issue) {
    zelString text;
    if (issue.Line > 0) {
        text.Format("%s:%u:%u: ", issue.File.c_str(), issue.Line, issue.Column);
    }
    zelString what;
    what.Format("%s: %s (feature \"%s\", reported at line %u)\n", issue.ContainerName.c_str(), issue.ErrorText.c_str(),
                issue.FeatureID.c_str(), issue.SourceLine);
    text += what;
    std::fputs(text.c_str(), stderr); // one write, so that the lines of several threads do not mix
}

} // namespace

OverridePlace::OverridePlace(const XmlTree* tree, NodeRef node, const zelString* feature)
    : m_tree(tree), m_node(node), m_feature(feature), m_outer(innermostPlace) {
    innermostPlace = this;
}

OverridePlace::~OverridePlace() {
    innermostPlace = m_outer;
}

bool OverridePlace::IsMerging() {
    return innermostPlace != nullptr && innermostPlace->m_feature != nullptr;
}

bool OverridePlace::IsAt(const XmlTree& tree, NodeRef node) {
    return innermostPlace != nullptr && innermostPlace->m_feature != nullptr && innermostPlace->m_tree == &tree &&
           innermostPlace->m_node == node;
}

const zelString* OverridePlace::FeatureIn(const XmlTree& tree) {
    return innermostPlace != nullptr && innermostPlace->m_tree == &tree ? innermostPlace->m_feature : nullptr;
}

void OverridePlace::Describe(OverrideIssue& issue) {
    const OverridePlace* const place = innermostPlace;
    const auto* const document = place == nullptr ? nullptr : dynamic_cast<const Document*>(place->m_tree);
    if (document != nullptr) {
        const DocumentPlace where = PlaceOfNode(*document, place->m_node);
        issue.File = where.File;
        issue.Line = where.Line;
        issue.Column = where.Column;
    }
}

NodeRef OverridePlace::Innermost(const XmlTree*& tree) {
    tree = innermostPlace == nullptr ? nullptr : innermostPlace->m_tree;
    return tree == nullptr ? NodeRef::None : innermostPlace->m_node;
}

namespace {

void LogIssue(zelString feature, zelString containerName, zelString error, unsigned int line) {
    OverrideIssue issue{std::move(feature), std::move(containerName), std::move(error), line, {}, 0, 0};
    OverridePlace::Describe(issue);
    ++loggedIssues;
    Handler handler;
    {
        const std::lock_guard lock(HandlerMutex());
        handler = InstalledHandler();
    }
    if (handler.function != nullptr) {
        handler.function(handler.context, issue);
    } else {
        PrintIssue(issue);
    }
}

/// "; did you mean A or B?"; nothing where the text lists the words that exist.
std::string Suggestion(const FoundProblem& problem) {
    std::string text;
    if (problem.code != FindingCode::UnknownControlWord) {
        for (std::size_t i = 0; i < problem.near.size(); ++i) {
            text += i == 0 ? "; did you mean " : i + 1 == problem.near.size() ? " or " : ", ";
            text += problem.near[i];
        }
    }
    return text.empty() ? text : text + "?";
}

std::atomic<bool> isStrict = false;
thread_local int nearSearches = 0;

} // namespace

void LogLastError(TypedDataContainer& object, unsigned int line) {
    LogIssue(object.GetFeatureID(), object.GetContainerName(), object.GetLastError(), line);
}

void ReportOverride(TypedDataContainer& object, const OverrideNode& where, const FoundProblem& problem,
                    unsigned int line, MergeJournal::Outcome outcome) {
    if (JournalData* const journal = JournalData::Current()) {
        journal->WriteProblem(where.tree, where.node, where.field, outcome, problem);
    }
    // The log tells of the node; who watches is told of the very word.
    const bool isExact = problem.where != NodeRef::None && IsMergeWatched();
    const OverridePlace place(&where.tree, isExact ? problem.where : where.node, &where.feature);
    std::string name(where.tree.Name(where.node));
    if (where.key != nullptr) {
        name += "[" + *where.key + "]";
    }
    const std::string text = problem.text + Suggestion(problem);
    object.SetLastError(-1, "%s of feature \"%s\": %s", name.c_str(), where.feature.c_str(), text.c_str());
    LogLastError(object, line);
}

ToldIssues ToldIssues::SoFar() noexcept {
    const JournalData* const journal = JournalData::Current();
    return {loggedIssues, journal == nullptr ? 0 : journal->ProblemCount()};
}

void ReportFailedMerge(TypedDataContainer& object, const zelString& feature, const ToldIssues& before,
                       unsigned int line) {
    const ToldIssues now = ToldIssues::SoFar();
    JournalData* const journal = JournalData::Current();
    if (journal != nullptr && now.inJournal == before.inJournal) {
        journal->WriteFailure(feature, {FindingCode::NotLoaded, object.GetLastError()});
    }
    if (now.inLog == before.inLog) {
        LogIssue(feature, object.GetContainerName(), object.GetLastError(), line);
    }
}

void MissJournalEntry() noexcept {
    if (JournalData* const journal = JournalData::Current()) {
        journal->MissEntry();
    }
}

bool IsMergeWatched() noexcept {
    return JournalData::Current() != nullptr || isStrict.load(std::memory_order_relaxed);
}

void BeginNearSearches() noexcept {
    nearSearches = 256;
}

bool MaySearchNear() noexcept {
    return nearSearches > 0;
}

std::vector<std::string> NearInMerge(std::string_view name, const std::vector<std::string>& known) {
    if (!MaySearchNear()) {
        return {};
    }
    --nearSearches;
    return NearestNames(name, known);
}

} // namespace Framework

void TypedDataContainer::LogFeatureOverrideIssue(zelString sFeatureID, zelString sContainerName, zelString sError,
                                                 unsigned int uLine) {
    using namespace Framework;
    JournalData* const journal = JournalData::Current();
    const XmlTree* tree = nullptr;
    const NodeRef node = OverridePlace::Innermost(tree);
    if (journal != nullptr && tree != nullptr) {
        journal->WriteProblem(*tree, node, {}, MergeJournal::Outcome::Refused, {FindingCode::OtherIssue, sError});
    }
    LogIssue(std::move(sFeatureID), std::move(sContainerName), std::move(sError), uLine);
}

void TypedDataContainer::SetOverrideIssueHandler(OverrideIssueHandler pHandler, void* pContext) {
    const std::lock_guard lock(Framework::HandlerMutex());
    Framework::InstalledHandler() = {pHandler, pContext};
}

// --- MergeJournal, as far as it is about merges that are to come

MergeJournal::Recording::Recording(MergeJournal& journal) noexcept
    : m_pOuter(Framework::JournalData::Install(Framework::JournalData::Of(journal))) {}

MergeJournal::Recording::~Recording() {
    Framework::JournalData::Install(m_pOuter);
}

void MergeJournal::SetStrict(bool bStrict) noexcept {
    Framework::isStrict.store(bStrict, std::memory_order_relaxed);
}

bool MergeJournal::IsStrict() noexcept {
    return Framework::isStrict.load(std::memory_order_relaxed);
}
