// Xerces: its DOM alone, which is the base of all ratios, and with structs bound to it by hand. The parser checks only
// that the document is well-formed: no validation, no namespaces, no schema.
#include <memory>
#include <string>

#include <xercesc/dom/DOM.hpp>
#include <xercesc/framework/MemBufFormatTarget.hpp>
#include <xercesc/framework/MemBufInputSource.hpp>
#include <xercesc/parsers/XercesDOMParser.hpp>
#include <xercesc/sax/HandlerBase.hpp>
#include <xercesc/util/XMLString.hpp>

#include "HandBound.h"

using namespace Bench;
using namespace xercesc;

namespace {

/// UTF-16 to UTF-8 with a short way for ASCII, which is faster than the library's transcoders.
void AppendUtf8(const XMLCh* from, std::string& to) {
    for (; *from != 0; ++from) {
        char32_t point = *from;
        if (point < 0x80) {
            to += static_cast<char>(point);
            continue;
        }
        if (point >= 0xD800 && point < 0xDC00 && from[1] != 0) {
            point = 0x10000 + ((point - 0xD800) << 10) + (*++from - 0xDC00u);
        }
        const int more = point < 0x800 ? 1 : point < 0x10000 ? 2 : 3;
        to += static_cast<char>((0xF00 >> more) | (point >> (6 * more)));
        for (int shift = 6 * (more - 1); shift >= 0; shift -= 6) {
            to += static_cast<char>(0x80 | ((point >> shift) & 0x3F));
        }
    }
}

/// UTF-8 to UTF-16 for one text at a time.
class Utf16 {
public:
    explicit Utf16(const std::string& text) : m_text(text.size() + 1, XMLCh()) {
        std::size_t length = 0;
        for (std::size_t i = 0; i < text.size(); ++i) {
            const auto byte = static_cast<unsigned char>(text[i]);
            const int more = byte < 0x80 ? 0 : byte < 0xE0 ? 1 : byte < 0xF0 ? 2 : 3;
            char32_t point = more == 0 ? byte : byte & (0x3Fu >> more);
            for (int k = 0; k < more; ++k) {
                point = (point << 6) | (static_cast<unsigned char>(text[++i]) & 0x3Fu);
            }
            if (point >= 0x10000) {
                m_text[length++] = static_cast<XMLCh>(0xD7C0 + (point >> 10));
                point = 0xDC00 + (point & 0x3FF);
            }
            m_text[length++] = static_cast<XMLCh>(point);
        }
        m_text.resize(length);
    }
    operator const XMLCh*() const { return m_text.c_str(); }

private:
    std::u16string m_text;
};

struct Node {
    DOMElement* element;

    explicit operator bool() const { return element != nullptr; }
    Node FirstElement() const { return {element->getFirstElementChild()}; }
    Node NextElement() const { return {element->getNextElementSibling()}; }
    bool Is(Model::Name name) const { return XMLString::equals(element->getTagName(), name.wide); }
    bool ReadAttribute(Model::Name name, std::string& text) const {
        const XMLCh* const value = element->getAttribute(name.wide);
        AppendUtf8(value, text);
        return *value != 0;
    }
    void ReadText(std::string& text) const {
        for (const DOMNode* child = element->getFirstChild(); child != nullptr; child = child->getNextSibling()) {
            if (child->getNodeType() == DOMNode::TEXT_NODE || child->getNodeType() == DOMNode::CDATA_SECTION_NODE) {
                AppendUtf8(child->getNodeValue(), text);
            }
        }
    }

    Node Add(Model::Name name) {
        DOMElement* const added = element->getOwnerDocument()->createElement(name.wide);
        element->appendChild(added);
        return {added};
    }
    void SetAttribute(Model::Name name, const std::string& text) { element->setAttribute(name.wide, Utf16(text)); }
    void SetText(const std::string& text) {
        element->appendChild(element->getOwnerDocument()->createTextNode(Utf16(text)));
    }
};

std::string Serialized(DOMDocument& document) {
    DOMImplementation& implementation = *DOMImplementationRegistry::getDOMImplementation(u"LS");
    DOMLSSerializer* const serializer = implementation.createLSSerializer();
    serializer->getDomConfig()->setParameter(XMLUni::fgDOMWRTFormatPrettyPrint, true);
    DOMLSOutput* const output = implementation.createLSOutput();
    MemBufFormatTarget target;
    output->setByteStream(&target);
    output->setEncoding(u"UTF-8");
    serializer->write(&document, output);
    output->release();
    serializer->release();
    return std::string(reinterpret_cast<const char*>(target.getRawBuffer()), target.getLen());
}

struct Tree {
    std::shared_ptr<DOMDocument> document;

    Node Root() const { return {document->getDocumentElement()}; }
    std::string Text() const { return Serialized(*document); }
};

std::shared_ptr<XercesDOMParser> MakeParser() {
    static HandlerBase throwing;
    auto parser = std::make_shared<XercesDOMParser>();
    parser->setValidationScheme(XercesDOMParser::Val_Never);
    parser->setLoadExternalDTD(false);
    parser->setErrorHandler(&throwing);
    return parser;
}

void ParseWith(XercesDOMParser& parser, const std::string& text) {
    const MemBufInputSource source(reinterpret_cast<const XMLByte*>(text.data()), text.size(), "document", false);
    parser.parse(source);
}

/// `isKept`: whether one parser reads document after document.
template <bool isKept> struct Xerces {
    std::shared_ptr<XercesDOMParser> kept = isKept ? MakeParser() : nullptr;

    Tree Parse(const std::string& text) {
        const std::shared_ptr<XercesDOMParser> parser = isKept ? kept : MakeParser();
        ParseWith(*parser, text);
        return {{parser->getDocument(), [parser](DOMDocument*) { parser->resetDocumentPool(); }}};
    }
    Tree Make(Model::Name root) {
        DOMImplementation& implementation = *DOMImplementationRegistry::getDOMImplementation(u"Core");
        return {{implementation.createDocument(nullptr, root.wide, nullptr),
                 [](DOMDocument* document) { document->release(); }}};
    }
};

/// The parse alone, with a kept parser; the tree is freed untimed.
Work OfferParse(const Document& document) {
    const auto parser = MakeParser();
    return {[=] { parser->resetDocumentPool(); }, [=, &document] { ParseWith(*parser, document.text); }};
}

} // namespace

void Bench::OfferXerces(Works& works) {
    works.offers.push_back({loadWork, baseContender, allKinds, OfferParse});
    Peer<HandBound<Xerces<true>>>::Offer(works, "Xerces DOM, bound by hand");
    works.offers.push_back({packetWork, packetBase, {Kind::Packets}, Peer<HandBound<Xerces<false>>>::Packets});
}
