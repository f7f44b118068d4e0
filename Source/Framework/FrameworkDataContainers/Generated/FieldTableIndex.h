// Generated from the schemas; do not edit. Regenerate with the target "generate".
#pragma once

#include <span>

namespace Framework {

struct FieldTable;
struct VocabularyTable;

/// The tables of all classes. For the library's own use; both sorted by class name, byte by byte.
struct FieldTableIndex {
    static std::span<const FieldTable* const> Tables();
    static std::span<const VocabularyTable> Vocabularies();

    template <typename Container> static constexpr const FieldTable* Of() { return &Container::s_Table; }
};

} // namespace Framework
