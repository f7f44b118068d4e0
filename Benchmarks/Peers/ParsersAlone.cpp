// Streaming parsers with handlers that only count: what any reader on top of them costs at least. They bind nothing, so
// nothing of theirs is checked but that they came to the end.
#include <memory>
#include <string>

#include <expat.h>
#include <xercesc/framework/MemBufInputSource.hpp>
#include <xercesc/sax2/DefaultHandler.hpp>
#include <xercesc/sax2/SAX2XMLReader.hpp>
#include <xercesc/sax2/XMLReaderFactory.hpp>
#include <xercesc/util/XMLUni.hpp>

#include "Works.h"

using namespace Bench;

namespace {

class CountingHandler : public xercesc::DefaultHandler {
public:
    std::size_t count = 0;

    void startElement(const XMLCh*, const XMLCh*, const XMLCh*, const xercesc::Attributes&) override { ++count; }
    void characters(const XMLCh*, const XMLSize_t length) override { count += length; }
};

Work OfferSax2(const Document& document) {
    const std::shared_ptr<xercesc::SAX2XMLReader> reader(xercesc::XMLReaderFactory::createXMLReader());
    reader->setFeature(xercesc::XMLUni::fgSAX2CoreValidation, false);
    reader->setFeature(xercesc::XMLUni::fgSAX2CoreNameSpaces, false);
    reader->setFeature(xercesc::XMLUni::fgXercesSchema, false);
    return {{}, [=, &document] {
                CountingHandler handler;
                reader->setContentHandler(&handler);
                const xercesc::MemBufInputSource source(reinterpret_cast<const XMLByte*>(document.text.data()),
                                                        document.text.size(), "document", false);
                reader->parse(source);
                Require(handler.count > 0, "nothing parsed");
            }};
}

void CountElement(void* count, const XML_Char*, const XML_Char**) {
    ++*static_cast<std::size_t*>(count);
}
void CountText(void* count, const XML_Char*, int length) {
    *static_cast<std::size_t*>(count) += static_cast<std::size_t>(length);
}

Work OfferExpat(const Document& document) {
    const std::shared_ptr<XML_ParserStruct> parser(XML_ParserCreate(nullptr), XML_ParserFree);
    return {{}, [=, &document] {
                std::size_t count = 0;
                XML_ParserReset(parser.get(), nullptr);
                XML_SetUserData(parser.get(), &count);
                XML_SetStartElementHandler(parser.get(), CountElement);
                XML_SetCharacterDataHandler(parser.get(), CountText);
                const XML_Status status =
                    XML_Parse(parser.get(), document.text.data(), static_cast<int>(document.text.size()), 1);
                Require(status == XML_STATUS_OK && count > 0, "nothing parsed");
            }};
}

} // namespace

void Bench::OfferParsersAlone(Works& works) {
    works.offers.push_back({loadWork, "Xerces SAX2 alone", allKinds, OfferSax2});
    works.offers.push_back({loadWork, "expat alone", allKinds, OfferExpat});
}
