#pragma once

#include "Schema.h"

#include <filesystem>

namespace Generator {

/// Reads one schema; `name` is that of its file. Throws Framework::ParseError, "name:line:column: ...", for text that
/// is no XML and for every construct outside of the schema language.
SchemaFile ReadSchema(std::string bytes, const std::string& name);

/// The same from its file; throws Framework::FileError too.
SchemaFile ReadSchemaFile(const std::filesystem::path& path);

/// All files of that folder that end in ".xsd", by name.
std::vector<SchemaFile> ReadSchemaFolder(const std::filesystem::path& folder);

} // namespace Generator
