#pragma once

#include <concepts>
#include <memory>
#include <string>
#include <type_traits>
#include <unordered_map>
#include <vector>

#include "PacketFields.h"

// What somebody would write by hand in place of the library: plain structs with hash maps, and for each struct one list
// of its fields. Visitors in Binding.h go through the list to read, write and merge; several objects of one type may be
// gone through at a time.
namespace Bench::Model {

/// An XML name as each parser wants it.
struct Name {
    const char* narrow;
    const char16_t* wide;
};
#define BENCH_NAME(name)                                                                                               \
    ::Bench::Model::Name {                                                                                             \
#name, u"" #name                                                                                               \
    }

template <class Entry> struct KeyedList {
    std::vector<std::unique_ptr<Entry>> entries;
    std::unordered_map<std::string, Entry*> byKey;

    void Add(std::unique_ptr<Entry> entry) {
        byKey.try_emplace(entry->Key(), entry.get());
        entries.push_back(std::move(entry));
    }
};
template <class Child> using Optional = std::unique_ptr<Child>;

template <class Type, class... Objects>
concept AllAre = (std::same_as<std::remove_const_t<Objects>, Type> && ...);

// --- a translation document

struct Translation {
    std::string lookupData, resultValue;
    std::vector<std::string> docs;
    std::string Key() const { return lookupData; }
};
template <class Fields, class... T>
requires AllAre<Translation, T...>
void Describe(Fields& fields, T&... t) {
    fields.Attribute(BENCH_NAME(LookupData), t.lookupData...);
    fields.Element(BENCH_NAME(ResultValue), t.resultValue...);
    fields.Texts(BENCH_NAME(Doc), t.docs...);
}

struct TranslationMap {
    std::string language;
    KeyedList<Translation> translations;
    std::string Key() const { return language; }
};
template <class Fields, class... T>
requires AllAre<TranslationMap, T...>
void Describe(Fields& fields, T&... t) {
    fields.Attribute(BENCH_NAME(language), t.language...);
    fields.List(BENCH_NAME(Translation), t.translations...);
}

struct TranslationText {
    KeyedList<TranslationMap> maps;
};
template <class Fields, class... T>
requires AllAre<TranslationText, T...>
void Describe(Fields& fields, T&... t) {
    fields.List(BENCH_NAME(TranslationKeyMap), t.maps...);
}

struct Translations {
    static constexpr Name root = BENCH_NAME(TranslationConfig);
    Optional<TranslationText> text;
};
template <class Fields, class... T>
requires AllAre<Translations, T...>
void Describe(Fields& fields, T&... t) {
    fields.Child(BENCH_NAME(TranslationText), t.text...);
}

// --- a state table

struct Note {
    std::string index, text;
    std::string Key() const { return index; }
};
template <class Fields, class... T>
requires AllAre<Note, T...>
void Describe(Fields& fields, T&... t) {
    fields.Attribute(BENCH_NAME(Index), t.index...);
    fields.Content(t.text...);
}

struct DataListItem {
    std::string name, dataType, value;
    std::string Key() const { return name; }
};
template <class Fields, class... T>
requires AllAre<DataListItem, T...>
void Describe(Fields& fields, T&... t) {
    fields.Attribute(BENCH_NAME(Name), t.name...);
    fields.Attribute(BENCH_NAME(DataType), t.dataType...);
    fields.Element(BENCH_NAME(Value), t.value...);
}

struct DataList {
    KeyedList<DataListItem> items;
};
template <class Fields, class... T>
requires AllAre<DataList, T...>
void Describe(Fields& fields, T&... t) {
    fields.List(BENCH_NAME(DataListItem), t.items...);
}

struct Datum {
    std::string name, sourceType, source, value;
    Optional<DataList> list;
    std::string Key() const { return name; }
};
template <class Fields, class... T>
requires AllAre<Datum, T...>
void Describe(Fields& fields, T&... t) {
    fields.Attribute(BENCH_NAME(Name), t.name...);
    fields.Attribute(BENCH_NAME(SourceType), t.sourceType...);
    fields.Attribute(BENCH_NAME(Source), t.source...);
    fields.Element(BENCH_NAME(Value), t.value...);
    fields.Child(BENCH_NAME(DataList), t.list...);
}

struct ActionData {
    KeyedList<Datum> data;
};
template <class Fields, class... T>
requires AllAre<ActionData, T...>
void Describe(Fields& fields, T&... t) {
    fields.List(BENCH_NAME(Data), t.data...);
}

struct Action {
    std::string actionRef;
    Optional<ActionData> data;
};
template <class Fields, class... T> void DescribeAction(Fields& fields, T&... t) {
    fields.Element(BENCH_NAME(ActionRef), t.actionRef...);
    fields.Child(BENCH_NAME(ActionData), t.data...);
}

struct PostAction : Action {
    int result = 0;
    std::string Key() const { return std::to_string(result); }
};
template <class Fields, class... T>
requires AllAre<PostAction, T...>
void Describe(Fields& fields, T&... t) {
    fields.Attribute(BENCH_NAME(Result), t.result...);
    DescribeAction(fields, t...);
}

struct ActionResp {
    KeyedList<PostAction> actions;
};
template <class Fields, class... T>
requires AllAre<ActionResp, T...>
void Describe(Fields& fields, T&... t) {
    fields.List(BENCH_NAME(PostActionResp), t.actions...);
}

struct ActionItem : Action {
    std::string index;
    Optional<ActionResp> resp;
    std::string Key() const { return index; }
};
template <class Fields, class... T>
requires AllAre<ActionItem, T...>
void Describe(Fields& fields, T&... t) {
    fields.Attribute(BENCH_NAME(Index), t.index...);
    DescribeAction(fields, t...);
    fields.Child(BENCH_NAME(ActionResp), t.resp...);
}

struct Trigger {
    std::string trigger;
    KeyedList<Note> docs;
    KeyedList<ActionItem> items;
    bool isListCached = false;
    std::string Key() const { return trigger; }
};
template <class Fields, class... T>
requires AllAre<Trigger, T...>
void Describe(Fields& fields, T&... t) {
    fields.Attribute(BENCH_NAME(Trigger), t.trigger...);
    fields.List(BENCH_NAME(Doc), t.docs...);
    fields.List(BENCH_NAME(ActionItem), t.items...);
    fields.Element(BENCH_NAME(ActionListCached), t.isListCached...);
}

struct Triggers {
    KeyedList<Trigger> triggers;
};
template <class Fields, class... T>
requires AllAre<Triggers, T...>
void Describe(Fields& fields, T&... t) {
    fields.List(BENCH_NAME(StateAction), t.triggers...);
}

struct State {
    std::string name, baseState;
    bool isTransient = false, doesCacheActions = false;
    KeyedList<Note> docs;
    Optional<ActionItem> pre, post;
    Optional<Triggers> triggers;
    std::string Key() const { return name; }
};
template <class Fields, class... T>
requires AllAre<State, T...>
void Describe(Fields& fields, T&... t) {
    fields.Attribute(BENCH_NAME(Name), t.name...);
    fields.Attribute(BENCH_NAME(Transient), t.isTransient...);
    fields.Attribute(BENCH_NAME(CacheActions), t.doesCacheActions...);
    fields.Attribute(BENCH_NAME(BaseState), t.baseState...);
    fields.List(BENCH_NAME(Doc), t.docs...);
    fields.Child(BENCH_NAME(PreStateTrigger), t.pre...);
    fields.Child(BENCH_NAME(StateTriggers), t.triggers...);
    fields.Child(BENCH_NAME(PostStateTrigger), t.post...);
}

struct StateTable {
    std::string name, initialState;
    KeyedList<State> states;
};
template <class Fields, class... T>
requires AllAre<StateTable, T...>
void Describe(Fields& fields, T&... t) {
    fields.Attribute(BENCH_NAME(Name), t.name...);
    fields.Attribute(BENCH_NAME(InitialState), t.initialState...);
    fields.List(BENCH_NAME(State), t.states...);
}

struct States {
    static constexpr Name root = BENCH_NAME(StateProcessingRoot);
    Optional<StateTable> table;
};
template <class Fields, class... T>
requires AllAre<States, T...>
void Describe(Fields& fields, T&... t) {
    fields.Child(BENCH_NAME(StateTable), t.table...);
}

// --- a packet

struct Item {
#define BENCH_TEXT(name, ...) std::string name;
#define BENCH_INT(name) int name = 0;
#define BENCH_BOOL(name) bool name = false;
#define BENCH_DOUBLE(name) double name = 0;
    BENCH_ITEM_FIELDS(BENCH_TEXT, BENCH_TEXT, BENCH_INT, BENCH_BOOL, BENCH_DOUBLE)
#undef BENCH_TEXT
#undef BENCH_INT
#undef BENCH_BOOL
#undef BENCH_DOUBLE
};
template <class Fields, class... T>
requires AllAre<Item, T...>
void Describe(Fields& fields, T&... t) {
#define BENCH_ELEMENT(name, ...) fields.Element(BENCH_NAME(name), t.name...);
    BENCH_ITEM_FIELDS(BENCH_ELEMENT, BENCH_ELEMENT, BENCH_ELEMENT, BENCH_ELEMENT, BENCH_ELEMENT)
#undef BENCH_ELEMENT
}

struct Packet {
    static constexpr Name root = BENCH_NAME(LoggingInformationPacket);
    std::string packetType, timeStamp;
    int lane = 0;
    Optional<Item> item;
};
template <class Fields, class... T>
requires AllAre<Packet, T...>
void Describe(Fields& fields, T&... t) {
    fields.Element(BENCH_NAME(PacketType), t.packetType...);
    fields.Element(BENCH_NAME(Lane), t.lane...);
    fields.Element(BENCH_NAME(TimeStamp), t.timeStamp...);
    fields.Child(BENCH_NAME(ItemInformation), t.item...);
}

} // namespace Bench::Model
