#include "Framework/FrameworkDataContainers/Walks/Lists.h"

#include <algorithm>
#include <unordered_set>

#include "Framework/ContainerBase/ContainerAccess.h"
#include "Framework/ContainerBase/JournalData.h"
#include "Framework/ContainerBase/ListEdit.h"
#include "Framework/ContainerBase/OverrideLog.h"
#include "Framework/FieldPath.h"
#include "Framework/XMLSupport/NodeViews.h"

namespace Framework {

namespace {

bool IsAt(std::size_t size, int Index) {
    return Index >= 0 && static_cast<std::size_t>(Index) < size;
}

/// Nulls in the vector what the map leads to and what stands in it a second time: the rest is nobody else's.
template <typename Entry>
void KeepStrays(const Zelvon::SyncMap<zelString, Entry*>& map, std::vector<Entry*>& entries) noexcept {
    try {
        std::unordered_set<Entry*> reached;
        map.forEachValue([&](Entry* entry) { reached.insert(entry); });
        for (Entry*& entry : entries) {
            if (!reached.insert(entry).second) {
                entry = nullptr;
            }
        }
    } catch (const std::bad_alloc&) { // slow, but destructors come here too, and must end without memory
        for (auto entry = entries.begin(); entry != entries.end(); ++entry) {
            bool isReached = std::find(entries.begin(), entry, *entry) != entry;
            map.forEachValue([&](const Entry* other) { isReached = isReached || other == *entry; });
            if (isReached) {
                *entry = nullptr;
            }
        }
    }
}

/// Empties both halves. An entry under two keys, or in one half only, is destroyed once.
template <typename Entry> void ClearBoth(Zelvon::SyncMap<zelString, Entry*>& map, std::vector<Entry*>& entries) {
    ListEdit<Entry>::Settle(entries);
    if (map.size() != entries.size()) {
        KeepStrays(map, entries);
    } else {
        entries.clear();
    }
    map.clearMap(true);
    std::for_each(entries.begin(), entries.end(), &DeleteQuietly<Entry>);
    entries.clear();
}

/// A new entry as far as both kinds of lists of containers share it: null when it is not to be added.
std::unique_ptr<TypedDataContainer> MakeEntry(TypedDataContainer& object, const FieldRow& row, XMLDataWrapper* pData,
                                              XalanNode* spNode) {
    const bool fromScratch = ContainerAccess::BuildsFromScratch(object);
    if (pData == nullptr && !fromScratch) {
        return nullptr;
    }
    std::unique_ptr<TypedDataContainer> entry(row.list->newEntry(fromScratch));
    entry->SetContainerName(row.name.data());
    entry->SetFeatureID(object.GetFeatureID());
    ContainerAccess::SetLookup(*entry, ContainerAccess::Lookup(object));
    XMLDataWrapper* const wrapper = ContainerAccess::WrapperForParts(object, pData);
    if (pData != nullptr && !entry->SetContainedDataPtr(wrapper, spNode, ContainerAccess::IsReadOnly(object), true)) {
        return nullptr;
    }
    return entry;
}

/// A merge that brings something new has its journal told, with the place of the entry that stays. `isInEntry`: the
/// merge stands at the entry already.
void TellJournal(const FieldRow& row, const zelString& sName, bool isInEntry, NodeRef first) {
    JournalData* const journal = JournalData::Current();
    const XmlTree* tree = nullptr;
    const NodeRef node = OverridePlace::Innermost(tree);
    if (journal == nullptr || tree == nullptr) {
        return;
    }
    WhileMemoryLasts([&] {
        const std::string key = std::string(row.keyAttribute) + "=\"" + sName + "\"";
        journal->WriteProblem(*tree, node,
                              isInEntry ? std::string() : FieldPath::KeyStep(row.name, row.keyAttribute, sName),
                              MergeJournal::Outcome::Skipped,
                              {FindingCode::DuplicateKey,
                               "a second " + std::string(row.name) + " with " + key + "; it is dropped",
                               NodeRef::None,
                               {},
                               first,
                               "the first one is here"});
    });
}

/// The node of the entry that stays, where that is one of the document that is read.
NodeRef NodeInSource(const TypedDataContainer& entry) {
    const XmlTree* tree = nullptr;
    OverridePlace::Innermost(tree);
    const WrapperState* const state = LoadedState(ContainerAccess::Wrapper(entry));
    return state != nullptr && state->Tree() == tree ? ContainerAccess::Node(entry) : NodeRef::None;
}

void ReportDuplicate(TypedDataContainer& object, const FieldRow& row, const zelString& sName, unsigned int line) {
    const zelString format = "Duplicate Index for " + zelString(row.name.data()) + ", Index = %s";
    object.SetLastError(-2, format, sName.c_str());
    LogLastError(object, line);
}

} // namespace

TypedDataContainer* EntryAt(const EntryVector& entries, int Index) {
    return IsAt(entries.size(), Index) ? entries[static_cast<std::size_t>(Index)] : nullptr;
}

TypedDataContainer* EntryByKey(EntryMap& map, const zelString& sName) {
    TypedDataContainer* entry = nullptr;
    map.getValue(sName, entry, true);
    return entry;
}

void AddNewKeyed(EntryMap& map, EntryVector& entries, TypedDataContainer* szNew, const zelString& sName) {
    std::unique_ptr<TypedDataContainer> entry(szNew);
    ListEdit<TypedDataContainer>::Settle(entries);
    StoreKeyed(map, entries, std::move(entry), sName);
}

void AddKeyed(TypedDataContainer& object, const FieldRow& row, XMLDataWrapper* pData, XalanNode* spNode,
              const zelString& sName, unsigned int line) {
    std::unique_ptr<TypedDataContainer> entry = MakeEntry(object, row, pData, spNode);
    if (entry == nullptr) {
        return;
    }
    EntryMap& map = object.*row.map.entries;
    ListEdit<TypedDataContainer>::Settle(object.*row.member.entries);
    if (const TypedDataContainer* const first = EntryByKey(map, sName)) {
        DeleteQuietly(entry.release());
        const XmlTree* tree = nullptr;
        const NodeRef node = NodeViews::Find(spNode, tree);
        const OverridePlace place(tree, node);
        TellJournal(row, sName, true, NodeInSource(*first));
        ReportDuplicate(object, row, sName, line);
        return;
    }
    StoreKeyed(map, object.*row.member.entries, std::move(entry), sName);
}

bool IsFree(TypedDataContainer& object, const FieldRow& row, std::string_view key) {
    EntryMap& map = object.*row.map.entries;
    return map.findValue(key, true) == nullptr;
}

void StoreEntry(TypedDataContainer& object, const FieldRow& row, std::unique_ptr<TypedDataContainer> entry,
                std::string_view key) {
    EntryVector& entries = object.*row.member.entries;
    if (row.form == FieldForm::PlainList) {
        entries.push_back(entry.get());
    } else {
        ListEdit<TypedDataContainer>::Settle(entries);
        entries.push_back(entry.get());
        try {
            (object.*row.map.entries).addValue(key, entry.get());
        } catch (...) {
            entries.pop_back();
            throw;
        }
    }
    entry.release();
}

void RemoveKeyed(TypedDataContainer& object, const FieldRow& row, const zelString& sName, const zelString& sFeatureId) {
    EntryVector& entries = object.*row.member.entries;
    EntryMap& map = object.*row.map.entries;
    ListEdit<TypedDataContainer>::Settle(entries);
    const auto found = std::find_if(entries.begin(), entries.end(), [&](TypedDataContainer* entry) {
        return entry != nullptr && row.list->keyEquals(*entry, sName) && entry->GetFeatureID() == sFeatureId;
    });
    TypedDataContainer* const removed = found == entries.end() ? nullptr : *found;
    bool keepsOther = false;
    {
        map.writeLock();
        const std::unique_lock guard(map, std::adopt_lock);
        if (removed != nullptr) {
            // Every key that leads to the destroyed entry goes. One that is found by its number may stand under another
            // text; then an entry that lives under this text stays reachable.
            TypedDataContainer* other = removed;
            keepsOther = row.intKey && map.getValue(sName, other, false) && other != removed;
            map.removeValuesIf([removed](const TypedDataContainer* entry) { return entry == removed; });
        }
        if (!keepsOther) {
            map.removeKey(sName);
        }
    }
    if (removed != nullptr) {
        entries.erase(std::remove(entries.begin(), entries.end(), removed), entries.end());
        DeleteQuietly(removed);
    }
}

void ClearKeyed(EntryMap& map, EntryVector& entries) {
    ClearBoth(map, entries);
}

zelString TextAt(const TextVector& texts, int Index) {
    const bool isThere = IsAt(texts.size(), Index) && texts[static_cast<std::size_t>(Index)] != nullptr;
    return isThere ? texts[static_cast<std::size_t>(Index)]->strValue : zelString();
}

zelString TextByKey(TextMap& map, const zelString& sName) {
    // Copied under the lock: as soon as that is given back, another thread may clear the list.
    map.readLock();
    const std::unique_lock guard(map, std::adopt_lock);
    TypedDataContainer::SimpleDataContainer* entry = nullptr;
    return map.getValue(sName, entry, false) && entry != nullptr ? entry->strValue : zelString();
}

void AddKeyedText(TypedDataContainer& object, const FieldRow& row, const zelString& pData, const zelString& sName,
                  unsigned int line) {
    TextMap& map = object.*row.map.texts;
    ListEdit<TypedDataContainer::SimpleDataContainer>::Settle(object.*row.member.keyedTexts);
    TypedDataContainer::SimpleDataContainer* present = nullptr;
    if (map.getValue(sName, present, true)) {
        TellJournal(row, sName, false, ContainerAccess::TextNode(*present, object));
        ReportDuplicate(object, row, sName, line);
        return;
    }
    auto entry = std::make_unique<TypedDataContainer::SimpleDataContainer>();
    entry->dcType = dcString;
    entry->strValue = pData;
    entry->ElementName = sName;
    StoreKeyed(map, object.*row.member.keyedTexts, std::move(entry), sName);
}

void ClearKeyedTexts(TextMap& map, TextVector& texts) {
    ClearBoth(map, texts);
}

TypedDataContainer* GrowTo(TypedDataContainer& object, const FieldRow& row, int Index) {
    EntryVector& entries = object.*row.member.entries;
    while (Index >= 0 && !IsAt(entries.size(), Index)) {
        std::unique_ptr<TypedDataContainer> entry(row.list->newEntry(false));
        entry->SetFeatureID(object.GetFeatureID());
        if (!entry->LoadFromTemplate(ContainerAccess::Lookup(object), TypedDataContainer::TDC_BASE_DATA_TEMPLATE,
                                     row.name.data(), row.className.data(), ContainerAccess::IsReadOnly(object))) {
            return nullptr;
        }
        entries.push_back(entry.get());
        entry.release();
    }
    return EntryAt(entries, Index);
}

void AddPlain(TypedDataContainer& object, const FieldRow& row, XMLDataWrapper* pData, XalanNode* spNode) {
    if (std::unique_ptr<TypedDataContainer> entry = MakeEntry(object, row, pData, spNode)) {
        (object.*row.member.entries).push_back(entry.get());
        entry.release();
    }
}

void AddNewPlain(EntryVector& entries, TypedDataContainer* szNew) {
    std::unique_ptr<TypedDataContainer> entry(szNew);
    entries.push_back(szNew);
    entry.release();
}

void ClearPlain(EntryVector& entries) {
    std::for_each(entries.begin(), entries.end(), &DeleteQuietly<TypedDataContainer>);
    entries.clear();
}

zelString GrowTo(std::vector<zelString>& texts, int Index) {
    if (Index < 0) {
        return {};
    }
    const auto position = static_cast<std::size_t>(Index);
    if (position >= texts.size()) {
        texts.resize(position + 1);
    }
    return texts[position];
}

TypedDataEnumeration* GrowTo(std::vector<TypedDataEnumeration*>& words, const FieldRow& row, int Index) {
    while (Index >= 0 && !IsAt(words.size(), Index)) {
        std::unique_ptr<TypedDataEnumeration> word(row.list->newWord(nullptr));
        words.push_back(word.get());
        word.release();
    }
    return IsAt(words.size(), Index) ? words[static_cast<std::size_t>(Index)] : nullptr;
}

void AddNewWord(std::vector<TypedDataEnumeration*>& words, TypedDataEnumeration* szNew) {
    std::unique_ptr<TypedDataEnumeration> word(szNew);
    words.push_back(szNew);
    word.release();
}

void AddWord(std::vector<TypedDataEnumeration*>& words, const FieldRow& row, const zelString& pData) {
    std::unique_ptr<TypedDataEnumeration> word(row.list->newWord(pData.c_str()));
    words.push_back(word.get());
    word.release();
}

void ClearWords(std::vector<TypedDataEnumeration*>& words) {
    std::for_each(words.begin(), words.end(), &DeleteQuietly<TypedDataEnumeration>);
    words.clear();
}

} // namespace Framework
