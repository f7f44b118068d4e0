#include "Framework/SharedText.h"

#include <array>
#include <memory>
#include <new>

#include <threads.h>

namespace Framework {

namespace {

/// Where a thread keeps what it got lately. Texts that differ may meet in one place; the later one then stays.
std::size_t PlaceFor(std::string_view text, std::size_t places) noexcept {
    const auto byte = [&](std::size_t at) { return static_cast<std::size_t>(static_cast<unsigned char>(text[at])); };
    return (text.size() + byte(0) + 7 * byte(text.size() / 2) + 31 * byte(text.size() - 1)) % places;
}

using RecentTexts = std::array<SharedText, 64>;

thread_local constinit RecentTexts* recentTexts = nullptr;

void Forget(void* /*ofThisThread*/) {
    delete std::exchange(recentTexts, nullptr);
}

/// Has the texts of a thread forgotten at its end. A destructor of a thread's object would not do: where there is no
/// memory to note it, the C library ends the process. What lives longer than the library's own end, as objects of the
/// program's do, goes without such texts.
class AtThreadsEnd {
public:
    AtThreadsEnd() : m_isMade(tss_create(&m_key, &Forget) == thrd_success) {}
    ~AtThreadsEnd() {
        if (std::exchange(m_isMade, false)) {
            tss_delete(m_key);
        }
        Forget(nullptr);
    }
    AtThreadsEnd(const AtThreadsEnd&) = delete;
    AtThreadsEnd& operator=(const AtThreadsEnd&) = delete;

    bool Note(RecentTexts* texts) const { return m_isMade && tss_set(m_key, texts) == thrd_success; }

private:
    tss_t m_key{};
    bool m_isMade;
};
AtThreadsEnd atThreadsEnd;

/// Null where there is no memory for them.
RecentTexts* RecentTextsHere() noexcept {
    if (recentTexts == nullptr) {
        std::unique_ptr<RecentTexts> made(new (std::nothrow) RecentTexts);
        if (made != nullptr && atThreadsEnd.Note(made.get())) {
            recentTexts = made.release();
        }
    }
    return recentTexts;
}

} // namespace

void SharedText::Replace(std::string_view text) {
    if (text.empty()) {
        *this = SharedText();
        return;
    }
    RecentTexts* const recent = RecentTextsHere();
    if (recent == nullptr) {
        *this = SharedText(new Copy(text));
        return;
    }
    SharedText& kept = (*recent)[PlaceFor(text, recent->size())];
    if (kept.View() != text) {
        kept = SharedText(new Copy(text));
    }
    *this = kept;
}

} // namespace Framework
