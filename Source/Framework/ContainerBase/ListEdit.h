#pragma once

#include <algorithm>
#include <list>
#include <mutex>
#include <unordered_map>
#include <unordered_set>

#include "Framework/ContainerBase/MergeControl.h"
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
        return m_buried.contains(entry) ? nullptr : entry;
    }

    Entry* Append(std::unique_ptr<Entry> fresh, const zelString& key) {
        Entry* const entry = fresh.get();
        if (!m_isSetUp) {
            StoreKeyed(m_map, m_entries, std::move(fresh), key);
            return entry;
        }
        TakeUpNewcomers();
        Order last; // first what may fail
        last.push_back({entry, m_entries.size()});
        const auto known = m_slots.emplace(entry, last.begin());
        try {
            StoreKeyed(m_map, m_entries, std::move(fresh), key);
        } catch (...) {
            m_slots.erase(known);
            throw;
        }
        m_order.splice(m_order.end(), last);
        m_size = m_entries.size();
        return entry;
    }

    /// The new entry takes the place of the old one in both halves.
    Entry* Replace(Entry* old, std::unique_ptr<Entry> fresh, const zelString& key) {
        SetUp();
        m_buried.insert(old); // from here on nothing fails
        Entry* const entry = fresh.release();
        m_map.setValue(key, entry, nullptr);
        for (auto known = m_slots.extract(old); !known.empty(); known = m_slots.extract(old)) {
            known.mapped()->entry = entry;
            m_entries[known.mapped()->position] = entry;
            known.key() = entry;
            m_slots.insert(std::move(known));
        }
        return entry;
    }

    void Remove(Entry* old, const zelString& key) {
        SetUp();
        m_buried.insert(old);
        {
            m_map.writeLock();
            const std::unique_lock guard(m_map, std::adopt_lock);
            m_map.contents().erase(key);
        }
        for (auto known = m_slots.extract(old); !known.empty(); known = m_slots.extract(old)) {
            m_entries[known.mapped()->position] = nullptr;
            m_order.erase(known.mapped());
        }
    }

    /// `neighbour` is looked at for Before and After only, and is another entry.
    void Place(Entry* entry, PlacementOrder order, Entry* neighbour) {
        if (order == PlacementOrder::Unsaid) {
            return;
        }
        SetUp();
        const auto [begin, end] = m_slots.equal_range(entry);
        const auto where = Where(order, neighbour);
        for (auto known = begin; known != end; ++known) {
            m_order.splice(where, m_order, known->second);
        }
    }

    void Finish() noexcept {
        if (!m_isSetUp) {
            return;
        }
        Reorder();
        {
            m_map.writeLock();
            const std::unique_lock guard(m_map, std::adopt_lock);
            std::erase_if(m_map.contents(), [this](const auto& item) { return m_buried.contains(item.second); });
        }
        std::for_each(m_buried.begin(), m_buried.end(), &DeleteQuietly<Entry>);
        m_buried.clear();
        m_slots.clear();
        m_order.clear();
        m_isSetUp = false;
    }

private:
    struct Slot {
        Entry* entry;
        std::size_t position; ///< in the vector, as long as that is not reordered
    };
    using Order = std::list<Slot>;

    void SetUp() {
        if (!m_isSetUp) {
            m_order.clear(); // of an earlier try that failed
            m_slots.clear();
            m_size = 0;
        }
        TakeUpNewcomers();
        m_isSetUp = true;
    }

    /// What stands in the vector behind what is known, appended by others.
    void TakeUpNewcomers() {
        for (; m_size < m_entries.size(); ++m_size) {
            Order last;
            last.push_back({m_entries[m_size], m_size});
            m_slots.emplace(m_entries[m_size], last.begin());
            m_order.splice(m_order.end(), last);
        }
    }

    typename Order::iterator Where(PlacementOrder order, Entry* neighbour) {
        if (order == PlacementOrder::First) {
            return m_order.begin();
        }
        const auto known = order == PlacementOrder::Last ? m_slots.end() : m_slots.find(neighbour);
        if (known == m_slots.end()) {
            return m_order.end();
        }
        return order == PlacementOrder::Before ? known->second : std::next(known->second);
    }

    void Reorder() noexcept {
        if (m_entries.size() < m_size) { // others took entries out: what they left counts, in their order
            std::erase_if(m_entries, [this](Entry* entry) { return entry == nullptr || m_buried.contains(entry); });
            return;
        }
        const std::size_t count = m_order.size(); // at most m_size: nothing is allocated, and newcomers stay
        std::size_t position = 0;
        for (const Slot& slot : m_order) {
            m_entries[position++] = slot.entry;
        }
        m_entries.erase(m_entries.begin() + static_cast<std::ptrdiff_t>(count),
                        m_entries.begin() + static_cast<std::ptrdiff_t>(m_size));
    }

    static inline thread_local ListEdit* innermost = nullptr;

    Map& m_map;
    Vector& m_entries;
    ListEdit* m_outer;
    bool m_isSetUp = false;
    std::size_t m_size = 0; ///< how much of the vector is known
    Order m_order;
    std::unordered_multimap<Entry*, typename Order::iterator> m_slots;
    std::unordered_set<Entry*> m_buried;
};

} // namespace Framework
