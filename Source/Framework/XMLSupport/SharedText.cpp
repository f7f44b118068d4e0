#include "Framework/SharedText.h"

#include <array>

namespace Framework {

namespace {

/// Where a thread keeps what it got lately. Texts that differ may meet in one place; the later one then stays.
std::size_t PlaceFor(std::string_view text, std::size_t places) noexcept {
    const auto byte = [&](std::size_t at) { return static_cast<std::size_t>(static_cast<unsigned char>(text[at])); };
    return (text.size() + byte(0) + 7 * byte(text.size() / 2) + 31 * byte(text.size() - 1)) % places;
}

} // namespace

void SharedText::Replace(std::string_view text) {
    if (text.empty()) {
        *this = SharedText();
        return;
    }
    thread_local std::array<SharedText, 64> recent;
    SharedText& kept = recent[PlaceFor(text, recent.size())];
    if (kept.View() != text) {
        kept = SharedText(new Copy(text));
    }
    *this = kept;
}

const zelString& SharedText::Empty() noexcept {
    static const zelString empty;
    return empty;
}

} // namespace Framework
