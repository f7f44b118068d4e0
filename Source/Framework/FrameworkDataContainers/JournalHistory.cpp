#include "Framework/FrameworkDataContainers/JournalHistory.h"

#include <algorithm>
#include <optional>

#include "Framework/ContainerBase/ContainerAccess.h"
#include "Framework/ContainerBase/FieldSteps.h"
#include "Framework/ContainerBase/JournalIndex.h"
#include "Framework/FrameworkDataContainers/Walks/Scalars.h"
#include "Framework/FrameworkDataContainers/Walks/TableIndex.h"
#include "Framework/XMLSupport/NodePlace.h"
#include "Framework/XMLSupport/TreeReading.h"

namespace Framework {

namespace {

using Action = MergeJournal::Action;
using Outcome = MergeJournal::Outcome;
using Writer = MergeJournal::Writer;

const FieldRow* FindRow(const FieldTable* table, std::string_view name) {
    for (; table != nullptr; table = table->parent) {
        for (const FieldRow& row : table->rows) {
            if (row.name == name) {
                return &row;
            }
        }
    }
    return nullptr;
}

/// A text of a document as the field takes it.
zelString TakenText(const FieldRow& row, const zelString& text) {
    switch (row.value) {
    case FieldValue::Bool:
        return SupportFunc::GetStrValue(SupportFunc::GetBoolValue(text));
    case FieldValue::Int:
        return SupportFunc::GetStrValue(static_cast<long>(SupportFunc::GetIntValue(text)));
    case FieldValue::Double:
        return SupportFunc::GetStrValue(SupportFunc::GetDoubleValue(text));
    case FieldValue::Enumeration: {
        if (row.enumeration != nullptr) {
            return row.enumeration->wordOf(text.c_str());
        }
        const std::unique_ptr<TypedDataEnumeration> word(row.list->newWord(text.c_str()));
        return word->StringOf();
    }
    case FieldValue::String:
    case FieldValue::Container:
        break;
    }
    return text;
}

/// What a field has that nothing was read for.
zelString TextWhenAbsent(const FieldRow& row) {
    if (row.form == FieldForm::Attribute) {
        return TakenText(row, {}); // attributes are read also when they are absent
    }
    return row.loadText.empty() ? DefaultText(row) : zelString(row.loadText);
}

/// One step of a path, with its field and the object that the tree has there now.
struct Step {
    std::string_view text;
    FieldStep parts;
    const FieldRow* row;
    TypedDataContainer* holder; ///< the object that the step begins at; null when it is gone
};

/// A node of a document that does not change any more.
struct BaseNode {
    std::shared_ptr<const Document> document;
    NodeRef node = NodeRef::None;
    bool hasHolder = false; ///< what holds it was there
};

class History {
public:
    History(const JournalData& journal, TypedDataContainer& tree) : m_journal(journal), m_index(journal.Index()) {
        m_root = &tree;
    }

    std::vector<Writer> Run(std::string_view path) {
        if (!Resolve(path)) {
            return {};
        }
        CollectEvents();
        if (m_events.empty() && !IsThere()) {
            return {};
        }
        if (m_events.empty() || m_events.front().record->outcome != Outcome::Added) {
            TakeBase();
        }
        for (std::size_t i = 0; i < m_events.size(); ++i) {
            TakeEvent(i);
        }
        if (m_winner < m_writers.size() && IsStanding()) {
            m_writers[m_winner].Wins = true;
        }
        return std::move(m_writers);
    }

private:
    /// An entry about the value, or about what holds it.
    struct Event {
        std::size_t number;
        const JournalData::Record* record;
        std::size_t depth; ///< of what it is about: the number of steps to it
    };

    // --- the path

    bool Resolve(std::string_view path) {
        const FieldTable* table = TableOf(*m_root);
        TypedDataContainer* object = m_root;
        for (const std::string_view text : StepsOf(path)) {
            Step step{text, ReadStep(text), nullptr, object};
            step.row = FindRow(table, step.parts.name);
            if (step.row == nullptr || (!m_steps.empty() && m_steps.back().row->value != FieldValue::Container)) {
                return false;
            }
            const FieldRow& row = *step.row;
            object = object == nullptr ? nullptr : ObjectAt(*object, row, step.parts);
            table = row.child != nullptr ? row.child->table : row.list != nullptr ? row.list->table : nullptr;
            m_steps.push_back(std::move(step));
        }
        if (m_steps.empty() || m_steps.back().row->value == FieldValue::Container) {
            return false;
        }
        const Step& last = m_steps.back();
        return (last.row->list == nullptr) == (last.parts.keyName.empty() && last.parts.position == 0);
    }

