#pragma once

#include "Model.h"

/// One writer for each kind of generated file. A writer returns the whole text of its file and looks at the model
/// alone.
namespace Generator {

std::string WriteHeader(const Container& container);
std::string WriteSource(const Container& container);
std::string WriteEnumHeader(const Model& model);
std::string WriteEnumSource(const Model& model);
/// The header that includes all others.
std::string WriteUmbrella(const Model& model);
std::string WriteIndexHeader();
std::string WriteIndexSource(const Model& model);
/// FieldTables.txt: every class with its fields and its virtual slots, every vocabulary with its words.
std::string WriteListing(const Model& model);
std::string WriteReadme();

} // namespace Generator
