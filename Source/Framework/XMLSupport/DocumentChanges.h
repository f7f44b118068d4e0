#pragma once

#include "Framework/XMLSupport/NodeRecord.h"

#include <cstdint>
#include <deque>
#include <string>
#include <unordered_map>
#include <vector>

namespace Framework {

/// What was changed in a document since it was parsed: enough to write only that anew, and to take it back, so that a
/// value that returns to what it was leaves no trace. The tree itself shows the changed state.
struct DocumentChanges {
    /// A value that was written, and the node as it was parsed when it was.
    struct WrittenValue {
        std::string text;
        NodeRecord parsed;
    };
    /// The blanks that came with an added element.
    struct AddedElement {
        std::uint32_t before = 0;
        std::uint32_t after = 0;
    };

    bool any = false;
    /// Nodes from this number on were added.
    std::uint32_t parsedNodes = 0;
    /// They stay where they are, so that views of the others stay good.
    std::deque<WrittenValue> values;
    /// Of an element that had no text or several: its texts as they were parsed. Those that went are of kind None now.
    /// An element whose one text was given another needs no such note.
    std::unordered_map<std::uint32_t, std::vector<std::uint32_t>> texts;
    std::unordered_map<std::uint32_t, AddedElement> elements;
    /// Parsed elements whose tag or whose direct children may have changed, some more than once.
    std::vector<std::uint32_t> touched;
    /// Numbers of nodes and of values that are in use no more.
    std::vector<std::uint32_t> freeNodes;
    std::vector<std::uint32_t> freeValues;
};

/// Sorts the numbers and leaves each once. They come mostly as a few runs, each in order: an update goes through a
/// document from its beginning to its end.
void SortEachOnce(std::vector<std::uint32_t>& numbers);

} // namespace Framework
