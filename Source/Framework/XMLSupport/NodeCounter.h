#pragma once

#include "Framework/LoadLimits.h"
#include "Framework/XMLSupport/TextPlaces.h"

#include <string_view>

namespace Framework {

struct DocumentData;

/// Counts the nodes that DocumentBuilder would make of the same events, and keeps none: a document that has too many is
/// refused (ParseError) without the memory that they would take. Attributes count at the start of their tag.
class NodeCounter {
public:
    NodeCounter(const DocumentData& data, const LoadLimits& limits) : m_data(data), m_limits(limits) {}

    void StartElement(std::string_view name, const char* const* attributes, ByteRange tag);
    void EndElement(std::uint32_t /*end*/) { FlushRun(); }
    void Text(std::string_view /*piece*/, ByteRange range);
    void StartSection(ByteRange range);
    void EndSection(ByteRange /*range*/) { m_isInSection = false; }
    void Comment(std::string_view text, ByteRange range);
    void Instruction(std::string_view target, std::string_view content, ByteRange range);

    bool HasTooMany() const { return m_count > m_limits.nodes; }

private:
    void Count(std::uint32_t begin);
    void FlushRun();

    const DocumentData& m_data;
    const LoadLimits& m_limits;
    std::size_t m_count = 0;
    bool m_isInText = false; ///< pieces of text without markup between them are one node
    bool m_isInSection = false;
    std::uint32_t m_textBegin = 0;
};

/// Whether the text may hold more nodes than the limit allows, by its size and its markup: a fraction of a parse.
bool MayHaveTooManyNodes(std::string_view text, const LoadLimits& limits);

} // namespace Framework
