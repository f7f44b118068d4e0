#pragma once

#include <algorithm>
#include <mutex>
#include <unordered_set>

#include "Framework/ContainerBase/MergeControl.h"
#include "Framework/ContainerBase/SlotChain.h"
#include "Framework/ContainerBase/Storing.h"

namespace Framework {

/// The changes that a merge makes to one keyed list, as if made one after the other, for the price of one pass over the
/// list: taking an entry out of a vector, or putting one in its middle, for each entry of a long override would cost
/// the square of its length.
///
/// The map is right at every moment. The vector gets its new order in Finish, at the end of the list; until then
/// removed entries are null in it, replaced ones are replaced, and new ones stand last. What was removed is destroyed
/// in Finish, with every key that leads to it. Nothing of this is set up before the first entry that is not just
/// appended.
///
/// A walk opens an edit for each keyed list; MergeElement finds it by the vector. Edits of one thread nest.
template <typename Entry> class ListEdit {
public:
    using Map = Zelvon::SyncMap<zelString, Entry*>;
    using Vector = std::vector<Entry*>;

    ListEdit(Map& map, Vector& entries) : m_map(map), m_entries(entries), m_outer(innermost) { innermost = this; }
    ~ListEdit() {
        Finish();
        innermost = m_outer;
    }
    ListEdit(const ListEdit&) = delete;
    ListEdit& operator=(const ListEdit&) = delete;

    /// The edit that this thread has open for a list, or null.
    static ListEdit* Of(const Vector& entries) {
        ListEdit* edit = innermost;
        while (edit != nullptr && &edit->m_entries != &entries) {
            edit = edit->m_outer;
        }
        return edit;
    }

    /// To be called before a list changes by another way: it then stands as the edit has it so far.
    static void Settle(const Vector& entries) noexcept {
        if (ListEdit* const edit = innermost == nullptr ? nullptr : Of(entries)) {
            edit->Finish();
        }
    }

    Entry* Find(const zelString& key) {
        Entry* entry = nullptr;
        m_map.getValue(key, entry, true);
        return m_lingering.contains(entry) ? nullptr : entry;
    }

    Entry* Append(std::unique_ptr<Entry> fresh, const zelString& key) {
        Entry* const entry = fresh.get();
        if (m_isSetUp) {
            SetUp();
            m_chain.Reserve(1);
        }
        StoreKeyed(m_map, m_entries, std::move(fresh), key);
        if (m_isSetUp) {
            m_chain.Append(entry);
        }
        return entry;
    }

    /// The new entry takes the place of the old one in both halves.
    Entry* Replace(Entry* old, std::unique_ptr<Entry> fresh, const zelString& key) {
        SetUp();
        for (const Number slot : Bury(old)) {
            m_chain.Replace(slot, fresh.get());
            m_entries[slot - 1] = fresh.get();
        }
        m_map.setValue(key, fresh.get(), nullptr);
        return fresh.release();
    }

    void Remove(Entry* old, const zelString& key) {
        SetUp();
        for (const Number slot : Bury(old)) {
            m_chain.Remove(slot);
            m_entries[slot - 1] = nullptr;
        }
        m_map.writeLock();
        const std::unique_lock guard(m_map, std::adopt_lock);
        m_map.removeKey(key);
    }

    /// `neighbour` is looked at for Before and After only, and is another entry. False when the entry stood there
    /// already.
    bool Place(Entry* entry, PlacementOrder order, Entry* neighbour) {
        if (order == PlacementOrder::Unsaid) {
            return false;
        }
        SetUp();
        bool isMoved = false;
        const Number beside = neighbour == nullptr ? 0 : m_chain.Find(neighbour);
        for (const Number slot : m_chain.FindAll(entry)) {
            const bool isBehind = order == PlacementOrder::First || order == PlacementOrder::After;
            const bool isThere = isBehind ? m_chain.Next(beside) == slot : m_chain.Next(slot) == beside;
            isMoved = isMoved || !isThere;
            m_chain.Move(slot, isBehind ? m_chain.Next(beside) : beside);
        }
        return isMoved;
    }

    /// Of the list; null for what was removed.
    const Vector& Entries() const { return m_entries; }

    void Finish() noexcept {
        if (!m_isSetUp) {
            return;
        }
        m_isSetUp = false;
        Reorder();
        if (!m_lingering.empty()) {
            m_map.writeLock();
            const std::unique_lock guard(m_map, std::adopt_lock);
            m_map.removeValuesIf([this](Entry* entry) { return m_lingering.contains(entry); });
        }
        std::for_each(m_buried.begin(), m_buried.end(), &DeleteQuietly<Entry>);
        m_buried.clear();
        m_lingering.clear();
        m_chain.Clear();
    }

private:
    using Number = typename SlotChain<Entry>::Number;

    /// Slot n of the chain is position n - 1 of the vector.
    void SetUp() {
        if (m_entries.size() < m_chain.Last()) {
            Finish(); // others took entries out of the vector
        }
        if (!m_isSetUp) {
            m_chain.Clear(); // of an earlier try that failed
        }
        m_chain.Reserve(m_entries.size() - m_chain.Last());
        while (m_chain.Last() < m_entries.size()) { // what is there, and then what others append
            m_chain.Append(m_entries[m_chain.Last()]);
        }
        m_isSetUp = true;
    }

    /// Marks an entry as one to be destroyed; its slots, of which it is to be taken out. When this throws, nothing has
    /// happened.
    std::vector<Number> Bury(Entry* old) {
        std::vector<Number> slots = m_chain.FindAll(old);
        m_chain.Reserve(slots.size());
        m_buried.push_back(old);
        // Whoever stands twice has two keys, and so may others when there are more keys than entries.
        if (slots.size() != 1 || m_map.size() > m_entries.size()) {
            try {
                m_lingering.insert(old);
            } catch (...) {
                m_buried.pop_back();
                throw;
            }
        }
        return slots;
    }

    void Reorder() noexcept {
        const std::size_t known = m_chain.Last();
        if (m_entries.size() < known) { // others took entries out: what they left counts, in their order
            std::erase(m_entries, nullptr);
            return;
        }
        auto into = m_entries.begin();
        for (Number slot = known == 0 ? 0 : m_chain.Next(0); slot != 0; slot = m_chain.Next(slot)) {
            *into++ = m_chain.At(slot); // no more than there were: nothing is allocated
        }
        m_entries.erase(into, m_entries.begin() + static_cast<std::ptrdiff_t>(known)); // newcomers stay
    }

    static inline thread_local ListEdit* innermost = nullptr;

    Map& m_map;
    Vector& m_entries;
    ListEdit* m_outer;
    bool m_isSetUp = false;
    SlotChain<Entry> m_chain;
    std::vector<Entry*> m_buried;           ///< to be destroyed
    std::unordered_set<Entry*> m_lingering; ///< of these, what other keys may still lead to
};

} // namespace Framework
