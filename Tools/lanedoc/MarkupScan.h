#pragma once

#include <cstddef>
#include <string_view>
#include <vector>

namespace Lanedoc {

/// A start tag, or that of an empty element. Offsets are into the text.
struct ScannedTag {
    struct Attribute {
        std::string_view name;
        std::size_t at = 0;
    };

    std::string_view name;
    std::vector<Attribute> attributes;
    std::size_t at = 0;        ///< the "<"
    std::size_t insertion = 0; ///< behind the last attribute, where another one may go
    bool isEmpty = false;      ///< no end tag follows
};

/// What a scan meets, in the order of the text.
class MarkupHandler {
public:
    virtual ~MarkupHandler() = default;

    virtual void StartTag(const ScannedTag& tag) = 0;
    virtual void EndTag() = 0; ///< not behind an empty element
    virtual void Text(std::size_t, std::size_t) {}
    virtual void Comment(std::size_t) {}
    virtual void Instruction(std::size_t) {}
};

/// Goes through a document in UTF-8 that is known to be well-formed and without a DOCTYPE; of any other text it makes
/// nothing useful, but ends. The XML declaration is no instruction. Takes time in proportion to the text.
void ScanMarkup(std::string_view text, MarkupHandler& handler);

} // namespace Lanedoc
