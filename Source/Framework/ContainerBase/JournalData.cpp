#include "Framework/ContainerBase/JournalData.h"

#include <algorithm>
#include <limits>
#include <utility>

#include "Framework/ContainerBase/ContainerAccess.h"
#include "Framework/ContainerBase/JournalIndex.h"
#include "Framework/FieldPath.h"
#include "Framework/XMLSupport/NodePlace.h"
#include "Framework/XMLSupport/TreeReading.h"

namespace Framework {

namespace {

JournalData::Number NumberOf(NodeRef node) {
    return static_cast<JournalData::Number>(node);
}

NodeRef NodeOf(std::uint64_t number) {
    return NodeRef{static_cast<std::uintptr_t>(number)};
}

} // namespace

JournalData::JournalData() = default;
JournalData::~JournalData() = default;
JournalData::JournalData(JournalData&&) noexcept = default;
JournalData& JournalData::operator=(JournalData&&) noexcept = default;

JournalData* JournalData::Install(JournalData* journal) noexcept {
    return std::exchange(s_current, journal);
}

// --- writing

JournalValue::Stretch JournalData::Keep(std::string_view text) {
    if (m_texts.size() + text.size() > std::numeric_limits<std::uint32_t>::max()) {
        throw std::bad_alloc();
    }
    const JournalValue::Stretch stretch{static_cast<std::uint32_t>(m_texts.size()),
                                        static_cast<std::uint32_t>(text.size())};
    m_texts.append(text);
    return stretch;
}

JournalValue JournalData::TextValue(std::string_view text) noexcept {
    if (text.empty()) {
        return {};
    }
    try {
        return {JournalValue::Kind::Text, {.text = Keep(text)}};
    } catch (...) {
        m_isComplete = false;
        return {};
    }
}

bool JournalData::IsSource(const XmlTree& tree) const noexcept {
    return &tree == m_source && m_scope != kLost && m_scope != 0 && m_merges[m_scopes[m_scope].merge].document != 0;
}

JournalValue JournalData::NodeValue(const XmlTree& tree, NodeRef node) noexcept {
    if (IsSource(tree)) {
        return {JournalValue::Kind::NodeText, {.node = static_cast<std::uint64_t>(node)}};
    }
    return MadeTextValue([&] { return TextOf(tree, node); });
}

JournalData::Number JournalData::NumberOfName(std::string_view name) {
    if (name.empty()) {
        return 0;
    }
    RecentName& recent = m_recentNames[(reinterpret_cast<std::uintptr_t>(name.data()) >> 3U) % kRecentNames];
    if (recent.begin != name.data() || recent.size != name.size() || m_names[recent.number - 1] != name) {
        const auto [known, isNew] =
            m_nameNumbers.try_emplace(std::string(name), static_cast<Number>(m_names.size() + 1));
        if (isNew) {
            try {
                m_names.emplace_back(name);
            } catch (...) {
                m_nameNumbers.erase(known);
                throw;
            }
        }
        recent = {name.data(), name.size(), known->second};
    }
    return recent.number;
}

JournalData::Number JournalData::NumberOfDocument(const std::shared_ptr<const Document>& document) {
    if (document == nullptr) {
        return 0;
    }
    if (m_lastDocument == 0 || m_documents[m_lastDocument - 1] != document) {
        const auto [known, isNew] =
            m_documentNumbers.try_emplace(document.get(), static_cast<Number>(m_documents.size() + 1));
        if (isNew) {
            try {
                m_documents.push_back(document);
            } catch (...) {
                m_documentNumbers.erase(known);
                throw;
            }
        }
        m_lastDocument = known->second;
    }
    return m_lastDocument;
}

/// Nothing is noted of an object over a DOM: it has no places.
void JournalData::NoteBase(Scope& scope, TypedDataContainer* object) {
    const WrapperState* const state = object == nullptr ? nullptr : LoadedState(ContainerAccess::Wrapper(*object));
    if (state != nullptr && !state->domIsMaster && state->document != nullptr) {
        scope.document = NumberOfDocument(state->document);
        scope.node = NumberOf(ContainerAccess::Node(*object));
    }
}

void JournalData::Enter(Scope scope, std::string_view name, std::string_view keyName, std::string_view key,
                        TypedDataContainer* object) noexcept {
    if (m_scope == kLost || m_scope == 0) {
        return;
    }
    try {
        scope.parent = m_scope;
        scope.merge = m_scopes[m_scope].merge;
        scope.name = NumberOfName(name);
        scope.keyName = NumberOfName(keyName);
        if (!key.empty()) {
            scope.key = Keep(key);
        }
        NoteBase(scope, object);
        const auto number = static_cast<Number>(m_scopes.size());
        m_scopes.push_back(scope);
        m_scope = number;
    } catch (...) {
        m_isComplete = false;
        m_scope = kLost;
    }
}

void JournalData::Write(const XmlTree& tree, NodeRef node, const Edit& edit) noexcept {
    if (m_scope == kLost || m_scope == 0) {
        return;
    }
    try {
        Record record;
        record.scope = m_scope;
        record.field = NumberOfName(edit.field);
        if (edit.outcome == MergeJournal::Outcome::Unchanged && edit.isAttribute &&
            record.field == m_scopes[m_scope].keyName) {
            return; // by its key the entry was found: an address, and no edit
        }
        record.node = IsSource(tree) ? NumberOf(node) : 0;
        record.oldContent = edit.before.content;
        record.newContent = edit.after.content;
        record.oldKind = edit.before.kind;
        record.newKind = edit.after.kind;
        record.action = edit.action;
        record.outcome = edit.outcome;
        record.isContainer = edit.isContainer;
        record.isAttribute = edit.isAttribute;
        record.isImplied = edit.isImplied;
        m_records.push_back(record);
    } catch (...) {
        m_isComplete = false;
    }
}

void JournalData::WriteProblem(const XmlTree& tree, NodeRef node, std::string_view field, MergeJournal::Outcome outcome,
                               const FoundProblem& problem) noexcept {
    if (m_scope == kLost || m_scope == 0) {
        return;
    }
    try {
        const bool isPlaced = IsSource(tree);
        m_problems.push_back({problem, isPlaced ? NumberOf(problem.noteAt) : 0});
        Record record;
        record.scope = m_scope;
        record.field = NumberOfName(field);
        record.node = isPlaced ? NumberOf(problem.where == NodeRef::None ? node : problem.where) : 0;
        record.problem = static_cast<Number>(m_problems.size());
        record.outcome = outcome;
        m_records.push_back(record);
    } catch (...) {
        m_isComplete = false;
    }
}

void JournalData::WriteFailure(const zelString& feature, const FoundProblem& problem) noexcept {
    try {
        Scope scope;
        scope.merge = static_cast<Number>(m_merges.size());
        m_merges.push_back({feature, 0});
        m_scopes.push_back(scope);
        m_problems.push_back({problem, 0});
        Record record;
        record.scope = static_cast<Number>(m_scopes.size() - 1);
        record.problem = static_cast<Number>(m_problems.size());
        record.outcome = MergeJournal::Outcome::Refused;
        m_records.push_back(record);
    } catch (...) {
        m_isComplete = false;
    }
}

void JournalData::BackTo(std::size_t mark) noexcept {
    if (mark < m_records.size()) {
        // What was found to be wrong stays wrong, whatever became of its node.
        const auto begin = m_records.begin() + static_cast<std::ptrdiff_t>(mark);
        m_records.erase(
            std::remove_if(begin, m_records.end(), [](const Record& record) { return record.problem == 0; }),
            m_records.end());
    }
}

void JournalData::Clear() {
    *this = JournalData();
}

// --- reading

std::string JournalData::StepOf(const Scope& scope) const {
    if (scope.keyName != 0) {
        return FieldPath::KeyStep(Name(scope.name), Name(scope.keyName),
                                  std::string_view(m_texts).substr(scope.key.begin, scope.key.length));
    }
    return scope.position != 0 ? FieldPath::PositionStep(Name(scope.name), scope.position)
                               : std::string(Name(scope.name));
}

std::string JournalData::PathOfScope(Number scope) const {
    std::vector<Number> chain;
    for (; scope != 0; scope = m_scopes[scope].parent) {
        chain.push_back(scope);
    }
    std::string path;
    for (auto step = chain.rbegin(); step != chain.rend(); ++step) {
        path = FieldPath::Join(path, StepOf(m_scopes[*step]));
    }
    return path;
}

std::string JournalData::PathOf(const Record& record) const {
    return FieldPath::Join(PathOfScope(record.scope), Name(record.field));
}

zelString JournalData::ValueText(JournalValue::Kind kind, JournalValue::Content content, const Record& record) const {
    switch (kind) {
    case JournalValue::Kind::Text:
        return zelString(std::string_view(m_texts).substr(content.text.begin, content.text.length));
    case JournalValue::Kind::NodeText:
        return zelString(TextOf(*DocumentAt(MergeOf(record).document), NodeOf(content.node)));
    case JournalValue::Kind::Flag:
        return SupportFunc::GetStrValue(content.number != 0);
    case JournalValue::Kind::Number:
        return SupportFunc::GetStrValue(static_cast<long>(content.number));
    case JournalValue::Kind::Real:
        return SupportFunc::GetStrValue(content.real);
    case JournalValue::Kind::Nothing:
    case JournalValue::Kind::Same:
        break;
    }
    return {};
}

zelString JournalData::NewValue(const Record& record) const {
    return ValueText(record.newKind, record.newContent, record);
}

zelString JournalData::OldValue(const Record& record) const {
    return record.oldKind == JournalValue::Kind::Same ? NewValue(record)
                                                      : ValueText(record.oldKind, record.oldContent, record);
}

DocumentPlace JournalData::PlaceOf(const Record& record) const {
    const Document* const document = DocumentAt(MergeOf(record).document);
    return document == nullptr ? DocumentPlace() : PlaceOfNode(*document, NodeOf(record.node));
}

MergeJournal::Entry JournalData::EntryAt(std::size_t position) const {
    const Record& record = At(position);
    MergeJournal::Entry entry;
    entry.FeatureID = MergeOf(record).feature;
    entry.Place = PlaceOf(record);
    entry.Path = PathOf(record);
    entry.Field = zelString(Name(record.field != 0 ? record.field : ScopeAt(record.scope).name));
    entry.Asked = record.action;
    entry.Result = record.outcome;
    entry.IsContainer = record.isContainer;
    if (record.problem == 0) {
        entry.OldValue = OldValue(record);
        entry.NewValue = NewValue(record);
        if (record.outcome == MergeJournal::Outcome::Unchanged) {
            entry.Cause = "it is so already";
        } else if (record.isImplied) {
            entry.Cause = "what it is where the override does not name it";
        }
        return entry;
    }
    const auto& [found, noteNode] = m_problems[record.problem - 1];
    Finding finding;
    finding.Code = found.code;
    finding.Place = entry.Place;
    finding.Path = entry.Path;
    finding.Text = found.text;
    finding.Near.assign(found.near.begin(), found.near.end());
    if (noteNode != 0) {
        finding.Notes.push_back({PlaceOfNode(*DocumentAt(MergeOf(record).document), NodeOf(noteNode)), found.note});
    }
    entry.Cause = found.text;
    entry.Problem = std::move(finding);
    return entry;
}

JournalIndex& JournalData::Index() const {
    if (m_index == nullptr) {
        m_index = std::make_unique<JournalIndex>();
    }
    m_index->TakeIn(*this);
    return *m_index;
}

std::string_view KeyInPath(std::string_view key, bool isNumber, std::string& room) noexcept {
    try {
        if (isNumber) {
            room = SupportFunc::GetStrValue(static_cast<long>(SupportFunc::GetIntValue(zelString(key))));
        }
        return isNumber ? std::string_view(room) : key;
    } catch (...) { // a key so long is no number
        return "0";
    }
}

// --- scopes

JournalMerge::JournalMerge(JournalData* journal, TypedDataContainer& object, const WrapperState& source,
                           const zelString& feature) noexcept
    : m_journal(journal) {
    if (m_journal == nullptr) {
        return;
    }
    m_outerScope = std::exchange(m_journal->m_scope, JournalData::kLost);
    m_outerSource = std::exchange(m_journal->m_source, source.Tree());
    try {
        JournalData::MergeRecord merge{feature, 0};
        if (!source.domIsMaster) {
            merge.document = m_journal->NumberOfDocument(source.document);
        }
        JournalData::Scope scope;
        scope.merge = static_cast<JournalData::Number>(m_journal->m_merges.size());
        m_journal->NoteBase(scope, &object);
        m_journal->m_merges.push_back(std::move(merge));
        const auto number = static_cast<JournalData::Number>(m_journal->m_scopes.size());
        m_journal->m_scopes.push_back(scope);
        m_journal->m_scope = number;
    } catch (...) {
        m_journal->m_isComplete = false;
    }
}

JournalMerge::~JournalMerge() {
    if (m_journal != nullptr) {
        m_journal->m_scope = m_outerScope;
        m_journal->m_source = m_outerSource;
    }
}

JournalStep::JournalStep(JournalData* journal, std::string_view field, TypedDataContainer* object) noexcept
    : m_journal(journal) {
    if (m_journal != nullptr) {
        m_outer = m_journal->m_scope;
        m_journal->Enter({}, field, {}, {}, object);
    }
}

JournalStep::JournalStep(JournalData* journal, std::string_view list, std::size_t position) noexcept
    : m_journal(journal) {
    if (m_journal != nullptr) {
        m_outer = m_journal->m_scope;
        JournalData::Scope scope;
        scope.position = static_cast<JournalData::Number>(position);
        m_journal->Enter(scope, list, {}, {}, nullptr);
    }
}

JournalStep::JournalStep(JournalData* journal, std::string_view list, std::string_view keyName, std::string_view key,
                         TypedDataContainer* object) noexcept
    : m_journal(journal) {
    if (m_journal != nullptr) {
        m_outer = m_journal->m_scope;
        m_journal->Enter({}, list, keyName, key, object);
    }
}

void JournalStep::NoteTextBase(const TypedDataContainer& object, NodeRef node) noexcept {
    if (m_journal == nullptr || m_journal->m_scope == JournalData::kLost || node == NodeRef::None) {
        return;
    }
    try {
        const WrapperState* const state = LoadedState(ContainerAccess::Wrapper(object));
        if (state != nullptr && !state->domIsMaster) {
            JournalData::Scope& scope = m_journal->m_scopes[m_journal->m_scope];
            scope.document = m_journal->NumberOfDocument(state->document);
            scope.node = NumberOf(node);
        }
    } catch (...) {
        m_journal->m_isComplete = false;
    }
}

} // namespace Framework
