#pragma once

#include "Framework/XMLSupport/XmlTree.h"

#include <cstdint>

namespace Framework {

/// Which text holds a value.
enum class ValueHolder : std::uint8_t { Source, Pool, Written };

/// One node of a reading tree. Nodes refer to each other by number; 0 is no node.
struct NodeRecord {
    /// Of the document node and of elements.
    struct Inner {
        std::uint32_t firstAttribute;
        std::uint32_t firstChild;
        std::uint32_t lastChild;
        std::uint32_t startTagEnd;
    };
    /// Of all other kinds: the value, and where its raw text begins in the source.
    struct Leaf {
        std::uint32_t valueBegin; ///< of a written value: its number
        std::uint32_t valueLength;
        std::uint32_t rawBegin;
        ValueHolder holder;
    };

    std::uint32_t begin = 0;
    std::uint32_t end = 0;
    std::uint32_t parent = 0;
    std::uint32_t next = 0;
    std::uint32_t previous = 0;
    std::uint32_t name : 28 = 0;
    NodeKind kind : 4 = NodeKind::None;
    union {
        Inner inner = {};
        Leaf leaf;
    };

    static constexpr std::uint32_t kNameMask = (1U << 28U) - 1; // more names than 1 GiB can hold

    bool IsInner() const { return kind == NodeKind::Element || kind == NodeKind::Document; }
    bool IsText() const { return kind == NodeKind::Text || kind == NodeKind::CData; }
};
static_assert(sizeof(NodeRecord) == 40, "a tree of a large document is mostly this");

} // namespace Framework
