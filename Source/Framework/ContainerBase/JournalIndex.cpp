#include "Framework/ContainerBase/JournalIndex.h"

namespace Framework {

namespace {

std::string KeyOf(JournalIndex::Number place, std::string_view step) {
    return (std::to_string(place) + "/").append(step);
}

} // namespace

void JournalIndex::TakeIn(const JournalData& journal) {
    if (m_placeOfScope.size() < journal.ScopeCount()) { // every merge has a scope
        m_numbers.ForgetEntries();
    }
    for (std::size_t scope = m_placeOfScope.size(); scope < journal.ScopeCount(); ++scope) {
        const JournalData::Scope& step = journal.ScopeAt(static_cast<Number>(scope));
        m_placeOfScope.push_back(
            step.parent == 0 && step.name == 0 ? kRoot : Make(m_placeOfScope[step.parent], journal.StepOf(step)));
    }
    for (std::size_t number = m_placeOfRecord.size(); number < journal.Records().size(); ++number) {
        const JournalData::Record& record = journal.At(number);
        const Number scope = m_placeOfScope[record.scope];
        const Number place = record.field == 0 ? scope : Make(scope, journal.Name(record.field));
        m_placeOfRecord.push_back(place);
        m_places[place].records.push_back(static_cast<Number>(number));
    }
}

JournalIndex::Number JournalIndex::Find(Number place, std::string_view step) const {
    if (place == kNone) {
        return kNone;
    }
    const auto found = m_steps.find(KeyOf(place, step));
    return found == m_steps.end() ? kNone : found->second;
}

JournalIndex::Number JournalIndex::Make(Number place, std::string_view step) {
    const auto [found, isNew] = m_steps.try_emplace(KeyOf(place, step), static_cast<Number>(m_places.size()));
    if (isNew) {
        m_places.emplace_back().parent = place;
        m_places[place].below.push_back(found->second);
    }
    return found->second;
}

ChildIndex& JournalIndex::ChildrenIn(const std::shared_ptr<const Document>& document) {
    const auto found = m_documents.find(document.get());
    return found != m_documents.end()
               ? found->second.children
               : m_documents.emplace(document.get(), Kept{document, ChildIndex(*document)}).first->second.children;
}

} // namespace Framework
