#pragma once

#include "Model.h"

namespace Generator {

/// The row of a field, as a call of the row function of its form.
std::string WriteRow(const Container& container, const Field& field);

} // namespace Generator
