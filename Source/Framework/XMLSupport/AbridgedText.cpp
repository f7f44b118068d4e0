#include "Framework/XMLSupport/AbridgedText.h"

#include "Framework/XMLSupport/Utf.h"

#include <algorithm>
#include <cstring>
#include <experimental/simd>

namespace Framework {

namespace {

/// Beside what has to stay, a shorter stretch costs more to leave out than to look at.
constexpr std::size_t kWorthwhile = 16;
constexpr std::size_t kLongestReference = 12; // &#x0010FFFF;

namespace simd = std::experimental;

using Bytes = simd::native_simd<signed char>;

signed char Number(char byte) {
    return static_cast<signed char>(byte);
}

// What follows is asked of single bytes and of many at once. As signed numbers, the bytes of longer characters come
// before all others: here they count as controls.
constexpr auto isNotPlainInText = [](auto byte) {
    return (byte < ' ' && byte != '\n' && byte != '\t') || (byte | 2) == '>' || byte == '&' || byte == ']';
};
// A line end or a tab reads as a blank.
constexpr auto isNotPlainInValue = [](auto byte) {
    return byte < ' ' || byte == '<' || byte == '&' || byte == '"' || byte == '\'';
};
constexpr auto isTagMark = [](auto byte) { return byte == '>' || byte == '"' || byte == '\''; };

/// Where a longer character is not well formed, or is one that has to be looked at: those of four bytes are, and what
/// begins with EF BF, which may not be allowed. Looks at two bytes in front.
Bytes::mask_type IsDoubtful(const char* at) {
    constexpr auto number = [](unsigned byte) { return static_cast<signed char>(byte); };
    const Bytes byte(at, simd::element_aligned);
    const Bytes before(at - 1, simd::element_aligned);
    const Bytes second(at - 2, simd::element_aligned);
    const auto follows = byte < number(0xC0);
    const auto mustFollow = (before >= number(0xC0) && before < 0) || (second >= number(0xE0) && second < 0);
    const auto isOverlong = before == number(0xE0) && byte < number(0xA0);
    const auto isSurrogate = before == number(0xED) && byte >= number(0xA0);
    const auto isLast = before == number(0xEF) && byte == number(0xBF);
    const auto isRare = (byte < 0 && byte >= number(0xF0)) || byte == number(0xC0) || byte == number(0xC1);
    return follows != mustFollow || isOverlong || isSurrogate || isLast || isRare;
}

/// Where the last character before `at` begins, when its end is missing; else `at`.
std::size_t BeforeBroken(std::string_view text, std::size_t at) {
    if (at == 0 || Number(text[at - 1]) >= 0) {
        return at;
    }
    std::size_t begin = at - 1;
    while (begin > 0 && at - begin < 4 && Number(text[begin]) < Number('\xC0')) {
        --begin;
    }
    return BehindLongCharacters(text.substr(0, at), begin) == at ? at : begin;
}

enum class Characters { Any, WellFormed };

/// The first byte at or behind `at` that is of the kind, or where characters are to be well formed and that is in
/// doubt; else the end of the text.
template <Characters characters, typename Kind> std::size_t Find(std::string_view text, std::size_t at, Kind isOfKind) {
    constexpr std::size_t inFront = 2;
    for (; at >= inFront && text.size() - at >= Bytes::size(); at += Bytes::size()) {
        const char* const here = text.data() + at;
        const Bytes bytes(here, simd::element_aligned);
        auto found = isOfKind(bytes);
        if constexpr (characters == Characters::WellFormed) {
            if (Number(here[-1]) < 0 || simd::any_of(bytes < 0)) {
                found = (found && bytes >= 0) || IsDoubtful(here);
            }
        }
        if (simd::any_of(found)) {
            return at + static_cast<std::size_t>(simd::find_first_set(found));
        }
    }
    if constexpr (characters == Characters::WellFormed) {
        at = BeforeBroken(text, at);
    }
    while (at < text.size() && !isOfKind(Number(text[at]))) {
        ++at;
    }
    return at;
}

/// The end of a plain stretch: `isNotPlain` tells the ASCII that is not.
template <typename Kind> std::size_t EndOfPlain(std::string_view text, std::size_t begin, Kind isNotPlain) {
    for (std::size_t at = begin;;) {
        const std::size_t end = std::max(BeforeBroken(text, Find<Characters::WellFormed>(text, at, isNotPlain)), begin);
        at = BehindLongCharacters(text, end);
        if (at == end) {
            return end;
        }
    }
}

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
        const std::size_t end = std::min(reference.find_first_of(";<", 1), reference.size());
        return at + end + (end < reference.size() && reference[end] == ';' ? 1 : 0);
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
