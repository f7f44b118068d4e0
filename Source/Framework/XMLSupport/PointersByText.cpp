#include "Framework/PointersByText.h"

#include "Framework/XMLSupport/TextHash.h"

#include <algorithm>
#include <cstring>
#include <functional>
#include <limits>
#include <memory>
#include <new>
#include <stdexcept>
#include <utility>

namespace Zelvon {

namespace {

using Length = std::uint32_t;

constexpr std::size_t kFirstTable = 32;
constexpr std::size_t kFirstWords = 6; // two or three entries with short keys
constexpr std::uint32_t kGone = std::numeric_limits<std::uint32_t>::max();

std::uint32_t HashOf(std::string_view key) noexcept {
    const std::uint64_t hash = Framework::TextHash()(key);
    return static_cast<std::uint32_t>(hash ^ (hash >> 32U));
}

/// A text that stands behind its length.
std::string_view TextAt(void* const* at) noexcept {
    const char* const bytes = reinterpret_cast<const char*>(at);
    Length length = 0;
    std::memcpy(&length, bytes, sizeof length);
    return {bytes + sizeof length, length};
}

/// What an entry takes.
std::size_t WordsFor(std::size_t length) noexcept {
    return 1 + (sizeof(Length) + length + sizeof(void*) - 1) / sizeof(void*);
}

void WriteEntry(void** at, std::string_view key, void* value) noexcept {
    const auto length = static_cast<Length>(key.size());
    *at = value;
    char* const bytes = reinterpret_cast<char*>(at + 1);
    std::memcpy(bytes, &length, sizeof length);
    std::copy(key.begin(), key.end(), bytes + sizeof length);
}

void CheckLength(std::size_t words, std::string_view key) {
    constexpr std::size_t kMost = std::numeric_limits<std::uint32_t>::max();
    if (key.size() >= kMost || words * sizeof(void*) + key.size() >= kMost) {
        throw std::length_error("the keys of a list are too long");
    }
}

/// Who looks up one of few entries mostly goes on to the next one, which is fetched meanwhile: what an object begins
/// with, and where the lists and parts of most stand. To the compiler a function that does nothing else does nothing.
[[gnu::always_inline]] inline void FetchAhead(const void* object) noexcept {
    const auto at = reinterpret_cast<std::uintptr_t>(object);
    __builtin_prefetch(object);
    __builtin_prefetch(reinterpret_cast<const void*>(at + 128));
    __builtin_prefetch(reinterpret_cast<const void*>(at + 192));
}

/// Surely no value twice: the heap mostly gave each object a place behind the last. The first word is no entry.
bool HasEachOnce(const std::vector<void*>& words) noexcept {
    const void* last = nullptr;
    for (std::size_t place = 1; place < words.size(); place += WordsFor(TextAt(&words[place + 1]).size())) {
        if (!std::less<>()(last, static_cast<const void*>(words[place]))) {
            return false;
        }
        last = words[place];
    }
    return true;
}

template <typename Slots> std::size_t FreePlace(const Slots& slots, std::uint32_t hash) noexcept {
    std::size_t place = hash & (slots.size() - 1);
    while (slots[place].entry != 0) {
        place = (place + 1) & (slots.size() - 1);
    }
    return place;
}

} // namespace

PointersByText::PointersByText() noexcept = default;

PointersByText::~PointersByText() {
    Free(m_block);
}

void PointersByText::Free(Block* block) noexcept {
    if (block != nullptr && block->room == 0) {
        delete static_cast<Table*>(block);
    } else {
        ::operator delete(block);
    }
}

std::size_t PointersByText::Size() const noexcept {
    if (const Table* const table = AsTable()) {
        return table->used - table->gone;
    }
    std::size_t count = 0;
    for (std::size_t place = 0; place < UsedWords(); place = Next(place)) {
        ++count;
    }
    return count;
}

std::size_t PointersByText::Next(std::size_t place) const noexcept {
    return IsTable() ? place + 1 : place + WordsFor(TextAt(&Words()[place + 1]).size());
}

bool PointersByText::IsTaken(std::size_t place) const noexcept {
    const Table* const table = AsTable();
    return table == nullptr || (table->slots[place].entry != 0 && table->slots[place].entry != kGone);
}

PointersByText::Entry PointersByText::At(std::size_t place) const noexcept {
    const Table* const table = AsTable();
    void* const* const entry = table == nullptr ? &Words()[place] : &table->words[table->slots[place].entry];
    return {TextAt(entry + 1), *entry};
}

/// Behind the last when the key is not there.
std::size_t PointersByText::PlaceInFew(std::string_view key) const noexcept {
    const std::size_t end = UsedWords();
    std::size_t place = 0;
    while (place < end) {
        const std::string_view text = TextAt(&Words()[place + 1]);
        if (text == key) {
            break;
        }
        place += WordsFor(text.size());
    }
    return place;
}

/// Where the key stands, else where it would come to stand.
std::size_t PointersByText::PlaceInTable(const Table& table, std::string_view key, std::uint32_t hash) noexcept {
    const std::vector<Slot>& slots = table.slots;
    const auto isOther = [&](const Slot& slot) {
        return slot.hash != hash || slot.entry == kGone || TextAt(&table.words[slot.entry + 1]) != key;
    };
    std::size_t place = hash & (slots.size() - 1);
    while (slots[place].entry != 0 && isOther(slots[place])) {
        place = (place + 1) & (slots.size() - 1);
    }
    return place;
}

void** PointersByText::Find(std::string_view key) const noexcept {
    if (Table* const table = AsTable()) {
        const std::uint32_t entry = table->slots[PlaceInTable(*table, key, HashOf(key))].entry;
        return entry == 0 ? nullptr : &table->words[entry];
    }
    const std::size_t place = PlaceInFew(key);
    if (place == UsedWords()) {
        return nullptr;
    }
    if (const std::size_t next = Next(place); next < UsedWords()) {
        FetchAhead(Words()[next]);
    }
    return &Words()[place];
}

void** PointersByText::AddOrFind(std::string_view key, void* value) {
    if (void** const found = Find(key)) {
        return found;
    }
    AddAbsent(key, value);
    return nullptr;
}

void PointersByText::AddAbsent(std::string_view key, void* value) {
    if (!IsTable() && Size() < kFew) {
        AddToFew(key, value);
        return;
    }
    Table& table = IsTable() ? *AsTable() : MakeTable();
    MakeRoom(table);
    AddToTable(table, key, value);
}

void PointersByText::MakeRoomFor(std::string_view key) {
    if (!IsTable() && Size() < kFew) {
        MakeRoomInFew(UsedWords() + WordsFor(key.size()));
    }
}

void PointersByText::AddToFew(std::string_view key, void* value) {
    CheckLength(UsedWords(), key);
    const std::size_t place = UsedWords();
    const std::size_t words = place + WordsFor(key.size());
    MakeRoomInFew(words);
    WriteEntry(&Words()[place], key, value);
    m_block->used = static_cast<std::uint32_t>(words);
}

/// The table has a free slot.
void PointersByText::AddToTable(Table& table, std::string_view key, void* value) {
    const std::size_t entry = table.words.size();
    CheckLength(entry, key);
    table.words.resize(entry + WordsFor(key.size())); // doubles at least when it has to grow
    WriteEntry(&table.words[entry], key, value);
    const std::uint32_t hash = HashOf(key);
    table.slots[FreePlace(table.slots, hash)] = {static_cast<std::uint32_t>(entry), hash};
    ++table.used;
}

/// For so many words in all.
void PointersByText::MakeRoomInFew(std::size_t words) {
    if (m_block != nullptr && words <= m_block->room) {
        return;
    }
    const std::size_t grown = std::max({words, UsedWords() + UsedWords() / 2, kFirstWords});
    const std::size_t room = grown + grown % 2; // what the heap gives is a word less than a multiple of two
    Block* const larger = new (::operator new(sizeof(Block) + room * sizeof(void*))) Block;
    larger->room = static_cast<std::uint32_t>(room);
    larger->used = static_cast<std::uint32_t>(UsedWords());
    if (m_block != nullptr) {
        std::memcpy(larger + 1, m_block + 1, UsedWords() * sizeof(void*));
    }
    Free(std::exchange(m_block, larger));
}

/// Goes over to a table, as the entries are no longer few.
PointersByText::Table& PointersByText::MakeTable() {
    auto table = std::make_unique<Table>();
    table->slots.resize(kFirstTable);
    CopyTo(*table);
    Free(std::exchange(m_block, table.release()));
    return *AsTable();
}

/// For one more entry. What was taken out ends here, and so do its texts.
void PointersByText::MakeRoom(Table& table) const {
    if ((table.used + std::size_t{1}) * 4 <= table.slots.size() * 3) {
        return;
    }
    Table larger;
    std::size_t places = kFirstTable;
    while ((Size() + 1) * 2 > places) {
        places *= 2;
    }
    larger.slots.resize(places);
    if (table.gone > 0) {
        CopyTo(larger);
    } else { // the entries stay where they are
        for (const Slot& slot : table.slots) {
            if (slot.entry != 0) {
                larger.slots[FreePlace(larger.slots, slot.hash)] = slot;
            }
        }
        larger.words.swap(table.words);
        larger.used = table.used;
    }
    table = std::move(larger);
}

void PointersByText::CopyTo(Table& fresh) const {
    fresh.words.resize(1); // so that no entry is at 0
    ForEach([&](const Entry& entry) { AddToTable(fresh, entry.key, entry.value); });
}

bool PointersByText::Remove(std::string_view key) noexcept {
    const Table* const table = AsTable();
    const std::size_t place = table == nullptr ? PlaceInFew(key) : PlaceInTable(*table, key, HashOf(key));
    const bool isThere = table == nullptr ? place < UsedWords() : table->slots[place].entry != 0;
    if (isThere) {
        RemoveAt(place);
    }
    return isThere;
}

/// True when another entry has come to that place.
bool PointersByText::RemoveAt(std::size_t place) noexcept {
    if (Table* const table = AsTable()) {
        table->slots[place] = {kGone, 0};
        ++table->gone;
        return false;
    }
    const std::size_t next = Next(place);
    std::copy(Words() + next, Words() + UsedWords(), Words() + place);
    m_block->used -= static_cast<std::uint32_t>(next - place);
    return true;
}

void PointersByText::Clear() noexcept {
    Free(std::exchange(m_block, nullptr));
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
    const auto keyOf = [&](const Slot& slot) { return TextAt(&table.words[slot.entry + 1]); };
    const auto valueOf = [&](const Slot& slot) -> void*& { return table.words[slot.entry]; };
    const auto begin = table.slots.begin();
    const auto end = std::remove_if(begin, table.slots.end(),
                                    [](const Slot& slot) { return slot.entry == 0 || slot.entry == kGone; });
    // The hash is needed no more: it holds the first bytes of the key, which settle most comparisons, then the rank.
    for (auto slot = begin; slot != end; ++slot) {
        const std::string_view key = keyOf(*slot);
        slot->hash = 0;
        for (std::size_t i = 0; i < sizeof slot->hash; ++i) {
            slot->hash = (slot->hash << 8U) | (i < key.size() ? static_cast<unsigned char>(key[i]) : 0U);
        }
    }
    std::sort(begin, end,
              [&](const Slot& a, const Slot& b) { return a.hash != b.hash ? a.hash < b.hash : keyOf(a) < keyOf(b); });
    if (HasEachOnce(table.words)) {
        return static_cast<std::size_t>(end - begin);
    }
    std::uint32_t rank = 0;
    for (auto slot = begin; slot != end; ++slot) {
        slot->hash = rank++;
    }
    std::sort(begin, end, [&](const Slot& a, const Slot& b) {
        return valueOf(a) != valueOf(b) ? std::less<void*>()(valueOf(a), valueOf(b)) : a.hash < b.hash;
    });
    for (auto slot = begin; slot != end;) {
        const void* const value = valueOf(*slot);
        for (++slot; slot != end && valueOf(*slot) == value; ++slot) {
            valueOf(*slot) = nullptr;
        }
    }
    std::sort(begin, end, [](const Slot& a, const Slot& b) { return a.hash < b.hash; });
    return static_cast<std::size_t>(end - begin);
}

} // namespace Zelvon
