#include "TreeJson.h"

#include <utility>
#include <vector>

#include "JsonValue.h"

namespace Lanedoc {

namespace {

// No field can be called like these: fields are C++ identifiers.
constexpr const char* classKey = "$class";
constexpr const char* defaultsKey = "$defaults";
constexpr const char* unknownKey = "$unknown";

Json ContainerAsJson(TypedDataContainer& object, bool defaults);

/// A text that the document holds where the tree has no word for it must not pass for an unset value.
Json WordAsJson(const CatalogField& field, const std::string& word, const zelString& written) {
    Json value = ValueAsJson(field, word);
    return value.is_null() && !written.empty() ? Json{{unknownKey, std::string(written)}} : value;
}

Json ScalarAsJson(const CatalogField& field, TypedDataContainer& object) {
    const std::string text = field.GetText(object);
    if (field.GetValue() != CatalogField::Enumeration || !text.empty()) {
        return ValueAsJson(field, text);
    }
    const std::vector<zelString> written = field.DocumentTexts(object);
    return WordAsJson(field, text, written.empty() ? zelString() : written.front());
}

Json TextsAsJson(const CatalogField& list, TypedDataContainer& object) {
    const bool words = list.GetValue() == CatalogField::Enumeration;
    const std::vector<zelString> written = words ? list.DocumentTexts(object) : std::vector<zelString>();
    Json entries = Json::array();
    for (std::size_t i = 0; i < list.Length(object); ++i) {
        Json value = WordAsJson(list, list.EntryText(object, i), i < written.size() ? written[i] : zelString());
        if (list.GetForm() == CatalogField::KeyedList) {
            value = Json{{"key", std::string(list.EntryKey(object, i))}, {"value", std::move(value)}};
        }
        entries.push_back(std::move(value));
    }
    return entries;
}

Json ListAsJson(const CatalogField& list, TypedDataContainer& object, bool defaults) {
    if (!HoldsContainers(list)) {
        return TextsAsJson(list, object);
    }
    Json entries = Json::array();
    for (std::size_t i = 0; i < list.Length(object); ++i) {
        TypedDataContainer* const entry = list.Entry(object, i);
        entries.push_back(entry == nullptr ? Json() : ContainerAsJson(*entry, defaults));
    }
    return entries;
}

Json ContainerAsJson(TypedDataContainer& object, bool defaults) {
    const CatalogClass container = ContainerCatalog::ClassOf(object);
    Json onlyDefaults = Json::array();
    Json values = Json::object();
    for (const CatalogField& field : container.Fields()) {
        const std::string name(field.Name());
        if (field.IsScalar()) {
            const bool isDefault = !field.StandsInDocument(object);
            if (isDefault && !defaults) {
                continue;
            }
            values[name] = ScalarAsJson(field, object);
            if (isDefault) {
                onlyDefaults.push_back(name);
            }
        } else if (field.IsList()) {
            if (defaults || field.Length(object) > 0) {
                values[name] = ListAsJson(field, object, defaults);
            }
        } else if (TypedDataContainer* const child = field.GetChild(object)) {
            values[name] = ContainerAsJson(*child, defaults);
        }
    }
    Json json = {{classKey, std::string(container.Name())}};
    if (defaults) {
        json[defaultsKey] = std::move(onlyDefaults);
    }
    json.update(std::move(values));
    return json;
}

std::string ClassOfNode(const TreeNode& node) {
    if (node.kind == TreeNode::Kind::Container) {
        return std::string(ContainerCatalog::ClassOf(*node.object).Name());
    }
    return std::string(node.field->ClassName());
}

Json NodeAsJson(const TreeNode& node, bool defaults) {
    switch (node.kind) {
    case TreeNode::Kind::Container:
        return ContainerAsJson(*node.object, defaults);
    case TreeNode::Kind::List:
        return ListAsJson(*node.field, *node.object, defaults);
    case TreeNode::Kind::Scalar:
        return ScalarAsJson(*node.field, *node.object);
    case TreeNode::Kind::Text:
        break;
    }
    const Json entry = TextsAsJson(*node.field, *node.object).at(node.position);
    return node.field->GetForm() == CatalogField::KeyedList ? entry.at("value") : entry;
}

} // namespace

std::string TreeAsJson(const TreeNode& node, const std::string& rootName, bool defaults) {
    Json json = {{"format", jsonFormat}, {"root", rootName}, {"path", node.path}};
    if (const std::string className = ClassOfNode(node); !className.empty()) {
        json["class"] = className;
    }
    if (node.kind == TreeNode::Kind::Scalar) {
        json["isDefault"] = !node.field->StandsInDocument(*node.object);
    }
    json["value"] = NodeAsJson(node, defaults);
    return WriteJson(json);
}

} // namespace Lanedoc
