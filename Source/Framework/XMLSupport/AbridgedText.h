#pragma once

#include <cstddef>
#include <cstdint>
#include <string_view>
#include <vector>

namespace Framework {

/// A document as the parser gets to see it: without what the parser could say nothing about. It goes over every byte of
/// a text or an attribute value several times, one by one, to find out that these are plain characters. Here they are
/// found many at a time and left out; what they are part of is told by their place.
///
/// No character goes that means something in a text or a value, nor one that is malformed, nor the byte behind either:
/// what was apart cannot become a token. So of a well-formed document the parser sees the same markup, and one that is
/// not remains so. Where its markup is taken wrongly, stretches may lie within it; the parser's events show that.
class AbridgedText {
public:
    /// Writes to `room`, which must take as many bytes as `text` has.
    AbridgedText(std::string_view text, char* room);

    std::size_t Size() const { return m_size; }

    /// A place where bytes were left out, in the abridged text.
    struct Gap {
        std::uint32_t at;
        std::uint32_t bytesUpToHere; ///< left out here and before
    };
    const std::vector<Gap>& Gaps() const { return m_gaps; }

private:
    void Content();
    void Markup();
    void Tag();
    void Section();
    std::size_t Behind(std::string_view delimiter, std::size_t from) const;
    std::size_t BehindSpecial(std::size_t at) const;
    void LeaveOut(std::size_t begin, std::size_t end);
    void CopyUpTo(std::size_t end);

    std::string_view m_text;
    char* m_room;
    std::size_t m_at = 0;
    std::size_t m_copied = 0; ///< of the text: what stands before it is done with
    std::size_t m_size = 0;
    std::vector<Gap> m_gaps;
};

/// Leads from places in an abridged text to those in the whole, from the front to the back.
class WholePlaces {
public:
    /// Of a text of which nothing was left out.
    WholePlaces() = default;
    explicit WholePlaces(const std::vector<AbridgedText::Gap>& gaps)
        : m_next(gaps.data()), m_end(m_next + gaps.size()) {}

    /// The place of a byte: behind what was left out in front of it.
    std::uint32_t Of(std::uint32_t at) {
        while (m_next != m_end && m_next->at <= at) {
            m_leftOut = (m_next++)->bytesUpToHere;
        }
        return at + m_leftOut;
    }
    /// The place behind a byte: before what was left out there.
    std::uint32_t Behind(std::uint32_t at) {
        while (m_next != m_end && m_next->at < at) {
            m_leftOut = (m_next++)->bytesUpToHere;
        }
        return at + m_leftOut;
    }

private:
    const AbridgedText::Gap* m_next = nullptr;
    const AbridgedText::Gap* m_end = nullptr;
    std::uint32_t m_leftOut = 0;
};

} // namespace Framework
