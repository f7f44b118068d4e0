#pragma once

#include "Framework/XMLSupport/NodeRecord.h"

#include <cstdint>
#include <deque>
#include <string>
#include <unordered_map>
#include <unordered_set>
#include <vector>

namespace Framework {

/// What was changed in a document since it was parsed: enough to write only that anew, and to take it back, so that a
/// value that returns to what it was leaves no trace. The tree itself shows the changed state.
struct DocumentChanges {
    struct ParsedNode {
        std::uint32_t number;
        NodeRecord record;
    };
    /// The texts directly in an element as they were parsed; those that went are of kind None now.
    struct ElementText {
        std::vector<ParsedNode> parsed;
        std::uint32_t added = 0; ///< the text of an element that had none
    };
    /// The blanks that came with an added element.
    struct AddedElement {
        std::uint32_t before = 0;
        std::uint32_t after = 0;
    };

    bool any = false;
    /// Nodes from this number on were added.
    std::uint32_t parsedNodes = 0;
    std::unordered_map<std::uint32_t, ElementText> texts;
    /// Attributes that got another value, as they were parsed.
    std::unordered_map<std::uint32_t, NodeRecord> attributes;
    std::unordered_map<std::uint32_t, AddedElement> elements;
    /// Parsed elements whose tag or whose direct children may have changed.
    std::unordered_set<std::uint32_t> touched;
    /// Values that were written. They stay where they are, so that views of the others stay good.
    std::deque<std::string> values;
    /// Numbers of nodes and of values that are in use no more.
    std::vector<std::uint32_t> freeNodes;
    std::vector<std::uint32_t> freeValues;
};

} // namespace Framework
