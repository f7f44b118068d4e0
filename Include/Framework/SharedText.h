#pragma once

#include <atomic>
#include <cstdint>
#include <string_view>
#include <utility>

#include "Framework/FrameworkExport.h"
#include "Framework/ZelString.h"

namespace Framework {

/// A text that many objects have alike, such as the name of the element they stand for: those that got it in one thread
/// share one copy. Takes the room of a pointer; the empty text takes no more.
///
/// One object is for one thread at a time, as any value; copies of it may be used and destroyed in others.
class FRAMEWORK_API SharedText {
public:
    SharedText() noexcept = default;
    SharedText(const SharedText& other) noexcept : m_copy(other.m_copy) {
        if (m_copy != nullptr) {
            m_copy->users.fetch_add(1, std::memory_order_relaxed);
        }
    }
    SharedText(SharedText&& other) noexcept : m_copy(std::exchange(other.m_copy, nullptr)) {}
    SharedText& operator=(SharedText other) noexcept {
        std::swap(m_copy, other.m_copy);
        return *this;
    }
    ~SharedText() {
        if (m_copy != nullptr && m_copy->users.fetch_sub(1, std::memory_order_acq_rel) == 1) {
            delete m_copy;
        }
    }

    /// Throws std::bad_alloc; the text is as it was then.
    void Set(std::string_view text) {
        if (text != View()) {
            Replace(text);
        }
    }
    std::string_view View() const noexcept {
        return m_copy == nullptr ? std::string_view() : std::string_view(m_copy->text.data(), m_copy->text.size());
    }
    /// Good until this object is changed or destroyed.
    const zelString& Get() const noexcept { return m_copy == nullptr ? Empty() : m_copy->text; }

private:
    struct Copy {
        explicit Copy(std::string_view given) : text(given) {}

        std::atomic<std::uint32_t> users = 1;
        const zelString text;
    };
    explicit SharedText(Copy* copy) noexcept : m_copy(copy) {}

    void Replace(std::string_view text);
    static const zelString& Empty() noexcept;

    Copy* m_copy = nullptr; // null: the empty text
};

} // namespace Framework
