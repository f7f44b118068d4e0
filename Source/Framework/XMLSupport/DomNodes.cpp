#include "Framework/XMLSupport/DomNodes.h"

#include <memory>
#include <stdexcept>

#include <xercesc/dom/DOM.hpp>
#include <xercesc/util/XMLString.hpp>

#include "Framework/XMLSupport/DomLinks.h"
#include "Framework/XMLSupport/Utf.h"

namespace Framework {

namespace {

const XMLCh* Units(const std::u16string& text) {
    static_assert(sizeof(XMLCh) == sizeof(char16_t));
    return text.c_str();
}

/// A text for the DOM; refused when XML has no place for it, by the name of its element, or attribute with an '@'. What
/// is short, nearly everything, takes no memory.
class DomText {
public:
    DomText(std::string_view name, std::string_view text, const char* sign = "") {
        XMLCh* units = m_short;
        if (text.size() >= kShort) {
            m_long = std::make_unique_for_overwrite<XMLCh[]>(text.size() + 1);
            units = m_long.get();
        } else if (CopyPrintableAscii(text, units)) {
            units[text.size()] = 0;
            return;
        }
        const Utf16Copy copied = CopyXmlUtf16(text, units);
        if (copied.bytes != text.size()) {
            throw std::invalid_argument("the text of " + (sign + std::string(name)) + " cannot stand in XML: byte " +
                                        std::to_string(copied.bytes + 1) + " is a forbidden character or no UTF-8");
        }
        units[copied.units] = 0;
    }
    DomText(const DomText&) = delete;
    DomText& operator=(const DomText&) = delete;

    const XMLCh* Get() const { return m_long != nullptr ? m_long.get() : m_short; }

private:
    static constexpr std::size_t kShort = 128;

    XMLCh m_short[kShort];
    std::unique_ptr<XMLCh[]> m_long;
};

void MakeAttribute(DOMNode& element, DOMDocument& document, std::string_view name, const DomText& unitsOfName,
                   const DomText& value) {
    xercesc::DOMAttr* attribute = nullptr;
    try {
        attribute = document.createAttribute(unitsOfName.Get());
        AddAttribute(static_cast<xercesc::DOMElement&>(element), *attribute, value.Get());
    } catch (const xercesc::DOMException&) {
        throw std::invalid_argument(std::string(name) + (attribute == nullptr ? " is no name of an XML attribute"
                                                                              : " cannot be set on this element"));
    }
}

} // namespace

DOMNode* NewElement(DOMDocument& document, std::string_view name) {
    try {
        return document.createElement(DomText(name, name).Get());
    } catch (const xercesc::DOMException&) {
        throw std::invalid_argument(std::string(name) + " is no name of an XML element");
    }
}

DOMNode* AppendElement(DOMNode& parent, DOMDocument& document, std::string_view name) {
    return AppendNode(parent, *NewElement(document, name));
}

DOMNode* AppendTextElement(DOMNode& parent, DOMDocument& document, std::string_view name, std::string_view text) {
    const DomText units(name, text);
    DOMNode* const element = NewElement(document, name);
    if (!text.empty()) {
        AppendNode(*element, *document.createTextNode(units.Get()));
    }
    return AppendNode(parent, *element); // with its text, or not at all
}

DOMNode* AppendCDataElement(DOMNode& parent, DOMDocument& document, std::string_view name, std::string_view text) {
    const DomText units(name, text);
    DOMNode* const element = NewElement(document, name);
    if (!text.empty()) {
        AppendNode(*element, *document.createCDATASection(units.Get()));
    }
    return AppendNode(parent, *element);
}

void SetAttribute(DOMNode& node, DOMDocument& document, std::string_view name, std::string_view value) {
    const DomText units(name, value, "@");
    const DomText unitsOfName(name, name);
    xercesc::DOMAttr* const attribute = static_cast<xercesc::DOMElement&>(node).getAttributeNode(unitsOfName.Get());
    if (attribute == nullptr) {
        MakeAttribute(node, document, name, unitsOfName, units);
        return;
    }
    // A dump may set all attributes again for each class an object derives from; to replace a text costs most of it.
    if (!xercesc::XMLString::equals(units.Get(), ValueOf(*attribute))) {
        try {
            SetAttributeText(*attribute, document, units.Get());
        } catch (const xercesc::DOMException&) {
            throw std::invalid_argument(std::string(name) + " cannot be set on this element");
        }
    }
}

void SetNewAttribute(DOMNode& element, DOMDocument& document, std::string_view name, std::string_view value) {
    const DomText units(name, value, "@");
    MakeAttribute(element, document, name, DomText(name, name), units);
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
