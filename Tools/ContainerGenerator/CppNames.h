#pragma once

#include "Schema.h"

#include <string_view>

namespace Generator {

/// Refuses a name that C++ cannot take over unchanged. `what` says whose name it is.
void DemandIdentifier(const Written& name, std::string_view what);

/// A class name that the library's own headers or generated files use already.
bool IsReservedClassName(std::string_view name);

/// An operation or a member of the base classes, which no generated one may hide.
bool IsBaseMember(std::string_view name);

} // namespace Generator
