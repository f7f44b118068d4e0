#pragma once

#include <cstddef>
#include <functional>
#include <memory>
#include <string>
#include <type_traits>
#include <unordered_map>
#include <utility>

#include "GeneratedFields.h"

// What somebody would write by hand on top of generated classes: they have lists without keys, and do not merge.
namespace Bench::Generated {

/// Finds the entries of all keyed lists of a tree.
class Index {
public:
    template <class Entry> void Add(const void* list, Entry& entry) {
        if constexpr (Keyed<Entry>) {
            m_entries.try_emplace({list, KeyOf(entry)}, &entry);
        }
    }
    /// The first entry with the key of `like`; null when there is none.
    template <class Entry> Entry* Find(const void* list, Entry& like) const {
        if constexpr (Keyed<Entry>) {
            const auto found = m_entries.find({list, KeyOf(like)});
            return found == m_entries.end() ? nullptr : static_cast<Entry*>(found->second);
        }
        return nullptr;
    }

private:
    struct Place {
        const void* list;
        std::string key;

        bool operator==(const Place&) const = default;
    };
    struct HashPlace {
        std::size_t operator()(const Place& place) const {
            return std::hash<std::string>()(place.key) ^
                   (std::hash<const void*>()(place.list) * std::size_t{0x9E3779B97F4A7C15});
        }
    };

    std::unordered_map<Place, void*, HashPlace> m_entries;
};

/// Goes down to every entry of every list; `Visitor` says in Visit what happens to one.
template <class Visitor> struct EntryWalk {
    template <class Value> void Scalar(const Value&) {}
    template <class Value> void Child(Value& child) {
        if (child) {
            Describe(Self(), *child);
        }
    }
    template <class Entries> void List(Entries& list) {
        for (auto& each : list) {
            Self().Visit(list, EntryOf(each));
        }
    }

protected:
    Visitor& Self() { return static_cast<Visitor&>(*this); }
};

/// Puts all entries below an object into the index.
struct Indexer : EntryWalk<Indexer> {
    explicit Indexer(Index& index) : m_index(index) {}

    template <class Entries, class Entry> void Visit(const Entries& list, Entry& entry) {
        m_index.Add(&list, entry);
        Describe(*this, entry);
    }

private:
    Index& m_index;
};

/// Looks up every entry of every list by its key.
struct Finder : EntryWalk<Finder> {
    explicit Finder(const Index& index) : m_index(index) {}

    template <class Entries, class Entry> void Visit(const Entries& list, Entry& entry) {
        if constexpr (Keyed<Entry>) {
            Entry* const found = m_index.Find(&list, entry);
            missing += found == nullptr;
            if (found != nullptr) {
                Describe(*this, *found);
            }
        }
    }

    std::size_t missing = 0;

private:
    const Index& m_index;
};

/// Reads every field of an object that has no lists.
struct Reader {
    std::size_t sum = 0;

    template <class Value> void Scalar(const Value& value) {
        if (value) {
            Add(*value);
        }
    }
    template <class Value> void Child(Value& child) {
        if (child) {
            Describe(*this, *child);
        }
    }

private:
    void Add(const std::string& text) { sum += text.size(); }
    template <class Value>
    requires(std::is_arithmetic_v<Value> || std::is_enum_v<Value>) void Add(Value value) {
        sum += static_cast<std::size_t>(value);
    }
};

/// Takes over what another object of the class holds.
struct Merger {
    Index& index;

    template <class Value> void Scalar(Value& value, Value& other) {
        if (other) {
            Take(value, other);
        }
    }
    template <class Value> void Child(Value& child, Value& other) {
        if (child && other) {
            Describe(*this, *child, *other);
        } else if (other) {
            Take(child, other);
            Indexer below{index};
            below.Child(child);
        }
    }
    template <class Entries> void List(Entries& list, Entries& others) {
        for (auto each = others.begin(); each != others.end(); ++each) {
            auto& other = EntryOf(*each);
            if (auto* const found = index.Find(&list, other)) {
                MergeEntry(*found, other);
            } else {
                Append(list, others, each);
                Indexer{index}.Visit(list, EntryOf(list.back()));
            }
        }
    }

private:
    template <class Entry> void MergeEntry(Entry& entry, Entry& other) {
        if (std::string* const text = TextOf(entry)) {
            *text = std::move(*TextOf(other));
        }
        Describe(*this, entry, other);
    }
    template <class Value> static void Take(Value& value, Value& other) {
        if constexpr (requires { value.set(other.detach()); }) {
            value.set(other.detach());
        } else {
            value = other;
        }
    }
    template <class Entries, class Iterator> static void Append(Entries& list, Entries& others, Iterator each) {
        using Entry = std::remove_reference_t<decltype(*each)>;
        if constexpr (requires(std::unique_ptr<Entry> entry) { others.detach(each, entry, false); }) {
            std::unique_ptr<Entry> entry;
            others.detach(each, entry, false);
            list.push_back(std::move(entry));
        } else {
            list.push_back(std::move(*each));
        }
    }
};

/// A tree of generated objects with its index. The library offers, for each root:
///   Type& Read<Root>(const std::string&)  the object of a text, which it owns until Clear
///   std::string Write<Root>(const Type&)
template <class Library, class Root> class Tree {
public:
    Tree(Library& library, const std::string& text) : m_library(library), m_root(library.template Read<Root>(text)) {
        Indexer indexer{m_index};
        Describe(indexer, m_root);
    }
    ~Tree() { m_library.Clear(); }
    Tree(const Tree&) = delete;
    Tree& operator=(const Tree&) = delete;

    std::string Text() const { return m_library.template Write<Root>(m_root); }
    void Merge(const std::string& overrideText) {
        Merger merger{m_index};
        Describe(merger, m_root, m_library.template Read<Root>(overrideText));
    }
    std::size_t SumOfFields() const {
        Reader reader;
        Describe(reader, m_root);
        return reader.sum;
    }
    std::size_t MissingKeys() const {
        Finder finder{m_index};
        Describe(finder, m_root);
        return finder.missing;
    }

private:
    Library& m_library;
    typename Root::Type& m_root;
    Index m_index;
};

} // namespace Bench::Generated
