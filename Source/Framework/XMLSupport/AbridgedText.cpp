#include "Framework/XMLSupport/AbridgedText.h"

#include "Framework/XMLSupport/ByteSearch.h"

#include <algorithm>
#include <cstring>

namespace Framework {

namespace {

/// Beside what has to stay, a shorter stretch costs more to leave out than to look at.
constexpr std::size_t kWorthwhile = 16;
constexpr std::size_t kLongestReference = 12; // &#x0010FFFF;

// The bytes of longer characters count as controls here.
constexpr auto isNotPlainInText = [](auto byte) {
    return (byte < ' ' && !(byte == '\n' || byte == '\t')) || (byte | 2) == '>' || byte == '&' || byte == ']';
};
// A line end or a tab reads as a blank.
constexpr auto isNotPlainInValue = [](auto byte) {
    return byte < ' ' || byte == '<' || byte == '&' || byte == '"' || byte == '\'';
};
constexpr auto isTagMark = [](auto byte) { return byte == '>' || byte == '"' || byte == '\''; };

} // namespace

AbridgedText::AbridgedText(std::string_view text, char* room) : m_text(text), m_room(room) {
    while (m_at < m_text.size()) {
        if (m_text[m_at] == '<') {
            Markup();
        } else {
            Content();
        }
    }
    CopyUpTo(m_text.size());
}

/// A text up to the next markup. All of a text that is plain goes, however short: that saves the parser a token.
void AbridgedText::Content() {
    const std::size_t begin = m_at;
    for (;;) {
        const std::size_t end = EndOfPlain(m_text, m_at, isNotPlainInText);
        const bool isLast = end == m_text.size() || m_text[end] == '<';
        if (end - m_at >= kWorthwhile || (isLast && m_at == begin)) {
            LeaveOut(m_at, end);
        }
        if (isLast) {
            m_at = end;
            return;
        }
        m_at = BehindSpecial(end);
    }
}

void AbridgedText::Markup() {
    const std::string_view rest = m_text.substr(m_at);
    const char second = rest.size() > 1 ? rest[1] : '\0';
    if (second != '!' && second != '?') {
        Tag();
    } else if (second == '?') {
        m_at = Behind("?>", m_at + 2);
    } else if (rest.starts_with("<!--")) {
        m_at = Behind("-->", m_at + 4);
    } else if (rest.starts_with("<![CDATA[")) {
        Section();
    } else {
        m_at = m_text.size(); // which the parser will refuse
    }
}

void AbridgedText::Tag() {
    const std::size_t size = m_text.size();
    while ((m_at = Find<Characters::Any>(m_text, m_at, isTagMark)) < size && m_text[m_at] != '>') {
        const char quote = m_text[m_at];
        const std::size_t begin = m_at + 1;
        const std::size_t end = EndOfPlain(m_text, begin, isNotPlainInValue);
        const bool isPlain = end < size && m_text[end] == quote;
        if (isPlain) {
            LeaveOut(begin, end);
        }
        m_at = isPlain ? end + 1 : std::min(m_text.find(quote, end), size - 1) + 1;
    }
    m_at = std::min(m_at + 1, size);
}

void AbridgedText::Section() {
    constexpr std::string_view closing = "]]>";
    m_at += std::string_view("<![CDATA[").size();
    const std::size_t end = Behind(closing, m_at);
    if (m_text.substr(0, end).ends_with(closing)) {
        const std::size_t close = end - closing.size();
        while (m_at < close) {
            const std::size_t plainEnd = std::min(EndOfPlain(m_text, m_at, isNotPlainInText), close);
            if (plainEnd - m_at >= kWorthwhile) {
                LeaveOut(m_at, plainEnd);
            }
            m_at = plainEnd < close ? BehindSpecial(plainEnd) : close;
        }
    }
    m_at = end;
}

/// Behind the first `delimiter` at or behind `from`; the end of the text when there is none.
std::size_t AbridgedText::Behind(std::string_view delimiter, std::size_t from) const {
    const std::size_t at = m_text.find(delimiter, from);
    return at == std::string_view::npos ? m_text.size() : at + delimiter.size();
}

/// Behind what is not plain and one byte more, so that nothing can come to stand there that it would go together with.
std::size_t AbridgedText::BehindSpecial(std::size_t at) const {
    if (m_text[at] == '&') {
        const std::string_view reference = m_text.substr(at, kLongestReference);
        const auto isEnd = [](char c) { return c == ';' || c == '<'; };
        const auto* const end = std::find_if(reference.begin() + 1, reference.end(), isEnd);
        at += static_cast<std::size_t>(end - reference.begin());
        return end != reference.end() && *end == ';' ? at + 1 : at;
    }
    ++at;
    while (at < m_text.size() && Number(m_text[at]) < 0) {
        ++at;
    }
    return at < m_text.size() && !isNotPlainInText(Number(m_text[at])) ? at + 1 : at;
}

void AbridgedText::LeaveOut(std::size_t begin, std::size_t end) {
    begin = std::max(begin, std::size_t{1}); // only at the very beginning an XML declaration may stand
    if (begin >= end) {
        return;
    }
    CopyUpTo(begin);
    m_copied = end;
    m_gaps.push_back({static_cast<std::uint32_t>(m_size), static_cast<std::uint32_t>(end - m_size)});
}

void AbridgedText::CopyUpTo(std::size_t end) {
    std::memcpy(m_room + m_size, m_text.data() + m_copied, end - m_copied);
    m_size += end - m_copied;
    m_copied = end;
}

} // namespace Framework
