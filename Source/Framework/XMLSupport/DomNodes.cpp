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
    DOMNode* const element = NewElement(document, name);
    if (!units.empty()) {
        element->appendChild(document.createTextNode(Units(units)));
    }
    return parent.appendChild(element); // with its text, or not at all
}

DOMNode* AppendCDataElement(DOMNode& parent, DOMDocument& document, std::string_view name, std::string_view text) {
    const std::u16string units = CheckedText(name, text);
    DOMNode* const element = NewElement(document, name);
    if (!units.empty()) {
        element->appendChild(document.createCDATASection(Units(units)));
    }
    return parent.appendChild(element);
}

void SetAttribute(DOMNode& node, DOMDocument& document, std::string_view name, std::string_view value) {
    const std::u16string units = CheckedText("@" + std::string(name), value);
    const std::u16string unitsOfName = CheckedText(name, name);
    auto& element = static_cast<xercesc::DOMElement&>(node);
    xercesc::DOMAttr* attribute = element.getAttributeNode(Units(unitsOfName));
    try {
        if (attribute != nullptr) {
            // A dump sets all attributes again for each class an object derives from; to replace a text costs most of
            // the dump.
            if (units != attribute->getValue()) {
                SetAttributeText(*attribute, document, units);
            }
            return;
        }
        attribute = document.createAttribute(Units(unitsOfName));
        attribute->setValue(Units(units));
        element.setAttributeNode(attribute);
    } catch (const xercesc::DOMException&) {
        throw std::invalid_argument(std::string(name) + (attribute == nullptr ? " is no name of an XML attribute"
                                                                              : " cannot be set on this element"));
    }
}

void SetTextValue(DOMNode& text, const std::u16string& value) {
    const std::u16string before = text.getNodeValue();
    try {
        text.setNodeValue(Units(value));
    } catch (const std::bad_alloc&) {
        text.setNodeValue(Units(before)); // it has room where it stood
        throw;
    }
}

void SetAttributeText(DOMNode& attribute, DOMDocument& document, const std::u16string& value) {
    if (static_cast<xercesc::DOMAttr&>(attribute).isId()) { // the document finds the element by it
        attribute.setNodeValue(Units(value));
        return;
    }
    DOMNode* const text = document.createTextNode(Units(value));
    while (DOMNode* const old = attribute.getFirstChild()) {
        attribute.removeChild(old);
        try {
            old->release();
        } catch (const std::bad_alloc&) { // it is only not used again
        }
    }
    attribute.appendChild(text);
}

} // namespace Framework
