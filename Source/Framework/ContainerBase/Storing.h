#pragma once

#include <memory>
#include <vector>

#include "Framework/SyncContainers.h"
#include "Framework/ZelString.h"

namespace Framework {

/// A destructor that throws must not keep the rest of a list alive.
template <typename Entry> void DeleteQuietly(Entry* entry) noexcept {
    try {
        delete entry;
    } catch (...) { // nobody is left to be told
    }
}

/// Puts an entry into both halves of a keyed list; in neither when one of them fails.
template <typename Entry>
void StoreKeyed(Zelvon::SyncMap<zelString, Entry*>& map, std::vector<Entry*>& entries, std::unique_ptr<Entry> entry,
                const zelString& key) {
    entries.push_back(entry.get());
    try {
        map.setValue(key, entry.get(), nullptr);
    } catch (...) {
        entries.pop_back();
        throw;
    }
    entry.release();
}

} // namespace Framework
