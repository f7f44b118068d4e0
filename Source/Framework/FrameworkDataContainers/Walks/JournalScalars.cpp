#include "Framework/FrameworkDataContainers/Walks/JournalScalars.h"

#include "Framework/FrameworkDataContainers/Walks/Scalars.h"

namespace Framework {

namespace {

/// A scalar before and after, without making texts of numbers.
class ScalarChange {
public:
    ScalarChange(JournalData& journal, TypedDataContainer& object, const FieldRow& row, const ScalarSource& source)
        : m_journal(journal), m_object(object), m_row(row) {
        switch (row.value) {
        case FieldValue::String:
            SetText(source, m_object.*row.member.text);
            break;
        case FieldValue::Bool:
            Set(source, object.*row.member.flag, &JournalValue::OfFlag, row.member.flag);
            break;
        case FieldValue::Int:
            Set(source, object.*row.member.number, &JournalValue::OfNumber, row.member.number);
            break;
        case FieldValue::Double:
            Set(source, object.*row.member.real, &JournalValue::OfReal, row.member.real);
            break;
        case FieldValue::Enumeration: {
            const int number = row.enumeration->number(object);
            SetScalar(object, row, source.text);
            const int now = row.enumeration->number(object);
            isChanged = now != number && (HasWord(number) || HasWord(now));
            after = WordValue(now);
            before = isChanged ? WordValue(number) : JournalValue::OfOld();
            break;
        }
        case FieldValue::Container:
            break;
        }
    }

    bool isChanged = false;
    JournalValue before;
    JournalValue after;

private:
    void SetText(const ScalarSource& source, std::string_view old) {
        isChanged = old != source.text;
        before = isChanged ? m_journal.TextValue(old) : JournalValue::OfOld();
        SetScalar(m_object, m_row, source.text);
        after = source.node == NodeRef::None ? JournalValue()
                : m_row.cdata                ? m_journal.TextValue(source.text)
                                             : m_journal.NodeValue(source.tree, source.node);
    }

    JournalValue WordValue(int number) {
        return m_journal.MadeTextValue([&] { return m_row.enumeration->word(number); });
    }
    bool HasWord(int number) noexcept {
        try {
            return !m_row.enumeration->word(number).empty();
        } catch (...) {
            m_journal.MissEntry();
            return true;
        }
    }

    template <typename Type>
    void Set(const ScalarSource& source, Type old, JournalValue (*make)(Type), Type TypedDataContainer::*member) {
        SetScalar(m_object, m_row, source.text);
        const Type now = m_object.*member;
        isChanged = !(old == now) && (old == old || now == now); // nothing is equal to NaN, not even itself
        before = isChanged ? make(old) : JournalValue::OfOld();
        after = make(now);
    }

    JournalData& m_journal;
    TypedDataContainer& m_object;
    const FieldRow& m_row;
};

} // namespace

void SetJournalled(JournalData& journal, TypedDataContainer& object, const FieldRow& row, const ScalarSource& source,
                   ScalarIs what, NodeRef element) {
    const ScalarChange change(journal, object, row, source);
    const bool isThere = source.node != NodeRef::None;
    if (!isThere && !change.isChanged) {
        return;
    }
    using Outcome = MergeJournal::Outcome;
    const Outcome outcome = what == ScalarIs::New && isThere ? Outcome::Added
                            : change.isChanged               ? Outcome::Changed
                                                             : Outcome::Unchanged;
    journal.Write(source.tree, isThere ? source.node : element,
                  {.field = row.name,
                   .outcome = outcome,
                   .before = change.before,
                   .after = change.after,
                   .isAttribute = row.form == FieldForm::Attribute,
                   .isImplied = !isThere});
}

std::size_t TextCount(TypedDataContainer& object, const FieldRow& row) {
    if (row.form == FieldForm::KeyedList) {
        return (object.*row.member.keyedTexts).size();
    }
    return row.value == FieldValue::Enumeration ? (object.*row.member.words).size() : (object.*row.member.texts).size();
}

void WriteAddedText(JournalData& journal, TypedDataContainer& object, const FieldRow& row, std::size_t before,
                    const XmlTree& tree, NodeRef node) {
    if (TextCount(object, row) == before) {
        return;
    }
    const JournalStep step(&journal, row.name, before + 1);
    const JournalValue after =
        row.value == FieldValue::Enumeration
            ? journal.MadeTextValue([&] { return (object.*row.member.words).back()->StringOf(); })
            : journal.NodeValue(tree, node);
    journal.Write(tree, node, {.outcome = MergeJournal::Outcome::Added, .after = after});
}

} // namespace Framework