    /// Keys that are numbers may be written in several ways in the map.
    TypedDataContainer* EntryOf(TypedDataContainer& object, const FieldRow& row, const FieldStep& step) {
        TypedDataContainer* const found = (object.*row.map.entries).findValue(step.key, true);
        return found != nullptr || !row.intKey
                   ? found
                   : m_index.Numbers().Entry(object.*row.member.entries, row.keyAttribute, step.key);
    }

    TypedDataContainer* ObjectAt(TypedDataContainer& object, const FieldRow& row, const FieldStep& step) {
        if (row.child != nullptr) {
            return row.child->get(object);
        }
        if (row.list == nullptr || row.value != FieldValue::Container) {
            return nullptr;
        }
        if (row.form == FieldForm::KeyedList && !step.keyName.empty()) {
            return EntryOf(object, row, step);
        }
        const EntryVector& entries = object.*row.member.entries;
        return step.position == 0 || step.position > entries.size() ? nullptr : entries[step.position - 1];
    }

    const FieldRow& Row() const { return *m_steps.back().row; }
    TypedDataContainer* Holder() const { return m_steps.back().holder; }

    /// The text entry of a keyed list that the path ends in, null when there is none.
    TypedDataContainer::SimpleDataContainer* KeyedText() const {
        return Holder() == nullptr ? nullptr : (Holder()->*Row().map.texts).findValue(m_steps.back().parts.key, true);
    }

    /// The value that the tree has now.
    std::optional<zelString> Present() const {
        if (Holder() == nullptr) {
            return {};
        }
        if (Row().list == nullptr) {
            return ScalarText(*Holder(), Row());
        }
        if (Row().form == FieldForm::KeyedList) {
            const auto* const entry = KeyedText();
            return entry == nullptr ? std::optional<zelString>() : entry->strValue;
        }
        const std::size_t position = m_steps.back().parts.position;
        if (Row().value == FieldValue::Enumeration) {
            const auto& words = Holder()->*Row().member.words;
            return position > words.size() ? std::optional<zelString>() : words[position - 1]->StringOf();
        }
        const auto& texts = Holder()->*Row().member.texts;
        return position > texts.size() ? std::optional<zelString>() : texts[position - 1];
    }

    bool IsThere() const { return Present().has_value(); }

    /// Whether the tree has what the last writer gave: a host may have set the value since.
    bool IsStanding() const {
        const Writer& winner = m_writers[m_winner];
        const std::optional<zelString> present = Present();
        return winner.IsRemoval ? !present.has_value() : present.has_value() && *present == winner.Value;
    }

    // --- the entries

    void CollectEvents() {
        JournalIndex::Number place = JournalIndex::kRoot;
        TakeRecords(place, 0);
        for (std::size_t depth = 1; depth <= m_steps.size() && place != JournalIndex::kNone; ++depth) {
            place = m_index.Find(place, m_steps[depth - 1].text);
            TakeRecords(place, depth);
        }
        std::sort(m_events.begin(), m_events.end(),
                  [](const Event& left, const Event& right) { return left.number < right.number; });
    }

    void TakeRecords(JournalIndex::Number place, std::size_t depth) {
        if (place == JournalIndex::kNone) {
            return;
        }
        const bool isOwn = depth == m_steps.size();
        for (const JournalIndex::Number number : m_index.RecordsAt(place)) {
            const JournalData::Record& record = m_journal.At(number);
            const bool isEdit = record.problem == 0 && record.action != Action::Place;
            if (isEdit && (isOwn || (record.isContainer && !IsSparedBy(record, depth)))) {
                m_events.push_back({number, &record, depth});
            }
        }
    }

    /// A Clear keeps the attributes of what it resets.
    bool IsSparedBy(const JournalData::Record& record, std::size_t depth) const {
        return record.action == Action::Clear && depth + 1 == m_steps.size() && Row().form == FieldForm::Attribute;
    }

    void TakeEvent(std::size_t position) {
        const Event& event = m_events[position];
        if (event.depth == m_steps.size()) {
            TakeOwn(event);
        } else {
            TakeAbove(event, position);
        }
    }

    void TakeOwn(const Event& event) {
        const bool isRemoved = event.record->outcome == Outcome::Removed;
        Writer writer = event.record->isImplied ? ByDefault(event) : ByFeature(event);
        writer.IsRemoval = isRemoved;
        writer.Value = isRemoved ? zelString() : m_journal.NewValue(*event.record);
        if (event.record->outcome == Outcome::Unchanged) {
            m_writers.push_back(std::move(writer));
        } else if (!event.record->isImplied || writer.Value != m_value) {
            Win(std::move(writer));
        }
    }

