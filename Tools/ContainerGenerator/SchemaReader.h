#pragma once

#include "Schema.h"

#include <filesystem>

namespace Generator {

/// Reads one schema file. Throws Framework::ParseError, "file:line:column: ...", for text that is no XML and for every
/// construct outside of the schema language, and Framework::FileError.
SchemaFile ReadSchemaFile(const std::filesystem::path& path);

/// All files of that folder that end in ".xsd", by name.
std::vector<SchemaFile> ReadSchemaFolder(const std::filesystem::path& folder);

} // namespace Generator
