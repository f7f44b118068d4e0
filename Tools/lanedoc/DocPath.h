#pragma once

#include <cstddef>
#include <stdexcept>
#include <string>
#include <string_view>
#include <vector>

#include "Framework/FieldPath.h"

namespace Lanedoc {

/// One step of a path: a field, and of a list perhaps one entry.
struct PathStep {
    enum class Selector { None, Key, Position };

    std::string name;
    bool isAttribute = false; ///< written with "@"
    Selector selector = Selector::None;
    std::string keyAttribute{}; ///< without "@"
    std::string key{};
    std::size_t position = 0; ///< from 1

    bool operator==(const PathStep&) const = default;
};

/// A text that is no path; `offset` is the byte at which it stops being one.
class PathError : public std::runtime_error {
public:
    PathError(std::size_t offset, const std::string& text) : std::runtime_error(text), m_offset(offset) {}
    std::size_t Offset() const { return m_offset; }

private:
    std::size_t m_offset;
};

/// Field names below the root, joined by "/"; an entry is `State[Name=Idle]` or `State[3]`, counted from 1; a key with
/// "]", "/" or a double quote stands in double quotes, doubled inside. The empty path is the root. Throws PathError.
std::vector<PathStep> ParsePath(std::string_view text);

/// The step as ParsePath reads it.
std::string FormatStep(const PathStep& step);

} // namespace Lanedoc
