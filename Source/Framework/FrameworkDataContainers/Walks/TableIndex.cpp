#include "Framework/FrameworkDataContainers/Walks/TableIndex.h"

#include <algorithm>

#include "FrameworkDataContainers/FieldTableIndex.h"

namespace Framework {

const FieldTable* FindTable(std::string_view className) {
    const std::span<const FieldTable* const> tables = FieldTableIndex::Tables();
    const auto found =
        std::lower_bound(tables.begin(), tables.end(), className,
                         [](const FieldTable* table, std::string_view name) { return table->className < name; });
    return found == tables.end() || (*found)->className != className ? nullptr : *found;
}

const FieldTable* TableOf(TypedDataContainer& object) {
    return FindTable(object.GetBaseType());
}

const FieldTable* ExactTable(TypedDataContainer& object, const FieldTable* likely) {
    if (likely != nullptr && IsExactly(object, *likely)) {
        return likely;
    }
    const FieldTable* const own = TableOf(object);
    return own != nullptr && IsExactly(object, *own) ? own : nullptr;
}

} // namespace Framework
