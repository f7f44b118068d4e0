#pragma once

#include <cstdint>
#include <span>
#include <string_view>
#include <typeinfo>
#include <vector>

#include "Framework/TypedDataContainer.h"
#include "Framework/TypedDataEnumeration.h"
#include "FrameworkDataContainers/FieldTableIndex.h"

/// The field table: what the generator says of a class, as constant data, and all that the walks know of it.
///
/// A class has one FieldTable; the table has one FieldRow for each of the class's own fields, in declared order, and a
/// pointer to the table of its parent when that is a generated class too. Rows are built by the functions at the end of
/// this file, one for each form, so that a row cannot be half filled:
///
///     constinit const Framework::FieldRow ChildThreadType::s_Rows[] = {
///         Framework::Element("LibraryPath", &ChildThreadType::m_LibraryPath),
///         Framework::EnumElement<&ChildThreadType::m_ThreadPriority>("ThreadPriority", "ThreadPriorityType"),
///         Framework::Attribute("UniqueName", &ChildThreadType::m_UniqueName),
///     };
///
/// Members are reached through pointers to members cast to the base class, or through functions typed on the member
/// where the type itself differs (children, enumerations, lists). Neither is an offset: an offset into a class with
/// virtual functions is only conditionally supported, and a T* must never be read through a TypedDataContainer**.
namespace Framework {

enum class FieldForm : std::uint8_t { Attribute, Element, Child, KeyedList, PlainList };

enum class FieldValue : std::uint8_t { String, Bool, Int, Double, Enumeration, Container };

using EntryMap = Zelvon::SyncMap<zelString, TypedDataContainer*>;
using EntryVector = std::vector<TypedDataContainer*>;
using TextMap = Zelvon::SyncMap<zelString, TypedDataContainer::SimpleDataContainer*>;
using TextVector = std::vector<TypedDataContainer::SimpleDataContainer*>;

/// Where a scalar or a list stands in its object. Which alternative holds follows from form and value of the row.
union FieldMember {
    std::nullptr_t none;
    zelString TypedDataContainer::*text;
    bool TypedDataContainer::*flag;
    int TypedDataContainer::*number;
    double TypedDataContainer::*real;
    std::vector<zelString> TypedDataContainer::*texts;
    EntryVector TypedDataContainer::*entries;
    TextVector TypedDataContainer::*keyedTexts;
    std::vector<TypedDataEnumeration*> TypedDataContainer::*words;

    constexpr FieldMember() : none(nullptr) {}
    constexpr explicit FieldMember(zelString TypedDataContainer::*member) : text(member) {}
    constexpr explicit FieldMember(bool TypedDataContainer::*member) : flag(member) {}
    constexpr explicit FieldMember(int TypedDataContainer::*member) : number(member) {}
    constexpr explicit FieldMember(double TypedDataContainer::*member) : real(member) {}
    constexpr explicit FieldMember(std::vector<zelString> TypedDataContainer::*member) : texts(member) {}
    constexpr explicit FieldMember(EntryVector TypedDataContainer::*member) : entries(member) {}
    constexpr explicit FieldMember(TextVector TypedDataContainer::*member) : keyedTexts(member) {}
    constexpr explicit FieldMember(std::vector<TypedDataEnumeration*> TypedDataContainer::*member) : words(member) {}
};

/// The map beside the vector of a keyed list.
union FieldMap {
    std::nullptr_t none;
    EntryMap TypedDataContainer::*entries;
    TextMap TypedDataContainer::*texts;

