#include "Framework/XMLSupport/DocumentParser.h"

#include "Framework/XMLSupport/DocumentBuilder.h"
#include "Framework/XMLSupport/ParserMessages.h"

#include <expat.h>

#include <ctime>
#include <exception>
#include <memory>
#include <new>
#include <sstream>
#include <utility>

namespace Framework {

namespace {

double ThreadSeconds() {
    timespec now{};
    ::clock_gettime(CLOCK_THREAD_CPUTIME_ID, &now);
    return static_cast<double>(now.tv_sec) + static_cast<double>(now.tv_nsec) * 1e-9;
}

/// One run of expat over one document. Exceptions of the handlers wait here until the parser has returned: they must
/// not cross its frames, and it may call further handlers after it was told to stop.
class ParserRun {
public:
    ParserRun(DocumentData& data, const LoadLimits& limits, double startSeconds)
        : m_data(data), m_limits(limits), m_startSeconds(startSeconds), m_builder(data, limits),
          // With the encoding named, a declaration of the encoding that the document once had is not applied to its
          // UTF-8 text.
          m_parser(::XML_ParserCreate("UTF-8")) {
        if (!m_parser) {
            throw std::bad_alloc();
        }
        XML_Parser parser = m_parser.get();
        ::XML_SetUserData(parser, this);
        ::XML_SetElementHandler(parser, &OnStart, &OnEnd);
        ::XML_SetCharacterDataHandler(parser, &OnText);
        ::XML_SetCdataSectionHandler(parser, &OnSectionStart, &OnSectionEnd);
        ::XML_SetCommentHandler(parser, &OnComment);
        ::XML_SetProcessingInstructionHandler(parser, &OnInstruction);
        ::XML_SetXmlDeclHandler(parser, &OnDeclaration);
        ::XML_SetDefaultHandler(parser, &OnOther);
    }

    void Parse() {
        const std::string& text = m_data.source.text;
        const XML_Status status = ::XML_Parse(m_parser.get(), text.data(), static_cast<int>(text.size()), XML_TRUE);
        if (m_failure) {
            std::rethrow_exception(m_failure);
        }
        if (status == XML_STATUS_OK) {
            return;
        }
        const XML_Error code = ::XML_GetErrorCode(m_parser.get());
        if (code == XML_ERROR_NO_MEMORY) {
            throw std::bad_alloc();
        }
        const XML_Index offset = ::XML_GetCurrentByteIndex(m_parser.get());
        throw ParserError(m_data, m_builder, code, offset < 0 ? 0 : static_cast<std::size_t>(offset));
    }

private:
    template <typename Work> static void Handle(void* user, Work work) noexcept {
        auto& run = *static_cast<ParserRun*>(user);
        if (run.m_failure) {
            return;
        }
        try {
            run.CheckTime();
            work(run);
        } catch (...) {
            run.m_failure = std::current_exception();
            ::XML_StopParser(run.m_parser.get(), XML_FALSE);
        }
    }

    ByteRange Event() const {
        const auto begin = static_cast<std::uint32_t>(::XML_GetCurrentByteIndex(m_parser.get()));
        return {begin, begin + static_cast<std::uint32_t>(::XML_GetCurrentByteCount(m_parser.get()))};
    }

    void CheckTime() {
        constexpr unsigned eventsPerLook = 4096;
        if (++m_events % eventsPerLook == 0 && ThreadSeconds() - m_startSeconds > m_limits.cpuSeconds) {
            std::ostringstream limit;
            limit.imbue(std::locale::classic());
            limit << m_limits.cpuSeconds;
            throw ErrorAt(m_data, Event().begin,
                          "parsing takes too much processor time, the limit is " + limit.str() +
                              " s; raise LoadLimits::cpuSeconds with LoadLimits::SetDefault");
        }
    }

