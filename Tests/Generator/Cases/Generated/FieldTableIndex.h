// Generated from the schemas; do not edit. Regenerate with the target "generate".
#pragma once

#include <span>

namespace Framework {

struct FieldTable;

/// The field tables of all classes. For the library's own use.
struct FieldTableIndex {
    /// Sorted by class name, byte by byte.
    static std::span<const FieldTable* const> Tables();
};

} // namespace Framework
