#pragma once

#include <string_view>

#include "Framework/FrameworkDataContainers/Walks/FieldTable.h"

namespace Framework {

/// The table of the class of that name, null when no generated class bears it.
const FieldTable* FindTable(std::string_view className);

/// The table of an object's own class, by GetBaseType; null when that is no generated class.
const FieldTable* TableOf(TypedDataContainer& object);

} // namespace Framework
