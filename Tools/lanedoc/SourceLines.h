#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

#include "Framework/Finding.h"
#include "Output.h"

namespace Lanedoc {

/// The lines of a document, for messages that quote one. Finding a place takes the same time wherever it is, also in a
/// document that is one line.
class SourceLines {
public:
    /// From a text in UTF-8, as DocumentText gives it.
    explicit SourceLines(std::string text);

    /// The line with its number, and one that underlines the place in it, each with a line end before it; empty when
    /// there is no such line. Of a long line the part around the place is shown. Tabs are shown as blanks.
    std::string Excerpt(const DocumentPlace& place, const Style& style) const;

private:
    struct LineStart {
        std::size_t offset;
        std::size_t character; ///< code points of the text before it
    };

    std::size_t OffsetOf(std::size_t character) const;
    std::size_t CharacterAfter(std::size_t offset) const;

    std::string m_text;
    std::vector<LineStart> m_lines;   ///< the last stands for the end of the text
    std::vector<std::size_t> m_marks; ///< offset of every so manieth code point
};

} // namespace Lanedoc
