#include "Framework/XMLSupport/DomNodes.h"

#include <stdexcept>

#include <xercesc/dom/DOM.hpp>

#include "Framework/XMLSupport/Utf.h"

namespace Framework {

namespace {

/// The text for the DOM; refused when XML has no place for it.
std::u16string CheckedText(std::string_view element, std::string_view text) {
    const std::size_t bad = FindNonXmlText(text);
    if (bad != std::string_view::npos) {
        throw std::invalid_argument("the text of " + std::string(element) + " cannot stand in XML: byte " +
                                    std::to_string(bad + 1) + " is a forbidden character or no UTF-8");
    }
    return ToUtf16(text);
}

const XMLCh* Units(const std::u16string& text) {
    static_assert(sizeof(XMLCh) == sizeof(char16_t));
    return text.c_str();
}

} // namespace

DOMNode* NewElement(DOMDocument& document, std::string_view name) {
    try {
        return document.createElement(Units(CheckedText(name, name)));
    } catch (const xercesc::DOMException&) {
        throw std::invalid_argument(std::string(name) + " is no name of an XML element");
    }
}

DOMNode* AppendElement(DOMNode& parent, DOMDocument& document, std::string_view name) {
    return parent.appendChild(NewElement(document, name));
}

DOMNode* AppendTextElement(DOMNode& parent, DOMDocument& document, std::string_view name, std::string_view text) {
    const std::u16string units = CheckedText(name, text);
    DOMNode* const element = AppendElement(parent, document, name);
    if (!units.empty()) {
        element->appendChild(document.createTextNode(Units(units)));
    }
    return element;
}

DOMNode* AppendCDataElement(DOMNode& parent, DOMDocument& document, std::string_view name, std::string_view text) {
    const std::u16string units = CheckedText(name, text);
    DOMNode* const element = AppendElement(parent, document, name);
    if (!units.empty()) {
        element->appendChild(document.createCDATASection(Units(units)));
    }
    return element;
}

void SetAttribute(DOMNode& element, DOMDocument&, std::string_view name, std::string_view value) {
    const std::u16string units = CheckedText("@" + std::string(name), value);
    try {
        static_cast<xercesc::DOMElement&>(element).setAttribute(Units(CheckedText(name, name)), Units(units));
    } catch (const xercesc::DOMException&) {
        throw std::invalid_argument(std::string(name) + " is no name of an XML attribute");
    }
}

} // namespace Framework
