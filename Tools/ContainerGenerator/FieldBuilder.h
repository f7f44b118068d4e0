#pragma once

#include "Model.h"
#include "TypeIndex.h"

namespace Generator {

/// What form and value a declaration has. Refuses unknown types and marks that do not go with the form.
Field BuildField(const FieldDeclaration& declaration, const TypeIndex& types);

} // namespace Generator
