// What the catalogue offers to those who build a tree: making, adding and taking away what a field holds.

#include <algorithm>

#include "Framework/ContainerBase/ContainerAccess.h"
#include "Framework/ContainerBase/ListEdit.h"
#include "Framework/ContainerCatalog.h"
#include "Framework/FrameworkDataContainers/Walks/Children.h"
#include "Framework/FrameworkDataContainers/Walks/Scalars.h"
#include "Framework/XMLSupport/Utf.h"

using namespace Framework;

namespace {

/// Add<Name> makes an entry without XML only in an object that was built for it. Who adds by name has asked for one.
class FromScratch {
public:
    explicit FromScratch(TypedDataContainer& object)
        : m_object(object), m_before(ContainerAccess::BuildsFromScratch(object)) {
        ContainerAccess::SetBuildsFromScratch(object, true);
    }
    ~FromScratch() { ContainerAccess::SetBuildsFromScratch(m_object, m_before); }
    FromScratch(const FromScratch&) = delete;
    FromScratch& operator=(const FromScratch&) = delete;

    bool Before() const { return m_before; }

private:
    TypedDataContainer& m_object;
    bool m_before;
};

/// Out of both halves of a keyed list, with every key that leads to it.
template <typename Entry>
bool RemoveKeyed(Zelvon::SyncMap<zelString, Entry*>& map, std::vector<Entry*>& entries, std::size_t position) {
    ListEdit<Entry>::Settle(entries);
    if (position >= entries.size()) {
        return false;
    }
    Entry* const removed = entries[position];
    {
        map.writeLock();
        const std::unique_lock guard(map, std::adopt_lock);
        map.removeValuesIf([removed](const Entry* entry) { return entry == removed; });
    }
    std::erase(entries, removed);
    DeleteQuietly(removed);
    return true;
}

template <typename Entry> bool RemovePlain(std::vector<Entry>& entries, std::size_t position) {
    if (position >= entries.size()) {
        return false;
    }
    if constexpr (std::is_pointer_v<Entry>) {
        DeleteQuietly(entries[position]);
    }
    entries.erase(entries.begin() + static_cast<std::ptrdiff_t>(position));
    return true;
}

/// The number that a load would give the next entry; where that is taken, because others were removed, the next free
/// one.
zelString NextNumber(TypedDataContainer& object, const FieldRow& row) {
    std::size_t number = (object.*row.member.keyedTexts).size();
    zelString key;
    TypedDataContainer::SimpleDataContainer* taken = nullptr;
    do {
        key = SupportFunc::GetStrValue(static_cast<long>(++number));
    } while ((object.*row.map.texts).getValue(key, taken, true));
    return key;
}

} // namespace

std::optional<std::size_t> CatalogField::FindEntry(TypedDataContainer& object, const zelString& sKey) const {
    if (m_pRow->form == FieldForm::KeyedList) {
        const std::size_t length = Length(object);
        for (std::size_t i = 0; i < length; ++i) {
            if (EntryKey(object, i) == sKey) {
                return i;
            }
        }
    }
    return std::nullopt;
}

TypedDataContainer* CatalogField::MakeChild(TypedDataContainer& object) const {
    if (m_pRow->child == nullptr) {
        return nullptr;
    }
    TypedDataContainer* const present = m_pRow->child->get(object);
    return present != nullptr ? present : &ChildInPlace(object, *m_pRow);
}

TypedDataContainer* CatalogField::AddEntry(TypedDataContainer& object, const zelString& sKey) const {
    if (!IsList() || m_pRow->value != FieldValue::Container) {
        return nullptr;
    }
    const bool isKeyed = m_pRow->form == FieldForm::KeyedList;
    std::optional<CatalogField> key;
    if (isKeyed) {
        key = ContainerCatalog::FindField(ContainerCatalog::FindClass(m_pRow->className), m_pRow->keyAttribute);
        if (!key.has_value() || !IsLegalText(*key->m_pRow, sKey)) {
            return nullptr;
        }
    }
    const EntryVector& entries = object.*m_pRow->member.entries;
    const std::size_t before = entries.size();
    const FromScratch scope(object);
    m_pRow->list->addEntry(object, nullptr, nullptr, sKey);
    if (entries.size() <= before) {
        return nullptr;
    }
    TypedDataContainer* const entry = entries.back();
    ContainerAccess::SetBuildsFromScratch(*entry, scope.Before());
    if (isKeyed) {
        try {
            SetScalar(*entry, *key->m_pRow, sKey);
        } catch (...) {
            RemoveEntry(object, before); // it would stand under a key that it does not have
            throw;
        }
    }
    return entry;
}

bool CatalogField::AddText(TypedDataContainer& object, const zelString& sText, const zelString& sKey) const {
    if (!IsList() || m_pRow->value == FieldValue::Container || !IsXmlText(sText) || !IsXmlText(sKey)) {
        return false;
    }
    if (m_pRow->value == FieldValue::Enumeration) {
        const std::vector<zelString> words = Words();
        if (std::find(words.begin(), words.end(), sText) == words.end()) {
            return false;
        }
    }
    const std::size_t before = Length(object);
    m_pRow->list->addText(object, sText, m_pRow->numberedKeys && sKey.empty() ? NextNumber(object, *m_pRow) : sKey);
    return Length(object) > before;
}

bool CatalogField::RemoveEntry(TypedDataContainer& object, std::size_t position) const {
    const bool isKeyed = m_pRow->form == FieldForm::KeyedList;
    if (!isKeyed && m_pRow->form != FieldForm::PlainList) {
        return false;
    }
    if (m_pRow->value == FieldValue::Container) {
        EntryVector& entries = object.*m_pRow->member.entries;
        return isKeyed ? RemoveKeyed(object.*m_pRow->map.entries, entries, position) : RemovePlain(entries, position);
    }
    if (isKeyed) {
        return RemoveKeyed(object.*m_pRow->map.texts, object.*m_pRow->member.keyedTexts, position);
    }
    return m_pRow->value == FieldValue::Enumeration ? RemovePlain(object.*m_pRow->member.words, position)
                                                    : RemovePlain(object.*m_pRow->member.texts, position);
}

void CatalogField::Clear(TypedDataContainer& object) const {
    if (IsList()) {
        m_pRow->list->clear(object);
    } else if (m_pRow->child == nullptr) {
        ResetScalar(object, *m_pRow);
    } else {
        TypedDataContainer* const child = m_pRow->child->get(object);
        m_pRow->child->store(object, nullptr);
        DeleteQuietly(child);
    }
}
