#pragma once

#include <memory>

#include "Framework/FrameworkDataContainers/Walks/FieldTable.h"

/// The list operations that generated accessors call. `row` is the list's own row; `line` the line of the call, which a
/// duplicate key is logged with. Entries are owned by the object whose list they stand in.
namespace Framework {

inline int ListLength(const auto& entries) {
    return static_cast<int>(entries.size());
}

// keyed list of containers
TypedDataContainer* EntryAt(const EntryVector& entries, int Index);
TypedDataContainer* EntryByKey(EntryMap& map, const zelString& sName);
void AddNewKeyed(EntryMap& map, EntryVector& entries, TypedDataContainer* szNew, const zelString& sName);
void AddKeyed(TypedDataContainer& object, const FieldRow& row, XMLDataWrapper* pData, XalanNode* spNode,
              const zelString& sName, unsigned int line);
void RemoveKeyed(TypedDataContainer& object, const FieldRow& row, const zelString& sName, const zelString& sFeatureId);
void ClearKeyed(EntryMap& map, EntryVector& entries);
/// Whether a keyed list has nothing under the key.
bool IsFree(TypedDataContainer& object, const FieldRow& row, std::string_view key);
/// Stores an entry that is populated, in a plain list or under a key that is free.
void StoreEntry(TypedDataContainer& object, const FieldRow& row, std::unique_ptr<TypedDataContainer> entry,
                std::string_view key);

// keyed list of strings
zelString TextAt(const TextVector& texts, int Index);
zelString TextByKey(TextMap& map, const zelString& sName);
void AddKeyedText(TypedDataContainer& object, const FieldRow& row, const zelString& pData, const zelString& sName,
                  unsigned int line);
void ClearKeyedTexts(TextMap& map, TextVector& texts);

// plain list of containers
TypedDataContainer* GrowTo(TypedDataContainer& object, const FieldRow& row, int Index);
void AddPlain(TypedDataContainer& object, const FieldRow& row, XMLDataWrapper* pData, XalanNode* spNode);
void AddNewPlain(EntryVector& entries, TypedDataContainer* szNew);
void ClearPlain(EntryVector& entries);

// plain list of strings
zelString GrowTo(std::vector<zelString>& texts, int Index);

// plain list of enumerations
TypedDataEnumeration* GrowTo(std::vector<TypedDataEnumeration*>& words, const FieldRow& row, int Index);
void AddNewWord(std::vector<TypedDataEnumeration*>& words, TypedDataEnumeration* szNew);
void AddWord(std::vector<TypedDataEnumeration*>& words, const FieldRow& row, const zelString& pData);
void ClearWords(std::vector<TypedDataEnumeration*>& words);

/// Takes the place of the child that is there, which is deleted. Storing the child that is there changes nothing.
template <typename Type> void ReplaceChild(Type*& slot, Type* szNew) {
    if (slot != szNew) {
        delete slot;
        slot = szNew;
    }
}

} // namespace Framework
