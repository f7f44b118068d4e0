#include "Framework/SharedText.h"

#include <array>

namespace Framework {

namespace {

/// Where a thread keeps what it got lately. Texts that differ may meet in one place; the later one then stays.
std::size_t PlaceFor(std::string_view text, std::size_t places) noexcept {
    const auto byte = [&](std::size_t at) { return static_cast<std::size_t>(static_cast<unsigned char>(text[at])); };
    return (text.size() + byte(0) + 7 * byte(text.size() / 2) + 31 * byte(text.size() - 1)) % places;
}

/// Of one thread. What lives longer than it, as objects of the program's own end do, goes without.
struct RecentTexts {
    std::array<SharedText, 64> texts;
    ~RecentTexts() { isOver = true; }
    static thread_local constinit bool isOver;
};
thread_local constinit bool RecentTexts::isOver = false;

} // namespace

void SharedText::Replace(std::string_view text) {
    if (text.empty()) {
        *this = SharedText();
        return;
    }
    if (RecentTexts::isOver) {
        *this = SharedText(new Copy(text));
        return;
    }
    thread_local RecentTexts recent;
    SharedText& kept = recent.texts[PlaceFor(text, recent.texts.size())];
    if (kept.View() != text) {
        kept = SharedText(new Copy(text));
    }
    *this = kept;
}

} // namespace Framework
