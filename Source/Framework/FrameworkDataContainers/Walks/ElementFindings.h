#pragma once

#include <functional>
#include <span>

#include "Framework/ContainerBase/FoundProblem.h"
#include "Framework/FrameworkDataContainers/Walks/FieldTable.h"

namespace Framework {

/// Who reads the element, and so what becomes of what is wrong with it.
enum class ElementReader {
    Load,  ///< of a document
    Merge, ///< of an override, into something that is there
    Part,  ///< of an override, as part of something new
};

/// An element that is to be read as one of a class: or several that a load reads into one object, as those of a child
/// that stands more than once.
struct ReadElement {
    const XmlTree& tree;
    std::span<const NodeRef> nodes;
    const FieldTable& table;
};

struct FindingRules {
    ElementReader reader;
    bool knowsAllNames;   ///< false where a host's class may read more than its table says
    bool findsSecondKeys; ///< false where the lists tell of them themselves
    std::vector<std::string> (*near)(std::string_view name, const std::vector<std::string>& known);
};

/// What is wrong with a node. `field` is the step to it from the element; empty for the element itself.
using FindingReport = std::function<void(NodeRef node, std::string_view field, const FoundProblem& problem)>;
/// A child element that a field names, and its position in the list of that field, from 1.
using FoundChild = std::function<void(NodeRef child, const FieldRow& row, std::size_t position)>;

/// Reports all that a reader of the element would pass over or read as something else: in its attributes, its child
/// elements and their texts. What stands in containers below is theirs. Control words are not looked at, and of a merge
/// no missing keys, which it refuses itself. Lists go on from one element of the object to the next.
void FindInElement(const ReadElement& element, const FindingRules& rules, const FindingReport& report,
                   const FoundChild& child = {});

} // namespace Framework
