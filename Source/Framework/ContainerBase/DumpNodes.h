#pragma once

#include <string_view>

#include "Framework/TypedDataContainer.h"

/// What TypedDataContainer's CreateTextNode & co. do, for the library's own walks over objects whose class overrides
/// none of them: with no copies of the texts.
namespace Framework {

bool AddTextNode(TypedDataContainer& object, DOMNode& parent, DOMDocument& document, std::string_view name,
                 std::string_view text);
bool AddCDataNode(TypedDataContainer& object, DOMNode& parent, DOMDocument& document, std::string_view name,
                  std::string_view text);
bool AddTextNodeWithAttribute(TypedDataContainer& object, DOMNode& parent, DOMDocument& document, std::string_view name,
                              std::string_view text, std::string_view attribute, std::string_view value);

} // namespace Framework
