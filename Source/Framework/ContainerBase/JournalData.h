#pragma once

#include <cstdint>
#include <memory>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

#include "Framework/ContainerBase/FoundProblem.h"
#include "Framework/MergeJournal.h"
#include "Framework/XMLSupport/Document.h"
#include "Framework/XMLSupport/TextHash.h"

namespace Framework {

class JournalIndex;
struct WrapperState;

/// A value as a journal keeps it: short, and read out only when somebody asks.
struct JournalValue {
    enum class Kind : std::uint8_t {
        Nothing,  ///< the empty text
        Same,     ///< an old value: what the new one is
        Text,     ///< stands in the journal's own text
        NodeText, ///< the text of an element or attribute of the override
        Flag,
        Number,
        Real,
    };
    struct Stretch {
        std::uint32_t begin;
        std::uint32_t length;
    };
    union Content {
        Stretch text;
        std::uint64_t node;
        std::int64_t number;
        double real;
    };

    Kind kind = Kind::Nothing;
    Content content{};

    static JournalValue OfFlag(bool value) { return {Kind::Flag, {.number = value ? 1 : 0}}; }
    static JournalValue OfNumber(int value) { return {Kind::Number, {.number = value}}; }
    static JournalValue OfReal(double value) { return {Kind::Real, {.real = value}}; }
    static JournalValue OfOld() { return {Kind::Same, {}}; }
};

/// The entries of a MergeJournal, and how the merges of a thread write them.
///
/// A merge writes whole numbers: which step of the tree it stands at (scopes, a chain up to the object that is merged),
/// which node of the override it reads, what was and what is. Texts, places and paths are made when an entry is read.
///
/// Writing throws nothing: where memory runs out, the entry is lost and the journal says so.
class JournalData {
public:
    using Number = std::uint32_t;

    /// One step of a tree that merges went into: a child, or an entry of a list. Number 0 is no scope.
    struct Scope {
        Number parent = 0;
        Number merge = 0;
        Number name = 0;     ///< of the field; 0 for the object that the merge was called on
        Number keyName = 0;  ///< of a keyed list
        Number position = 0; ///< in a list without keys, from 1
        JournalValue::Stretch key{};
        Number document = 0; ///< that the object stood on before the merge came to it; 0 when there was none
        Number node = 0;     ///< of that document
    };

    struct Record {
        Number scope = 0;
        Number field = 0;   ///< a name; 0 when the target is what the scope stands for
        Number node = 0;    ///< of the override
        Number problem = 0; ///< from 1
        JournalValue::Content oldContent{};
        JournalValue::Content newContent{};
        JournalValue::Kind oldKind = JournalValue::Kind::Nothing;
        JournalValue::Kind newKind = JournalValue::Kind::Nothing;
        MergeJournal::Action action = MergeJournal::Action::Merge;
        MergeJournal::Outcome outcome = MergeJournal::Outcome::Changed;
        bool isContainer = false;
        bool isAttribute = false; ///< the field
        bool isImplied = false;   ///< the override does not name it: it follows from something new
    };

    struct MergeRecord {
        std::string feature;
        Number document = 0;
    };

    struct Problem {
        FoundProblem found;
        Number noteNode = 0;
    };

    JournalData();
    ~JournalData();
    JournalData(JournalData&&) noexcept;
    JournalData& operator=(JournalData&&) noexcept;

    /// That of this thread; null when none is installed.
    static JournalData* Current() noexcept { return s_current; }
    /// The same while no merge writes into it: a host calls a part of a merge by itself.
    static JournalData* Idle() noexcept {
        return s_current != nullptr && s_current->m_scope == 0 ? s_current : nullptr;
    }
    static JournalData* Install(JournalData* journal) noexcept;
    static JournalData* Of(MergeJournal& journal) noexcept { return journal.m_pData.get(); }

    // --- writing

