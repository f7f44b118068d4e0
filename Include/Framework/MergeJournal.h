#pragma once

#include <cstddef>
#include <memory>
#include <optional>
#include <vector>

#include "Framework/Finding.h"
#include "Framework/TypedDataContainer.h"

namespace Framework {
class JournalData;
} // namespace Framework

/// What merges did, edit by edit: who set which value, where that stands, and what was there before.
///
///     MergeJournal journal;
///     {
///         const MergeJournal::Recording recording(journal);
///         config.MergeFromFile(nullptr, "Night.xml");
///         config.MergeFromFile(nullptr, "Store12.xml");
///     }
///     for (const MergeJournal::Writer& writer : journal.WritersOf(config, "StateTable/InitialState")) { ... }
///
/// While it is installed (Recording), every merge of the thread adds one entry for each edit, and one for each thing
/// that is wrong with the override; the latter also go to the override log. An override of which nothing could be
/// merged, as it cannot be read or is of another root, is such a thing: refused, with the empty path and with what
/// GetLastError says, which names the place. Without a journal a merge does nothing for it. Entries of all merges of
/// the recordings stand in one row, in the order in which they happened. A journal is meant for the merges of one tree.
///
/// **Paths** are the field names below the object that the outer merge was called on, joined by "/". An entry of a
/// keyed list is `State[Name=Idle]`, one of another list `State[3]`, counted from 1; a key with "]", "/" or a double
/// quote stands in double quotes, doubled inside. The empty path is the object itself.
///
/// **Memory.** An entry takes about 50 bytes and the text of the old value; new values are read from the documents,
/// which the journal shares and keeps. The first edit of a document that it keeps copies the document. A DOM that is
/// merged has no places.
///
/// **Threads.** One thread at a time uses a journal; a recording belongs to its thread. **Failures.** A merge never
/// fails for its journal: where memory for an entry runs out, IsComplete turns false. Queries may throw std::bad_alloc.
class FRAMEWORK_API MergeJournal {
public:
    /// What the override asked for.
    enum class Action { Merge, Add, Replace, Remove, Clear, Place };

    enum class Outcome {
        Added,     ///< it was not there; of a value in something new: it was set
        Changed,   ///< a value is another one now; of a container with Clear: it was reset
        Replaced,  ///< the container or text of that key or child is a new one
        Removed,   ///< it is gone
        Moved,     ///< it stands elsewhere in its list; NewValue says where
        Unchanged, ///< it was so already
        Skipped,   ///< it was passed over; Problem tells why
        Refused,   ///< it could not be done; Problem tells why
    };

    /// One edit, or one thing that is wrong.
    struct Entry {
        zelString FeatureID; ///< of the merge
        DocumentPlace Place; ///< in the override
        zelString Path;      ///< of the target
        zelString Field; ///< XML name of the field that the target is, or is an entry of; empty for the object itself
        Action Asked = Action::Merge;
        Outcome Result = Outcome::Changed;
        /// A scalar or text before and after, as the tree has it: bools "true" and "false", numbers as they are written
        /// back, enumerations their word. Empty for containers; of what moved, NewValue is "First", "Last",
        /// "Before KEY" or "After KEY".
        zelString OldValue;
        zelString NewValue;
        bool IsContainer = false;       ///< the target is an object; else it is a value
        zelString Cause;                ///< why it turned out so, where Result does not say it all
        std::optional<Finding> Problem; ///< what is wrong; such an entry is no edit
    };

    /// Somebody who gave a value what it has, or had.
    struct Writer {
        enum class Kind {
            Default, ///< nobody: it has what a new object has, or what its absence is read as
            Base,    ///< the document that the tree was loaded from
            Feature, ///< an entry of the journal
        };

