#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "Framework/XMLSupport/QueryPath.h"

namespace Fuzz {

/// Reads a query by trying every quote that may end a value: slow, but plainly what the rule of the path language says.
/// Nothing when there are too many ways to try them all.
std::optional<Framework::ParsedPath> ReadByTryingAll(std::string_view query);

/// A path as a text of its own, to be compared and shown.
std::string Written(const Framework::QueryPath& path);

} // namespace Fuzz