    /// What an edit of something above did to the value.
    void TakeAbove(const Event& event, std::size_t position) {
        const bool isAdded = event.record->outcome == Outcome::Added;
        if (!isAdded && TakesAway(event)) {
            if (m_isPresent) {
                Writer writer = ByFeature(event);
                writer.IsRemoval = true;
                Win(std::move(writer));
                m_removedBy = MergeOf(event);
            }
            return;
        }
        const bool isOfHolder = event.depth + 1 == m_steps.size(); // what holds it comes by an edit of its own
        if (Row().list != nullptr || (isAdded && !isOfHolder) || IsSetAtOnce(event, position)) {
            return;
        }
        // A Clear resets, and a root that is replaced is emptied; all else is loaded anew.
        const bool isLoaded = event.record->action != Action::Clear && event.depth > 0;
        const zelString text = isLoaded ? TextWhenAbsent(Row()) : DefaultText(Row());
        const bool wasPresent = m_isPresent || m_removedBy == MergeOf(event);
        if (wasPresent && m_value != text) {
            Writer writer = ByFeature(event);
            writer.IsReset = true;
            writer.Value = text;
            Win(std::move(writer));
        } else if (event.record->action != Action::Clear) { // something new, which has its default
            Writer writer = ByDefault(event);
            writer.Value = text;
            Win(std::move(writer));
        }
    }

    /// Whether what the entry did to an object above left no value here: the entries of its lists go with a Clear, its
    /// children too with a Replace.
    bool TakesAway(const Event& event) const {
        if (event.record->outcome == Outcome::Removed) {
            return true;
        }
        const bool isReplaced = event.record->outcome == Outcome::Replaced;
        for (std::size_t step = event.depth; step < m_steps.size(); ++step) {
            const FieldRow& row = *m_steps[step].row;
            if (row.list != nullptr || (isReplaced && row.child != nullptr)) {
                return true;
            }
        }
        return false;
    }

    /// What was removed keeps its value here: it may come anew.
    void Win(Writer writer) {
        m_winner = m_writers.size();
        m_isPresent = !writer.IsRemoval;
        if (m_isPresent) {
            m_value = writer.Value;
            m_removedBy.reset();
        }
        m_writers.push_back(std::move(writer));
    }

    /// Whether the same merge goes on to give the value to what it has just made or reset.
    bool IsSetAtOnce(const Event& event, std::size_t position) const {
        if (position + 1 == m_events.size()) {
            return false;
        }
        const Event& next = m_events[position + 1];
        const bool isGiven = next.record->outcome != Outcome::Removed && next.record->outcome != Outcome::Unchanged &&
                             !next.record->isImplied;
        return next.depth == m_steps.size() && isGiven && MergeOf(next) == MergeOf(event);
    }

    JournalData::Number MergeOf(const Event& event) const { return m_journal.ScopeAt(event.record->scope).merge; }

    /// Nobody gave it the value; the feature made what holds it.
    Writer ByDefault(const Event& event) const {
        Writer writer = ByFeature(event);
        writer.Who = Writer::Kind::Default;
        writer.Entry.reset();
        return writer;
    }

    Writer ByFeature(const Event& event) const {
        Writer writer;
        writer.Who = Writer::Kind::Feature;
        writer.FeatureID = m_journal.MergeOf(*event.record).feature;
        writer.Place = m_journal.PlaceOf(*event.record);
        writer.Entry = event.number;
        return writer;
    }

    // --- what was there before

    void TakeBase() {
        Writer writer;
        const bool isTouched = !m_events.empty();
        const BaseNode found = isTouched ? BaseBefore(m_events.front()) : BaseInTree();
        const bool isText = Row().list != nullptr;
        if (found.node != NodeRef::None) {
            writer.Who = Writer::Kind::Base;
            if (found.document != nullptr) {
                writer.Place = PlaceOfNode(*found.document, found.node);
                const std::string text =
                    Row().cdata ? CDataOf(*found.document, found.node) : TextOf(*found.document, found.node);
                writer.Value = TakenText(Row(), text);
            }
        } else if (isTouched && (isText || !found.hasHolder)) {
            return; // nothing was there
        } else {
            writer.Value = TextWhenAbsent(Row());
        }
        if (!isTouched) {
            writer.Value = Present().value_or(zelString());
        } else if (m_events.front().depth == m_steps.size()) {
            writer.Value = m_journal.OldValue(*m_events.front().record);
        }
        Win(std::move(writer));
    }

