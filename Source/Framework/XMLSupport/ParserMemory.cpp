#include "Framework/XMLSupport/ParserMemory.h"

#include <algorithm>
#include <cstring>
#include <new>
#include <utility>

namespace Framework {

namespace {

// The parser has no place for a pointer of ours in its memory functions.
constinit thread_local ParserMemory* current = nullptr;

/// The size stands in front of what the parser gets; releasing does not tell it.
struct alignas(std::max_align_t) Header {
    std::size_t size;
};

Header* HeaderOf(void* memory) {
    return static_cast<Header*>(memory) - 1;
}

} // namespace

ParserMemory::ParserMemory(std::size_t most) : m_most(most), m_outer(std::exchange(current, this)) {}

ParserMemory::~ParserMemory() {
    current = m_outer;
}

const XML_Memory_Handling_Suite& ParserMemory::Suite() {
    static constexpr XML_Memory_Handling_Suite suite{&Allocate, &Reallocate, &Release};
    return suite;
}

bool ParserMemory::Take(std::size_t size) {
    if (size > m_most || m_used > m_most - size) {
        m_exceeded = true;
        return false;
    }
    m_used += size;
    return true;
}

void* ParserMemory::Allocate(std::size_t size) {
    const std::size_t whole = size + sizeof(Header);
    if (whole < size || !current->Take(whole)) {
        return nullptr;
    }
    void* const memory = ::operator new(whole, std::nothrow);
    if (memory == nullptr) {
        current->m_used -= whole;
        return nullptr;
    }
    auto* const header = static_cast<Header*>(memory);
    header->size = whole;
    return header + 1;
}

void* ParserMemory::Reallocate(void* memory, std::size_t size) {
    void* const moved = Allocate(size);
    if (moved != nullptr && memory != nullptr) {
        std::memcpy(moved, memory, std::min(size, HeaderOf(memory)->size - sizeof(Header)));
        Release(memory);
    }
    return moved;
}

void ParserMemory::Release(void* memory) {
    if (memory != nullptr) {
        current->m_used -= HeaderOf(memory)->size;
        ::operator delete(HeaderOf(memory));
    }
}

} // namespace Framework
