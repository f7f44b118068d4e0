#include "Framework/XMLSupport/NodeCounter.h"

#include <algorithm>

#include "Framework/XMLSupport/LimitMessages.h"
#include "Framework/XMLSupport/ParserMessages.h"

namespace Framework {

void NodeCounter::StartElement(std::string_view /*name*/, const char* const* attributes, ByteRange tag) {
    FlushRun();
    Count(tag.begin);
    for (; *attributes != nullptr; attributes += 2) {
        Count(tag.begin);
    }
}

/// The text of a section is part of its node.
void NodeCounter::Text(std::string_view /*piece*/, ByteRange range) {
    if (!m_isInText && !m_isInSection) {
        m_isInText = true;
        m_textBegin = range.begin;
    }
}

void NodeCounter::StartSection(ByteRange range) {
    FlushRun();
    Count(range.begin);
    m_isInSection = true;
}

void NodeCounter::Comment(std::string_view /*text*/, ByteRange range) {
    FlushRun();
    Count(range.begin);
}

void NodeCounter::Instruction(std::string_view /*target*/, std::string_view /*content*/, ByteRange range) {
    FlushRun();
    Count(range.begin);
}

void NodeCounter::FlushRun() {
    if (m_isInText) {
        m_isInText = false;
        Count(m_textBegin);
    }
}

void NodeCounter::Count(std::uint32_t begin) {
    if (++m_count > m_limits.nodes) {
        throw ErrorAt(m_data, begin, NodesPassed(m_limits));
    }
}

bool MayHaveTooManyNodes(std::string_view text, const LoadLimits& limits) {
    constexpr std::size_t bytesOfTwoNodes = std::string_view("<a/>x").size();
    if (text.size() / bytesOfTwoNodes < limits.nodes / 2) {
        return false;
    }
    // An element with a start and an end tag has two of the former, an attribute one of the latter.
    const auto tags = static_cast<std::size_t>(std::count(text.begin(), text.end(), '<'));
    const auto attributes = static_cast<std::size_t>(std::count(text.begin(), text.end(), '='));
    return tags + attributes > limits.nodes / 2;
}

} // namespace Framework
