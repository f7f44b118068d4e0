#include "Framework/XMLSupport/XmlMemory.h"

#include <algorithm>
#include <array>
#include <functional>
#include <utility>

#include <xercesc/dom/DOM.hpp>

namespace Framework {

namespace {

/// The blocks that a document takes while it is made. Xerces forgets some of them when it fails on the way.
class OpenBlocks {
public:
    void Add(void* block) noexcept {
        if (m_count < m_blocks.size()) { // it takes half a dozen
            m_blocks[m_count++] = block;
        }
    }
    void Remove(void* block) noexcept {
        m_count = static_cast<std::size_t>(
            std::remove(m_blocks.begin(), m_blocks.begin() + static_cast<std::ptrdiff_t>(m_count), block) -
            m_blocks.begin());
    }
    void Free() noexcept {
        while (m_count > 0) {
            ::operator delete(m_blocks[--m_count]);
        }
    }

private:
    std::array<void*, 64> m_blocks{};
    std::size_t m_count = 0;
};

thread_local constinit OpenBlocks* openBlocks = nullptr;

class Memory final : public xercesc::MemoryManager {
public:
    void* allocate(XMLSize_t size) override {
        void* const block = ::operator new(size);
        if (openBlocks != nullptr) {
            openBlocks->Add(block);
        }
        return block;
    }
    void deallocate(void* block) override {
        if (openBlocks != nullptr) {
            openBlocks->Remove(block);
        }
        ::operator delete(block);
    }
    xercesc::MemoryManager* getExceptionMemoryManager() override { return this; }
};

} // namespace

xercesc::MemoryManager& XmlMemory() {
    alignas(Memory) static char room[sizeof(Memory)];
    static Memory& memory = *new (room) Memory;
    return memory;
}

DomDocumentPtr NewDocumentInXmlMemory() {
    OpenBlocks blocks;
    openBlocks = &blocks;
    try {
        DomDocumentPtr document(xercesc::DOMImplementation::getImplementation()->createDocument(&XmlMemory()));
        openBlocks = nullptr;
        return document;
    } catch (...) {
        openBlocks = nullptr;
        blocks.Free();
        throw;
    }
}

StartMemory& StartMemory::Instance() {
    alignas(StartMemory) static char room[sizeof(StartMemory)];
    static StartMemory& memory = *new (room) StartMemory;
    return memory;
}

void StartMemory::SetAside(std::size_t size) {
    if (m_reserve == nullptr) {
        m_reserve = static_cast<char*>(::operator new(size));
        m_size = size;
    }
}

void StartMemory::GiveBack() noexcept {
    if (m_used == 0) {
        ::operator delete(std::exchange(m_reserve, nullptr));
        m_size = 0;
    }
}

void* StartMemory::allocate(XMLSize_t size) {
    if (void* const block = ::operator new(size, std::nothrow)) {
        return block;
    }
    constexpr std::size_t step = alignof(std::max_align_t);
    const std::size_t needed = (size + step - 1) / step * step;
    if (needed > m_size - m_used) {
        throw xercesc::OutOfMemoryException();
    }
    void* const block = m_reserve + m_used;
    m_used += needed;
    return block;
}

void StartMemory::deallocate(void* memory) {
    const std::less<const void*> isBefore; // of pointers into different blocks too
    const bool isReserve = m_reserve != nullptr && !isBefore(memory, m_reserve) && isBefore(memory, m_reserve + m_size);
    if (!isReserve) { // what was set aside stays: it is used once, by what lives for ever
        ::operator delete(memory);
    }
}

} // namespace Framework
