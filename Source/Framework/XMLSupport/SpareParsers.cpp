#include "Framework/XMLSupport/SpareParsers.h"

#include <array>
#include <atomic>
#include <utility>

namespace Framework {

namespace {

/// A larger one hardly feels what its parser costs, and would leave behind a parser that is too large to be kept.
constexpr std::size_t kSmallDocument = std::size_t{8} * 1024;
/// Of one parser. Also bounds what a reset costs: it goes over the parser's tables, empty or not.
constexpr std::size_t kMostKept = std::size_t{32} * 1024;
/// No small document comes near it. Whether a document passes its limit must not hang on what was read before, and with
/// a parser that was kept it would.
constexpr std::size_t kAmpleMemory = std::size_t{1024} * 1024;

constexpr const char* kEncoding = "UTF-8";

/// For one spare parser. Nobody waits for one that another thread looks into: the next one is as good.
struct Slot {
    std::atomic<bool> isBusy = false;
    XML_Parser parser = nullptr;
    std::size_t held = 0;
};

// Both stay usable after the end below: objects that are destroyed later may still load.
constinit std::array<Slot, 8> slots;
constinit std::atomic<bool> isOver = false;

/// Looks into one slot after the other until the work says that it is done.
template <typename Work> bool AtSomeSlot(Work work) noexcept {
    for (Slot& slot : slots) {
        if (!slot.isBusy.exchange(true, std::memory_order_acquire)) {
            const bool isDone = work(slot);
            slot.isBusy.store(false, std::memory_order_release);
            if (isDone) {
                return true;
            }
        }
    }
    return false;
}

XML_Parser TakeSpare(ParserMemory& memory) noexcept {
    XML_Parser parser = nullptr;
    AtSomeSlot([&](Slot& slot) {
        if (slot.parser == nullptr) {
            return false;
        }
        parser = std::exchange(slot.parser, nullptr);
        memory.Add(slot.held);
        return true;
    });
    return parser;
}

bool PutSpare(XML_Parser parser, std::size_t held) noexcept {
    return !isOver && AtSomeSlot([&](Slot& slot) {
        if (slot.parser != nullptr) {
            return false;
        }
        slot.parser = parser;
        slot.held = held;
        return true;
    });
}

/// Not where it was stopped, found an error or ran out of memory.
bool HasReadAll(XML_Parser parser) {
    XML_ParsingStatus status{};
    ::XML_GetParsingStatus(parser, &status);
    return status.parsing == XML_FINISHED && ::XML_GetErrorCode(parser) == XML_ERROR_NONE;
}

/// The process ends, or the library is unloaded.
struct End {
    ~End() {
        isOver = true;
        FreeSpareParsers();
    }
};
const End atEnd;

} // namespace

void ParserKeeper::operator()(XML_Parser parser) const noexcept {
    // The encoding is set when the parser is taken: a reset does not tell that there was no memory for its name.
    const bool isKept = HasReadAll(parser) && ::XML_ParserReset(parser, nullptr) == XML_TRUE &&
                        memory->Used() <= kMostKept && PutSpare(parser, memory->Used());
    if (!isKept) {
        ::XML_ParserFree(parser);
    }
}

ParserPtr TakeParser(std::size_t documentSize, ParserMemory& memory) {
    // With the encoding named, a declaration of the encoding that the document once had is not applied to its UTF-8
    // text.
    if (documentSize <= kSmallDocument && memory.Most() >= kAmpleMemory) {
        if (ParserPtr spare{TakeSpare(memory), {&memory}}) {
            return ::XML_SetEncoding(spare.get(), kEncoding) == XML_STATUS_OK ? std::move(spare)
                                                                              : ParserPtr{nullptr, {&memory}};
        }
    }
    return {::XML_ParserCreate_MM(kEncoding, &ParserMemory::Suite(), nullptr), {&memory}};
}

void FreeSpareParsers() noexcept {
    ParserMemory memory(0);
    while (XML_Parser parser = TakeSpare(memory)) {
        ::XML_ParserFree(parser);
    }
}

std::size_t MemoryOfSpareParsers() noexcept {
    std::size_t held = 0;
    AtSomeSlot([&](const Slot& slot) {
        held += slot.parser != nullptr ? slot.held : 0;
        return false;
    });
    return held;
}

} // namespace Framework
