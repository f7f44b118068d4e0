#pragma once

#include <string>

#include "ModelParts.h"

namespace Lanedoc {

/// One schema file for the parts and all that they use, without includes, in the language of Docs/SchemaLanguage.md:
/// it validates documents, and the generator makes the same classes from it.
std::string ModelAsSchema(const ModelParts& parts);

} // namespace Lanedoc
