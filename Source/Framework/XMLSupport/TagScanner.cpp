#include "Framework/XMLSupport/TagScanner.h"

#include <algorithm>
#include <cstring>

namespace Framework {

namespace {

/// A text of so many bytes comes to the parser in pieces; of what has no end it gets no more.
constexpr std::size_t kLongText = std::size_t{128} * 1024;

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
    while (m_at < m_text.size() && !m_forbidden.has_value() && !m_isCut) {
        if (m_nextMarkup < m_at || m_at == 0) {
            m_nextMarkup = std::min(m_text.find('<', m_at), m_text.size());
        }
        const std::size_t begin = m_nextMarkup;
        if (begin >= offset) {
            m_at = CutOfText(m_at, offset, begin);
            break;
        }
        const std::size_t end = EndOfMarkup(begin);
        m_at = m_forbidden.has_value() ? begin : end;
    }
    return m_at;
}

/// Where a piece may end in a text, at or behind the offset: not in a reference, which is one token.
std::size_t TagScanner::CutOfText(std::size_t begin, std::size_t offset, std::size_t end) {
    if (offset <= begin || end - begin < kLongText) {
        return end;
    }
    const std::size_t reference = m_text.substr(begin, offset - begin).rfind('&');
    if (reference == std::string_view::npos) {
        return offset;
    }
    const std::string_view rest = m_text.substr(begin + reference, std::min(kLongText, end - begin - reference));
    const std::size_t close = rest.find(';');
    if (close != std::string_view::npos) {
        return std::max(offset, begin + reference + close);
    }
    m_isCut = rest.size() == kLongText && end == m_text.size();
    return m_isCut ? begin + reference + rest.size() : end;
}

/// Where the next markup may begin; of a tag, also the text behind it is passed over, unless it is long.
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
    return end - begin > kLongText ? EndOfTag(begin, end) : end;
}

/// Behind the '>' that stands in no quotes; `end` when there is none before it.
std::size_t TagScanner::EndOfTag(std::size_t begin, std::size_t end) const {
    const std::string_view text = m_text.substr(0, end);
    std::size_t at = begin;
    while (at < end) {
        at = std::min(text.find_first_of("\"'>", at), end);
        if (at == end || text[at] == '>') {
            break;
        }
        at = std::min(text.find(text[at], at + 1), end - 1) + 1;
    }
    return std::min(at + 1, end);
}

std::size_t TagScanner::Behind(std::string_view delimiter, std::size_t from) {
    const std::size_t at = m_text.find(delimiter, from);
    if (at != std::string_view::npos) {
        return at + delimiter.size();
    }
    m_isCut = true;
    return std::min(from + kLongText, m_text.size());
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
