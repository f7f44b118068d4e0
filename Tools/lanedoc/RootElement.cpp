#include "RootElement.h"

#include <algorithm>

#include "Framework/ZelString.h"
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

std::string AsUtf8(std::string_view bytes) {
    const auto byteAt = [&](std::size_t at) { return static_cast<unsigned char>(bytes[at]); };
    if (bytes.size() < 2) {
        return std::string(bytes);
    }
    const bool bigEndian = byteAt(0) == 0xFE || byteAt(0) == 0;
    const bool littleEndian = (byteAt(0) == 0xFF && byteAt(1) == 0xFE) || byteAt(1) == 0;
    if (!bigEndian && !littleEndian) {
        return std::string(bytes);
    }
    std::basic_string<XMLCh> units;
    units.reserve(bytes.size() / 2);
    for (std::size_t i = 0; i + 1 < bytes.size(); i += 2) {
        const unsigned int first = byteAt(i);
        const unsigned int second = byteAt(i + 1);
        units += static_cast<XMLCh>(bigEndian ? first << 8U | second : second << 8U | first);
    }
    return zelString(units.c_str());
}

RootElement FindRootElement(std::string_view bytes) {
    const std::string text = AsUtf8(bytes);
    const std::size_t at = FindStartTag(text);
    if (at == std::string::npos) {
        return {};
    }
    RootElement root;
    const std::size_t end = std::min(text.find_first_of(" \t\r\n/>", at), text.size());
    root.name = text.substr(at + 1, end - at - 1);
    root.line = 1;
    std::size_t lineStart = text.starts_with("\xEF\xBB\xBF") ? 3 : 0;
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
