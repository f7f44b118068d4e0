#include "Framework/PointersByText.h"

#include "Framework/XMLSupport/TextHash.h"

#include <algorithm>
#include <bit>
#include <cstring>
#include <functional>
#include <limits>
#include <memory>
#include <new>
#include <span>
#include <stdexcept>
#include <utility>

namespace Zelvon {

namespace {

using Length = std::uint32_t;

constexpr std::size_t kFirstTable = 32;
constexpr std::size_t kFirstWords = 6; // two or three entries with short keys
constexpr std::uint32_t kGone = std::numeric_limits<std::uint32_t>::max();

std::uint64_t HashOf(std::string_view key) noexcept {
    return Framework::TextHash()(key);
}

/// A text that stands behind its length.
std::string_view TextAt(void* const* at) noexcept {
    const char* const bytes = reinterpret_cast<const char*>(at);
    Length length = 0;
    std::memcpy(&length, bytes, sizeof length);
    return {bytes + sizeof length, length};
}

std::string_view KeyOf(const std::vector<void*>& words, std::size_t entry) noexcept {
    return TextAt(&words[entry + 1]);
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
    for (std::size_t place = 1; place < words.size(); place += WordsFor(KeyOf(words, place).size())) {
        if (!std::less<>()(last, static_cast<const void*>(words[place]))) {
            return false;
        }
        last = words[place];
    }
    return true;
}

/// What a slot has of the hash, above its entry.
std::uint32_t MarkOf(std::uint64_t hash, std::uint32_t entryBits) noexcept {
    return static_cast<std::uint32_t>(hash >> 32U) >> entryBits << entryBits;
}

/// An entry and what its key begins with, which settles most comparisons.
struct KeyedEntry {
    std::uint64_t begin;
    std::uint32_t entry;
};

std::uint64_t BeginOf(std::string_view key) noexcept {
    std::uint64_t begin = 0;
    for (std::size_t i = 0; i < sizeof begin; ++i) {
        begin = (begin << 8U) | (i < key.size() ? static_cast<unsigned char>(key[i]) : 0U);
    }
    return begin;
}

/// Nulls every value that stands under an earlier key too.
void KeepFirstOfEach(std::span<std::uint32_t> entries, std::vector<void*>& words) noexcept {
    std::sort(entries.begin(), entries.end(), [&](std::uint32_t a, std::uint32_t b) {
        return words[a] != words[b] ? std::less<>()(words[a], words[b]) : KeyOf(words, a) < KeyOf(words, b);
    });
    const void* last = nullptr;
    for (const std::uint32_t entry : entries) {
        if (words[entry] == last) {
            words[entry] = nullptr;
        } else {
            last = words[entry];
        }
    }
}

/// Brings entries into the order of their keys. Where there is no memory each comparison looks at both keys.
void SortByKey(std::span<std::uint32_t> entries, const std::vector<void*>& words) noexcept {
    const auto keyOf = [&](std::uint32_t entry) { return KeyOf(words, entry); };
    const std::unique_ptr<KeyedEntry[]> keyed(new (std::nothrow) KeyedEntry[entries.size()]);
    if (keyed == nullptr) {
        std::sort(entries.begin(), entries.end(),
                  [&](std::uint32_t a, std::uint32_t b) { return keyOf(a) < keyOf(b); });
        return;
    }
    KeyedEntry* const end = std::transform(entries.begin(), entries.end(), keyed.get(), [&](std::uint32_t entry) {
        return KeyedEntry{BeginOf(keyOf(entry)), entry};
    });
    std::sort(keyed.get(), end, [&](const KeyedEntry& a, const KeyedEntry& b) {
        return a.begin != b.begin ? a.begin < b.begin : keyOf(a.entry) < keyOf(b.entry);
    });
    std::transform(keyed.get(), end, entries.begin(), [](const KeyedEntry& each) { return each.entry; });
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
    return table == nullptr || (table->slots[place] != 0 && table->slots[place] != kGone);
}

PointersByText::Entry PointersByText::At(std::size_t place) const noexcept {
    const Table* const table = AsTable();
    void* const* const entry = table == nullptr ? &Words()[place] : &table->words[table->EntryOf(table->slots[place])];
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
std::size_t PointersByText::PlaceInTable(const Table& table, std::string_view key) noexcept {
    const std::vector<Slot>& slots = table.slots;
    const std::uint64_t hash = HashOf(key);
    const Slot mark = MarkOf(hash, table.entryBits);
    const auto isOther = [&](Slot slot) {
        const std::size_t entry = table.EntryOf(slot);
        return slot - entry != mark || slot == kGone || KeyOf(table.words, entry) != key;
    };
    std::size_t place = hash & (slots.size() - 1);
    while (slots[place] != 0 && isOther(slots[place])) {
        place = (place + 1) & (slots.size() - 1);
    }
    return place;
}

void** PointersByText::Find(std::string_view key) const noexcept {
    if (Table* const table = AsTable()) {
        const Slot slot = table->slots[PlaceInTable(*table, key)];
        return slot == 0 ? nullptr : &table->words[table->EntryOf(slot)];
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
    if (!IsTable()) {
        MakeTable();
    }
    CheckLength(AsTable()->words.size(), key);
    MakeRoomInTable(WordsFor(key.size()));
    AddToTable(*AsTable(), key, value);
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

/// The table has room for it.
void PointersByText::AddToTable(Table& table, std::string_view key, void* value) {
    const std::size_t entry = table.words.size();
    table.words.resize(entry + WordsFor(key.size())); // doubles at least when it has to grow
    WriteEntry(&table.words[entry], key, value);
    Enter(table, entry);
}

/// Gives an entry among the words its slot.
void PointersByText::Enter(Table& table, std::size_t entry) noexcept {
    const std::uint64_t hash = HashOf(KeyOf(table.words, entry));
    std::size_t place = hash & (table.slots.size() - 1);
    while (table.slots[place] != 0) {
        place = (place + 1) & (table.slots.size() - 1);
    }
    table.slots[place] = MarkOf(hash, table.entryBits) | static_cast<Slot>(entry);
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

/// Slots for twice the entries, and twice the words, before they have to be made anew.
void PointersByText::MakeEmpty(Table& table, std::size_t entries, std::size_t words) {
    std::size_t places = kFirstTable;
    while (entries * 2 > places) {
        places *= 2;
    }
    table.slots.resize(places);
    table.entryBits = static_cast<std::uint32_t>(std::bit_width(words * 2));
}

/// Goes over to a table, as the entries are no longer few.
void PointersByText::MakeTable() {
    auto table = std::make_unique<Table>();
    MakeEmpty(*table, kFew, UsedWords());
    CopyTo(*table);
    Free(std::exchange(m_block, table.release()));
}

/// For one more entry of so many words. What was taken out ends here, and so do its texts.
void PointersByText::MakeRoomInTable(std::size_t words) {
    Table& table = *AsTable();
    const bool hasSlot = (table.used + std::size_t{1}) * 5 <= table.slots.size() * 4;
    const std::size_t allWords = table.words.size() + words;
    if (hasSlot && allWords < (std::size_t{1} << table.entryBits)) {
        return;
    }
    Table larger;
    MakeEmpty(larger, Size() + 1, allWords);
    if (table.gone > 0) {
        CopyTo(larger);
    } else {
        larger.words.swap(table.words); // the entries stay where they are
        for (std::size_t entry = 1; entry < larger.words.size();) {
            Enter(larger, entry);
            entry += WordsFor(KeyOf(larger.words, entry).size());
        }
    }
    table = std::move(larger);
}

void PointersByText::CopyTo(Table& fresh) const {
    fresh.words.resize(1); // so that no entry is at 0
    ForEach([&](const Entry& entry) { AddToTable(fresh, entry.key, entry.value); });
}

bool PointersByText::Remove(std::string_view key) noexcept {
    const Table* const table = AsTable();
    const std::size_t place = table == nullptr ? PlaceInFew(key) : PlaceInTable(*table, key);
    const bool isThere = table == nullptr ? place < UsedWords() : table->slots[place] != 0;
    if (isThere) {
        RemoveAt(place);
    }
    return isThere;
}

/// True when another entry has come to that place.
bool PointersByText::RemoveAt(std::size_t place) noexcept {
    if (Table* const table = AsTable()) {
        table->slots[place] = kGone;
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

/// The same with a table: its slots begin with the words of the entries in that order then. How many.
std::size_t PointersByText::OrderOnce(Table& table) noexcept {
    const auto end =
        std::remove_if(table.slots.begin(), table.slots.end(), [](Slot slot) { return slot == 0 || slot == kGone; });
    const std::span<Slot> entries(table.slots.begin(), end);
    for (Slot& entry : entries) {
        entry = static_cast<Slot>(table.EntryOf(entry));
    }
    if (!HasEachOnce(table.words)) {
        KeepFirstOfEach(entries, table.words);
    }
    SortByKey(entries, table.words);
    return entries.size();
}

} // namespace Zelvon
