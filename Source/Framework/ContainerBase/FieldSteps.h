#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

#include "Framework/FieldPath.h"

/// Takes paths of fields apart.
namespace Framework {

/// The steps of a path, each as it is written.
std::vector<std::string_view> StepsOf(std::string_view path);

/// One step, taken apart. `key` is without its quotes.
struct FieldStep {
    std::string_view name;
    std::string_view keyName; ///< empty when there is no key
    std::string key;
    std::size_t position = 0; ///< 0 when there is none
};
FieldStep ReadStep(std::string_view step);

} // namespace Framework
