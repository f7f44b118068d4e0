#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace Lanedoc {

/// The known names that `name` may be a slip of, nearest first, at most `limit`; case alone is a small difference.
std::vector<std::string> NearestNames(std::string_view name, const std::vector<std::string>& known,
                                      std::size_t limit = 3);

/// `did you mean A, B or C?`; empty when there is none.
std::string DidYouMean(const std::vector<std::string>& names);

/// `A, B, C`, and how many more there are behind `limit`.
std::string JoinNames(const std::vector<std::string>& names, std::size_t limit = 12);

} // namespace Lanedoc
