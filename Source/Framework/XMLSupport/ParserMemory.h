#pragma once

#include <cstddef>

#include <expat.h>

namespace Framework {

/// Counts what the parser takes from the heap, and lets it have no more than the limit: it reports that it is out of
/// memory then. Counts for parsers that are made and used in this thread while it lives; of several the last.
class ParserMemory {
public:
    explicit ParserMemory(std::size_t most);
    ~ParserMemory();
    ParserMemory(const ParserMemory&) = delete;
    ParserMemory& operator=(const ParserMemory&) = delete;

    /// For XML_ParserCreate_MM.
    static const XML_Memory_Handling_Suite& Suite();

    std::size_t Used() const { return m_used; }
    std::size_t Most() const { return m_most; }
    /// A parser comes that holds this much from an earlier document.
    void Add(std::size_t held) { m_used += held; }
    /// Whether the parser asked for more than the limit.
    bool IsExceeded() const { return m_exceeded; }
    /// The limit from now on.
    void SetMost(std::size_t most) { m_most = most; }

private:
    static void* Allocate(std::size_t size);
    static void* Reallocate(void* memory, std::size_t size);
    static void Release(void* memory);
    bool Take(std::size_t size);

    std::size_t m_most;
    std::size_t m_used = 0;
    bool m_exceeded = false;
    ParserMemory* m_outer;
};

} // namespace Framework
