#pragma once

#include <cstddef>
#include <memory>
#include <string>
#include <vector>

#include "Framework/MergeJournal.h"
#include "IssueLog.h"
#include "MergeInput.h"
#include "Message.h"

namespace Lanedoc {

/// What became of one override.
struct MergedOverride {
    std::string feature;
    std::string document; ///< as the person named it
    bool replacesAll = false;
    std::size_t begin = 0; ///< its entries in the journal: from here
    std::size_t end = 0;   ///< to before this
    /// What is wrong with it: errors for what was refused, warnings for all else.
    std::vector<Message> messages;

    std::size_t Refused() const;
};

/// A base into which overrides are merged, one after the other, with the journal of who did what. One at a time. The
/// input must outlive it.
class MergeRun {
public:
    /// Loads the base; throws a Failure when that fails.
    explicit MergeRun(MergeInput& input);

    /// What the load of the base reported.
    const std::vector<Message>& BaseMessages() const { return m_baseMessages; }
    /// Merges the next override.
    const MergedOverride& MergeNext();
    bool IsDone() const { return m_overrides.size() == m_input.overrides.size(); }

    MergeInput& Input() const { return m_input; }
    TypedDataContainer& Tree() const { return *m_tree; }
    const MergeJournal& Journal() const { return m_journal; }
    /// Those that are merged, in their order.
    const std::vector<MergedOverride>& Overrides() const { return m_overrides; }
    /// How much was refused of all of them.
    std::size_t Refused() const;

private:
    std::vector<Message> MessagesOf(const MergedOverride& merged);

    MergeInput& m_input;
    IssueLog m_issues;
    std::unique_ptr<TypedDataContainer> m_tree;
    MergeJournal m_journal;
    std::vector<Message> m_baseMessages;
    std::vector<MergedOverride> m_overrides;
};

/// Messages that can quote the documents.
Messages MessagesAbout(MergeInput& input, const MergeArguments& arguments, const Style& style);

/// Merges all that is left and tells what is wrong with each override; what is no error not when `quiet`.
void MergeAll(MergeRun& run, Messages& messages, bool quiet);
void TellOf(const MergedOverride& merged, Messages& messages, bool quiet);

} // namespace Lanedoc
