#pragma once

#include "Framework/XMLSupport/DomTree.h"

#include <new>

#include <xercesc/framework/MemoryManager.hpp>
#include <xercesc/util/OutOfMemoryException.hpp>

/// Where Xerces and Xalan take their memory from for what this library makes with them. What they take for themselves
/// is the host's choice, who may have started them.
namespace Framework {

/// operator new and delete, for documents and texts. Where memory runs out it throws std::bad_alloc, as all else here
/// does, and not Xerces' OutOfMemoryException, which is no std::exception. It lives for ever.
xercesc::MemoryManager& XmlMemory();

/// Runs a step that may come to Xerces' own memory, or to that of a host's document: where it runs out std::bad_alloc
/// is thrown all the same.
template <typename Step> decltype(auto) WithBadAlloc(Step step) {
    try {
        return step();
    } catch (const xercesc::OutOfMemoryException&) {
        throw std::bad_alloc();
    }
}

/// A DOM document that takes all its memory from there. Xerces must have been started.
DomDocumentPtr NewDocumentInXmlMemory();

/// For the start of the libraries. Both count a start that failed half way as done and cannot be stopped then, so it
/// must not fail: memory for it is set aside beforehand, and used where operator new has none.
///
/// It stays the memory of whoever comes later, for whom it is operator new and delete alone. It lives for ever.
class StartMemory final : public xercesc::MemoryManager {
public:
    static StartMemory& Instance();

    /// Throws std::bad_alloc, and nothing has happened.
    void SetAside(std::size_t size);
    /// What was set aside is given back, unless some of it was needed.
    void GiveBack() noexcept;

    void* allocate(XMLSize_t size) override;
    void deallocate(void* memory) override;
    xercesc::MemoryManager* getExceptionMemoryManager() override { return this; }

private:
    StartMemory() = default;

    char* m_reserve = nullptr;
    std::size_t m_size = 0;
    std::size_t m_used = 0;
};

} // namespace Framework
