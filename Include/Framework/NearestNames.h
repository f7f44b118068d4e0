#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "Framework/FrameworkExport.h"

/// The known names that `name` may be a slip of, nearest first, at most `limit`; case alone is a small difference.
/// Takes time in proportion to the known names; those longer than a slip of the hand could tell apart are passed over.
/// Any thread may call it.
FRAMEWORK_API std::vector<std::string> NearestNames(std::string_view name, const std::vector<std::string>& known,
                                                    std::size_t limit = 3);
