#include "Framework/PointersByText.h"

#include "Framework/XMLSupport/TextHash.h"

#include <algorithm>
#include <cstring>
#include <functional>
#include <limits>
#include <stdexcept>
#include <utility>

namespace Zelvon {

namespace {

using Length = std::uint32_t;

constexpr std::size_t kFirstTable = 32;
constexpr std::uint32_t kGone = std::numeric_limits<std::uint32_t>::max();

std::uint32_t HashOf(std::string_view key) noexcept {
    const std::uint64_t hash = Framework::TextHash()(key);
    return static_cast<std::uint32_t>(hash ^ (hash >> 32U));
}

/// A text that stands behind its length.
std::string_view TextAt(const void* at) noexcept {
    const char* const bytes = static_cast<const char*>(at);
    Length length = 0;
    std::memcpy(&length, bytes, sizeof length);
    return {bytes + sizeof length, length};
}

std::string_view TextAt(const std::string& texts, std::uint32_t at) noexcept {
    return TextAt(texts.data() + at);
}

void CheckLength(std::size_t before, std::string_view key) {
    if (key.size() >= kGone || before + sizeof(Length) + key.size() >= kGone) {
        throw std::length_error("the keys of a list are too long");
    }
}

/// Appends a text behind its length; its place, which is never 0.
std::uint32_t AppendText(std::string& texts, std::string_view key) {
    const std::size_t at = std::max<std::size_t>(texts.size(), 1);
    CheckLength(at, key);
    const auto length = static_cast<Length>(key.size());
    texts.reserve(at + sizeof length + key.size()); // doubles at least
    texts.resize(at + sizeof length);
    std::memcpy(texts.data() + at, &length, sizeof length);
    texts.append(key);
    return static_cast<std::uint32_t>(at);
}

/// What an entry takes of m_few.
std::size_t WordsFor(std::size_t length) noexcept {
    return 1 + (sizeof(Length) + length + sizeof(void*) - 1) / sizeof(void*);
}

template <typename Slots> std::size_t FreePlace(const Slots& slots, std::uint32_t hash) noexcept {
    std::size_t place = hash & (slots.size() - 1);
    while (slots[place].text != 0) {
        place = (place + 1) & (slots.size() - 1);
    }
    return place;
}

} // namespace

PointersByText::PointersByText() noexcept = default;
PointersByText::~PointersByText() = default;

std::size_t PointersByText::Size() const noexcept {
    if (m_table != nullptr) {
        return m_table->used - m_table->gone;
    }
    std::size_t count = 0;
    for (std::size_t place = 0; place < m_few.size(); place = Next(place)) {
        ++count;
    }
    return count;
}

std::size_t PointersByText::Next(std::size_t place) const noexcept {
    return m_table != nullptr ? place + 1 : place + WordsFor(TextAt(&m_few[place + 1]).size());
}

bool PointersByText::IsTaken(std::size_t place) const noexcept {
    return m_table == nullptr || (m_table->slots[place].text != 0 && m_table->slots[place].text != kGone);
}

PointersByText::Entry PointersByText::At(std::size_t place) const noexcept {
    if (m_table == nullptr) {
        return {TextAt(&m_few[place + 1]), m_few[place]};
    }
    const Slot& slot = m_table->slots[place];
    return {TextAt(m_table->texts, slot.text), slot.value};
}

/// Behind the last when the key is not there.
std::size_t PointersByText::PlaceInFew(std::string_view key) const noexcept {
    std::size_t place = 0;
    while (place < m_few.size() && TextAt(&m_few[place + 1]) != key) {
        place = Next(place);
    }
    return place;
}

/// Where the key stands, else where it would come to stand.
std::size_t PointersByText::PlaceInTable(std::string_view key, std::uint32_t hash) const noexcept {
    const std::vector<Slot>& slots = m_table->slots;
    const std::string& texts = m_table->texts;
    std::size_t place = hash & (slots.size() - 1);
    while (slots[place].text != 0 &&
           (slots[place].hash != hash || slots[place].text == kGone || TextAt(texts, slots[place].text) != key)) {
        place = (place + 1) & (slots.size() - 1);
    }
    return place;
}

void** PointersByText::Find(std::string_view key) const noexcept {
    if (m_table == nullptr) {
        const std::size_t place = PlaceInFew(key);
        return place == m_few.size() ? nullptr : const_cast<void**>(&m_few[place]);
    }
    Slot& slot = m_table->slots[PlaceInTable(key, HashOf(key))];
    return slot.text == 0 ? nullptr : &slot.value;
}

void** PointersByText::AddOrFind(std::string_view key, void* value) {
    if (void** const found = Find(key)) {
        return found;
    }
    AddAbsent(key, value);
    return nullptr;
}

void PointersByText::AddAbsent(std::string_view key, void* value) {
    if (m_table == nullptr && !MakeTable()) {
        AddToFew(key, value);
        return;
    }
    MakeRoom();
    const std::uint32_t hash = HashOf(key);
    AddToTable(FreePlace(m_table->slots, hash), key, hash, value);
}

void PointersByText::AddToFew(std::string_view key, void* value) {
    CheckLength(0, key);
    const auto length = static_cast<Length>(key.size());
    const std::size_t place = m_few.size();
    m_few.resize(place + WordsFor(key.size()));
    m_few[place] = value;
    char* const bytes = reinterpret_cast<char*>(&m_few[place + 1]);
    std::memcpy(bytes, &length, sizeof length);
    std::copy(key.begin(), key.end(), bytes + sizeof length);
}

/// There is room.
void PointersByText::AddToTable(std::size_t place, std::string_view key, std::uint32_t hash, void* value) {
    const std::uint32_t text = AppendText(m_table->texts, key);
    m_table->slots[place] = {value, text, hash};
    ++m_table->used;
}

/// Goes over to a table when the entries are no longer few; whether it did.
bool PointersByText::MakeTable() {
    if (Size() < kFew) {
        return false;
    }
    auto table = std::make_unique<Table>();
    table->slots.resize(kFirstTable);
    MoveTo(*table);
    m_table = std::move(table);
    m_few = {};
    return true;
}

/// For one more entry. What was taken out ends here, and so do its texts.
void PointersByText::MakeRoom() {
    if ((m_table->used + std::size_t{1}) * 4 <= m_table->slots.size() * 3) {
        return;
    }
    Table larger;
    std::size_t places = kFirstTable;
    while ((Size() + 1) * 2 > places) {
        places *= 2;
    }
    larger.slots.resize(places);
    if (m_table->gone > 0) {
        MoveTo(larger);
    } else { // the texts stay where they are
        for (const Slot& slot : m_table->slots) {
            if (slot.text != 0) {
                larger.slots[FreePlace(larger.slots, slot.hash)] = slot;
            }
        }
        larger.texts.swap(m_table->texts);
        larger.used = m_table->used;
    }
    *m_table = std::move(larger);
}

void PointersByText::MoveTo(Table& larger) const {
    ForEach([&](const Entry& entry) {
        const std::uint32_t hash = HashOf(entry.key);
        const std::uint32_t text = AppendText(larger.texts, entry.key);
        larger.slots[FreePlace(larger.slots, hash)] = {entry.value, text, hash};
        ++larger.used;
    });
}

bool PointersByText::Remove(std::string_view key) noexcept {
    const std::size_t place = m_table == nullptr ? PlaceInFew(key) : PlaceInTable(key, HashOf(key));
    const bool isThere = m_table == nullptr ? place < m_few.size() : m_table->slots[place].text != 0;
    if (isThere) {
        RemoveAt(place);
    }
    return isThere;
}

/// True when another entry has come to that place.
bool PointersByText::RemoveAt(std::size_t place) noexcept {
    if (m_table == nullptr) {
        const auto begin = m_few.begin();
        m_few.erase(begin + static_cast<std::ptrdiff_t>(place), begin + static_cast<std::ptrdiff_t>(Next(place)));
        return true;
    }
    m_table->slots[place] = {nullptr, kGone, 0};
    ++m_table->gone;
    return false;
}

void PointersByText::Clear() noexcept {
    std::vector<void*>().swap(m_few);
    m_table.reset();
}

/// The values in the order of their keys, but for those that stand under an earlier key too, which are null. How many.
std::size_t PointersByText::OrderFew(std::array<void*, kFew>& values) const noexcept {
    std::array<Entry, kFew> entries;
    std::size_t count = 0;
    ForEach([&](const Entry& entry) {
        std::size_t place = count++;
        for (; place > 0 && entry.key < entries[place - 1].key; --place) {
            entries[place] = entries[place - 1];
        }
        entries[place] = entry;
    });
    for (std::size_t i = 0; i < count; ++i) {
        const auto end = values.begin() + static_cast<std::ptrdiff_t>(i);
        const bool isThere = std::find(values.begin(), end, entries[i].value) != end;
        values[i] = isThere ? nullptr : entries[i].value;
    }
    return count;
}

/// The same with the entries of a table, which come to its front: brings them in the order of their keys, and nulls
/// every value that stands under an earlier key too. The number of entries.
std::size_t PointersByText::OrderOnce(Table& table) noexcept {
    const auto begin = table.slots.begin();
    const auto end =
        std::remove_if(begin, table.slots.end(), [](const Slot& slot) { return slot.text == 0 || slot.text == kGone; });
    // The hash is needed no more: it holds the first bytes of the key, which settle most comparisons, then the rank.
    for (auto slot = begin; slot != end; ++slot) {
        const std::string_view key = TextAt(table.texts, slot->text);
        slot->hash = 0;
        for (std::size_t i = 0; i < sizeof slot->hash; ++i) {
            slot->hash = (slot->hash << 8U) | (i < key.size() ? static_cast<unsigned char>(key[i]) : 0U);
        }
    }
    std::sort(begin, end, [&](const Slot& a, const Slot& b) {
        return a.hash != b.hash ? a.hash < b.hash : TextAt(table.texts, a.text) < TextAt(table.texts, b.text);
    });
    std::uint32_t rank = 0;
    for (auto slot = begin; slot != end; ++slot) {
        slot->hash = rank++;
    }
    const auto byValue = [](const Slot& a, const Slot& b) {
        return a.value != b.value ? std::less<void*>()(a.value, b.value) : a.hash < b.hash;
    };
    std::sort(begin, end, byValue);
    for (auto slot = begin; slot != end;) {
        const void* const value = slot->value;
        for (++slot; slot != end && slot->value == value; ++slot) {
            slot->value = nullptr;
        }
    }
    std::sort(begin, end, [](const Slot& a, const Slot& b) { return a.hash < b.hash; });
    return static_cast<std::size_t>(end - begin);
}

} // namespace Zelvon
