#pragma once

#include <string>

#include <nlohmann/json.hpp>

#include "Framework/ContainerCatalog.h"

namespace Lanedoc {

/// Keys stand in the order in which they are added.
using Json = nlohmann::ordered_json;

/// The version of all JSON that the tool prints. It is another one when a key goes, or says something else than before.
constexpr int jsonFormat = 1;

/// A value of the field's kind from its text: JSON's own bools and numbers, words and texts as strings. A number that
/// JSON has none for, an infinity or NaN, is a string; what is no word of the vocabulary is null.
Json ValueAsJson(const CatalogField& field, const std::string& text);

/// The value as all JSON of the tool is laid out, without a line end.
std::string JsonText(const Json& json);
/// The same as a text of its own.
std::string WriteJson(const Json& json);

} // namespace Lanedoc
