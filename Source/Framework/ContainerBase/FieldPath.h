#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

/// Paths of fields below an object, as reports name them: see MergeJournal.
namespace Framework {

/// `Name[Key=text]`; a text with "]", "/" or a double quote stands in double quotes, doubled inside.
std::string KeyStep(std::string_view name, std::string_view keyName, std::string_view key);
/// `Name[3]`
std::string PositionStep(std::string_view name, std::size_t position);
/// The path with one step more; either may be empty.
std::string JoinPath(std::string_view path, std::string_view step);
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
