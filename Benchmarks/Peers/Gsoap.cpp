// Classes that gSOAP makes of our schema, read and written as plain XML.
#include <cstddef>
#include <memory>
#include <string>
#include <string_view>

#include <GsoapH.h>
#include <soap.nsmap> // defines what the runtime wants to have

#include "GeneratedTree.h"
#include "Peer.h"

using namespace Bench;

namespace {

/// The functions of one root element.
#define BENCH_ROOT(kind, element)                                                                                      \
    struct kind {                                                                                                      \
        using Type = Gsoap::element##Type;                                                                             \
        static Type* New(soap* context) { return Gsoap::soap_new_##element(context); }                                 \
        static int Read(soap* context, Type* root) { return Gsoap::soap_read_##element(context, root); }               \
        static int Write(soap* context, const Type* root) { return Gsoap::soap_write_##element(context, root); }       \
    }
BENCH_ROOT(TranslationRoot, TranslationConfig);
BENCH_ROOT(StateRoot, StateProcessingRoot);
BENCH_ROOT(PacketRoot, LoggingInformationPacket);
#undef BENCH_ROOT

std::size_t Receive(soap* context, char* to, std::size_t size) {
    std::string_view& rest = *static_cast<std::string_view*>(context->user);
    const std::size_t count = rest.copy(to, size);
    rest.remove_prefix(count);
    return count;
}
int Send(soap* context, const char* from, std::size_t size) {
    static_cast<std::string*>(context->user)->append(from, size);
    return SOAP_OK;
}

struct GsoapLibrary {
    using Translations = TranslationRoot;
    using States = StateRoot;
    using Packet = PacketRoot;
    template <class Root> using Tree = Generated::Tree<GsoapLibrary, Root>;

    GsoapLibrary() {
        context->frecv = Receive;
        context->fsend = Send;
        context->maxoccurs = 100'000'000; // the default is as many as our longest list has
    }
    template <class Root> typename Root::Type& Read(const std::string& text) {
        std::string_view rest = text;
        context->user = &rest;
        typename Root::Type* const root = Root::New(context.get());
        Require(Root::Read(context.get(), root) == SOAP_OK, "gSOAP cannot parse");
        return *root;
    }
    template <class Root> std::string Write(const typename Root::Type& root) const {
        std::string text;
        context->user = &text;
        Require(Root::Write(context.get(), &root) == SOAP_OK, "gSOAP cannot write");
        return text;
    }
    void Clear() {
        soap_destroy(context.get());
        soap_end(context.get());
    }

    struct Free {
        void operator()(soap* context) const {
            soap_destroy(context);
            soap_end(context);
            soap_free(context);
        }
    };
    std::unique_ptr<soap, Free> context{soap_new1(SOAP_IO_BUFFER | SOAP_C_UTFSTRING | SOAP_XML_TREE | SOAP_XML_INDENT)};
};

} // namespace

void Bench::OfferGsoap(Works& works) {
    Peer<GsoapLibrary>::Offer(works, "gSOAP");
    Peer<GsoapLibrary>::OfferLookUp(works, "gSOAP");
}
