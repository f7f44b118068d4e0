#pragma once

#include <memory>
#include <string>

namespace Framework {

/// A stored query, kept as a chain of segments: a nested container appends its own name in constant time, however long
/// the query of its parents is, and going back is a copy of a pointer. The text is only made for those who ask for it.
class QueryChain {
public:
    QueryChain() = default;
    explicit QueryChain(std::string text) : m_last(std::make_shared<Segment>(Segment{nullptr, std::move(text)})) {}
    QueryChain(const QueryChain&) = default;
    QueryChain(QueryChain&&) = default;
    QueryChain& operator=(QueryChain other) noexcept {
        m_last.swap(other.m_last); // what was here goes with `other`, by Release
        return *this;
    }
    ~QueryChain() { Release(); }

    /// This query, a slash, and `name`; `name` alone behind an empty query keeps its slash, as the text would.
    QueryChain Below(std::string name) const {
        QueryChain longer;
        longer.m_last = std::make_shared<Segment>(Segment{m_last, "/" + std::move(name)});
        return longer;
    }

    bool Empty() const { return m_last == nullptr || (m_last->parent == nullptr && m_last->text.empty()); }

    std::string Text() const {
        std::size_t length = 0;
        for (const Segment* segment = m_last.get(); segment != nullptr; segment = segment->parent.get()) {
            length += segment->text.size();
        }
        std::string text(length, '\0');
        for (const Segment* segment = m_last.get(); segment != nullptr; segment = segment->parent.get()) {
            length -= segment->text.size();
            segment->text.copy(text.data() + length, segment->text.size());
        }
        return text;
    }

private:
    struct Segment {
        std::shared_ptr<Segment> parent;
        std::string text;
    };

    // A chain may be as long as a list; letting the segments destroy one another would recurse as deep.
    void Release() {
        while (m_last != nullptr && m_last.use_count() == 1) {
            m_last = std::move(m_last->parent);
        }
    }

    std::shared_ptr<Segment> m_last;
};

} // namespace Framework
