#pragma once

#include "Framework/XMLSupport/NameTable.h"
#include "Framework/XMLSupport/TextEncoding.h"
#include "Framework/XMLSupport/XmlTree.h"

#include <cstdint>
#include <string>
#include <vector>

namespace Framework {

/// One node of a reading tree. Nodes refer to each other by number; 0 is no node.
struct NodeRecord {
    /// Of the document node and of elements.
    struct Inner {
        std::uint32_t firstAttribute;
        std::uint32_t firstChild;
        std::uint32_t lastChild;
        std::uint32_t startTagEnd;
    };
    /// Of all other kinds: the value, in the source or in the side pool, and where its raw text begins in the source.
    struct Leaf {
        std::uint32_t valueBegin;
        std::uint32_t valueLength;
        std::uint32_t rawBegin;
        bool inPool;
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
};
static_assert(sizeof(NodeRecord) == 40, "a tree of a large document is mostly this");

/// All that a document is made of, and nothing that could not be copied.
struct DocumentData {
    static constexpr std::uint32_t kDocumentNode = 1;

    std::string sourceName;
    /// The text that ranges refer to, and how it stood in the file.
    DecodedText source;
    /// Values that do not stand in the source as they read: references, line ends and white space are resolved in them.
    std::string pool;
    NameTable names;
    /// In document order, attributes behind their element. Record 0 is no node, record 1 the document node.
    std::vector<NodeRecord> nodes;
    std::uint32_t root = 0;
};

} // namespace Framework
