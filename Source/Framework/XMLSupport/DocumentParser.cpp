#include "Framework/XMLSupport/DocumentParser.h"

#include "Framework/SupportFunc.h"
#include "Framework/XMLSupport/AbridgedText.h"
#include "Framework/XMLSupport/DocumentBuilder.h"
#include "Framework/XMLSupport/LimitMessages.h"
#include "Framework/XMLSupport/NodeCounter.h"
#include "Framework/XMLSupport/ParserMemory.h"
#include "Framework/XMLSupport/ParserMessages.h"
#include "Framework/XMLSupport/SpareParsers.h"
#include "Framework/XMLSupport/TagScanner.h"
#include "Framework/XMLSupport/TextHash.h"
#include "Framework/XMLSupport/ThreadTime.h"

#include <expat.h>

#include <exception>
#include <new>
#include <type_traits>
#include <utility>

namespace Framework {

namespace {

/// The parser did not take the abridged text, or not as it was meant. Only the whole text tells what is wrong with it.
struct NeedsWholeText {};

/// One run of expat over one document. Exceptions of the handlers wait here until the parser has returned: they must
/// not cross its frames, and it may call further handlers after it was told to stop.
///
/// A document comes at once, abridged; what was left out between two events is text. One that is large for the memory
/// limit comes in pieces, and so does one with a tag that the parser must not get to see, and one that turned out not
/// to be well-formed, as it is. The parser goes over all of a piece once more, to count lines that nobody asks it for,
/// unless the piece is the last. It would read a token again from its start with each further piece, so none ends
/// within a token.
template <typename Builder> class ParserRun {
public:
    ParserRun(DocumentData& data, const LoadLimits& limits, double startSeconds)
        : m_data(data), m_limits(limits), m_startSeconds(startSeconds), m_builder(data, limits),
          m_memory(limits.memory), m_parser(TakeParser(data.source.text.size(), m_memory)) {
        if (!m_parser) {
            FailForMemory(0);
        }
        XML_Parser parser = m_parser.get();
        ::XML_SetUserData(parser, this);
        // It would ask the system for a random one, each time.
        ::XML_SetHashSalt(parser, static_cast<unsigned long>(TextHash()("names of a document")) | 1U);
        ::XML_SetElementHandler(parser, &OnStart, &OnEnd);
        ::XML_SetCharacterDataHandler(parser, &OnText);
        ::XML_SetCdataSectionHandler(parser, &OnSectionStart, &OnSectionEnd);
        ::XML_SetCommentHandler(parser, &OnComment);
        ::XML_SetProcessingInstructionHandler(parser, &OnInstruction);
        ::XML_SetXmlDeclHandler(parser, &OnDeclaration);
        ::XML_SetDefaultHandler(parser, &OnOther);
    }

    /// Throws NeedsWholeText when that is needed.
    void ParseAbridged() {
        const std::string& text = m_data.source.text;
        void* const room = ::XML_GetBuffer(m_parser.get(), static_cast<int>(text.size()));
        if (room == nullptr) {
            FailForMemory(0);
        }
        const AbridgedText abridged(text, static_cast<char*>(room));
        m_isAbridged = true;
        m_places = WholePlaces(abridged.Gaps());
        m_gapBytes = abridged.Gaps().capacity() * sizeof(AbridgedText::Gap);
        CheckStatus(::XML_ParseBuffer(m_parser.get(), static_cast<int>(abridged.Size()), XML_TRUE));
        TakeTextUpTo(static_cast<std::uint32_t>(text.size()));
        CheckLimits(text.size());
    }

    void ParseInPieces() {
        const std::string& text = m_data.source.text;
        TagScanner scanner(text, m_limits);
        for (std::size_t at = 0; at < text.size();) {
            const std::size_t end = scanner.GoTo(at + kPieceBytes);
            const bool isLast = (end == text.size() && !scanner.Forbidden().has_value()) || scanner.IsCut();
            CheckStatus(::XML_Parse(m_parser.get(), text.data() + at, static_cast<int>(end - at), isLast));
            if (scanner.Forbidden().has_value()) {
                RefuseTag(*scanner.Forbidden());
            }
            at = end;
            CheckLimits(at);
        }
    }

    const Builder& Result() const { return m_builder; }

private:
    template <typename Work> static void Handle(void* user, Work work) noexcept {
        auto& run = *static_cast<ParserRun*>(user);
        if (run.m_failure) {
            return;
        }
        try {
            work(run);
        } catch (...) {
            run.m_failure = std::current_exception();
            ::XML_StopParser(run.m_parser.get(), XML_FALSE);
        }
    }

    /// Whether something may be left out of an event: of a text, and of a tag with its values.
    enum class Lacks { Nothing, Anything };

    /// The range of the event in the whole text.
    ByteRange Event(Lacks lacks = Lacks::Nothing) {
        const auto at = static_cast<std::uint32_t>(::XML_GetCurrentByteIndex(m_parser.get()));
        const auto size = static_cast<std::uint32_t>(::XML_GetCurrentByteCount(m_parser.get()));
        // The end of an empty element has no bytes: what comes behind it is not in it.
        const std::uint32_t begin = size == 0 ? m_places.Behind(at) : m_places.Of(at);
        const ByteRange range{begin, m_places.Behind(at + size)};
        m_eventIsWhole = range.Size() == size;
        if (!m_eventIsWhole && lacks == Lacks::Nothing) {
            throw NeedsWholeText();
        }
        TakeTextUpTo(begin);
        m_told = range.end;
        if (begin >= m_nextCheck) {
            CheckLimits(begin);
        }
        return range;
    }

    /// What was left out behind the last event.
    void TakeTextUpTo(std::uint32_t end) {
        if constexpr (std::is_same_v<Builder, DocumentBuilder>) {
            if (!m_isAbridged || m_told == end) {
                return;
            }
            const ByteRange range{m_told, end};
            if (m_builder.OpenElement() != 0) {
                m_builder.Text(Written(range), range);
            } else if (Written(range).find_first_not_of(" \t\n") != std::string_view::npos) {
                throw NeedsWholeText();
            }
        }
    }

    std::string_view Written(ByteRange range) const {
        return std::string_view(m_data.source.text).substr(range.begin, range.Size());
    }

    void CheckLimits(std::size_t at) {
        m_nextCheck = at + kPieceBytes;
        CheckTime(at);
        CheckMemory(at);
    }

    void CheckStatus(XML_Status status) const {
        if (m_failure) {
            std::rethrow_exception(m_failure);
        }
        if (status == XML_STATUS_OK) {
            return;
        }
        const XML_Error code = ::XML_GetErrorCode(m_parser.get());
        const XML_Index offset = ::XML_GetCurrentByteIndex(m_parser.get());
        const std::size_t place = offset < 0 ? 0 : static_cast<std::size_t>(offset);
        if (code == XML_ERROR_NO_MEMORY) {
            FailForMemory(place);
        }
        if (m_isAbridged) {
            throw NeedsWholeText();
        }
        if constexpr (std::is_same_v<Builder, DocumentBuilder>) {
            throw ParserError(m_data, m_builder, code, place);
        } else {
            throw ErrorAt(m_data, place, "not well-formed"); // which the builder's run will say better
        }
    }

    [[noreturn]] void RefuseTag(const ForbiddenTag& tag) const {
        if (tag.reason == ForbiddenTag::Reason::TooManyAttributes) {
            throw ErrorAt(m_data, tag.offset,
                          LimitPassed("too many attributes in one tag", std::to_string(m_limits.attributesPerElement),
                                      "attributesPerElement"));
        }
        throw ErrorAt(m_data, tag.offset,
                      LimitPassed("a tag has too many bytes", std::to_string(m_limits.bytesPerTag), "bytesPerTag"));
    }

    void CheckTime(std::size_t at) const {
        if (ThreadSeconds() - m_startSeconds > m_limits.cpuSeconds) {
            const std::string limit = SupportFunc::GetStrValue(m_limits.cpuSeconds) + " s";
            throw ErrorAt(m_data, at, LimitPassed("parsing takes too much processor time", limit, "cpuSeconds"));
        }
    }

    void CheckMemory(std::size_t at) {
        const std::size_t used = MemoryOf(m_data) + m_gapBytes;
        if (used > m_limits.memory || m_memory.Used() > m_limits.memory - used) {
            throw ErrorAt(m_data, at, MemoryPassed(m_limits));
        }
        m_memory.SetMost(m_limits.memory - used);
    }

    /// The parser got no memory: from the limit, or from the machine.
    [[noreturn]] void FailForMemory(std::size_t at) const {
        if (m_memory.IsExceeded()) {
            throw ErrorAt(m_data, at, MemoryPassed(m_limits));
        }
        throw std::bad_alloc();
    }

    static void XMLCALL OnStart(void* user, const char* name, const char** attributes) {
        Handle(user, [&](ParserRun& run) { run.m_builder.StartElement(name, attributes, run.Event(Lacks::Anything)); });
    }
    static void XMLCALL OnEnd(void* user, const char* /*name*/) {
        Handle(user, [](ParserRun& run) { run.m_builder.EndElement(run.Event().end); });
    }
    static void XMLCALL OnText(void* user, const char* text, int length) {
        Handle(user, [&](ParserRun& run) {
            const ByteRange range = run.Event(Lacks::Anything);
            const bool isWhole = run.m_eventIsWhole;
            run.m_builder.Text(isWhole ? std::string_view(text, static_cast<std::size_t>(length)) : run.Written(range),
                               range);
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
            run.Event();
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
            const ByteRange range = run.Event();
            if (std::string_view(text, static_cast<std::size_t>(length)).starts_with("<!DOCTYPE")) {
                throw ErrorAt(run.m_data, range.begin, kNoDoctype);
            }
        });
    }

    static constexpr std::size_t kPieceBytes = std::size_t{64} * 1024;

    DocumentData& m_data;
    const LoadLimits& m_limits;
    double m_startSeconds;
    std::exception_ptr m_failure;
    std::size_t m_nextCheck = kPieceBytes;
    Builder m_builder;
    bool m_isAbridged = false;
    WholePlaces m_places;
    std::size_t m_gapBytes = 0;
    std::uint32_t m_told = 0; ///< the end of the last event
    bool m_eventIsWhole = true;
    ParserMemory m_memory;
    ParserPtr m_parser;
};

/// Refuses a document that has more nodes than are allowed before any memory is spent on them. Whatever else is wrong
/// with it is left to the builder.
void RefuseTooManyNodes(DocumentData& data, const LoadLimits& limits, double startSeconds) {
    if (!MayHaveTooManyNodes(data.source.text, limits)) {
        return;
    }
    ParserRun<NodeCounter> run(data, limits, startSeconds);
    try {
        run.ParseInPieces();
    } catch (const ParseError&) {
        if (run.Result().HasTooMany()) {
            throw;
        }
    }
}

/// False when the document is not one for this road, or its text is needed in whole; nothing is left of it then.
bool ParseAbridged(DocumentData& data, const LoadLimits& limits, double startSeconds) {
    constexpr std::size_t shareForCopy = 16;
    const std::string& text = data.source.text;
    if (text.size() > limits.memory / shareForCopy || TagScanner(text, limits).MayStop()) {
        return false;
    }
    try {
        ParserRun<DocumentBuilder>(data, limits, startSeconds).ParseAbridged();
        return true;
    } catch (const NeedsWholeText&) {
        DocumentData fresh;
        fresh.sourceName = std::move(data.sourceName);
        fresh.source = std::move(data.source);
        data = std::move(fresh);
        return false;
    }
}

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

void CheckDocumentSize(std::size_t bytes, const std::string& sourceName, const LoadLimits& limits) {
    if (bytes > limits.bytes) {
        throw ParseError(
            sourceName, {1, 1},
            LimitPassed("the document has " + std::to_string(bytes) + " bytes", std::to_string(limits.bytes), "bytes"));
    }
}

DocumentData ParseDocument(std::string bytes, std::string sourceName, const LoadLimits& limits) {
    const double startSeconds = ThreadSeconds();
    CheckDocumentSize(bytes.size(), sourceName, limits);
    DocumentData data;
    data.sourceName = std::move(sourceName);
    data.source = DecodeDocument(std::move(bytes), data.sourceName, limits);
    CheckText(data);
    RefuseTooManyNodes(data, limits, startSeconds);
    if (!ParseAbridged(data, limits, startSeconds)) {
        ParserRun<DocumentBuilder>(data, limits, startSeconds).ParseInPieces();
    }
    return data;
}

} // namespace Framework