    /// Whether a merge is going on.
    bool IsMerging() const noexcept { return m_scope != 0; }
    bool HasLostScope() const noexcept { return m_scope == kLost; }
    /// The key attribute of the list that the walk is in, and whether it is a number.
    void SetListKey(std::string_view name, bool isNumber) noexcept {
        m_listKey = name;
        m_hasNumberKey = isNumber;
    }
    std::string_view ListKey() const noexcept { return m_listKey; }
    bool HasNumberKey() const noexcept { return m_hasNumberKey; }

    JournalValue TextValue(std::string_view text) noexcept;
    /// The same of a text that `make` makes.
    template <typename Make> JournalValue MadeTextValue(Make make) noexcept {
        try {
            return TextValue(make());
        } catch (...) {
            m_isComplete = false;
            return {};
        }
    }
    /// Something could not be written.
    void MissEntry() noexcept { m_isComplete = false; }
    /// The text of a node, read later when it stands in the document of the merge, else now.
    JournalValue NodeValue(const XmlTree& tree, NodeRef node) noexcept;

    struct Edit {
        std::string_view field{}; ///< empty: the scope itself
        MergeJournal::Action action = MergeJournal::Action::Merge;
        MergeJournal::Outcome outcome = MergeJournal::Outcome::Changed;
        JournalValue before{};
        JournalValue after{};
        bool isContainer = false;
        bool isAttribute = false;
        bool isImplied = false;
    };
    void Write(const XmlTree& tree, NodeRef node, const Edit& edit) noexcept;
    /// `field` is empty where the scope stands for the node.
    void WriteProblem(const XmlTree& tree, NodeRef node, std::string_view field, MergeJournal::Outcome outcome,
                      const FoundProblem& problem) noexcept;
    /// A merge by itself that came to nothing, as there was nothing to merge.
    void WriteFailure(const zelString& feature, const FoundProblem& problem) noexcept;
    std::size_t ProblemCount() const noexcept { return m_problems.size(); }
    /// How far the journal is, and back to there: for what turned out not to be.
    std::size_t Mark() const noexcept { return m_records.size(); }
    void BackTo(std::size_t mark) noexcept;

    // --- reading

    const std::vector<Record>& Records() const { return m_records; }
    const Record& At(std::size_t position) const { return m_records[position]; }
    const Scope& ScopeAt(Number scope) const { return m_scopes[scope]; }
    std::size_t ScopeCount() const { return m_scopes.size(); }
    const MergeRecord& MergeOf(const Record& record) const { return m_merges[m_scopes[record.scope].merge]; }
    const Document* DocumentAt(Number document) const {
        return document == 0 ? nullptr : m_documents[document - 1].get();
    }
    const std::shared_ptr<const Document>& SharedDocument(Number document) const { return m_documents[document - 1]; }
    std::string_view Name(Number name) const { return name == 0 ? std::string_view() : m_names[name - 1]; }
    bool IsComplete() const { return m_isComplete; }
    /// The step that a scope adds to the path of its parent; empty for the object that the merge was called on.
    std::string StepOf(const Scope& scope) const;
    /// The path of what a record is about.
    std::string PathOf(const Record& record) const;
    std::string PathOfScope(Number scope) const;
    zelString OldValue(const Record& record) const;
    zelString NewValue(const Record& record) const;
    DocumentPlace PlaceOf(const Record& record) const;
    MergeJournal::Entry EntryAt(std::size_t position) const;
    /// What is written so far, by path; made when it is asked for.
    JournalIndex& Index() const;
    void Clear();

private:
    friend class JournalMerge;
    friend class JournalStep;

    static constexpr Number kLost = ~Number{0}; ///< a scope that there was no memory for

    Number NumberOfName(std::string_view name);
    Number NumberOfDocument(const std::shared_ptr<const Document>& document);
    void NoteBase(Scope& scope, TypedDataContainer* object);
    JournalValue::Stretch Keep(std::string_view text);
    bool IsSource(const XmlTree& tree) const noexcept;
    void Enter(Scope scope, std::string_view name, std::string_view keyName, std::string_view key,
               TypedDataContainer* object) noexcept;
    zelString ValueText(JournalValue::Kind kind, JournalValue::Content content, const Record& record) const;