    constexpr FieldMap() : none(nullptr) {}
    constexpr explicit FieldMap(EntryMap TypedDataContainer::*member) : entries(member) {}
    constexpr explicit FieldMap(TextMap TypedDataContainer::*member) : texts(member) {}
};

/// What the constructor gives a scalar, and reset gives again. A double always starts at 0, an enumeration at number 0.
struct FieldDefault {
    std::string_view text;
    int number = 0;
    bool flag = false;
};

/// An enumeration member, whatever its class.
struct EnumThunks {
    TypedDataEnumeration& (*get)(TypedDataContainer& object);
    void (*setNumber)(TypedDataContainer& object, int number);
    int (*number)(TypedDataContainer& object);
    zelString (*word)(int number);               ///< the word of a number, empty when it has none
    zelString (*wordOf)(const char* text);       ///< the text when it is a word, else empty
    void (*words)(std::vector<zelString>& list); ///< appends the texts of the vocabulary
};

/// An owned child, whatever its class.
struct ChildThunks {
    TypedDataContainer* (*get)(TypedDataContainer& object);
    const FieldTable* table;         ///< of the class that create gives
    TypedDataContainer* (*create)(); ///< a new child, bBuildFromScratch false; not yet stored
    void (*store)(TypedDataContainer& object, TypedDataContainer* child); ///< assigns the pointer, deletes nothing
};

/// The operations of a list that differ in type. Those on the object are virtual calls: a class derived by a host sees
/// them.
struct ListThunks {
    const FieldTable* table = nullptr; ///< of the class that newEntry gives
    TypedDataContainer* (*newEntry)(bool bBuildFromScratch) = nullptr;
    void (*addEntry)(TypedDataContainer& object, XMLDataWrapper* pData, XalanNode* spNode,
                     const zelString& sName) = nullptr;
    void (*addText)(TypedDataContainer& object, const zelString& text, const zelString& sName) = nullptr;
    void (*clear)(TypedDataContainer& object) = nullptr;
    bool (*keyEquals)(TypedDataContainer& entry, const zelString& sName) = nullptr;
    TypedDataEnumeration* (*newWord)(const char* text) = nullptr; ///< a null text: default constructed
    void (*words)(std::vector<zelString>& list) = nullptr;        ///< appends the texts of the vocabulary
};

struct FieldRow {
    std::string_view name; ///< the XML name; ends in a NUL
    FieldForm form = FieldForm::Element;
    FieldValue value = FieldValue::String;
    bool cdata = false;            ///< an element whose text is read and written as CDATA
    bool numberedKeys = false;     ///< a keyed list of strings whose entries are numbered on load
    bool intKey = false;           ///< the entry's key attribute is an int
    std::string_view className;    ///< class of the child, the entries or the vocabulary
    std::string_view keyAttribute; ///< of a keyed list, without "@"
    std::string_view loadText;     ///< assigned before an enumeration element is looked for on load
    FieldDefault initial;
    FieldMember member;
    FieldMap map;
    const EnumThunks* enumeration = nullptr;
    const ChildThunks* child = nullptr;
    const ListThunks* list = nullptr;
};

/// A field that GetProperties reports: attributes and elements that hold a text, a bool or a number.
constexpr bool IsProperty(const FieldRow& row) {
    return (row.form == FieldForm::Attribute || row.form == FieldForm::Element) && row.value != FieldValue::Enumeration;
}

struct FieldTable {
    std::string_view className;
    std::string_view elementName;  ///< what the constructor names the object
    const FieldTable* parent;      ///< of the generated base class, null when the base is none
    bool isStructuralConfigLoader; ///< derives from StructuralConfigLoader
    bool isRoot;                   ///< its element is the root of a document or packet
    std::span<const FieldRow> rows;
    TypedDataContainer* (*create)(bool bBuildFromScratch);
    const std::type_info* type;
    bool TypedDataContainer::*autoFill; ///< the class's own m_bAutoFillTypeInfo
};

/// Whether the object is of the class of the table itself and of none that a host derived from it: then nothing that it
/// does is overridden, and a walk may do at once what a virtual call would come to.
inline bool IsExactly(const TypedDataContainer& object, const FieldTable& table) {
    return typeid(object) == *table.type;
}

// --- rows
// -------------------------------------------------------------------------------------------------------------------

template <typename Type, typename Class> constexpr Type TypedDataContainer::*ToBase(Type Class::*member) {
    return static_cast<Type TypedDataContainer::*>(member);
}

template <typename Type> constexpr FieldValue ScalarValue() {
    if constexpr (std::is_same_v<Type, bool>) {
        return FieldValue::Bool;
    } else if constexpr (std::is_same_v<Type, int>) {
        return FieldValue::Int;
    } else if constexpr (std::is_same_v<Type, double>) {
        return FieldValue::Double;
    } else {
        static_assert(std::is_same_v<Type, zelString>, "a scalar is a text, a bool, an int or a double");
        return FieldValue::String;
    }
}

constexpr FieldDefault ToDefault(const char* text) {
    return {text, 0, false};
}
constexpr FieldDefault ToDefault(int number) {
    return {{}, number, false};
}
constexpr FieldDefault ToDefault(bool flag) {
    return {{}, 0, flag};
}

template <typename Type, typename Class>
constexpr FieldRow Scalar(FieldForm form, std::string_view name, Type Class::*member, FieldDefault initial) {
    FieldRow row;
    row.name = name;
    row.form = form;
    row.value = ScalarValue<Type>();
    row.initial = initial;
    row.member = FieldMember(ToBase(member));
    return row;
}

/// An attribute, or an element that holds one text: string, bool, int, double by the type of the member.
template <typename Type, typename Class> constexpr FieldRow Attribute(std::string_view name, Type Class::*member) {
    return Scalar(FieldForm::Attribute, name, member, {});
}
template <typename Type, typename Class, typename Default>
constexpr FieldRow Attribute(std::string_view name, Type Class::*member, Default initial) {
    return Scalar(FieldForm::Attribute, name, member, ToDefault(initial));
}
template <typename Type, typename Class> constexpr FieldRow Element(std::string_view name, Type Class::*member) {
    return Scalar(FieldForm::Element, name, member, {});
}
template <typename Type, typename Class, typename Default>
constexpr FieldRow Element(std::string_view name, Type Class::*member, Default initial) {
    return Scalar(FieldForm::Element, name, member, ToDefault(initial));
}

/// A string element that is read and written as CDATA.
template <typename Class> constexpr FieldRow CDataElement(std::string_view name, zelString Class::*member) {
    FieldRow row = Scalar(FieldForm::Element, name, member, {});
    row.cdata = true;
    return row;
}

template <auto Member> struct EnumOf;
template <typename Class, typename Enum, Enum Class::*Member> struct EnumOf<Member> {
    static constexpr EnumThunks thunks = {
        [](TypedDataContainer& object) -> TypedDataEnumeration& { return static_cast<Class&>(object).*Member; },
        [](TypedDataContainer& object, int number) { static_cast<Class&>(object).*Member = number; },
        [](TypedDataContainer& object) { return (static_cast<Class&>(object).*Member).Value(); },
        [](int number) { return Enum(number).StringOf(); },
        [](const char* text) { return Enum(text).StringOf(); },
        [](std::vector<zelString>& list) { Enum::GetContainedValueList(list); },
    };
};

template <auto Member>
constexpr FieldRow EnumElement(std::string_view name, std::string_view className, std::string_view loadText = {}) {
    FieldRow row;
    row.name = name;
    row.form = FieldForm::Element;
    row.value = FieldValue::Enumeration;
    row.className = className;
    row.loadText = loadText;
    row.enumeration = &EnumOf<Member>::thunks;
    return row;
}

template <auto Member> struct ChildOf;
template <typename Class, typename Type, Type* Class::*Member> struct ChildOf<Member> {
    static constexpr ChildThunks thunks = {
        [](TypedDataContainer& object) -> TypedDataContainer* { return static_cast<Class&>(object).*Member; },
        FieldTableIndex::Of<Type>(),
        []() -> TypedDataContainer* { return new Type(false); },
        [](TypedDataContainer& object, TypedDataContainer* child) {
            static_cast<Class&>(object).*Member = static_cast<Type*>(child);
        },
    };
};

template <auto Member> constexpr FieldRow Child(std::string_view name, std::string_view className) {
    FieldRow row;
    row.name = name;
    row.form = FieldForm::Child;
    row.value = FieldValue::Container;
    row.className = className;
    row.child = &ChildOf<Member>::thunks;
    return row;
}

template <auto KeyAccessor> struct KeyOf;
template <typename Entry, zelString (Entry::*Get)()> struct KeyOf<Get> {
    static constexpr bool isInt = false;
    static bool Equals(TypedDataContainer& entry, const zelString& sName) {
        return (static_cast<Entry&>(entry).*Get)() == sName;
    }
};
template <typename Entry, int (Entry::*Get)()> struct KeyOf<Get> {
    static constexpr bool isInt = true;
    static bool Equals(TypedDataContainer& entry, const zelString& sName) {
        return (static_cast<Entry&>(entry).*Get)() == SupportFunc::GetIntValue(sName);
    }
};

template <typename Entry, auto KeyAccessor, auto Add, auto Clear> struct KeyedListOf;
template <typename Entry, auto KeyAccessor, typename Class,
          void (Class::*Add)(XMLDataWrapper*, XalanNode*, const zelString&), void (Class::*Clear)()>
struct KeyedListOf<Entry, KeyAccessor, Add, Clear> {
    static constexpr ListThunks thunks = {
        .table = FieldTableIndex::Of<Entry>(),
        .newEntry = [](bool bBuildFromScratch) -> TypedDataContainer* { return new Entry(bBuildFromScratch); },
        .addEntry = [](TypedDataContainer& object, XMLDataWrapper* pData, XalanNode* spNode,
                       const zelString& sName) { (static_cast<Class&>(object).*Add)(pData, spNode, sName); },
        .addText = nullptr,
        .clear = [](TypedDataContainer& object) { (static_cast<Class&>(object).*Clear)(); },
        .keyEquals = &KeyOf<KeyAccessor>::Equals,
        .newWord = nullptr,
        .words = nullptr,
    };
};

/// A keyed list of containers: `KeyAccessor` is the Get of the entry's key attribute.
template <typename Entry, auto KeyAccessor, auto Add, auto Clear, typename Class>
constexpr FieldRow KeyedList(std::string_view name, std::string_view className, std::string_view keyAttribute,
                             EntryMap Class::*map, EntryVector Class::*entries) {
    FieldRow row;
    row.name = name;
    row.form = FieldForm::KeyedList;
    row.value = FieldValue::Container;
    row.intKey = KeyOf<KeyAccessor>::isInt;
    row.className = className;
    row.keyAttribute = keyAttribute;
    row.member = FieldMember(ToBase(entries));
    row.map = FieldMap(ToBase(map));
    row.list = &KeyedListOf<Entry, KeyAccessor, Add, Clear>::thunks;
    return row;
}

template <auto Add, auto Clear> struct KeyedTextsOf;
template <typename Class, void (Class::*Add)(const zelString&, const zelString&), void (Class::*Clear)()>
struct KeyedTextsOf<Add, Clear> {
    static constexpr ListThunks thunks = {
        .table = nullptr,
        .newEntry = nullptr,
        .addEntry = nullptr,
        .addText = [](TypedDataContainer& object, const zelString& text,
                      const zelString& sName) { (static_cast<Class&>(object).*Add)(text, sName); },
        .clear = [](TypedDataContainer& object) { (static_cast<Class&>(object).*Clear)(); },
        .keyEquals = nullptr,
        .newWord = nullptr,
        .words = nullptr,
    };
};

/// A keyed list of strings; `numberedKeys` when its entries are numbered on load instead of taking the attribute's
/// text.
template <auto Add, auto Clear, typename Class>
constexpr FieldRow KeyedStrings(std::string_view name, std::string_view keyAttribute, bool numberedKeys,
                                TextMap Class::*map, TextVector Class::*texts) {
    FieldRow row;
    row.name = name;
    row.form = FieldForm::KeyedList;
    row.value = FieldValue::String;
    row.numberedKeys = numberedKeys;
    row.keyAttribute = keyAttribute;
    row.member = FieldMember(ToBase(texts));
    row.map = FieldMap(ToBase(map));
    row.list = &KeyedTextsOf<Add, Clear>::thunks;
    return row;
}

template <typename Entry, auto Add, auto Clear> struct PlainListOf;
template <typename Entry, typename Class, void (Class::*Add)(XMLDataWrapper*, XalanNode*), void (Class::*Clear)()>
struct PlainListOf<Entry, Add, Clear> {
    static constexpr ListThunks thunks = {
        .table = FieldTableIndex::Of<Entry>(),
        .newEntry = [](bool bBuildFromScratch) -> TypedDataContainer* { return new Entry(bBuildFromScratch); },
        .addEntry = [](TypedDataContainer& object, XMLDataWrapper* pData, XalanNode* spNode,
                       const zelString&) { (static_cast<Class&>(object).*Add)(pData, spNode); },
        .addText = nullptr,
        .clear = [](TypedDataContainer& object) { (static_cast<Class&>(object).*Clear)(); },
        .keyEquals = nullptr,
        .newWord = nullptr,
        .words = nullptr,
    };
};

template <typename Entry, auto Add, auto Clear, typename Class>
constexpr FieldRow PlainList(std::string_view name, std::string_view className, EntryVector Class::*entries) {
    FieldRow row;
    row.name = name;
    row.form = FieldForm::PlainList;
    row.value = FieldValue::Container;
    row.className = className;
    row.member = FieldMember(ToBase(entries));
    row.list = &PlainListOf<Entry, Add, Clear>::thunks;
    return row;
}

/// Plain lists of strings and of enumerations share Add<Name>(zelString); `Enum` is void for strings.
template <typename Enum, auto Add, auto Clear> struct PlainTextsOf;
template <typename Enum, typename Class, void (Class::*Add)(zelString), void (Class::*Clear)()>
struct PlainTextsOf<Enum, Add, Clear> {
    static TypedDataEnumeration* NewWord(const char* text) {
        if constexpr (std::is_void_v<Enum>) {
            return nullptr;
        } else {
            return text == nullptr ? new Enum() : new Enum(text);
        }
    }
    static void Words(std::vector<zelString>& list) {
        if constexpr (!std::is_void_v<Enum>) {
            Enum::GetContainedValueList(list);
        }
    }
    static constexpr ListThunks thunks = {
        .table = nullptr,
        .newEntry = nullptr,
        .addEntry = nullptr,
        .addText = [](TypedDataContainer& object, const zelString& text,
                      const zelString&) { (static_cast<Class&>(object).*Add)(text); },
        .clear = [](TypedDataContainer& object) { (static_cast<Class&>(object).*Clear)(); },
        .keyEquals = nullptr,
        .newWord = &NewWord,
        .words = &Words,
    };
};

template <auto Add, auto Clear, typename Class>
constexpr FieldRow PlainStrings(std::string_view name, std::vector<zelString> Class::*texts) {
    FieldRow row;
    row.name = name;
    row.form = FieldForm::PlainList;
    row.value = FieldValue::String;
    row.member = FieldMember(ToBase(texts));
    row.list = &PlainTextsOf<void, Add, Clear>::thunks;
    return row;
}

template <typename Enum, auto Add, auto Clear, typename Class>
constexpr FieldRow PlainEnums(std::string_view name, std::string_view className,
                              std::vector<TypedDataEnumeration*> Class::*words) {
    FieldRow row;
    row.name = name;
    row.form = FieldForm::PlainList;
    row.value = FieldValue::Enumeration;
    row.className = className;
    row.member = FieldMember(ToBase(words));
    row.list = &PlainTextsOf<Enum, Add, Clear>::thunks;
    return row;
}

template <typename Class> TypedDataContainer* CreateContainer(bool bBuildFromScratch) {
    return new Class(bBuildFromScratch);
}

} // namespace Framework
