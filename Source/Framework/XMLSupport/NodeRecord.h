#pragma once

#include "Framework/XMLSupport/XmlTree.h"

#include <cstdint>

namespace Framework {

/// Which text holds a value.
enum class ValueHolder : std::uint8_t { Source, Pool, Written };

/// One node of a reading tree. Nodes refer to each other by number; 0 is no node.
///
/// What few ask for is not kept: where a start tag ends and where the value of an attribute begins is looked up in the
/// source, and the last of a list is what stands before the first.
struct NodeRecord {
    /// Of the document node and of elements.
    struct Inner {
        std::uint32_t firstAttribute;
        std::uint32_t firstChild;
    };
    /// Of all other kinds: the value.
    struct Leaf {
        std::uint32_t valueBegin; ///< of a written value: its number
        std::uint32_t valueLength : 30;
        ValueHolder holder : 2;
    };

    std::uint32_t begin = 0;
    std::uint32_t end = 0;
    std::uint32_t parent = 0;
    std::uint32_t next = 0;
    std::uint32_t previous = 0; ///< of the first in a list: the last
    std::uint32_t name : 28 = 0;
    NodeKind kind : 4 = NodeKind::None;
    union {
        Inner inner = {};
        Leaf leaf;
    };

    // No document is larger than 1 GiB.
    static constexpr std::uint32_t kNameMask = (1U << 28U) - 1;
    static constexpr std::uint32_t kLengthMask = (1U << 30U) - 1;

    bool IsInner() const { return kind == NodeKind::Element || kind == NodeKind::Document; }
    bool IsText() const { return kind == NodeKind::Text || kind == NodeKind::CData; }
};
static_assert(sizeof(NodeRecord) == 32, "a tree of a large document is mostly this");

} // namespace Framework
