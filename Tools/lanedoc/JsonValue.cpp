#include "JsonValue.h"

#include <charconv>
#include <cmath>
#include <system_error>

namespace Lanedoc {

namespace {

template <typename Number> Json NumberOrText(const std::string& text) {
    Number number{};
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), number);
    const bool whole = error == std::errc() && end == text.data() + text.size();
    return whole && std::isfinite(static_cast<double>(number)) ? Json(number) : Json(text);
}

} // namespace

Json ValueAsJson(const CatalogField& field, const std::string& text) {
    switch (field.GetValue()) {
    case CatalogField::Bool:
        return text == "true";
    case CatalogField::Int:
        return NumberOrText<int>(text);
    case CatalogField::Double:
        return NumberOrText<double>(text);
    case CatalogField::Enumeration:
        return text.empty() ? Json() : Json(text);
    default:
        return text;
    }
}

std::string JsonText(const Json& json) {
    return json.dump(2, ' ', false, Json::error_handler_t::replace);
}

std::string WriteJson(const Json& json) {
    return JsonText(json) + '\n';
}

} // namespace Lanedoc
