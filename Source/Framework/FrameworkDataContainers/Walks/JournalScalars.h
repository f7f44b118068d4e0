#pragma once

#include "Framework/ContainerBase/JournalData.h"
#include "Framework/FrameworkDataContainers/Walks/FieldTable.h"

namespace Framework {

/// A text that a merge gives a scalar: the element or attribute that holds it, None where an attribute is absent.
struct ScalarSource {
    const XmlTree& tree;
    NodeRef node;
    std::string_view text;
};

enum class ScalarIs {
    Merged, ///< of something that was there
    New,    ///< of something that the override brings
};

/// SetScalar, and writes it into the journal. `element` is what an absent attribute would stand at; its absence is
/// written when that changes the value.
void SetJournalled(JournalData& journal, TypedDataContainer& object, const FieldRow& row, const ScalarSource& source,
                   ScalarIs what, NodeRef element = NodeRef::None);

/// Number of entries of a list of texts.
std::size_t TextCount(TypedDataContainer& object, const FieldRow& row);

/// Writes that a list without keys got a text from a node, when it has more than the `before` that it had.
void WriteAddedText(JournalData& journal, TypedDataContainer& object, const FieldRow& row, std::size_t before,
                    const XmlTree& tree, NodeRef node);

} // namespace Framework
