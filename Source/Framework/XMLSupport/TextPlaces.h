#pragma once

#include <cstddef>
#include <cstdint>
#include <string_view>
#include <vector>

namespace Framework {

/// A place in a text as people count: from 1, the column in code points. A lone CR ends a line, CR LF ends one line.
struct Place {
    std::size_t line = 0;
    std::size_t column = 0;

    friend bool operator==(const Place&, const Place&) = default;
};

/// A stretch of a document's UTF-8 text, `end` not included.
struct ByteRange {
    std::uint32_t begin = 0;
    std::uint32_t end = 0;

    std::uint32_t Size() const { return end - begin; }
    friend bool operator==(const ByteRange&, const ByteRange&) = default;
};

/// The place of one byte, found by reading the text up to it: for a single question.
Place PlaceIn(std::string_view text, std::size_t offset);

/// Answers any number of questions about one text in constant time each: it remembers the place of every 256th byte, so
/// a document without line ends costs no more than one of short lines.
class TextPlaces {
public:
    explicit TextPlaces(std::string_view text);

    /// `text` is the one it was made from; an offset behind its end counts as the end.
    Place At(std::string_view text, std::size_t offset) const;

private:
    struct Mark {
        std::uint32_t line;
        std::uint32_t column;
    };
    std::vector<Mark> m_marks;
};

} // namespace Framework
