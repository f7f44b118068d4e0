#pragma once

#include <cstddef>
#include <string>
#include <string_view>

#include "Framework/FrameworkExport.h"

/// Makes paths of fields below an object, as MergeJournal, DocumentCheck and lanedoc write and read them: field names
/// joined by "/", an entry of a keyed list as `State[Name=Idle]`, one of another list as `State[3]`. Any thread may
/// call it; std::bad_alloc may be thrown.
class FRAMEWORK_API FieldPath {
public:
    /// `Name[Key=text]`; a text with "]", "/" or a double quote stands in double quotes, doubled inside.
    static std::string KeyStep(std::string_view name, std::string_view keyName, std::string_view key);
    /// `Name[3]`; positions count from 1.
    static std::string PositionStep(std::string_view name, std::size_t position);
    /// The path with one step more; either may be empty.
    static std::string Join(std::string_view path, std::string_view step);
};