        Kind Who = Kind::Default;
        zelString FeatureID; ///< of a feature; of a default, of the feature that made the object that holds it, if any
        DocumentPlace
            Place;       ///< where the value stands, or what reset it; of a default, what made the object that holds it
        zelString Value; ///< what it gave; empty for what removed it
        std::optional<std::size_t> Entry; ///< number of the entry, of a feature
        bool IsRemoval = false;           ///< it took the value, or what holds it, away
        bool IsReset = false;             ///< it gave the value back its default by a Replace or Clear of what holds it
        bool Wins = false;                ///< the value now is its doing; of one writer at most
    };

    /// An edit that the result does not show.
    struct Lost {
        std::size_t Entry = 0;
        std::optional<std::size_t>
            By; ///< the entry of a later feature that undid it; none when it had no effect itself
    };

    /// Two features that disagree.
    struct Conflict {
        enum class Kind {
            Values,      ///< both give one value, differently
            RemovedEdit, ///< the second removes, replaces or clears what the first edited
            EditRemoved, ///< the second edits, or brings back, what the first removed
        };

        Kind What = Kind::Values;
        std::size_t First = 0;  ///< entry of the earlier feature
        std::size_t Second = 0; ///< entry of the later one, which wins
    };

    MergeJournal();
    ~MergeJournal();
    MergeJournal(const MergeJournal&) = delete;
    MergeJournal& operator=(const MergeJournal&) = delete;

    /// Installs a journal for the merges of this thread while it lives. Recordings nest, the innermost counts; they end
    /// in the opposite order, in the thread that began them. The journal must outlive it.
    class FRAMEWORK_API Recording {
    public:
        explicit Recording(MergeJournal& journal) noexcept;
        ~Recording();
        Recording(const Recording&) = delete;
        Recording& operator=(const Recording&) = delete;

    private:
        Framework::JournalData* m_pOuter;
    };

    /// Whether merges without a journal tell the override log of all that is wrong with an override, as merges with one
    /// do: of what they pass over, or read as something else, too. For the whole process, off at first; any thread may
    /// turn it. A merge goes by what it finds when it begins.
    static void SetStrict(bool bStrict) noexcept;
    static bool IsStrict() noexcept;

    /// Number of entries.
    std::size_t Size() const;
    /// The entry by number from 0; an entry with nothing in it past the end.
    Entry At(std::size_t position) const;
    /// False when an entry was lost for want of memory.
    bool IsComplete() const;
    /// Forgets all entries and lets go of the documents. Not during a merge.
    void Clear();

    /// Numbers of the entries of a feature, in order.
    std::vector<std::size_t> EntriesOf(const zelString& sFeatureID) const;
    /// Numbers of the entries that tell of something wrong, in order.
    std::vector<std::size_t> Problems() const;
    /// All who wrote the scalar or text at the path, the first first: what the tree was loaded with, then the features.
    /// Each stands as often as it wrote. `tree` is the object that was merged into, as it is after the last merge: an
    /// entry whose key is a number, written otherwise than it reads, is looked for in what its list held at that time.
    /// The path is one as above; empty when it names no scalar or text that is in the tree or was in it.
    std::vector<Writer> WritersOf(TypedDataContainer& tree, const zelString& sPath) const;
    /// The one of them that wins.
    Writer OriginOf(TypedDataContainer& tree, const zelString& sPath) const;
    /// Edits that changed nothing, were refused or skipped, and those that an edit of a later feature undid.
    std::vector<Lost> WithoutEffect() const;
    /// All pairs of edits of two features that disagree, by the later one. Of several that disagree about one value,
    /// each with the one before.
    std::vector<Conflict> Conflicts() const;

private:
    friend class Framework::JournalData;

    std::unique_ptr<Framework::JournalData> m_pData;
};

/// The name of an action, as the override writes it: "Merge"; a placement is "Place".
FRAMEWORK_API std::string_view ActionName(MergeJournal::Action action);
/// The name of an outcome in small letters: "added".
FRAMEWORK_API std::string_view OutcomeName(MergeJournal::Outcome outcome);
