#pragma once

#include "Framework/XMLSupport/ParserMemory.h"

#include <cstddef>
#include <memory>

#include <expat.h>

/// To make a parser, to let it grow and to free it again costs a packet a twelfth of its load. So a few parsers stay
/// from one small document to the next, whichever thread reads it.
///
/// They are no thread's own. To have something done at a thread's end asks for memory, without which the C library ends
/// the process; and where each packet has a thread of its own nothing would be gained.
namespace Framework {

/// Keeps a parser that has read its document to the end and holds little, and frees any other.
struct ParserKeeper {
    ParserMemory* memory; ///< in which the parser counts
    void operator()(XML_Parser parser) const noexcept;
};

using ParserPtr = std::unique_ptr<XML_ParserStruct, ParserKeeper>;

/// A parser for UTF-8 as if it were new, or null where there is no memory for one. All that it holds counts in
/// `memory`, which must outlive it.
ParserPtr TakeParser(std::size_t documentSize, ParserMemory& memory);

/// Frees those that are kept now.
void FreeSpareParsers() noexcept;
/// What is kept now, in bytes.
std::size_t MemoryOfSpareParsers() noexcept;

} // namespace Framework
