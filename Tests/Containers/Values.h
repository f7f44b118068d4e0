#pragma once

#include <optional>
#include <vector>

#include "Framework/ContainerCatalog.h"

/// A value of a tree: a scalar, or an entry of a list of texts.
struct Value {
    TypedDataContainer* object;
    CatalogField field;
    std::optional<std::size_t> position;

    zelString Get() const { return position ? field.EntryText(*object, *position) : field.GetText(*object); }
    bool Set(const zelString& text) const {
        return position ? field.SetEntryText(*object, *position, text) : field.SetText(*object, text);
    }
    bool WriteBack() const { return position ? field.WriteBack(*object, *position) : field.WriteBack(*object); }
};

inline void CollectValues(TypedDataContainer& object, std::vector<Value>& values) {
    for (const CatalogField& field : ContainerCatalog::ClassOf(object).Fields()) {
        if (field.IsScalar()) {
            values.push_back({&object, field, std::nullopt});
        } else if (TypedDataContainer* const child = field.GetChild(object)) {
            CollectValues(*child, values);
        }
        for (std::size_t i = 0; i < field.Length(object); ++i) {
            if (TypedDataContainer* const entry = field.Entry(object, i)) {
                CollectValues(*entry, values);
            } else {
                values.push_back({&object, field, i});
            }
        }
    }
}

inline std::vector<Value> ValuesOf(TypedDataContainer& object) {
    std::vector<Value> values;
    CollectValues(object, values);
    return values;
}

/// Another value of that kind than the one given.
inline zelString OtherThan(const CatalogField& field, const zelString& text) {
    switch (field.GetValue()) {
    case CatalogField::Bool:
        return text == "true" ? "false" : "true";
    case CatalogField::Int:
        return text == "-7" ? "8" : "-7";
    case CatalogField::Double:
        return text == "2.5" ? "0" : "2.5";
    case CatalogField::Enumeration:
        for (const zelString& word : field.Words()) {
            if (word != text) {
                return word;
            }
        }
        return text;
    default:
        return text + "new <&> ]]> \xC3\xA9'\"";
    }
}
