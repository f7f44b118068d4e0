#pragma once

#include <cstddef>
#include <optional>
#include <string>

#include "DocPath.h"
#include "Framework/ContainerCatalog.h"

namespace Lanedoc {

/// What a path names in a tree. Lent from the tree.
struct TreeNode {
    enum class Kind { Container, List, Scalar, Text };

    Kind kind = Kind::Container;
    /// The container itself, or the object that holds the list, the scalar, or the list in which the text stands.
    TypedDataContainer* object = nullptr;
    /// The field by which the node was reached; empty at the root.
    std::optional<CatalogField> field;
    /// Position of a Text in its list, from 0.
    std::size_t position = 0;
    /// The way to the node, as a person would write it.
    std::string path;
};

/// Finds a path below the root. Throws a Failure: wrong use when the class has no such field, with the nearest names;
/// the answer is no when the tree has no such child or entry.
TreeNode FindNode(TypedDataContainer& root, const std::string& path);

/// The last step of the path to an entry: by its key, or by its position in a plain list.
std::string EntryStep(const CatalogField& list, TypedDataContainer& object, std::size_t position);

/// The path to the first entry of a list that is not empty.
std::string FirstEntryPath(const TreeNode& list);

/// Ends a command that wants a value and was given a container, or a list of containers that is not empty; tells what
/// to name instead.
[[noreturn]] void RefuseContainer(const TreeNode& node);
[[noreturn]] void RefuseContainerList(const TreeNode& node);

/// Whether the entries of a list or the field itself are containers.
bool HoldsContainers(const CatalogField& field);

} // namespace Lanedoc