    /// Where the value stood in the document that the first entry found.
    BaseNode BaseBefore(const Event& first) {
        const JournalData::Scope& scope = m_journal.ScopeAt(first.record->scope);
        if (scope.document == 0) { // an object that stands on none was there all the same
            return {nullptr, NodeRef::None, first.depth + 1 >= m_steps.size()};
        }
        const std::shared_ptr<const Document>& document = m_journal.SharedDocument(scope.document);
        NodeRef node{scope.node};
        ChildIndex& children = m_index.ChildrenIn(document);
        const std::size_t begin = first.record->field != 0 ? m_steps.size() - 1 : first.depth;
        bool hasHolder = false;
        for (std::size_t step = begin; step < m_steps.size() && node != NodeRef::None; ++step) {
            hasHolder = step + 1 == m_steps.size();
            node = NodeOfStep(*document, children, node, m_steps[step]);
        }
        return {document, node, hasHolder};
    }

    NodeRef NodeOfStep(const XmlTree& tree, ChildIndex& children, NodeRef node, const Step& step) const {
        const FieldRow& row = *step.row;
        if (row.form == FieldForm::Attribute) {
            return FindAttribute(tree, node, row.name);
        }
        if (step.parts.position != 0) {
            return children.At(node, row.name, step.parts.position);
        }
        if (step.parts.keyName.empty()) {
            return children.Last(node, row.name);
        }
        if (row.numberedKeys) {
            const int number = SupportFunc::GetIntValue(zelString(step.parts.key));
            return number < 1 ? NodeRef::None : children.At(node, row.name, static_cast<std::size_t>(number));
        }
        const NodeRef found = children.First(node, row.name, {{std::string(step.parts.keyName), step.parts.key}});
        return found != NodeRef::None || !row.intKey
                   ? found
                   : m_index.Numbers().Element(tree, children, node, row.name, row.keyAttribute, step.parts.key);
    }

    /// Where the value stands that no merge has touched: in what its object was loaded from.
    BaseNode BaseInTree() {
        TypedDataContainer& holder = *Holder();
        const WrapperState* const state = LoadedState(ContainerAccess::Wrapper(holder));
        if (state == nullptr) {
            return {};
        }
        if (state->domIsMaster || state->document == nullptr) {
            ChildIndex children(*state->Tree());
            return {nullptr, NodeInHolder(*state->Tree(), children, holder)};
        }
        ChildIndex& children = m_index.ChildrenIn(state->document);
        return {state->document, NodeInHolder(*state->document, children, holder)};
    }

    /// Of an object that several elements filled the last one counts; attributes and load texts are assigned anew by
    /// each.
    NodeRef NodeInHolder(const XmlTree& tree, ChildIndex& children, TypedDataContainer& holder) const {
        if (Row().form == FieldForm::KeyedList) {
            const auto* const entry = KeyedText();
            return entry == nullptr ? NodeRef::None : ContainerAccess::TextNode(*entry, holder);
        }
        std::vector<NodeRef> elements = ContainerAccess::EarlierNodes(holder);
        elements.push_back(ContainerAccess::Node(holder));
        std::erase(elements, NodeRef::None);
        if (elements.empty()) {
            return NodeRef::None;
        }
        if (Row().list != nullptr) {
            std::size_t position = m_steps.back().parts.position;
            for (const NodeRef element : elements) {
                const std::size_t count = children.Count(element, Row().name);
                if (position <= count) {
                    return children.At(element, Row().name, position);
                }
                position -= count;
            }
            return NodeRef::None;
        }
        if (Row().form == FieldForm::Attribute || !Row().loadText.empty()) {
            return NodeOfStep(tree, children, elements.back(), m_steps.back());
        }
        for (auto element = elements.rbegin(); element != elements.rend(); ++element) {
            if (const NodeRef node = NodeOfStep(tree, children, *element, m_steps.back()); node != NodeRef::None) {
                return node;
            }
        }
        return NodeRef::None;
    }

    const JournalData& m_journal;
    JournalIndex& m_index;
    TypedDataContainer* m_root;
    std::vector<Step> m_steps;
    std::vector<Event> m_events;
    std::vector<Writer> m_writers;
    std::size_t m_winner = ~std::size_t{0};
    zelString m_value;                              ///< after the writers so far
    bool m_isPresent = false;                       ///< after the writers so far
    std::optional<JournalData::Number> m_removedBy; ///< the merge that took it away, while it is gone
};

} // namespace

std::vector<MergeJournal::Writer> WritersIn(const JournalData& journal, TypedDataContainer& tree,
                                            std::string_view path) {
    return History(journal, tree).Run(path);
}

} // namespace Framework
