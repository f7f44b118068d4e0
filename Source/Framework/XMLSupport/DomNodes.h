#pragma once

#include <string_view>

#include "Framework/XMLDataWrapper.h"

/// Making nodes of an output document. The document owns them. Each throws std::invalid_argument, with a text that
/// names the element and what cannot stand in it, when the result would not be XML.
namespace Framework {

DOMNode* AppendElement(DOMNode& parent, DOMDocument& document, std::string_view name);
DOMNode* AppendTextElement(DOMNode& parent, DOMDocument& document, std::string_view name, std::string_view text);
DOMNode* AppendCDataElement(DOMNode& parent, DOMDocument& document, std::string_view name, std::string_view text);
/// Sets the attribute, in place of a value that is there.
void SetAttribute(DOMNode& element, DOMDocument& document, std::string_view name, std::string_view value);
/// An element that is not hung anywhere yet.
DOMNode* NewElement(DOMDocument& document, std::string_view name);

} // namespace Framework