    static inline thread_local JournalData* s_current = nullptr;

    std::vector<Record> m_records;
    std::vector<Scope> m_scopes = std::vector<Scope>(1);
    std::vector<MergeRecord> m_merges;
    std::vector<Problem> m_problems;
    std::vector<std::shared_ptr<const Document>> m_documents;
    std::unordered_map<const Document*, Number> m_documentNumbers;
    std::vector<std::string> m_names;
    HashedMap<std::string, Number> m_nameNumbers;
    struct RecentName {
        const char* begin = nullptr;
        std::size_t size = 0;
        Number number = 0;
    };
    static constexpr std::size_t kRecentNames = 64;
    std::vector<RecentName> m_recentNames = std::vector<RecentName>(kRecentNames); ///< names of tables keep their place
    std::string m_texts;
    Number m_scope = 0;                ///< where the merge stands
    const XmlTree* m_source = nullptr; ///< that the merge reads
    Number m_lastDocument = 0;         ///< of the last object whose base was noted
    std::string_view m_listKey;
    bool m_hasNumberKey = false;
    bool m_isComplete = true;
    mutable std::unique_ptr<JournalIndex> m_index;
};

/// A key as its attribute has it in the tree, and so as paths have it: of "007" and of "x" what is read as a number,
/// which stands in `room`.
std::string_view KeyInPath(std::string_view key, bool isNumber, std::string& room) noexcept;

/// The outer merge of an object: what is written meanwhile belongs to the feature, with paths below the object. Does
/// nothing when there is no journal; of a part of a merge that a host calls by itself, nothing when one is going on.
class JournalMerge {
public:
    JournalMerge(JournalData* journal, TypedDataContainer& object, const WrapperState& source,
                 const zelString& feature) noexcept;
    ~JournalMerge();
    JournalMerge(const JournalMerge&) = delete;
    JournalMerge& operator=(const JournalMerge&) = delete;

private:
    JournalData* m_journal;
    JournalData::Number m_outerScope = 0;
    const XmlTree* m_outerSource = nullptr;
};

/// What is written while it lives is taken back when it ends, but for what is wrong with the override, unless Keep was
/// called: the edit did not come to pass. Does nothing when there is no journal.
class JournalTry {
public:
    explicit JournalTry(JournalData* journal) noexcept
        : m_journal(journal), m_mark(journal == nullptr ? 0 : journal->Mark()) {}
    ~JournalTry() {
        if (m_journal != nullptr) {
            m_journal->BackTo(m_mark);
        }
    }
    JournalTry(const JournalTry&) = delete;
    JournalTry& operator=(const JournalTry&) = delete;

    void Keep() noexcept { m_journal = nullptr; }

private:
    JournalData* m_journal;
    std::size_t m_mark;
};

/// One step down from where the merge stands, as long as it lives. `object` is what stands there before the merge does
/// anything to it, null for none. Does nothing when there is no journal.
class JournalStep {
public:
    /// A child.
    JournalStep(JournalData* journal, std::string_view field, TypedDataContainer* object) noexcept;
    /// An entry of a list without keys, at a position from 1.
    JournalStep(JournalData* journal, std::string_view list, std::size_t position) noexcept;
    /// An entry of a keyed list.
    JournalStep(JournalData* journal, std::string_view list, std::string_view keyName, std::string_view key,
                TypedDataContainer* object) noexcept;
    ~JournalStep() {
        if (m_journal != nullptr) {
            m_journal->m_scope = m_outer;
        }
    }
    JournalStep(const JournalStep&) = delete;
    JournalStep& operator=(const JournalStep&) = delete;

    /// An entry of a keyed list of texts that stands on a node of the document of its list's object.
    void NoteTextBase(const TypedDataContainer& object, NodeRef node) noexcept;

private:
    JournalData* m_journal;
    JournalData::Number m_outer = 0;
};

} // namespace Framework
