#pragma once

#include <string>
#include <type_traits>
#include <utility>

#include "PacketFields.h"

// Generated classes name their members after the schema, one generator by a variable, the other by a function that
// gives a reference. So one list of fields serves the classes of both: an object is described by the fields that it
// has. Optional fields are tested and read like pointers.
#define BENCH_GENERATED_SCALARS(SCALAR)                                                                                \
    SCALAR(LookupData)                                                                                                 \
    SCALAR(ResultValue)                                                                                                \
    SCALAR(language)                                                                                                   \
    SCALAR(Name)                                                                                                       \
    SCALAR(InitialState)                                                                                               \
    SCALAR(Transient)                                                                                                  \
    SCALAR(CacheActions)                                                                                               \
    SCALAR(BaseState)                                                                                                  \
    SCALAR(Trigger)                                                                                                    \
    SCALAR(ActionListCached)                                                                                           \
    SCALAR(Index)                                                                                                      \
    SCALAR(ActionRef)                                                                                                  \
    SCALAR(Result)                                                                                                     \
    SCALAR(SourceType)                                                                                                 \
    SCALAR(Source)                                                                                                     \
    SCALAR(DataType)                                                                                                   \
    SCALAR(Value)                                                                                                      \
    SCALAR(PacketType)                                                                                                 \
    SCALAR(Lane)                                                                                                       \
    BENCH_ITEM_FIELDS(SCALAR, SCALAR, SCALAR, SCALAR, SCALAR)
#define BENCH_GENERATED_CHILDREN(CHILD)                                                                                \
    CHILD(TranslationText)                                                                                             \
    CHILD(StateTable)                                                                                                  \
    CHILD(PreStateTrigger)                                                                                             \
    CHILD(StateTriggers)                                                                                               \
    CHILD(PostStateTrigger)                                                                                            \
    CHILD(ActionData)                                                                                                  \
    CHILD(ActionResp)                                                                                                  \
    CHILD(DataList)                                                                                                    \
    CHILD(ItemInformation)
#define BENCH_GENERATED_LISTS(LIST)                                                                                    \
    LIST(TranslationKeyMap)                                                                                            \
    LIST(Translation)                                                                                                  \
    LIST(Doc)                                                                                                          \
    LIST(State)                                                                                                        \
    LIST(StateAction)                                                                                                  \
    LIST(ActionItem)                                                                                                   \
    LIST(Data)                                                                                                         \
    LIST(DataListItem)                                                                                                 \
    LIST(PostActionResp)

namespace Bench::Generated {

/// Hands the fields of an object to Scalar, Child and List of `fields`, with those of others of its class.
template <class Fields, class Object, class... Others>
void Describe(Fields& fields, Object& object, Others&... others) {
#define BENCH_FIELD(name, call)                                                                                        \
    if constexpr (requires { object.name(); }) {                                                                       \
        fields.call(object.name(), others.name()...);                                                                  \
    } else if constexpr (requires { object.name; }) {                                                                  \
        fields.call(object.name, others.name...);                                                                      \
    }
#define BENCH_SCALAR(name, ...) BENCH_FIELD(name, Scalar)
#define BENCH_CHILD(name) BENCH_FIELD(name, Child)
#define BENCH_LIST(name) BENCH_FIELD(name, List)
    BENCH_GENERATED_SCALARS(BENCH_SCALAR)
    BENCH_GENERATED_CHILDREN(BENCH_CHILD)
    BENCH_GENERATED_LISTS(BENCH_LIST)
#undef BENCH_LIST
#undef BENCH_CHILD
#undef BENCH_SCALAR
#undef BENCH_FIELD
}

/// The text that an object is; null for an object that only has fields.
template <class Object> std::string* TextOf(Object& object) {
    if constexpr (requires { object.__item; }) {
        return &object.__item;
    } else if constexpr (std::is_convertible_v<Object*, std::string*>) {
        return &object;
    } else {
        return nullptr;
    }
}

inline std::string KeyText(const std::string& key) {
    return key;
}
inline std::string KeyText(int key) {
    return std::to_string(key);
}

/// The key of an entry: the one of these that its class has. Classes without return nothing.
template <class Entry> auto KeyOf(Entry& entry) {
#define BENCH_KEY(name)                                                                                                \
    if constexpr (requires { entry.name(); }) {                                                                        \
        return entry.name() ? KeyText(*entry.name()) : std::string();                                                  \
    } else if constexpr (requires { entry.name; }) {                                                                   \
        return entry.name ? KeyText(*entry.name) : std::string();                                                      \
    } else
    BENCH_KEY(LookupData)
    BENCH_KEY(language)
    BENCH_KEY(Name)
    BENCH_KEY(Trigger)
    BENCH_KEY(Index)
    BENCH_KEY(Result)
    return;
#undef BENCH_KEY
}
template <class Entry>
concept Keyed = !std::is_void_v<decltype(KeyOf(std::declval<Entry&>()))>;

/// An entry of a list: lists hold objects, texts, or pointers to objects.
template <class Entry> Entry& EntryOf(Entry& entry) {
    return entry;
}
template <class Entry> Entry& EntryOf(Entry*& entry) {
    return *entry;
}

} // namespace Bench::Generated
