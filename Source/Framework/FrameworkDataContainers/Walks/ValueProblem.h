#pragma once

#include <optional>
#include <string_view>

#include "Framework/ContainerBase/FoundProblem.h"
#include "Framework/FrameworkDataContainers/Walks/FieldTable.h"

namespace Framework {

/// What is wrong with a text that a load would read as a number, a truth value or a word of a vocabulary, which takes
/// any text. `near` looks for words that may have been meant.
std::optional<FoundProblem> ValueProblem(const FieldRow& row, std::string_view text,
                                         std::vector<std::string> (*near)(std::string_view,
                                                                          const std::vector<std::string>&));

} // namespace Framework
