#include "Framework/XMLSupport/TextPlaces.h"

#include <algorithm>

namespace Framework {

namespace {

constexpr std::size_t kBytesPerMark = 256;

Place Advance(Place place, std::string_view text, std::size_t from, std::size_t to) {
    for (std::size_t at = from; at < to; ++at) {
        const char byte = text[at];
        const bool endsLine = byte == '\n' || (byte == '\r' && (at + 1 == text.size() || text[at + 1] != '\n'));
        if (endsLine) {
            ++place.line;
            place.column = 1;
        } else if ((static_cast<unsigned char>(byte) & 0xC0U) != 0x80U) {
            ++place.column;
        }
    }
    return place;
}

} // namespace

Place PlaceIn(std::string_view text, std::size_t offset) {
    return Advance({1, 1}, text, 0, std::min(offset, text.size()));
}

TextPlaces::TextPlaces(std::string_view text) {
    m_marks.reserve(text.size() / kBytesPerMark + 1);
    Place place{1, 1};
    for (std::size_t at = 0;; at += kBytesPerMark) {
        m_marks.push_back({static_cast<std::uint32_t>(place.line), static_cast<std::uint32_t>(place.column)});
        if (text.size() - at < kBytesPerMark) {
            return;
        }
        place = Advance(place, text, at, at + kBytesPerMark);
    }
}

Place TextPlaces::At(std::string_view text, std::size_t offset) const {
    offset = std::min(offset, text.size());
    const Mark& mark = m_marks[offset / kBytesPerMark];
    return Advance({mark.line, mark.column}, text, offset - offset % kBytesPerMark, offset);
}

} // namespace Framework
