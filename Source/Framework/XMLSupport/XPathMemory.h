#pragma once

#include "Framework/XMLSupport/NodeViews.h"

#include <cstddef>
#include <memory>

#include <xercesc/framework/MemoryManager.hpp>

namespace Framework {

/// Memory for one evaluation of an XPath: operator new and delete, with a reserve.
///
/// Xalan's destructors give texts and lists back to caches, which grow on that occasion: an allocation that fails there
/// ends the process. So where operator new has nothing, small requests are served out of the reserve, and the views are
/// closed, so that the evaluation ends with TooManyViews when it comes to look at the next node.
class XPathMemory final : public xercesc::MemoryManager {
public:
    /// Throws std::bad_alloc. `views` are those that the evaluation looks at.
    explicit XPathMemory(NodeViews& views);

    /// Whether the reserve was needed.
    bool IsShort() const { return m_used > 0; }

    void* allocate(XMLSize_t size) override;
    void deallocate(void* memory) override;
    xercesc::MemoryManager* getExceptionMemoryManager() override { return this; }

private:
    NodeViews& m_views;
    std::unique_ptr<char[]> m_reserve;
    std::size_t m_used = 0;
};

} // namespace Framework
