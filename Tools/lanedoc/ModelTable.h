#pragma once

#include <string>

#include "ModelParts.h"
#include "Output.h"

namespace Lanedoc {

/// One line for each root, class and vocabulary, its kind and name first.
std::string ModelAsList(const ModelParts& parts);

/// All that is known of each class and vocabulary.
std::string ModelAsTable(const ModelParts& parts, const Style& style);

} // namespace Lanedoc
