#pragma once

#include <atomic>
#include <cstdint>
#include <string>
#include <string_view>
#include <utility>

#include "Framework/FrameworkExport.h"

namespace Framework {

/// A text that many objects have alike, such as the name of the element they stand for: those that got it in one thread
/// share one copy, and those that got a fixed one have no copy at all. Takes the room of a pointer; the empty text
/// takes no more.
///
/// One object is for one thread at a time, as any value; copies of it may be used and destroyed in others.
class FRAMEWORK_API SharedText {
public:
    SharedText() noexcept = default;
    SharedText(const SharedText& other) noexcept : m_bits(other.m_bits) {
        if (Copy* const copy = Shared()) {
            copy->users.fetch_add(1, std::memory_order_relaxed);
        }
    }
    SharedText(SharedText&& other) noexcept : m_bits(std::exchange(other.m_bits, 0)) {}
    SharedText& operator=(SharedText other) noexcept {
        std::swap(m_bits, other.m_bits);
        return *this;
    }
    ~SharedText() {
        Copy* const copy = Shared();
        if (copy != nullptr && copy->users.fetch_sub(1, std::memory_order_acq_rel) == 1) {
            delete copy;
        }
    }

    /// Throws std::bad_alloc; the text is as it was then.
    void Set(std::string_view text) {
        if (text != View()) {
            Replace(text);
        }
    }
    /// Refers to a text that is never destroyed before this object, nor moved, such as those of a table of fields.
    void SetFixed(const std::string_view& text) noexcept {
        *this = SharedText(reinterpret_cast<std::uintptr_t>(&text) | kFixed);
    }
    void SetFixed(const std::string_view&& text) = delete;
    /// Good until this object is changed or destroyed.
    std::string_view View() const noexcept {
        if ((m_bits & kFixed) != 0) {
            return *reinterpret_cast<const std::string_view*>(m_bits - kFixed);
        }
        const Copy* const copy = Shared();
        return copy == nullptr ? std::string_view() : std::string_view(copy->text);
    }

private:
    struct Copy {
        explicit Copy(std::string_view given) : text(given) {}

        std::atomic<std::uint32_t> users = 1;
        const std::string text;
    };
    static constexpr std::uintptr_t kFixed = 1;
    static_assert(alignof(Copy) > kFixed && alignof(std::string_view) > kFixed);

    explicit SharedText(std::uintptr_t bits) noexcept : m_bits(bits) {}
    explicit SharedText(Copy* copy) noexcept : m_bits(reinterpret_cast<std::uintptr_t>(copy)) {}

    Copy* Shared() const noexcept { return (m_bits & kFixed) != 0 ? nullptr : reinterpret_cast<Copy*>(m_bits); }
    void Replace(std::string_view text);

    std::uintptr_t m_bits = 0; ///< the address of a copy, or of a fixed text and kFixed; 0: the empty text
};

} // namespace Framework
