// Generated from the schemas; do not edit. Regenerate with the target "generate".
#include "FrameworkDataContainers/FieldTableIndex.h"

#include "Framework/FrameworkDataContainers/Walks/VocabularyTable.h"
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

std::span<const VocabularyTable> FieldTableIndex::Vocabularies() {
    static constexpr VocabularyTable tables[] = {
        VocabularyOf<ShadeType>("ShadeType"),
        VocabularyOf<SizeEnum>("SizeEnum"),
    };
    return tables;
}

} // namespace Framework
