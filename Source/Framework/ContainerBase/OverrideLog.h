#pragma once

#include "Framework/ContainerBase/FoundProblem.h"
#include "Framework/MergeJournal.h"
#include "Framework/TypedDataContainer.h"
#include "Framework/XMLSupport/XmlTree.h"

namespace Framework {

/// While it lives, issues that this thread logs are said to stand at that node. Scopes nest, the innermost counts.
///
/// With a feature the node is one of an override that this thread is merging: whoever opens such a place has looked at
/// the node's control words. The feature must outlive it.
class OverridePlace {
public:
    OverridePlace(const XmlTree* tree, NodeRef node, const zelString* feature = nullptr);
    ~OverridePlace();
    OverridePlace(const OverridePlace&) = delete;
    OverridePlace& operator=(const OverridePlace&) = delete;

    /// Fills file, line and column of an issue from the innermost scope.
    static void Describe(OverrideIssue& issue);

    /// Whether this thread is merging.
    static bool IsMerging();
    /// Whether that is the node of an override that this thread is at.
    static bool IsAt(const XmlTree& tree, NodeRef node);
    /// The feature that this thread is merging from that tree, null when it is not.
    static const zelString* FeatureIn(const XmlTree& tree);
    /// The node that this thread is at; None, and no tree, when it is at none.
    static NodeRef Innermost(const XmlTree*& tree);

private:
    const XmlTree* m_tree;
    NodeRef m_node;
    const zelString* m_feature;
    const OverridePlace* m_outer;
};

/// Logs the object's last error as an override issue. A journal is not told: whoever calls this has told it, or there
/// is nothing to tell.
void LogLastError(TypedDataContainer& object, unsigned int line);

/// A node of an override, as messages name it: "State[Idle] of feature "Night"".
struct OverrideNode {
    const XmlTree& tree;
    NodeRef node;
    const zelString& feature;
    const zelString* key = nullptr; ///< of an entry of a keyed list
    std::string_view field{};       ///< below where the merge stands; empty when it stands at the node
};

/// What the node asks for, or part of it, is not done, or done otherwise than it seems: sets the error and logs it with
/// the node's place, and tells the journal.
void ReportOverride(TypedDataContainer& object, const OverrideNode& where, const FoundProblem& problem,
                    unsigned int line, MergeJournal::Outcome outcome = MergeJournal::Outcome::Refused);

/// How much this thread has told so far of what is wrong with overrides.
struct ToldIssues {
    std::size_t inLog;
    std::size_t inJournal;

    static ToldIssues SoFar() noexcept;
};

/// A watched merge has failed with the object's last error. Tells the log and the journal, unless they were told of
/// something since it began: else a journal would not know of an override that cannot be read.
void ReportFailedMerge(TypedDataContainer& object, const zelString& feature, const ToldIssues& before,
                       unsigned int line);

/// The journal of this thread, if any, is not complete.
void MissJournalEntry() noexcept;

/// What a merge does for those who watch it alone: it must not fail for that. Where memory runs out, the journal says
/// that it is not complete.
template <typename Work> void WhileMemoryLasts(Work work) {
    try {
        work();
    } catch (const std::bad_alloc&) {
        MissJournalEntry();
    }
}

/// Whether merges that begin now in this thread tell all that is wrong with an override.
bool IsMergeWatched() noexcept;

/// The names near to another one, as long as that costs a merge little: one override with a hundred thousand slips of
/// the hand must not take the square of the time. BeginNearSearches is called when an outer merge begins.
void BeginNearSearches() noexcept;
std::vector<std::string> NearInMerge(std::string_view name, const std::vector<std::string>& known);
/// Whether NearInMerge still looks, so that nobody need collect what is known.
bool MaySearchNear() noexcept;

} // namespace Framework
