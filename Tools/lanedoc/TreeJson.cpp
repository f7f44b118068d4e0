#include "TreeJson.h"

#include <charconv>
#include <cmath>
#include <string_view>
#include <system_error>

#include <nlohmann/json.hpp>

namespace Lanedoc {

namespace {

using Json = nlohmann::ordered_json;

constexpr int formatVersion = 1;

template <typename Number> Json NumberOrText(const std::string& text) {
    Number number{};
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), number);
    const bool whole = error == std::errc() && end == text.data() + text.size();
    return whole && std::isfinite(static_cast<double>(number)) ? Json(number) : Json(text);
}

Json ScalarAsJson(const CatalogField& field, TypedDataContainer& object) {
    const std::string text = field.GetText(object);
    switch (field.GetValue()) {
    case CatalogField::Bool:
        return text == "true";
    case CatalogField::Int:
        return NumberOrText<int>(text);
    case CatalogField::Double:
        return NumberOrText<double>(text);
    default:
        return text;
    }
}

Json ContainerAsJson(TypedDataContainer& object, bool defaults);

Json ListAsJson(const CatalogField& list, TypedDataContainer& object, bool defaults) {
    Json entries = Json::array();
    for (std::size_t i = 0; i < list.Length(object); ++i) {
        if (HoldsContainers(list)) {
            TypedDataContainer* const entry = list.Entry(object, i);
            entries.push_back(entry == nullptr ? Json() : ContainerAsJson(*entry, defaults));
            continue;
        }
        Json text = std::string(list.EntryText(object, i));
        if (list.GetForm() == CatalogField::KeyedList) {
            text = Json{{"key", std::string(list.EntryKey(object, i))}, {"value", std::move(text)}};
        }
        entries.push_back(std::move(text));
    }
    return entries;
}

Json ContainerAsJson(TypedDataContainer& object, bool defaults) {
    Json fields = Json::object();
    for (const CatalogField& field : ContainerCatalog::ClassOf(object).Fields()) {
        const std::string name(field.Name());
        if (field.IsScalar()) {
            if (defaults || field.StandsInDocument(object)) {
                fields[name] = ScalarAsJson(field, object);
            }
        } else if (field.IsList()) {
            if (defaults || field.Length(object) > 0) {
                fields[name] = ListAsJson(field, object, defaults);
            }
        } else if (TypedDataContainer* const child = field.GetChild(object)) {
            fields[name] = ContainerAsJson(*child, defaults);
        }
    }
    return fields;
}

std::string ClassOfNode(const TreeNode& node) {
    if (node.kind == TreeNode::Kind::Container) {
        return std::string(ContainerCatalog::ClassOf(*node.object).Name());
    }
    return std::string(node.field->ClassName());
}

} // namespace

std::string TreeAsJson(const TreeNode& node, const std::string& rootName, bool defaults) {
    Json json = {{"format", formatVersion}, {"root", rootName}, {"path", node.path}};
    if (const std::string className = ClassOfNode(node); !className.empty()) {
        json["class"] = className;
    }
    switch (node.kind) {
    case TreeNode::Kind::Container:
        json["value"] = ContainerAsJson(*node.object, defaults);
        break;
    case TreeNode::Kind::List:
        json["value"] = ListAsJson(*node.field, *node.object, defaults);
        break;
    case TreeNode::Kind::Scalar:
        json["value"] = ScalarAsJson(*node.field, *node.object);
        break;
    case TreeNode::Kind::Text:
        json["value"] = std::string(node.field->EntryText(*node.object, node.position));
        break;
    }
    return json.dump(2, ' ', false, Json::error_handler_t::replace) + '\n';
}

} // namespace Lanedoc
