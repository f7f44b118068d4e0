#include "SourceLines.h"

#include <algorithm>
#include <array>
#include <utility>

namespace Lanedoc {

namespace {

constexpr std::size_t charactersPerMark = 256;
constexpr std::size_t tabStop = 4;
/// What is shown of a line, and how much of that before the place.
constexpr std::size_t longestLine = 120;
constexpr std::size_t mostBefore = 50;

struct Range {
    char32_t first;
    char32_t last;
};

// The scripts and signs that terminals show in two columns.
constexpr std::array wideCharacters = {
    Range{0x1100, 0x115F},   Range{0x2E80, 0x303E},   Range{0x3041, 0xA4CF},   Range{0xAC00, 0xD7A3},
    Range{0xF900, 0xFAFF},   Range{0xFE30, 0xFE6F},   Range{0xFF01, 0xFF60},   Range{0xFFE0, 0xFFE6},
    Range{0x1F300, 0x1F64F}, Range{0x1F680, 0x1F6FF}, Range{0x1F900, 0x1F9FF}, Range{0x20000, 0x3FFFD},
};
// Marks that go on top of the character before them, and those that steer how it is shown.
constexpr std::array narrowCharacters = {
    Range{0x0300, 0x036F}, Range{0x1AB0, 0x1AFF}, Range{0x200B, 0x200F}, Range{0x20D0, 0x20FF},
    Range{0x302A, 0x302D}, Range{0x3099, 0x309A}, Range{0xFE00, 0xFE0F}, Range{0xFE20, 0xFE2F},
};

template <std::size_t Count> bool IsIn(const std::array<Range, Count>& ranges, char32_t character) {
    return std::any_of(ranges.begin(), ranges.end(),
                       [&](const Range& range) { return character >= range.first && character <= range.last; });
}

bool IsContinuation(char byte) {
    return (static_cast<unsigned char>(byte) & 0xC0U) == 0x80U;
}

/// What is no character, in a document that is not well-formed, must not reach a terminal.
bool IsWhole(std::string_view character) {
    const auto first = static_cast<unsigned char>(character.front());
    const std::size_t expected = first < 0x80 ? 1 : first < 0xC2 ? 0 : first < 0xE0 ? 2 : first < 0xF0 ? 3 : 4;
    return character.size() == expected;
}

char32_t Decode(std::string_view character) {
    const auto first = static_cast<unsigned char>(character.front());
    char32_t code = character.size() == 1 ? first : first & (0x7FU >> character.size());
    for (const char byte : character.substr(1)) {
        code = code << 6U | (static_cast<unsigned char>(byte) & 0x3FU);
    }
    return code;
}

std::size_t Columns(std::string_view character) {
    const char32_t code = Decode(character);
    return IsIn(narrowCharacters, code) ? 0 : IsIn(wideCharacters, code) ? 2 : 1;
}

/// A piece of a line as it is shown, with the underline below it.
class Shown {
public:
    void Add(std::string_view character, bool isMarked) {
        const std::string text = character == "\t"    ? std::string(tabStop - m_columns % tabStop, ' ')
                                 : IsWhole(character) ? Printable(character)
                                                      : "\uFFFD";
        const std::size_t columns = text == character ? Columns(character) : Width(text);
        m_text += text;
        AddColumns(columns, isMarked);
    }

    /// Marks what stands behind the end of the line.
    void MarkEnd() {
        if (!m_hasMark) {
            AddColumns(1, true);
        }
    }

    const std::string& Text() const { return m_text; }
    std::string_view Underline() const {
        return std::string_view(m_underline).substr(0, m_underline.find_last_not_of(' ') + 1);
    }

private:
    void AddColumns(std::size_t columns, bool isMarked) {
        m_columns += columns;
        for (std::size_t i = 0; i < columns; ++i) {
            m_underline += !isMarked ? ' ' : m_hasMark ? '~' : '^';
            m_hasMark = m_hasMark || isMarked;
        }
    }

    std::string m_text;
    std::string m_underline;
    std::size_t m_columns = 0;
    bool m_hasMark = false;
};

std::string Gutter(const std::string& number) {
    constexpr std::size_t width = 5;
    return std::string(width - std::min(width, number.size()), ' ') + number + " | ";
}

} // namespace

SourceLines::SourceLines(std::string text) : m_text(std::move(text)) {
    std::size_t characters = 0;
    m_lines.push_back({0, 0});
    for (std::size_t at = 0; at < m_text.size(); ++at) {
        if (IsContinuation(m_text[at])) {
            continue;
        }
        if (characters++ % charactersPerMark == 0) {
            m_marks.push_back(at);
        }
        if (m_text[at] == '\n' || (m_text[at] == '\r' && m_text[at + 1] != '\n')) {
            m_lines.push_back({at + 1, characters});
        }
    }
    m_lines.push_back({m_text.size(), characters});
}

std::size_t SourceLines::CharacterAfter(std::size_t offset) const {
    do {
        ++offset;
    } while (offset < m_text.size() && IsContinuation(m_text[offset]));
    return offset;
}

std::size_t SourceLines::OffsetOf(std::size_t character) const {
    if (character >= m_lines.back().character) {
        return m_text.size();
    }
    std::size_t offset = m_marks[character / charactersPerMark];
    for (std::size_t left = character % charactersPerMark; left > 0; --left) {
        offset = CharacterAfter(offset);
    }
    return offset;
}

std::string SourceLines::Excerpt(const DocumentPlace& place, const Style& style) const {
    if (place.Line == 0 || place.Line >= m_lines.size()) {
        return {};
    }
    const LineStart begin = m_lines[place.Line - 1];
    LineStart end = m_lines[place.Line];
    while (end.offset > begin.offset && (m_text[end.offset - 1] == '\n' || m_text[end.offset - 1] == '\r')) {
        --end.offset;
        --end.character;
    }
    const std::size_t marked = begin.character + std::max(place.Column, 1U) - 1;
    const std::size_t markEnd = marked + std::max(place.Length, 1U);
    const bool isLong = end.character - begin.character > longestLine;
    const std::size_t first = isLong ? std::max(begin.character + mostBefore, marked) - mostBefore : begin.character;
    const std::size_t last = std::min(end.character, first + longestLine);

    Shown shown;
    if (first > begin.character) {
        shown.Add("…", false);
    }
    std::size_t offset = OffsetOf(first);
    for (std::size_t character = first; character < last; ++character) {
        const std::size_t next = CharacterAfter(offset);
        shown.Add(std::string_view(m_text).substr(offset, next - offset), character >= marked && character < markEnd);
        offset = next;
    }
    shown.MarkEnd();
    const std::string cut = last < end.character ? "…" : "";
    std::string lines = "\n" + style.Dim(Gutter(std::to_string(place.Line))) + shown.Text() + cut;
    const std::size_t markAt = shown.Underline().find('^');
    lines += "\n" + style.Dim(Gutter("")) + std::string(markAt, ' ') + style.Green(shown.Underline().substr(markAt));
    return lines;
}

} // namespace Lanedoc
