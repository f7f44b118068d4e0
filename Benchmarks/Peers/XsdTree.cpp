// Classes that XSD C++/Tree makes of our schema, read from and written to a Xerces DOM; with that DOM kept beside the
// objects, or freed. The parser does what the other peers on Xerces ask of it: no validation, namespaces or schema.
#include <memory>
#include <stdexcept>
#include <string>
#include <utility>
#include <vector>

#include <xercesc/dom/DOM.hpp>
#include <xercesc/framework/MemBufFormatTarget.hpp>
#include <xercesc/framework/MemBufInputSource.hpp>
#include <xercesc/framework/Wrapper4InputSource.hpp>

#include <LoggingInformation.hxx>
#include <StateProcessingRoot.hxx>
#include <TranslationConfig.hxx>

#include "GeneratedTree.h"
#include "Peer.h"

using namespace Bench;
using namespace xercesc;

namespace {

/// The functions of one root element: all bear its name.
#define BENCH_ROOT(kind, element)                                                                                      \
    struct kind {                                                                                                      \
        using Type = XsdTree::element##Type;                                                                           \
        template <class... Arguments> static auto Call(Arguments&&... arguments) {                                     \
            return XsdTree::element(std::forward<Arguments>(arguments)...);                                            \
        }                                                                                                              \
    }
BENCH_ROOT(TranslationRoot, TranslationConfig);
BENCH_ROOT(StateRoot, StateProcessingRoot);
BENCH_ROOT(PacketRoot, LoggingInformationPacket);
#undef BENCH_ROOT

struct Throwing : DOMErrorHandler {
    bool handleError(const DOMError&) override { throw std::runtime_error("XSD C++/Tree cannot parse"); }
};

struct Release {
    void operator()(DOMLSParser* parser) const { parser->release(); }
};
using Parser = std::unique_ptr<DOMLSParser, Release>;

/// One parser reads document after document; documents are not its own.
Parser MakeParser() {
    static Throwing throwing;
    auto& implementation = *DOMImplementationRegistry::getDOMImplementation(u"LS");
    Parser parser(implementation.createLSParser(DOMImplementationLS::MODE_SYNCHRONOUS, nullptr));
    DOMConfiguration& options = *parser->getDomConfig();
    options.setParameter(XMLUni::fgDOMErrorHandler, &throwing);
    options.setParameter(XMLUni::fgDOMComments, false);
    options.setParameter(XMLUni::fgDOMEntities, false);
    options.setParameter(XMLUni::fgDOMNamespaces, false);
    options.setParameter(XMLUni::fgDOMValidate, false);
    options.setParameter(XMLUni::fgXercesSchema, false);
    options.setParameter(XMLUni::fgXercesUserAdoptsDOMDocument, true);
    return parser;
}

template <bool keepsDom> struct XsdTreeLibrary {
    using Translations = TranslationRoot;
    using States = StateRoot;
    using Packet = PacketRoot;
    template <class Root> using Tree = Generated::Tree<XsdTreeLibrary, Root>;

    template <class Root> typename Root::Type& Read(const std::string& text) {
        MemBufInputSource source(reinterpret_cast<const XMLByte*>(text.data()), text.size(), "document", false);
        source.setCopyBufToStream(false);
        Wrapper4InputSource input(&source, false);
        xml_schema::dom::unique_ptr<DOMDocument> document(parser->parse(&input));
        auto root = Root::Call(std::move(document), keepsDom ? flags | keeping : flags);
        typename Root::Type& result = *root;
        read.push_back(std::move(root));
        return result;
    }
    template <class Root> std::string Write(const typename Root::Type& root) const {
        MemBufFormatTarget target;
        Root::Call(target, root, xml_schema::namespace_infomap(), "UTF-8", flags);
        return std::string(reinterpret_cast<const char*>(target.getRawBuffer()), target.getLen());
    }
    void Clear() { read.clear(); }

    using Flags = xml_schema::flags;
    static constexpr auto flags = Flags::dont_validate | Flags::dont_initialize;
    static constexpr auto keeping = Flags::keep_dom | Flags::own_dom;
    Parser parser = MakeParser();
    std::vector<std::unique_ptr<xml_schema::type>> read;
};

} // namespace

void Bench::OfferXsdTree(Works& works) {
    const std::string contender = "XSD C++/Tree";
    Peer<XsdTreeLibrary<false>>::Offer(works, contender);
    Peer<XsdTreeLibrary<false>>::OfferLookUp(works, contender);

    using Keeping = Peer<XsdTreeLibrary<true>>;
    const std::string keeping = contender + ", DOM kept";
    works.offers.push_back({loadWork, keeping, allKinds, Keeping::Load});
    works.offers.push_back({packetWork, keeping, {Kind::Packets}, Keeping::Packets});
    works.proofs.push_back({keeping, allKinds, Keeping::Loaded, {}});
}
