#pragma once

#include <string>
#include <string_view>

#include "Framework/XMLDataWrapper.h"

/// Making nodes of an output document. The document owns them. Each throws std::invalid_argument, with a text that
/// names the element and what cannot stand in it, when the result would not be XML.
namespace Framework {

DOMNode* AppendElement(DOMNode& parent, DOMDocument& document, std::string_view name);
DOMNode* AppendTextElement(DOMNode& parent, DOMDocument& document, std::string_view name, std::string_view text);
DOMNode* AppendCDataElement(DOMNode& parent, DOMDocument& document, std::string_view name, std::string_view text);
/// Sets the attribute, in place of a value that is there. When it throws the element is as it was.
void SetAttribute(DOMNode& element, DOMDocument& document, std::string_view name, std::string_view value);
/// The same for an element that has no attribute of that name.
void SetNewAttribute(DOMNode& element, DOMDocument& document, std::string_view name, std::string_view value);

/// Sets the value of a text or CDATA section, or of an attribute. When one throws the value is as it was: the DOM takes
/// the old away before it asks for room for the new.
void SetTextValue(DOMNode& text, const std::u16string& value);
void SetAttributeText(DOMNode& attribute, DOMDocument& document, const std::u16string& value);
/// An element that is not hung anywhere yet.
DOMNode* NewElement(DOMDocument& document, std::string_view name);

} // namespace Framework
