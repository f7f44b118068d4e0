#pragma once

#include <string>

#include "ModelParts.h"

namespace Lanedoc {

/// Roots, classes and vocabularies for programs, in the shape that Docs/JsonFormat.md promises.
std::string ModelAsJson(const ModelParts& parts);

} // namespace Lanedoc
