#include "Framework/XMLSupport/XPathMemory.h"

#include <functional>
#include <new>

namespace Framework {

namespace {

constexpr std::size_t kReserve = std::size_t{64} * 1024;
constexpr std::size_t kSmall = 4096; // what destructors ask for; more may fail at once

} // namespace

XPathMemory::XPathMemory(NodeViews& views) : m_views(views), m_reserve(new char[kReserve]) {}

void* XPathMemory::allocate(XMLSize_t size) {
    if (void* const block = ::operator new(size, std::nothrow)) {
        return block;
    }
    constexpr std::size_t step = alignof(std::max_align_t);
    const std::size_t needed = (size + step - 1) / step * step;
    m_views.Limit(0);
    if (size > kSmall || needed > kReserve - m_used) {
        throw std::bad_alloc();
    }
    void* const block = m_reserve.get() + m_used;
    m_used += needed;
    return block;
}

void XPathMemory::deallocate(void* memory) {
    const std::less<const void*> isBefore; // of pointers into different blocks too
    if (isBefore(memory, m_reserve.get()) || !isBefore(memory, m_reserve.get() + kReserve)) {
        ::operator delete(memory);
    }
}

} // namespace Framework
