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
};

/// What a document as it was parsed takes of the heap, in bytes.
inline std::size_t MemoryOf(const DocumentData& data) {
    return data.source.text.capacity() + data.source.original.capacity() + data.pool.capacity() + data.names.Memory() +
           data.nodes.capacity() * sizeof(NodeRecord);
}

} // namespace Framework