    static void XMLCALL OnStart(void* user, const char* name, const char** attributes) {
        Handle(user, [&](ParserRun& run) { run.m_builder.StartElement(name, attributes, run.Event()); });
    }
    static void XMLCALL OnEnd(void* user, const char* /*name*/) {
        Handle(user, [](ParserRun& run) { run.m_builder.EndElement(run.Event().end); });
    }
    static void XMLCALL OnText(void* user, const char* text, int length) {
        Handle(user, [&](ParserRun& run) {
            run.m_builder.Text({text, static_cast<std::size_t>(length)}, run.Event());
        });
    }
    static void XMLCALL OnSectionStart(void* user) {
        Handle(user, [](ParserRun& run) { run.m_builder.StartSection(run.Event()); });
    }
    static void XMLCALL OnSectionEnd(void* user) {
        Handle(user, [](ParserRun& run) { run.m_builder.EndSection(run.Event()); });
    }
    static void XMLCALL OnComment(void* user, const char* text) {
        Handle(user, [&](ParserRun& run) { run.m_builder.Comment(text, run.Event()); });
    }
    static void XMLCALL OnInstruction(void* user, const char* target, const char* content) {
        Handle(user, [&](ParserRun& run) { run.m_builder.Instruction(target, content, run.Event()); });
    }
    static void XMLCALL OnDeclaration(void* user, const char* version, const char* /*encoding*/, int /*standalone*/) {
        Handle(user, [&](ParserRun& run) {
            if (std::string_view(version) != "1.0") {
                // The version comes first in a declaration, so the first quote is its.
                const std::size_t quote = run.m_data.source.text.find_first_of("\"'");
                throw ErrorAt(run.m_data, quote + 1,
                              "XML version \"" + std::string(version) + "\" is not supported: expected \"1.0\"");
            }
        });
    }
    // The handler made for document types is told of them only at their end; here their first word comes at its own
    // place.
    static void XMLCALL OnOther(void* user, const char* text, int length) {
        Handle(user, [&](ParserRun& run) {
            if (std::string_view(text, static_cast<std::size_t>(length)).starts_with("<!DOCTYPE")) {
                throw ErrorAt(run.m_data, run.Event().begin, kNoDoctype);
            }
        });
    }

    struct ParserDeleter {
        void operator()(XML_Parser parser) const { ::XML_ParserFree(parser); }
    };

    DocumentData& m_data;
    const LoadLimits& m_limits;
    double m_startSeconds;
    unsigned m_events = 0;
    std::exception_ptr m_failure;
    DocumentBuilder m_builder;
    std::unique_ptr<XML_ParserStruct, ParserDeleter> m_parser;
};

/// What the parser would let pass or say less well.
void CheckText(const DocumentData& data) {
    const std::string& text = data.source.text;
    if (text.empty()) {
        throw ErrorAt(data, 0, "no root element: the document is empty");
    }
    if (const std::size_t zero = text.find('\0'); zero != std::string::npos) {
        throw ErrorAt(data, zero,
                      "NUL character at offset " + std::to_string(zero) +
                          " of the text: expected characters that XML allows");
    }
    if (text.starts_with("\xEF\xBB\xBF")) {
        throw ErrorAt(data, 0, "a second byte order mark: expected the XML declaration or the root element");
    }
}

} // namespace

DocumentData ParseDocument(std::string bytes, std::string sourceName, const LoadLimits& limits) {
    const double startSeconds = ThreadSeconds();
    if (bytes.size() > limits.bytes) {
        throw ParseError(sourceName, {1, 1},
                         "the document has " + std::to_string(bytes.size()) + " bytes, the limit is " +
                             std::to_string(limits.bytes) + "; raise LoadLimits::bytes with LoadLimits::SetDefault");
    }
    DocumentData data;
    data.sourceName = std::move(sourceName);
    data.source = DecodeDocument(std::move(bytes), data.sourceName);
    CheckText(data);
    ParserRun(data, limits, startSeconds).Parse();
    return data;
}

} // namespace Framework
