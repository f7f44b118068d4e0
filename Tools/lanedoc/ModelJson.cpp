#include "ModelJson.h"

#include <utility>

#include "JsonValue.h"

namespace Lanedoc {

namespace {

const char* FormWord(CatalogField::Form form) {
    switch (form) {
    case CatalogField::Attribute:
        return "attribute";
    case CatalogField::Element:
        return "element";
    case CatalogField::Child:
        return "child";
    case CatalogField::KeyedList:
        return "keyedList";
    case CatalogField::PlainList:
        break;
    }
    return "plainList";
}

const char* ValueWord(CatalogField::Value value) {
    switch (value) {
    case CatalogField::String:
        return "string";
    case CatalogField::Bool:
        return "bool";
    case CatalogField::Int:
        return "int";
    case CatalogField::Double:
        return "double";
    case CatalogField::Enumeration:
        return "enumeration";
    case CatalogField::Container:
        break;
    }
    return "container";
}

Json FieldAsJson(const ModelField& declared) {
    const CatalogField& field = declared.field;
    Json json = {{"name", std::string(field.Name())},
                 {"declaredBy", std::string(declared.owner.Name())},
                 {"form", FormWord(field.GetForm())},
                 {"value", ValueWord(field.GetValue())}};
    if (!field.ClassName().empty()) {
        json["class"] = std::string(field.ClassName());
    }
    if (field.GetForm() == CatalogField::KeyedList) {
        json["key"] = std::string(field.KeyAttribute());
        json["numbered"] = field.HasNumberedKeys();
    }
    if (field.IsScalar()) {
        json["default"] = ValueAsJson(field, field.DefaultText());
        json["cdata"] = field.IsCData();
    }
    if (!field.LoadText().empty()) {
        json["loadText"] = std::string(field.LoadText());
    }
    json["property"] = field.IsProperty();
    return json;
}

Json UsesAsJson(std::string_view className) {
    Json uses = Json::array();
    for (const ModelField& use : UsesOf(className)) {
        uses.push_back({{"class", std::string(use.owner.Name())}, {"field", std::string(use.field.Name())}});
    }
    return uses;
}

Json ClassAsJson(CatalogClass container) {
    Json derived = Json::array();
    for (const CatalogClass& other : DerivedFrom(container)) {
        derived.push_back(std::string(other.Name()));
    }
    Json fields = Json::array();
    for (const ModelField& field : FieldsOf(container)) {
        fields.push_back(FieldAsJson(field));
    }
    return {{"name", std::string(container.Name())}, {"element", std::string(container.ElementName())},
            {"isRoot", container.IsRoot()},          {"base", std::string(BaseOf(container))},
            {"derived", std::move(derived)},         {"fields", std::move(fields)},
            {"usedBy", UsesAsJson(container.Name())}};
}

Json EnumerationAsJson(CatalogEnumeration enumeration) {
    Json words = Json::array();
    for (const CatalogEnumeration::Word& word : enumeration.Words()) {
        words.push_back({{"word", std::string(word.text)}, {"number", word.number}});
    }
    return {{"name", std::string(enumeration.Name())},
            {"words", std::move(words)},
            {"usedBy", UsesAsJson(enumeration.Name())}};
}

} // namespace

std::string ModelAsJson(const ModelParts& parts) {
    Json classes = Json::array();
    for (const CatalogClass& container : parts.classes) {
        classes.push_back(ClassAsJson(container));
    }
    Json enumerations = Json::array();
    for (const CatalogEnumeration& enumeration : parts.enumerations) {
        enumerations.push_back(EnumerationAsJson(enumeration));
    }
    return WriteJson(
        {{"format", jsonFormat}, {"classes", std::move(classes)}, {"enumerations", std::move(enumerations)}});
}

} // namespace Lanedoc
