#pragma once

#include <string_view>

#include "Framework/FrameworkDataContainers/Walks/FieldTable.h"

namespace Framework {

/// The table of the class of that name, null when no generated class bears it.
const FieldTable* FindTable(std::string_view className);

/// The table of an object's own class, by GetBaseType; null when that is no generated class.
const FieldTable* TableOf(TypedDataContainer& object);

/// The table of exactly the object's class, null when a host derived it. `likely`, which may be null, is the table of
/// what the library itself puts where the object stands.
const FieldTable* ExactTable(TypedDataContainer& object, const FieldTable* likely);

} // namespace Framework
