#pragma once

#include "Framework/XMLSupport/DocumentChanges.h"
#include "Framework/XMLSupport/NameTable.h"
#include "Framework/XMLSupport/NodeRecord.h"
#include "Framework/XMLSupport/TextEncoding.h"

#include <cstdint>
#include <string>
#include <vector>

namespace Framework {

/// All that a document is made of, and nothing that could not be copied.
struct DocumentData {
    static constexpr std::uint32_t kDocumentNode = 1;

    std::string sourceName;
    /// The text that ranges refer to, and how it stood in the file.
    DecodedText source;
    /// Values that do not stand in the source as they read: references, line ends and white space are resolved in them.
    std::string pool;
    NameTable names;
    /// In document order, attributes behind their element; what was added later stands behind all that was parsed.
    /// Record 0 is no node, record 1 the document node.
    std::vector<NodeRecord> nodes;
    std::uint32_t root = 0;
    DocumentChanges changes;

    /// The node before it among the children or attributes of its parent.
    std::uint32_t Previous(std::uint32_t number) const {
        return FirstBeside(nodes[number]) == number ? 0 : nodes[number].previous;
    }
    /// The last of a list of nodes that begins with `first`; 0 when there is none.
    std::uint32_t LastFrom(std::uint32_t first) const { return first == 0 ? 0 : nodes[first].previous; }
    /// Behind the '>' of the start tag; of an element that was added, the place where it came in.
    std::uint32_t StartTagEnd(std::uint32_t element) const;
    /// What stands between the quotes of an attribute that was parsed.
    std::uint32_t RawBegin(const NodeRecord& attribute) const;

    /// Puts a node at the end of the children or attributes of its parent, as its kind says.
    void Append(std::uint32_t number) { LinkBefore(number, 0); }
    /// The same before one of them; at the end when `next` is 0.
    void LinkBefore(std::uint32_t number, std::uint32_t next);
    void Unlink(std::uint32_t number);

private:
    std::uint32_t FirstBeside(const NodeRecord& record) const {
        const NodeRecord::Inner& parent = nodes[record.parent].inner;
        return record.kind == NodeKind::Attribute ? parent.firstAttribute : parent.firstChild;
    }
};

/// What a document as it was parsed takes of the heap, in bytes.
inline std::size_t MemoryOf(const DocumentData& data) {
    return data.source.text.capacity() + data.source.original.capacity() + data.pool.capacity() + data.names.Memory() +
           data.nodes.capacity() * sizeof(NodeRecord);
}

} // namespace Framework
