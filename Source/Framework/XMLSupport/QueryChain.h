#pragma once

#include <cstddef>
#include <memory>
#include <string>
#include <string_view>
#include <utility>

namespace Framework {

/// A stored query, kept as a chain of segments: a nested container appends its own name in constant time, however long
/// the query of its parents is, and going back to that is a copy of a pointer. The text is only made for those who ask
/// for it.
///
/// A query that others go on from shares its segment with them, each with a length of its own. One thread at a time for
/// all that were made from one another.
class QueryChain {
public:
    QueryChain() = default;
    explicit QueryChain(std::string text)
        : m_length(text.size()), m_last(std::make_shared<Segment>(Segment{{}, 0, std::move(text)})) {}
    QueryChain(const QueryChain&) = default;
    QueryChain(QueryChain&& other) noexcept { Swap(other); }
    QueryChain& operator=(QueryChain other) noexcept {
        Swap(other); // what was here goes with `other`, by Release
        return *this;
    }
    ~QueryChain() { Release(); }

    /// Goes on with a slash and `name`; an empty query keeps that slash, as the text would. Throws std::bad_alloc; the
    /// query is then as it was.
    void Append(std::string_view name) {
        constexpr std::size_t mostShared = 2000;
        const bool isWhole = m_last != nullptr && m_length == m_last->text.size(); // nobody went on from here
        if (!isWhole || m_length >= mostShared) {
            m_last = std::make_shared<Segment>(Segment{m_last, m_length, std::string("/").append(name)});
        } else {
            m_last->text.append(1, '/').append(name); // where this throws, what came behind the length is nobody's
        }
        m_length = m_last->text.size();
    }

    /// This query gone on with `name`.
    QueryChain Below(std::string_view name) const {
        QueryChain longer = *this;
        longer.Append(name);
        return longer;
    }

    bool Empty() const { return m_last == nullptr || (m_length == 0 && m_last->before == nullptr); }

    std::string Text() const {
        std::size_t length = 0;
        ForEachFromLast([&](std::string_view part) { length += part.size(); });
        std::string text(length, '\0');
        ForEachFromLast([&](std::string_view part) {
            length -= part.size();
            part.copy(text.data() + length, part.size());
        });
        return text;
    }

private:
    struct Segment {
        std::shared_ptr<Segment> before;
        std::size_t lengthBefore = 0; // of that segment's text
        std::string text;
    };

    template <typename Work> void ForEachFromLast(Work work) const {
        std::size_t length = m_length;
        for (const Segment* segment = m_last.get(); segment != nullptr; segment = segment->before.get()) {
            work(std::string_view(segment->text).substr(0, length));
            length = segment->lengthBefore;
        }
    }

    void Swap(QueryChain& other) noexcept {
        m_last.swap(other.m_last);
        std::swap(m_length, other.m_length);
    }

    // A chain may be as long as a list; letting the segments destroy one another would recurse as deep.
    void Release() noexcept {
        while (m_last != nullptr && m_last.use_count() == 1) {
            m_last = std::move(m_last->before);
        }
    }

    std::size_t m_length = 0; ///< of the last segment's text: what stands behind it others appended
    std::shared_ptr<Segment> m_last;
};

} // namespace Framework
