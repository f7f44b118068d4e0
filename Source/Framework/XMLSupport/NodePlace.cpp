#include "Framework/XMLSupport/NodePlace.h"

#include <algorithm>

namespace Framework {

DocumentPlace PlaceOfNode(const Document& document, NodeRef node) {
    if (node == NodeRef::None || document.SourceName() == writtenDomName) {
        return {};
    }
    ByteRange range = document.Kind(node) == NodeKind::Element ? document.StartTag(node) : document.Range(node);
    std::string_view line = std::string_view(document.Source()).substr(range.begin, range.Size());
    if (document.Kind(node) == NodeKind::Text) { // the blanks around it lay the document out
        const std::size_t first = std::min(line.find_first_not_of(" \t\r\n"), line.size());
        range.begin += static_cast<std::uint32_t>(first);
        line = line.substr(first, line.find_last_not_of(" \t\r\n") + 1 - first);
    }
    const Place place = document.PlaceAt(range.begin);
    line = line.substr(0, line.find_first_of("\r\n"));
    const auto isBegin = [](char byte) { return (static_cast<unsigned char>(byte) & 0xC0U) != 0x80U; };
    DocumentPlace found;
    found.File = document.SourceName();
    found.Line = static_cast<unsigned int>(place.line);
    found.Column = static_cast<unsigned int>(place.column);
    found.Length = static_cast<unsigned int>(std::count_if(line.begin(), line.end(), isBegin));
    return found;
}

DocumentPlace PlaceOfNode(const XmlTree& tree, NodeRef node) {
    const auto* const document = dynamic_cast<const Document*>(&tree);
    return document == nullptr ? DocumentPlace() : PlaceOfNode(*document, node);
}

} // namespace Framework
