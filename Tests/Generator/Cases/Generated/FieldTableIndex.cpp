// Generated from the schemas; do not edit. Regenerate with the target "generate".
#include "FrameworkDataContainers/FieldTableIndex.h"

#include "FrameworkDataContainers/FrameworkDataContainers.h"

namespace Framework {

std::span<const FieldTable* const> FieldTableIndex::Tables() {
    static constexpr const FieldTable* tables[] = {
        &AContainerWithANameOfSomeLengthType::s_Table,
        &BasicType::s_Table,
        &DerivedType::s_Table,
        &EmptyDerivedType::s_Table,
        &EmptyType::s_Table,
        &ListsType::s_Table,
        &ScalarsType::s_Table,
    };
    return tables;
}

} // namespace Framework
