#include "Framework/XMLSupport/TagScanner.h"

#include <algorithm>
#include <cstring>

namespace Framework {

namespace {

/// A tag of so many bytes passes no limit.
std::size_t NeverForbidden(const LoadLimits& limits) {
    constexpr std::size_t shortestAttribute = std::string_view(" a=''").size();
    const bool counts = limits.attributesPerElement < std::string_view::npos / shortestAttribute;
    return counts ? std::min(limits.bytesPerTag, limits.attributesPerElement * shortestAttribute) : limits.bytesPerTag;
}

} // namespace

TagScanner::TagScanner(std::string_view text, const LoadLimits& limits)
    : m_text(text), m_limits(limits), m_neverForbidden(NeverForbidden(limits)) {}

/// A tag ends before the next '<', whatever that begins: where two that are close enough follow each other, all tags
/// between them are short.
bool TagScanner::MayStop() const {
    std::size_t at = std::min(m_text.find('<'), m_text.size());
    while (m_text.size() - at > m_neverForbidden) {
        const char* const begin = m_text.data() + at;
        const auto* const last = static_cast<const char*>(::memrchr(begin, '<', m_neverForbidden + 1));
        std::size_t next = at + static_cast<std::size_t>(last - begin);
        if (next == at) {
            next = std::min(m_text.find('<', at + 1), m_text.size());
            if (ForbiddenIn(at, next).has_value()) {
                return true;
            }
        }
        at = next;
    }
    return false;
}

std::size_t TagScanner::GoTo(std::size_t offset) {
    while (m_at < m_text.size() && !m_forbidden.has_value()) {
        const std::size_t begin = std::min(m_text.find('<', m_at), m_text.size());
        if (begin >= offset) {
            m_at = begin;
            break;
        }
        const std::size_t end = EndOfMarkup(begin);
        m_at = m_forbidden.has_value() ? begin : end;
    }
    return m_at;
}

/// Where the next markup may begin; of a tag, also the text behind it is passed over.
std::size_t TagScanner::EndOfMarkup(std::size_t begin) {
    const std::string_view rest = m_text.substr(begin);
    const bool isDeclared = rest.size() > 1 && rest[1] == '!';
    if (isDeclared && rest.starts_with("<!--")) {
        return Behind("-->", begin + 4);
    }
    if (isDeclared && rest.starts_with("<![CDATA[")) {
        return Behind("]]>", begin + 9);
    }
    if (rest.size() > 1 && rest[1] == '?') {
        return Behind("?>", begin + 2);
    }
    // No tag holds another '<', not even in its quotes. What begins with "<!" otherwise is refused by the parser.
    const std::size_t end = std::min(m_text.find('<', begin + 1), m_text.size());
    if (end - begin > m_neverForbidden && !isDeclared) {
        m_forbidden = ForbiddenIn(begin, end);
    }
    return end;
}

std::size_t TagScanner::Behind(std::string_view delimiter, std::size_t from) const {
    const std::size_t at = m_text.find(delimiter, from);
    return at == std::string_view::npos ? m_text.size() : at + delimiter.size();
}

std::optional<ForbiddenTag> TagScanner::ForbiddenIn(std::size_t begin, std::size_t end) const {
    const std::string_view text = m_text.substr(0, end);
    std::size_t at = begin;
    for (std::size_t attributes = 0;; ++attributes) {
        at = std::min(text.find_first_of("\"'>", at), end);
        if (at == end || text[at] == '>') {
            break;
        }
        if (attributes == m_limits.attributesPerElement) {
            const std::size_t equals = text.find_last_of("=", at);
            const std::size_t nameEnd = text.find_last_not_of(" \t\r\n", equals - 1);
            return ForbiddenTag{ForbiddenTag::Reason::TooManyAttributes, text.find_last_of(" \t\r\n\"'", nameEnd) + 1};
        }
        at = std::min(text.find(text[at], at + 1), end - 1) + 1;
    }
    if (at - begin >= m_limits.bytesPerTag) {
        return ForbiddenTag{ForbiddenTag::Reason::TooLong, begin};
    }
    return std::nullopt;
}

} // namespace Framework
