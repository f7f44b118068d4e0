#include "RootElement.h"

#include <algorithm>

#include "DocumentText.h"
#include "Output.h"

namespace Lanedoc {

namespace {

/// Offset of the first start tag, or npos.
std::size_t FindStartTag(std::string_view text) {
    std::size_t at = text.find('<');
    while (at != std::string_view::npos && at + 1 < text.size() && (text[at + 1] == '!' || text[at + 1] == '?')) {
        const bool isComment = text[at + 1] == '!';
        const std::size_t end = text.find(isComment ? "-->" : "?>", at + (isComment ? 4 : 2));
        at = end == std::string_view::npos ? end : text.find('<', end);
    }
    return at;
}

} // namespace

RootElement FindRootElement(std::string_view bytes) {
    const std::string text = DocumentText(bytes);
    const std::size_t at = FindStartTag(text);
    if (at == std::string::npos) {
        return {};
    }
    RootElement root;
    const std::size_t end = std::min(text.find_first_of(" \t\r\n/>", at), text.size());
    root.name = text.substr(at + 1, end - at - 1);
    root.line = 1;
    std::size_t lineStart = 0;
    for (std::size_t i = 0; i < at; ++i) {
        if (text[i] == '\n' || (text[i] == '\r' && text[i + 1] != '\n')) {
            ++root.line;
            lineStart = i + 1;
        }
    }
    root.column = Width(std::string_view(text).substr(lineStart, at - lineStart)) + 1;
    return root;
}

} // namespace Lanedoc
