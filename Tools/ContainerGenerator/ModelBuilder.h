#pragma once

#include "Model.h"
#include "Schema.h"

namespace Generator {

/// Resolves and checks what the schema files declare. Throws Framework::ParseError at the first fault, with the place
/// of the declaration that is wrong. What it returns can be generated as it is, and is sorted by name.
Model BuildModel(const std::vector<SchemaFile>& files);

} // namespace Generator
