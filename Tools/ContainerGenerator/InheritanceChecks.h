#pragma once

#include "Model.h"
#include "Schema.h"

namespace Generator {

/// Checks that need all classes: cycles of parents, names that clash along a line of parents, key attributes that the
/// entries lack. Completes what a class has from its parents. `declarations` are those of the model's classes, in its
/// order.
void CheckInheritance(Model& model, const std::vector<const ContainerDeclaration*>& declarations);

} // namespace Generator
